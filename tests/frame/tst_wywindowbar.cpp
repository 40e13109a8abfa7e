#include "WyWidgets/frame/WyWindowBar.h"

#include "support/Contract.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QWindow>
#include <QtTest>

#include <algorithm>

using WyWidgets::WyWindowBar;

Q_DECLARE_METATYPE(Qt::MouseButton)

namespace {

/// A window with slots of its own in place of QWidget's, and a record of the mouse events that its bar let
/// through.
class HostWindow : public QWidget
{
    Q_OBJECT

public:
    QList<QEvent::Type> mouseEvents;
    int minimizeCount = 0;
    int closeCount = 0;

public slots:
    void showMinimized() { ++minimizeCount; }
    void close() { ++closeCount; }

protected:
    void mousePressEvent(QMouseEvent* event) override { mouseEvents += event->type(); }
    void mouseReleaseEvent(QMouseEvent* event) override { mouseEvents += event->type(); }
    void mouseDoubleClickEvent(QMouseEvent* event) override { mouseEvents += event->type(); }
    void mouseMoveEvent(QMouseEvent* event) override { mouseEvents += event->type(); }
};

class PressCountingBar : public WyWindowBar
{
    Q_OBJECT

public:
    using WyWindowBar::WyWindowBar;
    int pressCount = 0;

protected:
    void mousePressEvent(QMouseEvent* event) override
    {
        ++pressCount;
        WyWindowBar::mousePressEvent(event);
    }
};

/// Deletes its bar as soon as its state changes.
class BarDeletingWindow : public QWidget
{
    Q_OBJECT

public:
    QPointer<WyWindowBar> bar = new WyWindowBar(this);

protected:
    void changeEvent(QEvent* event) override
    {
        if (event->type() == QEvent::WindowStateChange)
            delete bar;
    }
};

void send(QWidget* target, QEvent::Type type, Qt::MouseButton button = Qt::LeftButton)
{
    const bool moves = type == QEvent::MouseMove;
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
    QMouseEvent event(type, QPointF(5, 5), target->mapToGlobal(QPoint(5, 5)), moves ? Qt::NoButton : button,
                      held, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &event);
}

QHBoxLayout* layoutOf(const WyWindowBar& bar, const char* name)
{
    return bar.findChild<QHBoxLayout*>(name);
}

QPushButton* buttonOf(const WyWindowBar& bar, const char* name)
{
    return bar.findChild<QPushButton*>(name);
}

} // namespace

class TestWyWindowBar : public QObject
{
    Q_OBJECT

private slots:
    void registersOneSlot();
    void paintsAStyledBackground();
    void startsWithoutButtonsOrLabels();
    void theMainLayoutHoldsLeftStretchRight();
    void theLeftLayoutIsEmptyAndStretches();
    void theRightLayoutStartsWithAStretch();
    void widgetsGoToTheLeftInOrder();
    void anySumOfStretchesIsLaidOut();
    void aNullWidgetChangesNothing();
    void toolButtonsGoToTheRightInOrder();
    void aNullToolButtonChangesNothing();
    void separatorsAreThinLabels();
    void additionsWithoutTheirLayoutAreIgnored();
    void childrenAreShownAndHiddenByName();
    void nestedChildrenAreFoundByName();
    void unknownAndEmptyNamesAreIgnored();
    void aChildOfAHiddenBarIsNotVisible();
    void systemButtonsFollowTheRightLayout();
    void systemButtonsLookTheSame_data();
    void systemButtonsLookTheSame();
    void onlyTheMaximiseButtonIsCheckable();
    void systemButtonsAreAddedOnce();
    void deletedSystemButtonsAreReplaced();
    void systemButtonsDoNotMindTheirNamesInTheHostsWidgets();
    void systemButtonsSurviveADeletedLayout();
    void theMinimiseButtonCallsTheWindowsSlotByName();
    void theCloseButtonCallsTheWindowsSlotByName();
    void systemButtonsActOnTheWindowOfTheirCreation();
    void theMaximiseButtonTogglesButIsNotSynchronised();
    void toggleMaxStateMaximisesAndRestores();
    void toggleMaxStateIgnoresFullScreen();
    void aDoubleClickMaximisesAndRestores_data();
    void aDoubleClickMaximisesAndRestores();
    void aDoubleClickLeavesFullScreenAlone();
    void aDoubleClickIsAPressAsWell();
    void aPressOfAnyButtonAsksForAMove_data();
    void aPressOfAnyButtonAsksForAMove();
    void mouseEventsReachTheParent();
    void theBarMayDieInItsDoubleClick();
    void aBarWithoutWindowIsItsOwnWindow();
};

void TestWyWindowBar::registersOneSlot()
{
    WY_COMPARE_CONTRACT(WyWindowBar, {}, {"toggleMaxState()"}, {});
}

void TestWyWindowBar::paintsAStyledBackground()
{
    QVERIFY(WyWindowBar(nullptr).testAttribute(Qt::WA_StyledBackground));
}

void TestWyWindowBar::startsWithoutButtonsOrLabels()
{
    WyWindowBar bar(nullptr);
    QVERIFY(bar.findChildren<QWidget*>().isEmpty());
}

void TestWyWindowBar::theMainLayoutHoldsLeftStretchRight()
{
    WyWindowBar bar(nullptr);
    QHBoxLayout* main = layoutOf(bar, "main_layout");
    QVERIFY(main);
    QCOMPARE(bar.layout(), main);
    QCOMPARE(main->spacing(), 10);
    QCOMPARE(main->contentsMargins(), QMargins(80, 0, 10, 0));
    QCOMPARE(main->count(), 3);
    QCOMPARE(main->itemAt(0)->layout(), layoutOf(bar, "left_layout"));
    QVERIFY(main->itemAt(1)->spacerItem());
    QCOMPARE(main->itemAt(2)->layout(), layoutOf(bar, "right_layout"));
    QCOMPARE(main->stretch(0), 1);
    QCOMPARE(main->stretch(1), 0);
    QCOMPARE(main->stretch(2), 0);
}

void TestWyWindowBar::theLeftLayoutIsEmptyAndStretches()
{
    WyWindowBar bar(nullptr);
    QHBoxLayout* left = layoutOf(bar, "left_layout");
    QVERIFY(left);
    QCOMPARE(left->contentsMargins(), QMargins());
    QCOMPARE(left->count(), 0);
}

void TestWyWindowBar::theRightLayoutStartsWithAStretch()
{
    WyWindowBar bar(nullptr);
    QHBoxLayout* right = layoutOf(bar, "right_layout");
    QVERIFY(right);
    QCOMPARE(right->contentsMargins(), QMargins());
    QCOMPARE(right->spacing(), 10);
    layoutOf(bar, "main_layout")->setSpacing(3);
    QCOMPARE(right->spacing(), 10); // its own
    QCOMPARE(right->count(), 1);
    QVERIFY(right->itemAt(0)->spacerItem());
    QCOMPARE(right->stretch(0), 0);
}

void TestWyWindowBar::widgetsGoToTheLeftInOrder()
{
    WyWindowBar bar(nullptr);
    auto* first = new QLabel;
    auto* second = new QLabel;
    bar.AddWidgetToLeft(first, 0, Qt::AlignLeft | Qt::AlignVCenter);
    bar.AddWidgetToLeft(second, 3, Qt::AlignRight);
    QHBoxLayout* left = layoutOf(bar, "left_layout");
    QCOMPARE(left->count(), 2);
    QCOMPARE(left->itemAt(0)->widget(), first);
    QCOMPARE(left->itemAt(1)->widget(), second);
    QCOMPARE(left->stretch(0), 0);
    QCOMPARE(left->stretch(1), 3);
    QCOMPARE(left->itemAt(0)->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(left->itemAt(1)->alignment(), Qt::Alignment(Qt::AlignRight));
    QCOMPARE(first->parentWidget(), &bar);
}

void TestWyWindowBar::anySumOfStretchesIsLaidOut()
{
    WyWindowBar bar(nullptr);
    for (int stretch : {INT_MAX, INT_MAX, 3})
        bar.AddWidgetToLeft(new QLabel(QStringLiteral("text")), stretch);
    for (int width = 100; width < 1000; width += 50) {
        bar.resize(width, 40);
        bar.grab(); // within the time that a test may take
    }
    bar.AddWidgetToLeft(new QLabel, -1);
    QHBoxLayout* left = layoutOf(bar, "left_layout");
    QCOMPARE(left->stretch(0), 65535);
    QCOMPARE(left->stretch(3), 0);
}

void TestWyWindowBar::aNullWidgetChangesNothing()
{
    WyWindowBar bar(nullptr);
    bar.AddWidgetToLeft(nullptr, 1, Qt::AlignLeft);
    QCOMPARE(layoutOf(bar, "left_layout")->count(), 0);
}

void TestWyWindowBar::toolButtonsGoToTheRightInOrder()
{
    WyWindowBar bar(nullptr);
    auto* first = new QPushButton;
    auto* second = new QPushButton;
    bar.AddToolButton(first);
    bar.AddToolButton(second);
    QHBoxLayout* right = layoutOf(bar, "right_layout");
    QCOMPARE(right->count(), 3);
    QCOMPARE(right->itemAt(1)->widget(), first);
    QCOMPARE(right->itemAt(2)->widget(), second);
    QCOMPARE(right->stretch(1), 0);
    QCOMPARE(right->itemAt(1)->alignment(), Qt::Alignment());
    QCOMPARE(second->parentWidget(), &bar);
}

void TestWyWindowBar::aNullToolButtonChangesNothing()
{
    WyWindowBar bar(nullptr);
    bar.AddToolButton(nullptr);
    QCOMPARE(layoutOf(bar, "right_layout")->count(), 1);
}

void TestWyWindowBar::separatorsAreThinLabels()
{
    WyWindowBar bar(nullptr);
    bar.AddToolButton(new QPushButton);
    bar.AddSeparator();
    bar.AddSeparator();
    QHBoxLayout* right = layoutOf(bar, "right_layout");
    QCOMPARE(right->count(), 4);
    for (int i = 2; i < 4; ++i) {
        auto* separator = qobject_cast<QLabel*>(right->itemAt(i)->widget());
        QVERIFY(separator);
        QCOMPARE(separator->objectName(), QStringLiteral("label_separator"));
        QCOMPARE(separator->parentWidget(), &bar);
        QCOMPARE(separator->minimumSize(), QSize(1, 20));
        QCOMPARE(separator->maximumSize(), QSize(1, 20));
    }
}

void TestWyWindowBar::additionsWithoutTheirLayoutAreIgnored()
{
    WyWindowBar bar(nullptr);
    delete layoutOf(bar, "left_layout");
    delete layoutOf(bar, "right_layout");
    QWidget widget;
    QPushButton button;
    bar.AddWidgetToLeft(&widget, 0, Qt::Alignment());
    bar.AddToolButton(&button);
    bar.AddSeparator();
    QVERIFY(!widget.parent());
    QVERIFY(!button.parent());
    QVERIFY(bar.findChildren<QWidget*>().isEmpty());
}

void TestWyWindowBar::childrenAreShownAndHiddenByName()
{
    WyWindowBar bar(nullptr);
    bar.SetChildVisible(QStringLiteral("close_button"), false);
    bar.InitSysButton();
    bar.show();
    QVERIFY(bar.IsChildVisible(QStringLiteral("close_button")));
    bar.SetChildVisible(QStringLiteral("close_button"), false);
    QVERIFY(!bar.IsChildVisible(QStringLiteral("close_button")));
    QVERIFY(bar.IsChildVisible(QStringLiteral("min_button")));
    bar.SetChildVisible(QStringLiteral("close_button"), true);
    QVERIFY(bar.IsChildVisible(QStringLiteral("close_button")));
}

void TestWyWindowBar::nestedChildrenAreFoundByName()
{
    WyWindowBar bar(nullptr);
    auto* group = new QWidget;
    auto* deep = new QLabel(group);
    deep->setObjectName(QStringLiteral("deep"));
    bar.AddWidgetToLeft(group, 0, Qt::Alignment());
    bar.show();
    QVERIFY(bar.IsChildVisible(QStringLiteral("deep")));
    bar.SetChildVisible(QStringLiteral("deep"), false);
    QVERIFY(deep->isHidden());
    QVERIFY(!bar.IsChildVisible(QStringLiteral("deep")));
}

void TestWyWindowBar::unknownAndEmptyNamesAreIgnored()
{
    WyWindowBar bar(nullptr);
    auto* unnamed = new QLabel;
    bar.AddWidgetToLeft(unnamed, 0, Qt::Alignment());
    bar.show();
    for (const QString& name : {QString(), QString(QLatin1String("")), QStringLiteral("nobody")}) {
        bar.SetChildVisible(name, false);
        QVERIFY(!bar.IsChildVisible(name));
    }
    QVERIFY(unnamed->isVisible());
}

void TestWyWindowBar::aChildOfAHiddenBarIsNotVisible()
{
    WyWindowBar bar(nullptr);
    bar.InitSysButton();
    bar.SetChildVisible(QStringLiteral("min_button"), true);
    QVERIFY(!bar.IsChildVisible(QStringLiteral("min_button")));
}

void TestWyWindowBar::systemButtonsFollowTheRightLayout()
{
    WyWindowBar bar(nullptr);
    bar.InitSysButton();
    QHBoxLayout* main = layoutOf(bar, "main_layout");
    QCOMPARE(main->count(), 6);
    QCOMPARE(main->itemAt(2)->layout(), layoutOf(bar, "right_layout"));
    const char* const names[] = {"min_button", "max_button", "close_button"};
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(main->itemAt(3 + i)->widget(), buttonOf(bar, names[i]));
        QCOMPARE(main->stretch(3 + i), 0);
        QCOMPARE(main->itemAt(3 + i)->alignment(), Qt::Alignment());
    }
}

void TestWyWindowBar::systemButtonsLookTheSame_data()
{
    QTest::addColumn<QString>("purpose");
    QTest::newRow("min_button") << QStringLiteral("Minimize");
    QTest::newRow("max_button") << QStringLiteral("Maximize or restore");
    QTest::newRow("close_button") << QStringLiteral("Close");
}

void TestWyWindowBar::systemButtonsLookTheSame()
{
    QFETCH(QString, purpose);
    WyWindowBar bar(nullptr);
    bar.InitSysButton();
    QPushButton* button = buttonOf(bar, QTest::currentDataTag());
    QVERIFY(button);
    QCOMPARE(button->parentWidget(), &bar);
    QCOMPARE(button->focusPolicy(), Qt::NoFocus);
    QCOMPARE(button->minimumSize(), QSize(32, 32));
    QCOMPARE(button->maximumSize(), QSize(32, 32));
    QCOMPARE(button->accessibleName(), purpose);
    QCOMPARE(button->toolTip(), purpose);
    QVERIFY(button->text().isEmpty());
}

void TestWyWindowBar::onlyTheMaximiseButtonIsCheckable()
{
    WyWindowBar bar(nullptr);
    bar.InitSysButton();
    QVERIFY(!buttonOf(bar, "min_button")->isCheckable());
    QVERIFY(buttonOf(bar, "max_button")->isCheckable());
    QVERIFY(!buttonOf(bar, "close_button")->isCheckable());
}

void TestWyWindowBar::systemButtonsAreAddedOnce()
{
    WyWindowBar bar(nullptr);
    bar.InitSysButton();
    bar.InitSysButton();
    QCOMPARE(bar.findChildren<QPushButton*>().size(), 3);
    QCOMPARE(layoutOf(bar, "main_layout")->count(), 6);
}

void TestWyWindowBar::deletedSystemButtonsAreReplaced()
{
    WyWindowBar bar(nullptr);
    bar.InitSysButton();
    const QPushButton* maximize = buttonOf(bar, "max_button");
    delete buttonOf(bar, "min_button");
    bar.InitSysButton();
    QCOMPARE(bar.findChildren<QPushButton*>().size(), 3);
    QVERIFY(buttonOf(bar, "min_button"));
    QCOMPARE(buttonOf(bar, "max_button"), maximize);
}

void TestWyWindowBar::systemButtonsDoNotMindTheirNamesInTheHostsWidgets()
{
    WyWindowBar bar(nullptr);
    auto* document = new QWidget;
    auto* closesTheDocument = new QPushButton(document);
    closesTheDocument->setObjectName(QStringLiteral("close_button"));
    bar.AddWidgetToLeft(document);
    bar.InitSysButton();
    QCOMPARE(layoutOf(bar, "main_layout")->count(), 6);
    QVERIFY(buttonOf(bar, "close_button") != closesTheDocument);
    bar.InitSysButton();
    QCOMPARE(bar.findChildren<QPushButton*>().size(), 4);
}

void TestWyWindowBar::systemButtonsSurviveADeletedLayout()
{
    WyWindowBar bar(nullptr);
    delete bar.layout();
    bar.InitSysButton();
    QCOMPARE(bar.findChildren<QPushButton*>().size(), 3);
}

void TestWyWindowBar::theMinimiseButtonCallsTheWindowsSlotByName()
{
    HostWindow window;
    WyWindowBar bar(&window);
    bar.InitSysButton();
    buttonOf(bar, "min_button")->click();
    QCOMPARE(window.minimizeCount, 1);
    QCOMPARE(window.closeCount, 0);
}

void TestWyWindowBar::theCloseButtonCallsTheWindowsSlotByName()
{
    HostWindow window;
    WyWindowBar bar(&window);
    bar.InitSysButton();
    buttonOf(bar, "close_button")->click();
    QCOMPARE(window.closeCount, 1);
    QCOMPARE(window.minimizeCount, 0);
}

void TestWyWindowBar::systemButtonsActOnTheWindowOfTheirCreation()
{
    HostWindow first;
    HostWindow second;
    auto* bar = new WyWindowBar(&first);
    bar->InitSysButton();
    bar->setParent(&second);
    buttonOf(*bar, "close_button")->click();
    QCOMPARE(first.closeCount, 1);
    QCOMPARE(second.closeCount, 0);
    second.show();
    buttonOf(*bar, "max_button")->click();
    QVERIFY(second.isMaximized());
    QVERIFY(!first.isMaximized());
}

void TestWyWindowBar::theMaximiseButtonTogglesButIsNotSynchronised()
{
    QWidget window;
    WyWindowBar bar(&window);
    bar.InitSysButton();
    window.show();
    QPushButton* button = buttonOf(bar, "max_button");
    button->click();
    QVERIFY(window.isMaximized());
    QVERIFY(button->isChecked());
    window.showNormal();
    QVERIFY(button->isChecked());
    button->click();
    QVERIFY(window.isMaximized());
    QVERIFY(!button->isChecked());
    button->click();
    QVERIFY(!window.isMaximized());
}

void TestWyWindowBar::toggleMaxStateMaximisesAndRestores()
{
    QWidget window;
    WyWindowBar bar(&window);
    window.show();
    bar.toggleMaxState();
    QVERIFY(window.isMaximized());
    bar.toggleMaxState();
    QVERIFY(!window.isMaximized());
    QVERIFY(window.isVisible());
}

void TestWyWindowBar::toggleMaxStateIgnoresFullScreen()
{
    QWidget window;
    WyWindowBar bar(&window);
    window.showFullScreen();
    bar.toggleMaxState();
    QVERIFY(window.isMaximized());
    QVERIFY(!window.isFullScreen());
    window.setWindowState(Qt::WindowFullScreen | Qt::WindowMaximized);
    bar.toggleMaxState();
    QVERIFY(!window.isMaximized());
    QVERIFY(!window.isFullScreen());
}

void TestWyWindowBar::aDoubleClickMaximisesAndRestores_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("left") << Qt::LeftButton;
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
}

void TestWyWindowBar::aDoubleClickMaximisesAndRestores()
{
    QFETCH(Qt::MouseButton, button);
    QWidget window;
    WyWindowBar bar(&window);
    window.show();
    send(&bar, QEvent::MouseButtonDblClick, button);
    QVERIFY(window.isMaximized());
    send(&bar, QEvent::MouseButtonDblClick, button);
    QVERIFY(!window.isMaximized());
}

void TestWyWindowBar::aDoubleClickLeavesFullScreenAlone()
{
    QWidget window;
    WyWindowBar bar(&window);
    window.showFullScreen();
    send(&bar, QEvent::MouseButtonDblClick);
    QVERIFY(window.isFullScreen());
    QVERIFY(!window.isMaximized());
    window.setWindowState(Qt::WindowFullScreen | Qt::WindowMaximized);
    send(&bar, QEvent::MouseButtonDblClick);
    QCOMPARE(window.windowState(), Qt::WindowFullScreen | Qt::WindowMaximized);
}

void TestWyWindowBar::aDoubleClickIsAPressAsWell()
{
    QWidget window;
    PressCountingBar bar(&window);
    window.show();
    send(&bar, QEvent::MouseButtonDblClick);
    QCOMPARE(bar.pressCount, 1);
}

void TestWyWindowBar::aPressOfAnyButtonAsksForAMove_data()
{
    aDoubleClickMaximisesAndRestores_data();
}

/// Off macOS a move that was asked for waits in the native window for the first motion of a held left button.
void TestWyWindowBar::aPressOfAnyButtonAsksForAMove()
{
    QFETCH(Qt::MouseButton, button);
    QWidget window;
    WyWindowBar bar(&window);
    bar.resize(100, 40);
    window.resize(200, 200);
    window.show();
    const auto waitingMoves = [&] {
        const QObjectList children = window.windowHandle()->children();
        return std::count_if(children.begin(), children.end(),
                             [](QObject* child) { return child->inherits("WyWidgets::WindowDrag"); });
    };
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(150, 150));
    QCOMPARE(waitingMoves(), 0);
    send(&bar, QEvent::MouseMove, button);
    QCOMPARE(waitingMoves(), 0);
    send(&bar, QEvent::MouseButtonPress, button);
    QCOMPARE(waitingMoves(), 1);
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(150, 150));
    QTRY_COMPARE(waitingMoves(), 0);
}

void TestWyWindowBar::mouseEventsReachTheParent()
{
    HostWindow window;
    WyWindowBar bar(&window);
    const QList<QEvent::Type> types = {QEvent::MouseButtonPress, QEvent::MouseMove,
                                       QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick};
    for (QEvent::Type type : types)
        send(&bar, type);
    QCOMPARE(window.mouseEvents, types);
}

void TestWyWindowBar::theBarMayDieInItsDoubleClick()
{
    BarDeletingWindow window;
    window.show();
    send(window.bar, QEvent::MouseButtonDblClick);
    QVERIFY(!window.bar);
    QVERIFY(window.isMaximized());
}

void TestWyWindowBar::aBarWithoutWindowIsItsOwnWindow()
{
    WyWindowBar bar(nullptr);
    bar.InitSysButton();
    send(&bar, QEvent::MouseButtonPress);
    bar.show();
    send(&bar, QEvent::MouseButtonPress);
    bar.toggleMaxState();
    QVERIFY(bar.isMaximized());
    buttonOf(bar, "close_button")->click();
    QVERIFY(!bar.isVisible());
}

QTEST_MAIN(TestWyWindowBar)
#include "tst_wywindowbar.moc"
