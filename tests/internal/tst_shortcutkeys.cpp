#include "WyWidgets/internal/edits/ShortcutKeys.h"

#include <QKeyEvent>
#include <QtTest>

// Compiled here without Qt's key mapper: what the shortcut edit does where that cannot be reached.

Q_DECLARE_METATYPE(Qt::KeyboardModifiers)

class TestShortcutKeys : public QObject
{
    Q_OBJECT

private slots:
    void choosesWithoutTheKeyMapper_data();
    void choosesWithoutTheKeyMapper();
    void anEventWithoutAKeyHasNone();
};

void TestShortcutKeys::choosesWithoutTheKeyMapper_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("expected");
    const Qt::KeyboardModifiers shift = Qt::ShiftModifier;
    const Qt::KeyboardModifiers control = Qt::ControlModifier;
    QTest::newRow("letter") << int(Qt::Key_A) << shift << QStringLiteral("A") << int(Qt::SHIFT) + Qt::Key_A;
    QTest::newRow("letter of another script") << 0x0416 << shift << QString() << int(Qt::SHIFT) + 0x0416;
    QTest::newRow("function key") << int(Qt::Key_F3) << shift << QString() << int(Qt::SHIFT) + Qt::Key_F3;
    QTest::newRow("Space") << int(Qt::Key_Space) << shift << QStringLiteral(" ")
                           << int(Qt::SHIFT) + Qt::Key_Space;
    QTest::newRow("Tab") << int(Qt::Key_Backtab) << shift << QString() << int(Qt::SHIFT) + Qt::Key_Backtab;
    QTest::newRow("symbol on a digit")
        << int(Qt::Key_Exclam) << shift << QStringLiteral("!") << int(Qt::Key_Exclam);
    QTest::newRow("digit on a symbol") << int(Qt::Key_1) << shift << QStringLiteral("1") << int(Qt::Key_1);
    QTest::newRow("letter with more modifiers")
        << int(Qt::Key_S) << (shift | control) << QString() << int(Qt::SHIFT | Qt::CTRL) + Qt::Key_S;
    QTest::newRow("symbol with more modifiers")
        << int(Qt::Key_Plus) << (shift | control) << QString() << int(Qt::SHIFT | Qt::CTRL) + Qt::Key_Plus;
    QTest::newRow("only a text") << 0 << shift << QStringLiteral("?") << int('?');
}

void TestShortcutKeys::choosesWithoutTheKeyMapper()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(QString, text);
    QFETCH(int, expected);
    QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
    const std::optional<int> chosen = WyWidgets::shiftedShortcutKey(&event);
    QVERIFY(chosen);
    QCOMPARE(QKeySequence(*chosen).toString(), QKeySequence(expected).toString());
    QCOMPARE(*chosen, expected);
}

void TestShortcutKeys::anEventWithoutAKeyHasNone()
{
    QKeyEvent event(QEvent::KeyPress, 0, Qt::ShiftModifier);
    QVERIFY(!WyWidgets::shiftedShortcutKey(&event));
}

QTEST_MAIN(TestShortcutKeys)
#include "tst_shortcutkeys.moc"
