#include "monkey/Actions.h"
#include "monkey/Pool.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QStyleHints>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>

#include <qpa/qwindowsysteminterface.h>

namespace Monkey {

namespace {

Qt::MouseButton anyButton(Random& random)
{
    const Qt::MouseButton buttons[] = {Qt::LeftButton,   Qt::LeftButton,    Qt::LeftButton, Qt::RightButton,
                                       Qt::MiddleButton, Qt::ExtraButton24, Qt::NoButton};
    return buttons[random.below(7)];
}

Qt::KeyboardModifiers anyModifiers(Random& random)
{
    return random.oneIn(2) ? Qt::NoModifier : Qt::KeyboardModifiers(random.below(64) << 25);
}

/// The widget or one of its children: users hit what lies on top.
QWidget* target(QWidget* widget, Random& random)
{
    const QList<QWidget*> children = widget->findChildren<QWidget*>();
    return children.isEmpty() || random.oneIn(2) ? widget : children.at(random.below(children.size()));
}

QPointF pointOn(const QWidget* widget, Random& random)
{
    if (random.oneIn(8))
        return {random.below(4000) - 2000.5, double(random.coordinate())};
    return {random.below(qMax(1, widget->width())) + 0.25, random.below(qMax(1, widget->height())) + 0.5};
}

/// Whether it is a popup that another one covers. Real presses reach the topmost only: any other first closes
/// those above it, and Qt does not survive that a slot of theirs deletes it.
bool isCoveredPopup(const QWidget* widget)
{
    const QWidget* topmost = QApplication::activePopupWidget();
    const QWidget* window = widget->window();
    return topmost && topmost != window && window->windowType() == Qt::Popup;
}

void sendMouse(QWidget* widget, QEvent::Type type, const QPointF& at, Qt::MouseButton button, Random& random)
{
    const bool released = type == QEvent::MouseButtonRelease;
    const Qt::MouseButtons buttons = released ? Qt::NoButton : Qt::MouseButtons(button);
    const Qt::MouseButton cause = type == QEvent::MouseMove ? Qt::NoButton : button;
    const QPointF global = widget->mapToGlobal(at.toPoint());
    QMouseEvent event(type, at, at, global, cause, buttons, anyModifiers(random));
    const bool isPress = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick;
    if (!isPress || !isCoveredPopup(widget))
        QApplication::sendEvent(widget, &event);
}

void press(QWidget* widget, Random& random)
{
    QWidget* hit = target(widget, random);
    sendMouse(hit, QEvent::MouseButtonPress, pointOn(hit, random), anyButton(random), random);
}

void click(QWidget* widget, Random& random)
{
    const QPointer<QWidget> hit = target(widget, random);
    const QPointF at = pointOn(hit, random);
    sendMouse(hit, QEvent::MouseButtonPress, at, Qt::LeftButton, random);
    if (hit)
        sendMouse(hit, QEvent::MouseButtonRelease, at, Qt::LeftButton, random);
}

void drag(QWidget* widget, Random& random)
{
    const QPointer<QWidget> hit = target(widget, random);
    sendMouse(hit, QEvent::MouseButtonPress, pointOn(hit, random), Qt::LeftButton, random);
    for (int moves = random.below(6); moves > 0 && hit; --moves)
        sendMouse(hit, QEvent::MouseMove, pointOn(hit, random), Qt::LeftButton, random);
    if (hit && !random.oneIn(4))
        sendMouse(hit, QEvent::MouseButtonRelease, pointOn(hit, random), Qt::LeftButton, random);
}

/// The way real input takes: through the window, with enter, leave, grabs and popups.
void mouseThroughWindow(QWidget* widget, Random& random)
{
    QWindow* window = widget->window()->windowHandle();
    if (!window || !window->isVisible())
        return;
    const QPoint at = widget->mapTo(widget->window(), pointOn(widget, random).toPoint());
    const QPoint global = widget->window()->mapToGlobal(at);
    static Qt::MouseButtons held;
    const Qt::MouseButton button = random.oneIn(4) ? Qt::RightButton : Qt::LeftButton;
    switch (random.below(5)) {
    case 0:
        held |= button;
        QWindowSystemInterface::handleMouseEvent(window, at, global, held, button, QEvent::MouseButtonPress);
        break;
    case 1:
        held &= ~Qt::MouseButtons(button);
        QWindowSystemInterface::handleMouseEvent(window, at, global, held, button,
                                                 QEvent::MouseButtonRelease);
        break;
    case 2:
        QWindowSystemInterface::handleEnterEvent(window, at, global);
        break;
    case 3:
        QWindowSystemInterface::handleLeaveEvent(window);
        break;
    default:
        QWindowSystemInterface::handleMouseEvent(window, at, global, held, Qt::NoButton, QEvent::MouseMove);
    }
}

int anyKey(Random& random)
{
    static constexpr int keys[] = {Qt::Key_Return,  Qt::Key_Escape,
                                   Qt::Key_Tab,     Qt::Key_Backtab,
                                   Qt::Key_Space,   Qt::Key_Left,
                                   Qt::Key_Right,   Qt::Key_Delete,
                                   Qt::Key_Control, Qt::Key_Shift,
                                   Qt::Key_Alt,     Qt::Key_Meta,
                                   Qt::Key_F4,      Qt::Key_A,
                                   Qt::Key_Z,       Qt::Key_5,
                                   Qt::Key_Menu,    0,
                                   Qt::Key_unknown, -1};
    return random.oneIn(6) ? random.below(0x1100000) : keys[random.below(20)];
}

void key(QWidget* widget, Random& random)
{
    const QPointer<QWidget> hit = target(widget, random);
    const int code = anyKey(random);
    const Qt::KeyboardModifiers modifiers = anyModifiers(random);
    const QString text = random.oneIn(2) ? QString() : random.text().left(3);
    const QEvent::Type types[] = {QEvent::KeyPress, QEvent::KeyRelease, QEvent::ShortcutOverride};
    QKeyEvent event(types[random.below(3)], code, modifiers, text, random.oneIn(5), ushort(random.below(3)));
    QApplication::sendEvent(hit, &event);
    if (!hit || event.type() != QEvent::KeyPress)
        return;
    QKeyEvent release(QEvent::KeyRelease, code, modifiers, text);
    QApplication::sendEvent(hit, &release);
}

void sendPlain(QWidget* widget, Random& random, std::initializer_list<QEvent::Type> types)
{
    QEvent event(*(types.begin() + random.below(static_cast<int>(types.size()))));
    QApplication::sendEvent(widget, &event);
}

void focus(QWidget* widget, Random& random)
{
    QFocusEvent event(random.oneIn(2) ? QEvent::FocusIn : QEvent::FocusOut, Qt::FocusReason(random.below(8)));
    QApplication::sendEvent(target(widget, random), &event);
}

void contextMenu(QWidget* widget, Random& random)
{
    QWidget* hit = target(widget, random);
    const QPoint at = pointOn(hit, random).toPoint();
    QContextMenuEvent event(QContextMenuEvent::Reason(random.below(3)), at, hit->mapToGlobal(at));
    QApplication::sendEvent(hit, &event);
}

void help(QWidget* widget, Random& random)
{
    QWidget* hit = target(widget, random);
    const QPoint at = pointOn(hit, random).toPoint();
    QHelpEvent event(QEvent::ToolTip, at, hit->mapToGlobal(at));
    QApplication::sendEvent(hit, &event);
}

void wheel(QWidget* widget, Random& random)
{
    const QPointF at = pointOn(widget, random);
    QWheelEvent event(at, at, QPoint(), QPoint(0, random.integer()), Qt::NoButton, anyModifiers(random),
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &event);
}

void compose(QWidget* widget, Random& random)
{
    QInputMethodEvent event(random.text(), {});
    if (random.oneIn(2))
        event.setCommitString(random.text(), random.below(9) - 4, random.below(9));
    QApplication::sendEvent(target(widget, random), &event);
}

} // namespace

const std::vector<WidgetAction>& inputActions()
{
    static const std::vector<WidgetAction> all = {
        {"press",
         [](QWidget* w, Random& r, Pool&) {
             press(w, r);
         }},
        {"click",
         [](QWidget* w, Random& r, Pool&) {
             click(w, r);
         }},
        {"click again",
         [](QWidget* w, Random& r, Pool&) {
             click(w, r);
         }},
        {"drag",
         [](QWidget* w, Random& r, Pool&) {
             drag(w, r);
         }},
        {"drag again",
         [](QWidget* w, Random& r, Pool&) {
             drag(w, r);
         }},
        {"double-click",
         [](QWidget* w, Random& r, Pool&) {
             QWidget* hit = target(w, r);
             sendMouse(hit, QEvent::MouseButtonDblClick, pointOn(hit, r), anyButton(r), r);
         }},
        {"mouse through window",
         [](QWidget* w, Random& r, Pool&) {
             mouseThroughWindow(w, r);
         }},
        {"mouse through window, too",
         [](QWidget* w, Random& r, Pool&) {
             mouseThroughWindow(w, r);
         }},
        {"key",
         [](QWidget* w, Random& r, Pool&) {
             key(w, r);
         }},
        {"key again",
         [](QWidget* w, Random& r, Pool&) {
             key(w, r);
         }},
        {"enter or leave",
         [](QWidget* w, Random& r, Pool&) {
             sendPlain(w, r, {QEvent::Enter, QEvent::Leave});
         }},
        {"activation",
         [](QWidget* w, Random& r, Pool&) {
             sendPlain(w, r, {QEvent::WindowActivate, QEvent::WindowDeactivate});
         }},
        {"change",
         [](QWidget* w, Random& r, Pool&) {
             sendPlain(w, r,
                       {QEvent::LanguageChange, QEvent::StyleChange, QEvent::FontChange,
                        QEvent::PaletteChange, QEvent::EnabledChange, QEvent::LayoutRequest,
                        QEvent::ScreenChangeInternal, QEvent::ApplicationFontChange});
         }},
        {"focus",
         [](QWidget* w, Random& r, Pool&) {
             focus(w, r);
         }},
        {"context menu",
         [](QWidget* w, Random& r, Pool&) {
             contextMenu(w, r);
         }},
        {"help",
         [](QWidget* w, Random& r, Pool&) {
             help(w, r);
         }},
        {"wheel",
         [](QWidget* w, Random& r, Pool&) {
             wheel(w, r);
         }},
        {"compose",
         [](QWidget* w, Random& r, Pool&) {
             compose(w, r);
         }},
    };
    return all;
}

} // namespace Monkey
