#include "WyWidgets/frame/WyTransWidget.h"

#include "support/Contract.h"

#include <QWindow>
#include <QtTest>

using WyWidgets::WyTransWidget;

using Call = void (*)(QWidget*);
Q_DECLARE_METATYPE(Call)

class TestWyTransWidget : public QObject
{
    Q_OBJECT

private slots:
    void registersNothing();
    void isAPlainChildWithoutWindowFlags();
    void nullWidgetsAreHarmless();
    void aWindowThatIsNotShownYetGetsNoNativeWindow();
    void callsOnAChildReachItsWindow_data();
    void callsOnAChildReachItsWindow();
    void callsOnItselfReachItsWindow();
    void aVisibleWindowStaysVisible();
    void theNativeWindowAndTheWidgetAgree();
    void theWindowKeepsItsFlagsWhenItIsShownLater();
};

namespace {

/// The flags that the calls change, of the widget and of its native window if there is one.
Qt::WindowFlags changedFlags(const QWidget& window)
{
    const Qt::WindowFlags all = Qt::WindowTransparentForInput | Qt::WindowStaysOnTopHint |
                                Qt::NoDropShadowWindowHint | Qt::WindowMinimizeButtonHint;
    return window.windowFlags() & all;
}

constexpr Qt::WindowFlags kFrameless = Qt::Window | Qt::FramelessWindowHint;

} // namespace

void TestWyTransWidget::registersNothing()
{
    WY_COMPARE_CONTRACT(WyTransWidget, {}, {}, {});
}

void TestWyTransWidget::isAPlainChildWithoutWindowFlags()
{
    QWidget parent;
    WyTransWidget widget(&parent);
    QCOMPARE(widget.parentWidget(), &parent);
    QCOMPARE(widget.windowFlags(), QWidget(&parent).windowFlags());
    QVERIFY(WyTransWidget().isWindow());
}

void TestWyTransWidget::nullWidgetsAreHarmless()
{
    WyTransWidget::SetWidgetIgnoresMouseEvents(nullptr, true);
    WyTransWidget::SetWidgetStaysOnTop(nullptr, true, true);
    WyTransWidget::SetHasShadow(nullptr, false);
    WyTransWidget::StartNativeSystemMove(nullptr);
}

void TestWyTransWidget::aWindowThatIsNotShownYetGetsNoNativeWindow()
{
    WyTransWidget widget;
    widget.SetWidgetIgnoresMouseEvents(true);
    widget.SetWidgetStaysOnTop(true);
    widget.SetHasShadow(false);
    widget.SetMiniaturizable(true);
    WyTransWidget::StartNativeSystemMove(&widget);
    QVERIFY(!widget.internalWinId());
    QVERIFY(!widget.isVisible());
}

void TestWyTransWidget::callsOnAChildReachItsWindow_data()
{
    QTest::addColumn<Call>("change");
    QTest::addColumn<Call>("revert");
    QTest::addColumn<int>("flag");

    const auto row = [](const char* name, Call change, Call revert, Qt::WindowType flag) {
        QTest::newRow(name) << change << revert << int(flag);
    };
    row(
        "mouse", [](QWidget* w) { WyTransWidget::SetWidgetIgnoresMouseEvents(w, true); },
        [](QWidget* w) { WyTransWidget::SetWidgetIgnoresMouseEvents(w, false); },
        Qt::WindowTransparentForInput);
    row(
        "on top", [](QWidget* w) { WyTransWidget::SetWidgetStaysOnTop(w, true, false); },
        [](QWidget* w) { WyTransWidget::SetWidgetStaysOnTop(w, false, false); }, Qt::WindowStaysOnTopHint);
    row(
        "high on top", [](QWidget* w) { WyTransWidget::SetWidgetStaysOnTop(w, true, true); },
        [](QWidget* w) { WyTransWidget::SetWidgetStaysOnTop(w, false, true); }, Qt::WindowStaysOnTopHint);
    row(
        "shadow", [](QWidget* w) { WyTransWidget::SetHasShadow(w, false); },
        [](QWidget* w) { WyTransWidget::SetHasShadow(w, true); }, Qt::NoDropShadowWindowHint);
}

void TestWyTransWidget::callsOnAChildReachItsWindow()
{
    QFETCH(Call, change);
    QFETCH(Call, revert);
    QFETCH(int, flag);
    QWidget window(nullptr, kFrameless);
    QWidget child(&window);
    window.show();
    change(&child);
    QCOMPARE(int(changedFlags(window)), flag);
    QCOMPARE(window.windowHandle()->flags(), window.windowFlags());
    change(&window);
    QCOMPARE(int(changedFlags(window)), flag);
    revert(&child);
    QCOMPARE(window.windowFlags(), kFrameless);
    QCOMPARE(window.windowHandle()->flags(), kFrameless);
    QVERIFY(!child.internalWinId());
}

void TestWyTransWidget::callsOnItselfReachItsWindow()
{
    QWidget window(nullptr, kFrameless);
    WyTransWidget widget(&window);
    window.show();
    widget.SetWidgetIgnoresMouseEvents(true);
    widget.SetWidgetStaysOnTop(false);
    widget.SetHasShadow(false);
    widget.SetMiniaturizable(false);
    QCOMPARE(changedFlags(window), Qt::WindowTransparentForInput | Qt::WindowStaysOnTopHint |
                                       Qt::NoDropShadowWindowHint | Qt::WindowMinimizeButtonHint);
    widget.SetWidgetIgnoresMouseEvents(false);
    widget.SetHasShadow(true);
    widget.SetWidgetStaysOnTop(true);
    QCOMPARE(changedFlags(window), Qt::WindowStaysOnTopHint | Qt::WindowMinimizeButtonHint);
    QCOMPARE(window.windowHandle()->flags(), window.windowFlags());
}

void TestWyTransWidget::aVisibleWindowStaysVisible()
{
    WyTransWidget widget;
    widget.setGeometry(30, 40, 50, 60);
    widget.show();
    const WId native = widget.winId();
    QSignalSpy visibility(widget.windowHandle(), &QWindow::visibleChanged);
    widget.SetWidgetIgnoresMouseEvents(true);
    widget.SetWidgetStaysOnTop(true);
    widget.SetHasShadow(false);
    widget.SetMiniaturizable(true);
    QCOMPARE(visibility.size(), 0);
    QCOMPARE(widget.internalWinId(), native);
    QCOMPARE(widget.geometry(), QRect(30, 40, 50, 60));
}

void TestWyTransWidget::theNativeWindowAndTheWidgetAgree()
{
    WyTransWidget widget;
    widget.show();
    widget.SetWidgetStaysOnTop(true);
    QCOMPARE(widget.windowHandle()->flags(), widget.windowFlags());
    // The widget's own flags hold the change too: setting further ones keeps it.
    widget.setWindowFlags(widget.windowFlags() | Qt::FramelessWindowHint);
    widget.show();
    QVERIFY(widget.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
}

void TestWyTransWidget::theWindowKeepsItsFlagsWhenItIsShownLater()
{
    WyTransWidget widget;
    widget.SetWidgetStaysOnTop(true);
    widget.show();
    QVERIFY(widget.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
    // The usual buttons of a window are still there.
    QVERIFY(widget.windowHandle()->flags().testFlag(Qt::WindowCloseButtonHint));
}

QTEST_MAIN(TestWyTransWidget)
#include "tst_wytranswidget.moc"
