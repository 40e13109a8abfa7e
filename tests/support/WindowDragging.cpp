#include "support/WindowDragging.h"

#include "support/RealInput.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>
#include <QStyleHints>
#include <QTest>
#include <QWidget>
#include <QWindow>

namespace WyTest {

namespace {

/// Notes the button events of the window that it watches.
class ButtonWatch : public QObject
{
public:
    QList<QEvent::Type> events;
    bool eventFilter(QObject*, QEvent* event) override
    {
        const QEvent::Type type = event->type();
        if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease ||
            type == QEvent::MouseButtonDblClick)
            events += type;
        return false;
    }
};

} // namespace

void dragBy(QPoint from, QPoint distance, int movesBefore, Qt::MouseButton button)
{
    QVERIFY(RealInput::hover(from));
    RealInput::press(button);
    for (int i = 0; i < movesBefore; ++i)
        QVERIFY(RealInput::movePointerAndWait(from += QPoint(1, 1)));
    for (int step = 1; step <= 10; ++step)
        RealInput::movePointer(from + distance * step / 10);
    RealInput::release(button);
}

void doubleClick(QWidget* window, QPoint globalPos, const std::function<void()>& whilePressed)
{
    const QList<QEvent::Type> once = {QEvent::MouseButtonPress, QEvent::MouseButtonRelease};
    const QList<QEvent::Type> twice = {QEvent::MouseButtonPress, QEvent::MouseButtonDblClick,
                                       QEvent::MouseButtonRelease};
    QGuiApplication::styleHints()->setMouseDoubleClickInterval(0);
    ButtonWatch watch;
    window->windowHandle()->installEventFilter(&watch);
    RealInput::click(globalPos);
    QTRY_COMPARE(watch.events, once);
    QGuiApplication::styleHints()->setMouseDoubleClickInterval(10000);
    RealInput::press();
    whilePressed();
    RealInput::release();
    QTRY_COMPARE(watch.events.mid(2), twice);
    QGuiApplication::styleHints()->setMouseDoubleClickInterval(0);
}

void clickThroughSystemButtons(QWidget* window)
{
    const auto clickOn = [window](const char* name) {
        return RealInput::clickOn(window->findChild<QPushButton*>(name));
    };
    const QRect start = window->geometry();
    QVERIFY(clickOn("max_button"));
    QTRY_VERIFY(window->isMaximized());
    QTRY_COMPARE(window->geometry(), window->screen()->availableGeometry());
    QVERIFY(clickOn("max_button"));
    QTRY_VERIFY(!window->isMaximized());
    QTRY_COMPARE(window->geometry(), start);

    QVERIFY(clickOn("min_button"));
    QTRY_VERIFY(window->isMinimized());
    QTRY_VERIFY(!window->windowHandle()->isExposed());
    window->showNormal();
    QTRY_VERIFY(window->windowHandle()->isExposed());
    QVERIFY(clickOn("close_button"));
    QTRY_VERIFY(!window->isVisible());
}

} // namespace WyTest
