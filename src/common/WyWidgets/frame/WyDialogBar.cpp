#include "WyWidgets/frame/WyDialogBar.h"

#include "WyWidgets/internal/widgets/ActiveProperty.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QStyle>

namespace WyWidgets {

namespace {

constexpr int kSpacingPx = 10;
constexpr QMargins kMarginsPx(10, 0, 10, 0);

const QLatin1String kTitle("dialog_title");

} // namespace

WyDialogBar::WyDialogBar(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_StyledBackground);
    setProperty(kActiveProperty, true);
    auto* mainLayout = new QHBoxLayout(this);
    mainLayout->setObjectName(QStringLiteral("main_layout"));
    mainLayout->setContentsMargins(kMarginsPx);
    mainLayout->setSpacing(kSpacingPx);

    auto* title = new QLabel(this);
    title->setObjectName(kTitle);
    title->setProperty(kActiveProperty, true);
    title->setAlignment(Qt::AlignCenter);
    mainLayout->addWidget(title, 0);
}

void WyDialogBar::SetTitle(const QString& title, bool)
{
    if (auto* label = findChild<QLabel*>(kTitle))
        label->setText(title);
}

QPushButton* WyDialogBar::GetCloseButton() const
{
    return findChild<QPushButton*>(QStringLiteral("dialog_close"));
}

void WyDialogBar::SlotWindowActive(bool active)
{
    const QPointer<WyDialogBar> guard(this);
    setActiveProperty(this, active, style());
    if (!guard)
        return;
    if (auto* label = findChild<QLabel*>(kTitle))
        setActiveProperty(label, active, style());
}

void WyDialogBar::mousePressEvent(QMouseEvent* event)
{
    // The window agent does the dragging.
    QWidget::mousePressEvent(event);
}

} // namespace WyWidgets
