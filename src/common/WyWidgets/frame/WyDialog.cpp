#include "WyWidgets/frame/WyDialog.h"

#include "WyWidgets/frame/WyDialogBar.h"
#include "WyWidgets/internal/painting/Shadow.h"
#include "WyWidgets/internal/widgets/ActiveProperty.h"

#include <QWKWidgets/widgetwindowagent.h>

#include <QEvent>
#include <QGraphicsDropShadowEffect>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace WyWidgets {

namespace {

constexpr int kShadowMarginPx = 12;
constexpr int kTitleBarHeightPx = 32;

} // namespace

WyDialog::WyDialog(QWidget* parent) : WyDialog(true, parent) {}

WyDialog::WyDialog(bool installAgent, QWidget* parent) : QDialog(parent, Qt::WindowFlags())
{
    installWindowAgent(installAgent);
}

WyDialog::~WyDialog()
{
    SlotHideMask();
}

void WyDialog::installWindowAgent(bool install)
{
    if (!install)
        return;
    m_agent = new QWK::WidgetWindowAgent(this);
    m_agent->setup(this);
}

QWidget* WyDialog::createContent()
{
    const QString name = QStringLiteral("dialog_content");
    if (auto* panel = findChild<QWidget*>(name, Qt::FindDirectChildrenOnly))
        return panel;
    if (!layout())
        new QVBoxLayout(this);
    layout()->setContentsMargins(kShadowMarginPx, kShadowMarginPx, kShadowMarginPx, kShadowMarginPx);

    auto* panel = new QWidget(this);
    panel->setObjectName(name);
    panel->setProperty(kActiveProperty, true);
    layout()->addWidget(panel);
    setAttribute(Qt::WA_TranslucentBackground);
    addShadow(panel, this);
    connect(this, &WyDialog::SignalWindowActive, panel,
            [this, panel](bool active) { showActivation(panel, active); });
    return panel;
}

WyDialogBar* WyDialog::GetTitleBar()
{
    if (m_titleBar)
        return m_titleBar;
    m_titleBar = new WyDialogBar(this);
    connect(this, &WyDialog::SignalWindowActive, m_titleBar, &WyDialogBar::SlotWindowActive);
    m_titleBar->setFixedHeight(kTitleBarHeightPx);
    if (m_agent) {
        m_agent->setTitleBar(m_titleBar);
        registerCloseButton();
    }
    return m_titleBar;
}

void WyDialog::registHitTestVisible(QWidget* widget, bool visible)
{
    if (widget && m_agent)
        m_agent->setHitTestVisible(widget, visible);
}

QWidget* WyDialog::GetContentWidget()
{
    return this;
}

void WyDialog::ShowMask(QWidget* parent, bool withMargin)
{
    if (!parent)
        return;
    if (!m_mask) {
        m_mask = new QLabel(parent);
        m_mask->setObjectName(withMargin ? QStringLiteral("label_mask_with_margin")
                                         : QStringLiteral("label_mask_no_margin"));
    }
    m_mask->resize(parent->geometry().size());
    m_mask->move(0, 0);
    m_mask->show();
}

QColor WyDialog::shadowActiveColor() const
{
    return m_shadowActiveColor;
}

void WyDialog::setShadowActiveColor(QColor color)
{
    m_shadowActiveColor = color;
}

QColor WyDialog::shadowDeactiveColor() const
{
    return m_shadowDeactiveColor;
}

void WyDialog::setShadowDeactiveColor(QColor color)
{
    m_shadowDeactiveColor = color;
}

void WyDialog::SlotHideMask()
{
    // Forgotten first: its end may bring a handler of the host here again.
    QLabel* mask = m_mask;
    m_mask = nullptr;
    delete mask;
}

bool WyDialog::event(QEvent* event)
{
    const QPointer<WyDialog> guard(this);
    if (event->type() == QEvent::WindowActivate)
        emit SignalWindowActive(true);
    else if (event->type() == QEvent::WindowDeactivate)
        emit SignalWindowActive(false);
    else if (event->type() == QEvent::Show)
        registerCloseButton();
    // Past QDialog on purpose: whatever it may do here, a frameless dialog does without.
    return guard ? QWidget::event(event) : true;
}

bool WyDialog::nativeEvent(const QByteArray& eventType, void* message, long* result)
{
    return QWidget::nativeEvent(eventType, message, result);
}

void WyDialog::registerCloseButton()
{
    if (m_titleBar)
        registHitTestVisible(m_titleBar->GetCloseButton(), true);
}

void WyDialog::showActivation(QWidget* panel, bool active)
{
    const QPointer<QWidget> guard(panel);
    // The host may have taken the shadow away or put another effect in its place.
    auto* shadow = qobject_cast<QGraphicsDropShadowEffect*>(panel->graphicsEffect());
    if (!shadow)
        shadow = addShadow(panel, this);
    shadow->setColor(active ? m_shadowActiveColor : m_shadowDeactiveColor);
    if (guard) // the effect tells of its new colour
        setActiveProperty(panel, active, style());
}

} // namespace WyWidgets
