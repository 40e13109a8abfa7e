#include "WyWidgets/wycontrol/WyImageButton.h"

#include "WyWidgets/frame/WyWidgetUtils.h"
#include "WyWidgets/internal/widgets/MirroredMargins.h"

#include <QHBoxLayout>
#include <QLabel>

namespace WyWidgets {

namespace {

constexpr QSize kIconSizePx(24, 24);
constexpr int kLeftMarginPx = 4;

} // namespace

WyImageButton::WyImageButton(QWidget* parent) : QPushButton(parent)
{
    createView();
}

WyImageButton::WyImageButton(const QString& text, QWidget* parent) : QPushButton(text, parent)
{
    createView();
}

void WyImageButton::setIconNormal(QString path)
{
    m_iconNormal = std::move(path);
    UpdateStyle();
}

void WyImageButton::setIconDisable(QString path)
{
    m_iconDisable = std::move(path);
    UpdateStyle();
}

void WyImageButton::UpdateStyle()
{
    updateStyle(m_iconLabel, m_iconNormal, m_iconDisable);
}

void WyImageButton::createView()
{
    m_iconSize = kIconSizePx;
    m_leftMargin = kLeftMarginPx;
    auto* layout = new QHBoxLayout(this);
    setMirroredMargins(layout, QMargins(m_leftMargin, 0, 0, 0));
    layout->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_iconLabel = new QLabel(this);
    m_iconLabel->setObjectName(QStringLiteral("label_icon"));
    m_iconLabel->setFixedSize(m_iconSize);
    layout->addWidget(m_iconLabel);
}

} // namespace WyWidgets
