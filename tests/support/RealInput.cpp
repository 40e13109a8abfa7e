#include "support/RealInput.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QTest>
#include <QWidget>

#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
// Xlib's macros collide with Qt's names.
#undef None
#undef Bool
#undef Status

QPoint WyTest::centreOf(const QWidget* widget)
{
    return widget->mapToGlobal(widget->rect().center());
}

namespace WyTest::RealInput {

namespace {

constexpr int kStepPauseMs = 8;
constexpr int kExposurePatienceMs = 6000; // a loaded machine takes its time
constexpr int kExposureAttempts = 5;
constexpr int kActivationPatienceMs = 2000;
constexpr int kActivationAttempts = 5;

// A connection of the tests' own: Qt's is xcb, and events sent through another client look like a device's.
Display* display()
{
    static Display* const connection = [] {
        if (QGuiApplication::platformName() != QLatin1String("xcb"))
            return static_cast<Display*>(nullptr);
        return XOpenDisplay(nullptr);
    }();
    return connection;
}

void flush()
{
    XSync(display(), False);
    QTest::qWait(kStepPauseMs);
}

QPoint nativePosition(QPoint globalPos)
{
    QScreen* screen = QGuiApplication::screenAt(globalPos);
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    // Screens keep their native origin; only distances from it are scaled.
    const QPoint origin = screen->geometry().topLeft();
    return origin + (globalPos - origin) * screen->devicePixelRatio();
}

/// Notes whether the application sees the pointer at a place.
class PointerWatch : public QObject
{
public:
    explicit PointerWatch(QPoint globalPos) : m_pos(globalPos) { qApp->installEventFilter(this); }
    bool hasCome() const { return m_hasCome; }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched->isWindowType() && event->type() == QEvent::MouseMove)
            m_hasCome |= static_cast<QMouseEvent*>(event)->globalPos() == m_pos;
        return false;
    }

private:
    const QPoint m_pos;
    bool m_hasCome = false;
};

unsigned int xButton(Qt::MouseButton button)
{
    switch (button) {
    case Qt::MiddleButton:
        return 2;
    case Qt::RightButton:
        return 3;
    default:
        return 1;
    }
}

// A window that is mapped while the window manager starts may stay without a frame for good: it is shown
// anew.
bool showExposed(QWidget* window)
{
    for (int attempt = 0; attempt < kExposureAttempts; ++attempt) {
        if (attempt > 0)
            window->hide();
        window->show();
        if (QTest::qWaitForWindowExposed(window, kExposurePatienceMs))
            return true;
    }
    return false;
}

} // namespace

bool isAvailable()
{
    int event = 0;
    int error = 0;
    int major = 0;
    int minor = 0;
    return display() && XTestQueryExtension(display(), &event, &error, &major, &minor);
}

void movePointer(QPoint globalPos)
{
    if (!isAvailable())
        return;
    const QPoint native = nativePosition(globalPos);
    XTestFakeMotionEvent(display(), -1, native.x(), native.y(), CurrentTime);
    flush();
}

bool movePointerAndWait(QPoint globalPos)
{
    const PointerWatch watch(globalPos);
    movePointer(globalPos);
    return QTest::qWaitFor([&] { return watch.hasCome(); });
}

bool hover(QPoint globalPos)
{
    const PointerWatch watch(globalPos);
    return QTest::qWaitFor([&] {
        movePointer(globalPos + QPoint(1, 0));
        movePointer(globalPos);
        return watch.hasCome();
    });
}

void dragPointer(QPoint from, QPoint to, int steps)
{
    movePointer(from);
    press();
    for (int step = 1; step <= steps; ++step)
        movePointer(from + (to - from) * step / steps);
    release();
}

void press(Qt::MouseButton button)
{
    if (!isAvailable())
        return;
    XTestFakeButtonEvent(display(), xButton(button), True, CurrentTime);
    flush();
}

void release(Qt::MouseButton button)
{
    if (!isAvailable())
        return;
    XTestFakeButtonEvent(display(), xButton(button), False, CurrentTime);
    flush();
}

void click(QPoint globalPos, Qt::MouseButton button)
{
    movePointer(globalPos);
    press(button);
    release(button);
}

bool clickOn(const QWidget* widget)
{
    if (!hover(centreOf(widget)))
        return false;
    click(centreOf(widget));
    return true;
}

void doubleClick(QPoint globalPos)
{
    click(globalPos);
    press();
    release();
}

void key(const char* keysymName, bool down)
{
    if (!isAvailable())
        return;
    const KeyCode code = XKeysymToKeycode(display(), XStringToKeysym(keysymName));
    XTestFakeKeyEvent(display(), code, down, CurrentTime);
    flush();
}

void tapKey(const char* keysymName)
{
    key(keysymName, true);
    key(keysymName, false);
}

bool showAndActivate(QWidget* window)
{
    if (!showExposed(window))
        return false;
    // A window manager that is still starting misses a request.
    for (int attempt = 0; attempt < kActivationAttempts; ++attempt) {
        window->activateWindow();
        window->raise();
        if (QTest::qWaitForWindowActive(window, kActivationPatienceMs))
            return true;
    }
    return false;
}

} // namespace WyTest::RealInput
