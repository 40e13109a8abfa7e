#include "WyWidgets/frame/WyWidgetUtils.h"

#include <QLabel>
#include <QToolTip>
#include <QtTest>

using WyWidgets::WyWidgetUtils;

class TestWyWidgetUtils : public QObject
{
    Q_OBJECT

private slots:
    void shortcutsStayAPlaceholder();
    void handleLabelsHaveTheirSizeAndName();
    void updateStyleSetsBothBorderImages();
    void updateStyleKeepsPlaceholdersInPaths();
    void updateStyleOfNullDoesNothing();
    void aNarrowTooltipStaysAsItIs();
    void aWideTooltipBreaksAtSpaces();
    void aWideWordLosesOneLetterAtEachBreak();
    void aTooltipWithoutRoomKeepsEverySecondLetter_data();
    void aTooltipWithoutRoomKeepsEverySecondLetter();
};

void TestWyWidgetUtils::shortcutsStayAPlaceholder()
{
    QVERIFY(WyWidgetUtils::RegisterShortcuts(0, 0, QString()));
    QVERIFY(WyWidgetUtils::RegisterShortcuts(~quint64(0), -1, QStringLiteral("Ctrl+A")));
}

void TestWyWidgetUtils::handleLabelsHaveTheirSizeAndName()
{
    const struct
    {
        QLabel* (*create)(QWidget*);
        QSize size;
    } handles[] = {
        {WyWidgets::CreatePoint, QSize(5, 5)},
        {WyWidgets::CreateVPoint, QSize(4, 21)},
        {WyWidgets::CreateHPoint, QSize(24, 4)},
    };
    for (const auto& [create, size] : handles) {
        QWidget parent;
        const QLabel* handle = create(&parent);
        QCOMPARE(handle->parentWidget(), &parent);
        QCOMPARE(handle->objectName(), QStringLiteral("label_point"));
        QCOMPARE(handle->minimumSize(), size);
        QCOMPARE(handle->maximumSize(), size);
        const QScopedPointer<QLabel> orphan(create(nullptr));
        QVERIFY(!orphan->parentWidget());
    }
}

void TestWyWidgetUtils::updateStyleSetsBothBorderImages()
{
    QLabel label;
    WyWidgets::updateStyle(&label, QStringLiteral(":/on.png"), QStringLiteral(":/off.png"));
    QCOMPARE(label.styleSheet(), QStringLiteral("QLabel{border-image: url(:/on.png);}"
                                                "QLabel:disabled{border-image: url(:/off.png);}"));
}

void TestWyWidgetUtils::updateStyleKeepsPlaceholdersInPaths()
{
    QLabel label;
    // A percent sign makes no valid url: what counts here is that the paths do not get mixed up.
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Could not parse stylesheet")));
    WyWidgets::updateStyle(&label, QStringLiteral("a%2.png"), QStringLiteral("b%1.png"));
    QCOMPARE(label.styleSheet(), QStringLiteral("QLabel{border-image: url(a%2.png);}"
                                                "QLabel:disabled{border-image: url(b%1.png);}"));
}

void TestWyWidgetUtils::updateStyleOfNullDoesNothing()
{
    WyWidgets::updateStyle(nullptr, QStringLiteral("a"), QStringLiteral("b"));
}

void TestWyWidgetUtils::aNarrowTooltipStaysAsItIs()
{
    const QString text = QStringLiteral("one two three");
    const int width = QFontMetrics(QToolTip::font()).horizontalAdvance(text);
    QCOMPARE(WyWidgetUtils::ToolTipWrap(text, width), text);
    QVERIFY(WyWidgetUtils::ToolTipWrap(text, width - 1) != text);
    QCOMPARE(WyWidgetUtils::ToolTipWrap(QString(), width), QString());
}

void TestWyWidgetUtils::aWideTooltipBreaksAtSpaces()
{
    const int width = QFontMetrics(QToolTip::font()).horizontalAdvance(QStringLiteral("one two th"));
    QCOMPARE(WyWidgetUtils::ToolTipWrap(QStringLiteral("one two three four five"), width),
             QStringLiteral("one two\nthree four\nfive"));
}

void TestWyWidgetUtils::aWideWordLosesOneLetterAtEachBreak()
{
    const int width = QFontMetrics(QToolTip::font()).horizontalAdvance(QStringLiteral("mmmmm"));
    // Six letters are too wide, which shows when four are taken and two more measured: cut at 5, drop one.
    QCOMPARE(WyWidgetUtils::ToolTipWrap(QString(14, QLatin1Char('m')), width),
             QStringLiteral("mmmmm\nmmmmm\nmm"));
}

void TestWyWidgetUtils::aTooltipWithoutRoomKeepsEverySecondLetter_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("zero") << 0;
    QTest::newRow("negative") << -5;
    QTest::newRow("lowest") << std::numeric_limits<int>::min();
}

void TestWyWidgetUtils::aTooltipWithoutRoomKeepsEverySecondLetter()
{
    QFETCH(int, width);
    QCOMPARE(WyWidgetUtils::ToolTipWrap(QStringLiteral("abcdefg"), width), QStringLiteral("a\nc\ne\ng"));
}

QTEST_MAIN(TestWyWidgetUtils)
#include "tst_wywidgetutils.moc"
