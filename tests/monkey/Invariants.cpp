#include "monkey/Invariants.h"

#include "monkey/Trace.h"
#include "monkey/VirtualTime.h"

#include "WyWidgets/layout/WySelectFrame.h"
#include "WyWidgets/wycontrol/WyToast.h"

#include <QApplication>
#include <QLabel>
#include <QMap>
#include <QMenu>

namespace Monkey {

using namespace WyWidgets;

namespace {

/// The children of which a control has one, or none once the host has deleted it.
const QMap<QByteArray, QByteArrayList>& markersOf()
{
    static const QMap<QByteArray, QByteArrayList> markers = {
        {"WyFlatTab", {"label_tab"}},
        {"WyFlatVTab", {"label_line", "label_rect"}},
        {"WyHandleSlider", {"label_pos"}},
        {"WyDotButton", {"label_dot"}},
        {"WyDotLabel", {"label_dot"}},
        {"WyDotCheckBox", {"label_dot"}},
        {"WyClearEdit", {"edit_button_clear"}},
        {"WyPasswordEdit", {"edit_psw_switch"}},
        {"WyImageButton", {"label_icon"}},
        {"WyErrorWidget", {"err_widget_label"}},
        {"WyWindowBar", {"min_button", "max_button", "close_button"}},
    };
    return markers;
}

bool mayStandAlone(const QWidget* window)
{
    // Menus and tool tips delete themselves; text toasts are made by a static function; the rest are
    // arguments.
    return qobject_cast<const QMenu*>(window) || window->inherits("QTipLabel") ||
           window->inherits("WyWidgets::WyToastWidget") ||
           window->objectName() == QLatin1String("monkey_button");
}

} // namespace

void Invariants::watch(QWidget* object)
{
    if (auto* toast = qobject_cast<WyToast*>(object)) {
        connect(toast, &WyToast::closed, this, &Invariants::toastClosed);
        connect(toast, &QObject::destroyed, this, [this](QObject* dead) {
            m_closed.remove(dead);
            m_toastQueue.toastDied(dead);
        });
    }
    if (auto* frame = qobject_cast<WySelectFrame*>(object))
        connect(frame, &WySelectFrame::SignalWindowMoved, this, &Invariants::frameMoved);
}

void Invariants::aboutToCall(const Pool::Member& member, const char* operation)
{
    if (auto* toast = qobject_cast<WyToast*>(member.object.data()))
        m_toastQueue.aboutToCall(operation, toast);
}

void Invariants::checkStep(Pool& pool, Random& random)
{
    checkToasts(pool);
    m_toastQueue.check();
    const Pool::Member member = pool.any(random);
    if (member.object)
        checkMarkers(member);
}

void Invariants::checkToasts(Pool& pool) const
{
    int alive = 0;
    for (const Pool::Member& member : pool.members())
        alive += qobject_cast<WyToast*>(member.object.data()) != nullptr;
    const int visible = WyToast::getVisibleCount();
    const int queued = WyToast::getQueuedCount();
    if (WyToast::getCount() != visible + queued)
        Trace::fail("%d toasts are not %d on screen and %d waiting", WyToast::getCount(), visible, queued);
    if (visible + queued > alive)
        Trace::fail("%d toasts are listed, only %d are alive", visible + queued, alive);
}

void Invariants::checkMarkers(const Pool::Member& member) const
{
    for (const QByteArray& name : markersOf().value(member.entry->name)) {
        const auto found = member.object->findChildren<QWidget*>(QString::fromLatin1(name));
        int own = 0;
        for (const QWidget* child : found)
            own += child->parentWidget() == member.object && !child->property("monkey").isValid();
        if (own > 1)
            Trace::fail("%s has %d children %s", member.entry->name, own, name.constData());
    }
}

void Invariants::checkSettled(const Pool& pool)
{
    checkWindows(pool);
    m_toastQueue.checkSettled();
}

void Invariants::checkWindows(const Pool& pool) const
{
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->parentWidget() && !pool.contains(window) && !mayStandAlone(window))
            Trace::fail("nobody's window: %s \"%s\"", window->metaObject()->className(),
                        qPrintable(window->objectName()));
    }
}

void Invariants::checkEnd(const VirtualTime& time) const
{
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->inherits("QTipLabel"))
            Trace::fail("a window is left at the end: %s", window->metaObject()->className());
    }
    for (QObject* owner : time.timerOwners()) {
        // Qt's pixmap cache empties itself bit by bit.
        if (!owner->inherits("Monkey::VirtualAnimations") && !owner->inherits("QPMCache"))
            Trace::fail("a timer is left at the end: of a %s", owner->metaObject()->className());
    }
    if (WyToast::getCount() != 0)
        Trace::fail("%d toasts are counted at the end", WyToast::getCount());
}

void Invariants::toastClosed()
{
    m_toastQueue.toastClosed(sender());
    if (++m_closed[sender()] > 1)
        Trace::fail("a toast has closed twice");
}

void Invariants::frameMoved(const QRect& rect, bool moved)
{
    const auto* frame = qobject_cast<WySelectFrame*>(sender());
    const QWidget* parent = frame ? frame->parentWidget() : nullptr;
    // A frame that the host has put beyond its parent is turned over to nothing.
    if (!parent || rect.isEmpty())
        return;
    const bool tooWide = moved && rect.width() > parent->width();
    const bool tooHigh = moved && rect.height() > parent->height();
    const bool fitsX = tooWide || (rect.left() >= 0 && rect.right() < parent->width());
    const bool fitsY = tooHigh || (rect.top() >= 0 && rect.bottom() < parent->height());
    if (!fitsX || !fitsY)
        Trace::fail("a frame was %s to %d, %d, %d x %d in %d x %d", moved ? "moved" : "resized", rect.x(),
                    rect.y(), rect.width(), rect.height(), parent->width(), parent->height());
}

} // namespace Monkey
