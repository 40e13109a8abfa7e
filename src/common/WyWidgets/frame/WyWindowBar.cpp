#include "WyWidgets/frame/WyWindowBar.h"

#include "WyWidgets/frame/WyTransWidget.h"
#include "WyWidgets/internal/widgets/OwnTexts.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>

namespace WyWidgets {

namespace {

constexpr int kSpacingPx = 10;
constexpr QMargins kMarginsPx(80, 0, 10, 0);
constexpr QSize kSeparatorSizePx(1, 20);
constexpr QSize kSysButtonSizePx(32, 32);
// Qt's layouts never end where the sum of stretches overflows.
constexpr int kMostStretch = 0xffff;

const QLatin1String kMainLayout("main_layout");
const QLatin1String kLeftLayout("left_layout");
const QLatin1String kRightLayout("right_layout");

void toggleMaximized(QWidget* window)
{
    if (window->isMaximized())
        window->showNormal();
    else
        window->showMaximized();
}

} // namespace

WyWindowBar::WyWindowBar(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_StyledBackground);
    auto* mainLayout = new QHBoxLayout(this);
    mainLayout->setObjectName(kMainLayout);
    mainLayout->setSpacing(kSpacingPx);
    mainLayout->setContentsMargins(kMarginsPx);

    auto* leftLayout = new QHBoxLayout;
    leftLayout->setObjectName(kLeftLayout);
    mainLayout->addLayout(leftLayout, 1);
    mainLayout->addStretch(0);

    auto* rightLayout = new QHBoxLayout;
    rightLayout->setObjectName(kRightLayout);
    rightLayout->addStretch(0);
    mainLayout->addLayout(rightLayout, 0);
    rightLayout->setSpacing(kSpacingPx);
}

void WyWindowBar::AddWidgetToLeft(QWidget* widget, int stretch, Qt::Alignment alignment)
{
    QHBoxLayout* layout = layoutNamed(kLeftLayout);
    if (widget && layout)
        layout->addWidget(widget, qBound(0, stretch, kMostStretch), alignment);
}

void WyWindowBar::AddToolButton(QPushButton* button)
{
    QHBoxLayout* layout = layoutNamed(kRightLayout);
    if (button && layout)
        layout->addWidget(button);
}

void WyWindowBar::AddSeparator()
{
    QHBoxLayout* layout = layoutNamed(kRightLayout);
    if (!layout)
        return;
    auto* separator = new QLabel(this);
    separator->setObjectName(QStringLiteral("label_separator"));
    separator->setFixedSize(kSeparatorSizePx);
    layout->addWidget(separator);
}

void WyWindowBar::SetChildVisible(const QString& objectName, bool visible)
{
    // An empty name would find any child.
    auto* child = objectName.isEmpty() ? nullptr : findChild<QWidget*>(objectName);
    if (child)
        child->setVisible(visible);
}

bool WyWindowBar::IsChildVisible(const QString& objectName) const
{
    auto* child = objectName.isEmpty() ? nullptr : findChild<QWidget*>(objectName);
    return child && child->isVisible();
}

void WyWindowBar::InitSysButton()
{
    // By name, so that a window may answer with slots of its own.
    if (QPushButton* button = addSysButton(QStringLiteral("min_button"), [] { return tr("Minimize"); }))
        connect(button, SIGNAL(clicked()), window(), SLOT(showMinimized()));
    if (QPushButton* button =
            addSysButton(QStringLiteral("max_button"), [] { return tr("Maximize or restore"); })) {
        connect(button, SIGNAL(clicked()), this, SLOT(toggleMaxState()));
        button->setCheckable(true);
    }
    if (QPushButton* button = addSysButton(QStringLiteral("close_button"), [] { return tr("Close"); }))
        connect(button, SIGNAL(clicked()), window(), SLOT(close()));
}

void WyWindowBar::toggleMaxState()
{
    toggleMaximized(window());
}

void WyWindowBar::mousePressEvent(QMouseEvent* event)
{
    // Any button: the window system decides what it takes for a drag.
    WyTransWidget::StartNativeSystemMove(window());
    QWidget::mousePressEvent(event);
}

void WyWindowBar::mouseReleaseEvent(QMouseEvent* event)
{
    m_pressed = false;
    QWidget::mouseReleaseEvent(event);
}

void WyWindowBar::mouseDoubleClickEvent(QMouseEvent* event)
{
    const QPointer<WyWindowBar> guard(this);
    if (!window()->isFullScreen())
        toggleMaximized(window());
    // The base calls mousePressEvent(), so the second press can drag as well.
    if (guard)
        QWidget::mouseDoubleClickEvent(event);
}

void WyWindowBar::mouseMoveEvent(QMouseEvent* event)
{
    QWidget::mouseMoveEvent(event);
}

QHBoxLayout* WyWindowBar::layoutNamed(const QString& objectName) const
{
    return findChild<QHBoxLayout*>(objectName);
}

/// Null if the bar has such a button already; one within a widget of the host's does not count.
QPushButton* WyWindowBar::addSysButton(const QString& objectName, QString (*purpose)())
{
    if (findChild<QPushButton*>(objectName, Qt::FindDirectChildrenOnly))
        return nullptr;
    auto* button = new QPushButton(this);
    button->setObjectName(objectName);
    button->setFocusPolicy(Qt::NoFocus);
    button->setFixedSize(kSysButtonSizePx);
    OwnTexts::of(button)->setNameAndToolTip(purpose);
    if (layout())
        layout()->addWidget(button);
    return button;
}

} // namespace WyWidgets
