#include "WyWidgets/frame/WyTransWidget.h"

#include "WyWidgets/internal/platform/ObjectRuntime.h"

#include <QtTest>

using WyWidgets::WyTransWidget;

id NSApp = nullptr;

RecordedRuntime& RecordedRuntime::instance()
{
    static RecordedRuntime runtime;
    return runtime;
}

id RecordedRuntime::object(const QString& name)
{
    // Never dereferenced: only its address counts.
    const id object = m_names.key(name, reinterpret_cast<id>(quintptr(0x1000 + 16 * m_names.size())));
    m_names.insert(object, name);
    return object;
}

SEL sel_registerName(const char* name)
{
    return reinterpret_cast<SEL>(const_cast<char*>(name));
}

Class objc_getClass(const char* name)
{
    return reinterpret_cast<Class>(RecordedRuntime::instance().object(QString::fromLatin1(name)));
}

using Call = void (*)(WyTransWidget&);
Q_DECLARE_METATYPE(Call)

/// The library's own AppKit source, compiled against a runtime that records the messages.
class TestNativeWindowMac : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void sendsTheMessages_data();
    void sendsTheMessages();
    void nullWidgetsSendNothing();
    void aNilViewSendsNothing();
    void aNilWindowSendsNothingFurther_data();
    void aNilWindowSendsNothingFurther();
    void aMoveWithoutAnEventIsNotStarted();
    void aMoveWithoutAnApplicationIsNotStarted();
    void theStyleMaskKeepsItsBits_data();
    void theStyleMaskKeepsItsBits();

private:
    /// A fresh record in which the widget's view has a window.
    void setUp(WyTransWidget& widget, id window);

    RecordedRuntime& m_runtime = RecordedRuntime::instance();
};

void TestNativeWindowMac::init()
{
    m_runtime = RecordedRuntime();
    NSApp = nullptr;
}

void TestNativeWindowMac::setUp(WyTransWidget& widget, id window)
{
    const id view = reinterpret_cast<id>(widget.winId());
    m_runtime.name(view, QStringLiteral("view"));
    m_runtime.answer(view, QStringLiteral("window"), window);
    NSApp = m_runtime.object(QStringLiteral("NSApp"));
    m_runtime.answer(NSApp, QStringLiteral("currentEvent"), m_runtime.object(QStringLiteral("event")));
    m_runtime.answer(m_runtime.object(QStringLiteral("NSColor")), QStringLiteral("clearColor"),
                     m_runtime.object(QStringLiteral("clear")));
}

void TestNativeWindowMac::sendsTheMessages_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char* name, Call call, const QStringList& expected) {
        QTest::newRow(name) << call << QStringList("[view window] id") + expected;
    };

    row("ignore the mouse", [](WyTransWidget& w) { WyTransWidget::SetWidgetIgnoresMouseEvents(&w, true); },
        {"[window setIgnoresMouseEvents: (BOOL)1] void"});
    row("take the mouse", [](WyTransWidget& w) { WyTransWidget::SetWidgetIgnoresMouseEvents(&w, false); },
        {"[window setIgnoresMouseEvents: (BOOL)0] void"});
    row("on top", [](WyTransWidget& w) { WyTransWidget::SetWidgetStaysOnTop(&w, true, false); },
        {"[window setLevel: (long)8] void"});
    row("high on top", [](WyTransWidget& w) { WyTransWidget::SetWidgetStaysOnTop(&w, true, true); },
        {"[window setLevel: (long)101] void"});
    row("not on top", [](WyTransWidget& w) { WyTransWidget::SetWidgetStaysOnTop(&w, false, false); },
        {"[window setLevel: (long)0] void"});
    row("not on top, though high",
        [](WyTransWidget& w) { WyTransWidget::SetWidgetStaysOnTop(&w, false, true); },
        {"[window setLevel: (long)0] void"});
    row("shadow", [](WyTransWidget& w) { WyTransWidget::SetHasShadow(&w, true); },
        {"[window setHasShadow: (BOOL)1] void"});
    row("no shadow", [](WyTransWidget& w) { WyTransWidget::SetHasShadow(&w, false); },
        {"[window setHasShadow: (BOOL)0] void"});
    row("move", [](WyTransWidget& w) { WyTransWidget::StartNativeSystemMove(&w); },
        {"[NSApp currentEvent] id", "[window performWindowDragWithEvent: event] void"});

    row("itself ignores the mouse", [](WyTransWidget& w) { w.SetWidgetIgnoresMouseEvents(true); },
        {"[window setIgnoresMouseEvents: (BOOL)1] void"});
    row("itself takes the mouse", [](WyTransWidget& w) { w.SetWidgetIgnoresMouseEvents(false); },
        {"[window setIgnoresMouseEvents: (BOOL)0] void"});
    row("itself high on top", [](WyTransWidget& w) { w.SetWidgetStaysOnTop(true); },
        {"[window setLevel: (long)101] void"});
    row("itself on top, never normal", [](WyTransWidget& w) { w.SetWidgetStaysOnTop(false); },
        {"[window setLevel: (long)8] void"});
    row("itself with shadow", [](WyTransWidget& w) { w.SetHasShadow(true); },
        {"[window setHasShadow: (BOOL)1] void"});
    row("itself without shadow", [](WyTransWidget& w) { w.SetHasShadow(false); },
        {"[window setHasShadow: (BOOL)0] void"});
    const QStringList miniaturizable = {
        "[window styleMask] unsigned long",        "[window setStyleMask: (unsigned long)4] void",
        "[window setOpaque: (BOOL)0] void",        "[NSColor clearColor] id",
        "[window setBackgroundColor: clear] void",
    };
    row(
        "itself can be miniaturized", [](WyTransWidget& w) { w.SetMiniaturizable(true); }, miniaturizable);
    row(
        "itself can be miniaturized in any case", [](WyTransWidget& w) { w.SetMiniaturizable(false); },
        miniaturizable);
}

void TestNativeWindowMac::sendsTheMessages()
{
    QFETCH(Call, call);
    QFETCH(QStringList, expected);
    WyTransWidget widget;
    setUp(widget, m_runtime.object(QStringLiteral("window")));
    call(widget);
    QCOMPARE(m_runtime.messages, expected);
}

void TestNativeWindowMac::nullWidgetsSendNothing()
{
    WyTransWidget::SetWidgetIgnoresMouseEvents(nullptr, true);
    WyTransWidget::SetWidgetStaysOnTop(nullptr, true, true);
    WyTransWidget::SetHasShadow(nullptr, true);
    WyTransWidget::StartNativeSystemMove(nullptr);
    QCOMPARE(m_runtime.messages, QStringList());
}

namespace {

/// Calls the native operations when its parent, which never had a native window, is being destroyed.
class LateCaller : public QObject
{
public:
    using QObject::QObject;
    ~LateCaller() override
    {
        auto* widget = static_cast<QWidget*>(parent());
        viewWasNil = widget->winId() == 0;
        WyTransWidget::SetWidgetIgnoresMouseEvents(widget, true);
        WyTransWidget::SetWidgetStaysOnTop(widget, true, true);
        WyTransWidget::SetHasShadow(widget, true);
        WyTransWidget::StartNativeSystemMove(widget);
    }
    static inline bool viewWasNil = false;
};

} // namespace

void TestNativeWindowMac::aNilViewSendsNothing()
{
    auto* widget = new QWidget;
    new LateCaller(widget);
    delete widget;
    QVERIFY(LateCaller::viewWasNil);
    QCOMPARE(m_runtime.messages, QStringList());
}

void TestNativeWindowMac::aNilWindowSendsNothingFurther_data()
{
    sendsTheMessages_data();
}

void TestNativeWindowMac::aNilWindowSendsNothingFurther()
{
    QFETCH(Call, call);
    WyTransWidget widget;
    setUp(widget, nullptr);
    call(widget);
    QCOMPARE(m_runtime.messages, QStringList("[view window] id"));
}

void TestNativeWindowMac::aMoveWithoutAnEventIsNotStarted()
{
    WyTransWidget widget;
    setUp(widget, m_runtime.object(QStringLiteral("window")));
    m_runtime.answer(NSApp, QStringLiteral("currentEvent"), nullptr);
    WyTransWidget::StartNativeSystemMove(&widget);
    QCOMPARE(m_runtime.messages, QStringList({"[view window] id", "[NSApp currentEvent] id"}));
}

void TestNativeWindowMac::aMoveWithoutAnApplicationIsNotStarted()
{
    WyTransWidget widget;
    setUp(widget, m_runtime.object(QStringLiteral("window")));
    NSApp = nullptr;
    WyTransWidget::StartNativeSystemMove(&widget);
    QCOMPARE(m_runtime.messages, QStringList("[view window] id"));
}

void TestNativeWindowMac::theStyleMaskKeepsItsBits_data()
{
    QTest::addColumn<unsigned long>("before");
    QTest::addColumn<unsigned long>("after");
    QTest::newRow("none") << 0ul << 4ul;
    QTest::newRow("all but this one") << ~4ul << ~0ul;
    QTest::newRow("this one already") << 15ul << 15ul;
    QTest::newRow("beyond 32 bits") << (1ul << 40) << ((1ul << 40) | 4ul);
}

void TestNativeWindowMac::theStyleMaskKeepsItsBits()
{
    QFETCH(unsigned long, before);
    QFETCH(unsigned long, after);
    WyTransWidget widget;
    setUp(widget, m_runtime.object(QStringLiteral("window")));
    m_runtime.styleMask = before;
    widget.SetMiniaturizable(true);
    QCOMPARE(m_runtime.messages.at(2),
             QStringLiteral("[window setStyleMask: (unsigned long)%1] void").arg(after));
}

QTEST_MAIN(TestNativeWindowMac)
#include "tst_nativewindowmac.moc"
