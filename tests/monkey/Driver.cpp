#include "monkey/Driver.h"

#include "monkey/Actions.h"
#include "monkey/Trace.h"
#include "monkey/VirtualTime.h"

#include "WyWidgets/frame/WyDialog.h"
#include "WyWidgets/wycontrol/WyToast.h"

#include <QApplication>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPushButton>
#include <QWindow>

#include <algorithm>

namespace Monkey {

namespace {

constexpr int kMostObjects = 24;
constexpr int kMostStepsPerTurn = 30;
constexpr int kMostMsPerTurn = 60;
constexpr int kLongTimeMs = 4 * 60 * 1000;
constexpr qint64 kMostButtonPixels = 32'000'000;
/// Slots call operations whose signals spring slots.
constexpr int kDeepestSlots = 3;

/// Qt's styles paint some buttons into pictures of their size, however little of them is seen.
bool isTooLargeButton(const QObject* object)
{
    const auto* button = qobject_cast<const QPushButton*>(object);
    return button && qint64(button->width()) * button->height() > kMostButtonPixels;
}

/// Whether the widget or a window of its own is on its way to the screen. Qt closes open popups meanwhile and
/// does not survive that a slot of theirs deletes the window.
bool isBeingShown(QWidget* widget)
{
    const auto isUnderWay = [](const QWidget* shown) {
        return shown->isVisible() && !shown->testAttribute(Qt::WA_Mapped);
    };
    const QList<QWidget*> descendants = widget->findChildren<QWidget*>();
    return isUnderWay(widget) || std::any_of(descendants.begin(), descendants.end(), isUnderWay);
}

} // namespace

Driver::Driver(quint64 seed, int steps, VirtualTime& time) : m_random(seed), m_time(time), m_stepsLeft(steps)
{
    m_random.setWidgets(
        [this]() -> QWidget* { return m_random.oneIn(8) ? nullptr : m_pool.any(m_random).object.data(); });
}

void Driver::run()
{
    qApp->installEventFilter(this);
    m_time.setIdleWork([this] { work(); });
    QCoreApplication::exec();
}

bool Driver::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::Paint)
        return isTooLargeButton(watched);
    if (type != QEvent::Resize && type != QEvent::Show && type != QEvent::UpdateRequest &&
        type != QEvent::Expose)
        return false;
    auto* window = qobject_cast<QWidget*>(watched);
    auto* nativeWindow = qobject_cast<QWindow*>(watched);
    if (nativeWindow && nativeWindow->handle())
        window = QWidget::find(nativeWindow->winId());
    if (!window)
        return false;
    // Qt itself crashes if a window gets another parent while one is on its way, or has no pixels to paint
    // on.
    const bool hasPixels = window->isWindow() && window->isVisible() && !window->size().isEmpty();
    if ((type == QEvent::UpdateRequest || type == QEvent::Expose) && !hasPixels)
        return true;
    if (!window->isWindow() || isPaintable(window))
        return false;
    window->setMinimumSize(0, 0);
    window->setMaximumSize(kLargestWindowPx, kLargestWindowPx);
    const bool isStillTooLarge = !isPaintable(window); // its layout insists
    return isStillTooLarge && (type == QEvent::UpdateRequest || type == QEvent::Expose);
}

void Driver::work()
{
    if (m_stepsLeft <= 0) {
        if (m_modal)
            m_modal->done(0); // this runs in its event loop
        else if (!m_finishing)
            finish();
        return;
    }
    if (!m_modal) // what is to be deleted later waits for the end of the dialog's event loop
        m_invariants.checkSettled(m_pool);
    for (int count = m_random.below(kMostStepsPerTurn); count > 0 && m_stepsLeft > 0; --count)
        step();
    Trace::add("time", "passes");
    m_time.advance(m_random.oneIn(50) ? 3000 : m_random.below(kMostMsPerTurn));
}

void Driver::step()
{
    --m_stepsLeft;
    Trace::setStep(++m_step);
    if (m_modal && m_random.oneIn(40))
        m_modal->done(0);
    const int roll = m_random.below(1000);
    const Pool::Member member = m_pool.any(m_random);
    if (roll < 70 || !member.object) {
        create();
    } else if (roll < 100) {
        destroy();
    } else if (roll < 520) {
        operate(member);
    } else if (roll < 960) {
        const auto& actions = roll < 720 ? widgetActions() : roll < 930 ? inputActions() : damages();
        const WidgetAction& action = actions[m_random.below(static_cast<int>(actions.size()))];
        Trace::add(member.entry->name, action.name, member.object);
        action.run(member.object, m_random, m_pool);
    } else if (roll < 963) {
        changeApplication();
    } else if (roll < 971) {
        exec();
    } else if (roll < 975) {
        crowd();
    } else {
        Trace::add("time", "passes a little");
        m_time.advance(m_random.below(8));
    }
    m_invariants.checkStep(m_pool, m_random);
}

void Driver::create()
{
    const auto& classes = catalogue();
    QWidget* object = create(classes[m_random.below(static_cast<int>(classes.size()))]);
    if (!m_random.oneIn(4))
        object->resize(m_random.length(), m_random.length());
    if (!m_random.oneIn(3))
        object->show();
}

QWidget* Driver::create(const ClassEntry& entry)
{
    if (m_pool.size() >= kMostObjects)
        destroy();
    QWidget* parent = m_random.oneIn(2) ? nullptr : m_pool.any(m_random).object.data();
    Trace::add(entry.name, "create", parent);
    auto* object = static_cast<QWidget*>(entry.create(m_random, parent));
    if (auto* edit = qobject_cast<QLineEdit*>(object))
        edit->setDragEnabled(false); // a drag would wait for a drop
    m_pool.add(object, entry);
    connectSignals(object);
    m_invariants.watch(object);
    return object;
}

void Driver::destroy()
{
    const Pool::Member member = m_pool.any(m_random);
    if (!member.object)
        return;
    const bool atOnce = mayDieAtOnce(member.object) && m_random.oneIn(2);
    Trace::add(member.entry->name, atOnce ? "delete" : "deleteLater", member.object);
    if (atOnce)
        delete member.object;
    else
        member.object->deleteLater();
}

bool Driver::mayDieAtOnce(QWidget* object) const
{
    // Qt asks the widget that a right button was pressed on for a context menu without another look at it.
    const bool isAskedForMenu = QGuiApplication::mouseButtons() & Qt::RightButton;
    return m_fragile == 0 && !isAskedForMenu && !isBeingShown(object);
}

void Driver::operate(const Pool::Member& member)
{
    const auto& operations = member.entry->operations;
    if (operations.empty())
        return;
    const Operation& operation = operations[m_random.below(static_cast<int>(operations.size()))];
    Trace::add(member.entry->name, operation.name, member.object);
    m_invariants.aboutToCall(member, operation.name);
    operation.call(member.object, m_random);
}

/// More toasts than may be on screen, so that some wait.
void Driver::crowd()
{
    const auto& classes = catalogue();
    const auto toasts = std::find_if(classes.begin(), classes.end(), [](const ClassEntry& entry) {
        return qstrcmp(entry.name, "WyToast") == 0;
    });
    for (int count = 2 + m_random.below(6); count > 0; --count) {
        auto* toast = static_cast<WyWidgets::WyToast*>(create(*toasts));
        Trace::add(toasts->name, "show", toast);
        m_invariants.aboutToCall({toast, &*toasts}, "show");
        toast->show();
    }
}

void Driver::changeApplication()
{
    const auto& actions = applicationActions();
    const ApplicationAction& action = actions[m_random.below(static_cast<int>(actions.size()))];
    Trace::add("application", action.name);
    action.run(m_random);
}

void Driver::exec()
{
    const Pool::Member member = m_pool.any(m_random);
    auto* dialog = qobject_cast<WyWidgets::WyDialog*>(member.object.data());
    if (!dialog || m_modal || m_slotDepth > 0)
        return;
    Trace::add(member.entry->name, "exec", dialog);
    m_modal = dialog;
    dialog->exec();
    m_modal = nullptr;
    Trace::add(member.entry->name, "exec ends", dialog);
}

void Driver::connectSignals(QWidget* object)
{
    const QMetaMethod slot = metaObject()->method(metaObject()->indexOfSlot("spring()"));
    const QMetaObject* meta = object->metaObject();
    for (int i = 0; i < meta->methodCount(); ++i) {
        const QMetaMethod method = meta->method(i);
        const bool isOurs = QByteArray(method.enclosingMetaObject()->className()).startsWith("WyWidgets::");
        if (method.methodType() == QMetaMethod::Signal && (isOurs || method.name() == "clicked"))
            connect(object, method, this, slot);
    }
}

void Driver::spring()
{
    if (m_slotDepth >= kDeepestSlots || m_finishing || !m_random.oneIn(4))
        return;
    const QPointer<QWidget> object = qobject_cast<QWidget*>(sender());
    const auto& members = m_pool.members();
    const auto found = std::find_if(members.begin(), members.end(),
                                    [&](const Pool::Member& member) { return member.object == object; });
    if (found == members.end())
        return;
    const Pool::Member member = *found;
    const bool fragile = member.entry->ending == Ending::Later;
    ++m_slotDepth;
    m_fragile += fragile;
    switch (m_random.below(6)) {
    case 0:
        if (mayDieAtOnce(object)) {
            Trace::add(member.entry->name, "delete in slot", object);
            delete object;
        } else {
            Trace::add(member.entry->name, "deleteLater in slot", object);
            object->deleteLater();
        }
        break;
    case 1:
        Trace::add(member.entry->name, "hide in slot", object);
        object->hide();
        break;
    case 2:
        destroy();
        break;
    case 3:
        create();
        break;
    default:
        operate(member);
    }
    m_fragile -= fragile;
    --m_slotDepth;
}

void Driver::finish()
{
    m_finishing = true;
    Trace::add("end", "delete all");
    for (Pool::Member member = m_pool.any(m_random); member.object; member = m_pool.any(m_random))
        delete member.object;
    m_time.advance(kLongTimeMs);
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QLatin1String("monkey_button"))
            window->deleteLater();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    WyWidgets::WyToast::reset();
    m_invariants.checkEnd(m_time);
    QCoreApplication::quit();
}

} // namespace Monkey
