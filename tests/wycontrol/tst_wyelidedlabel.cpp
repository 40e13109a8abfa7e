#include "WyWidgets/wycontrol/WyElidedLabel.h"

#include "support/Contract.h"
#include "support/Painting.h"

#include <QtTest>

#include <cmath>
#include <memory>

using WyWidgets::WyElidedLabel;

namespace {

// The label tells nobody whether it cuts its text. An explicit instantiation may name a private member.
template <auto Member>
struct Reveal
{
    friend bool isElided(const WyElidedLabel& label) { return label.*Member; }
};
bool isElided(const WyElidedLabel& label);
template struct Reveal<&WyElidedLabel::m_elided>;

/// Notes what the label draws as text.
class TextStyle : public QProxyStyle
{
public:
    struct Call
    {
        QRect rect;
        int flags;
        QPalette palette;
        bool enabled;
        QString text;
        QPalette::ColorRole role;
    };

    void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette, bool enabled,
                      const QString& text, QPalette::ColorRole role) const override
    {
        calls.append({rect, flags, palette, enabled, text, role});
        QProxyStyle::drawItemText(painter, rect, flags, palette, enabled, text, role);
    }

    mutable QVector<Call> calls;
};

const QString kText = QStringLiteral("a text of some length, to be cut");

class TestLabel
{
public:
    explicit TestLabel(const QString& text = kText) : label(text) { label.setStyle(&style); }

    int fullWidth() const
    {
        return int(std::ceil(QFontMetricsF(label.font()).horizontalAdvance(label.text())));
    }
    /// The one text that painting draws.
    TextStyle::Call paint()
    {
        style.calls.clear();
        WyTest::picture(&label);
        return style.calls.size() == 1 ? style.calls.first() : TextStyle::Call();
    }
    QString paintedText() { return paint().text; }

    TextStyle style;
    WyElidedLabel label;
};

} // namespace

class TestWyElidedLabel : public QObject
{
    Q_OBJECT

private slots:
    void registersNothing();
    void isConstructedAsQLabelIs();
    void layoutsMaySqueezeIt();
    void aTextThatFitsShowsWhole();
    void aTextThatDoesNotFitIsCutAtTheRight();
    void wideningShowsTheWholeTextAgain();
    void anotherTextIsCutAnew();
    void theSameWidthAndTextAreNotMeasuredAgain();
    void anotherHeightIsNotMeasuredAgain();
    void theMarginNarrowsTheText();
    void theFrameNarrowsTheText();
    void ampersandsAreCharacters();
    void drawsWithTheAlignmentAsItIs_data();
    void drawsWithTheAlignmentAsItIs();
    void drawsInTheLabelsColours();
    void drawsFrameAndTextOnly();
    void markupIsShownAsItStands();
    void picturesAreNotShown();
    void hugeAndOddTexts_data();
    void hugeAndOddTexts();
    void aWidthOfNothingDrawsNothing();
    void surfacesOfScaledScreens();
};

void TestWyElidedLabel::registersNothing()
{
    WY_COMPARE_CONTRACT(WyElidedLabel, {}, {}, {});
}

void TestWyElidedLabel::isConstructedAsQLabelIs()
{
    QWidget parent;
    auto* empty = new WyElidedLabel(&parent, Qt::Tool);
    QCOMPARE(empty->parentWidget(), &parent);
    QCOMPARE(empty->windowType(), Qt::Tool);
    QVERIFY(empty->text().isEmpty());
    auto* filled = new WyElidedLabel(kText, &parent, Qt::ToolTip);
    QCOMPARE(filled->parentWidget(), &parent);
    QCOMPARE(filled->windowType(), Qt::ToolTip);
    QCOMPARE(filled->text(), kText);
    QVERIFY(!isElided(*filled));
}

void TestWyElidedLabel::layoutsMaySqueezeIt()
{
    for (const WyElidedLabel* label : {new WyElidedLabel, new WyElidedLabel(kText)}) {
        const std::unique_ptr<const WyElidedLabel> owner(label);
        QCOMPARE(label->sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred));
        QCOMPARE(label->minimumWidth(), 1);
    }
}

void TestWyElidedLabel::aTextThatFitsShowsWhole()
{
    TestLabel test;
    test.label.resize(test.fullWidth(), 30);
    QCOMPARE(test.paintedText(), kText);
    QVERIFY(!isElided(test.label));
}

void TestWyElidedLabel::aTextThatDoesNotFitIsCutAtTheRight()
{
    TestLabel test;
    const int width = test.fullWidth() - 1;
    test.label.resize(width, 30);
    const QString cut = test.paintedText();
    QCOMPARE(cut, QFontMetrics(test.label.font()).elidedText(kText, Qt::ElideRight, width));
    QVERIFY(cut.endsWith(QChar(0x2026)));
    QVERIFY(kText.startsWith(cut.chopped(1)));
    QVERIFY(isElided(test.label));
    QCOMPARE(test.label.text(), kText);
}

void TestWyElidedLabel::wideningShowsTheWholeTextAgain()
{
    TestLabel test;
    test.label.resize(40, 30);
    QVERIFY(test.paintedText() != kText);
    test.label.resize(test.fullWidth() + 1, 30);
    QCOMPARE(test.paintedText(), kText);
    QVERIFY(!isElided(test.label));
}

void TestWyElidedLabel::anotherTextIsCutAnew()
{
    TestLabel test;
    test.label.resize(60, 30);
    test.paint();
    QVERIFY(isElided(test.label));
    test.label.setText(QStringLiteral("i"));
    QCOMPARE(test.paintedText(), QStringLiteral("i"));
    QVERIFY(!isElided(test.label));
    const QString other = QStringLiteral("other words that do not fit");
    test.label.setText(other);
    QCOMPARE(test.paintedText(), QFontMetrics(test.label.font()).elidedText(other, Qt::ElideRight, 60));
    QVERIFY(isElided(test.label));
}

void TestWyElidedLabel::theSameWidthAndTextAreNotMeasuredAgain()
{
    TestLabel test;
    test.label.resize(100, 30);
    const QString cut = test.paintedText();
    QFont larger = test.label.font();
    larger.setPixelSize(40); // measuring would cut much more
    test.label.setFont(larger);
    QVERIFY(QFontMetrics(larger).elidedText(kText, Qt::ElideRight, 100) != cut);
    QCOMPARE(test.paintedText(), cut);
    test.label.resize(101, 30);
    QCOMPARE(test.paintedText(), QFontMetrics(larger).elidedText(kText, Qt::ElideRight, 101));
}

void TestWyElidedLabel::anotherHeightIsNotMeasuredAgain()
{
    TestLabel test;
    test.label.resize(100, 30);
    const QString cut = test.paintedText();
    QFont larger = test.label.font();
    larger.setPixelSize(40);
    test.label.setFont(larger);
    test.label.resize(100, 60);
    QCOMPARE(test.paintedText(), cut);
}

void TestWyElidedLabel::theMarginNarrowsTheText()
{
    TestLabel test;
    test.label.setMargin(5);
    test.label.resize(100, 30);
    const TextStyle::Call call = test.paint();
    QCOMPARE(call.rect, QRect(5, 5, 90, 20));
    QCOMPARE(call.text, QFontMetrics(test.label.font()).elidedText(kText, Qt::ElideRight, 90));
}

void TestWyElidedLabel::theFrameNarrowsTheText()
{
    TestLabel test;
    test.label.setFrameStyle(QFrame::Box | QFrame::Plain);
    test.label.setLineWidth(3);
    test.label.resize(100, 40);
    const TextStyle::Call call = test.paint();
    QCOMPARE(call.rect, test.label.contentsRect());
    QCOMPARE(call.rect.width(), 100 - 3 - 3);
    QCOMPARE(call.text, QFontMetrics(test.label.font()).elidedText(kText, Qt::ElideRight, call.rect.width()));
}

void TestWyElidedLabel::ampersandsAreCharacters()
{
    TestLabel test(QStringLiteral("&Black && &white"));
    test.label.resize(test.fullWidth(), 30);
    QCOMPARE(test.paintedText(), test.label.text());
    test.label.resize(test.fullWidth() - 1, 30);
    QVERIFY(test.paintedText() != test.label.text());
}

void TestWyElidedLabel::drawsWithTheAlignmentAsItIs_data()
{
    QTest::addColumn<int>("alignment");
    QTest::addColumn<bool>("wraps");
    QTest::newRow("default") << int(Qt::AlignLeft | Qt::AlignVCenter) << false;
    QTest::newRow("right, bottom") << int(Qt::AlignRight | Qt::AlignBottom) << false;
    QTest::newRow("centre") << int(Qt::AlignCenter) << false;
    QTest::newRow("word wrap does not count") << int(Qt::AlignHCenter | Qt::AlignTop) << true;
}

void TestWyElidedLabel::drawsWithTheAlignmentAsItIs()
{
    QFETCH(int, alignment);
    QFETCH(bool, wraps);
    for (Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        TestLabel test;
        test.label.setLayoutDirection(direction);
        test.label.setAlignment(Qt::Alignment(alignment));
        test.label.setWordWrap(wraps);
        QCOMPARE(test.paint().flags, int(test.label.alignment()));
        QCOMPARE(test.label.alignment(), Qt::Alignment(alignment));
    }
}

void TestWyElidedLabel::drawsInTheLabelsColours()
{
    TestLabel test;
    QPalette palette = test.label.palette();
    palette.setColor(QPalette::Active, QPalette::Link, Qt::red);
    test.label.setPalette(palette);
    test.label.setForegroundRole(QPalette::Link);
    TextStyle::Call call = test.paint();
    QStyleOption option;
    option.initFrom(&test.label);
    QCOMPARE(call.palette, option.palette);
    QCOMPARE(call.role, QPalette::Link);
    QVERIFY(call.enabled);
    test.label.setEnabled(false);
    call = test.paint();
    option.initFrom(&test.label);
    QCOMPARE(call.palette.currentColorGroup(), QPalette::Disabled);
    QCOMPARE(call.palette, option.palette);
    QVERIFY(!call.enabled);
}

void TestWyElidedLabel::drawsFrameAndTextOnly()
{
    TestLabel test;
    test.label.setFrameStyle(QFrame::Panel | QFrame::Raised);
    test.label.setLineWidth(2);
    test.label.setMargin(3);
    test.label.resize(120, 40);
    const qreal scale = test.label.devicePixelRatioF(); // frames are drawn to its pixels
    const QImage actual = WyTest::picture(&test.label, scale);
    const QImage expected = WyTest::painted(
        test.label.size(),
        [&](QPainter& painter) {
            painter.setFont(test.label.font());
            painter.setPen(test.label.palette().color(QPalette::WindowText));
            QStyleOptionFrame option;
            option.initFrom(&test.label);
            option.lineWidth = 2;
            option.frameShape = QFrame::Panel;
            option.state |= QStyle::State_Raised;
            option.features = QStyleOptionFrame::None;
            test.style.drawControl(QStyle::CE_ShapedFrame, &option, &painter, &test.label);
            painter.drawText(QRect(5, 5, 110, 30), int(Qt::AlignLeft | Qt::AlignVCenter),
                             QFontMetrics(test.label.font()).elidedText(kText, Qt::ElideRight, 110));
        },
        scale);
    WY_COMPARE_PICTURES(actual, expected);
}

void TestWyElidedLabel::markupIsShownAsItStands()
{
    const QString markup = QStringLiteral("<b>bold</b> <a href='x'>link</a>");
    TestLabel test(markup);
    test.label.setTextFormat(Qt::RichText);
    test.label.resize(test.fullWidth() + 1, 30);
    QCOMPARE(test.paintedText(), markup);
}

void TestWyElidedLabel::picturesAreNotShown()
{
    TestLabel test;
    QPixmap pixmap(20, 20);
    pixmap.fill(Qt::red);
    test.label.setPixmap(pixmap);
    test.label.resize(60, 30);
    QCOMPARE(test.paintedText(), QString());
    WY_COMPARE_PICTURES(WyTest::picture(&test.label), WyTest::painted(QSize(60, 30), [](QPainter&) {}));
}

void TestWyElidedLabel::hugeAndOddTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("100,000 letters") << QString(100000, QLatin1Char('m'));
    QTest::newRow("several lines") << QStringLiteral("one\ntwo\nthree and four");
    QTest::newRow("right to left") << QStringLiteral("שלום עולם ועוד מילים");
    QTest::newRow("emoji") << QString::fromUtf8("👩‍👩‍👧 ❤️ family and more");
    QTest::newRow("half of a pair") << QString(QChar(0xD83D)) + QStringLiteral(" and what follows it");
}

void TestWyElidedLabel::hugeAndOddTexts()
{
    QFETCH(QString, text);
    TestLabel test(text);
    test.label.resize(70, 30);
    const QString expected = QFontMetrics(test.label.font()).elidedText(text, Qt::ElideRight, 70);
    QCOMPARE(test.paintedText(), expected);
    QCOMPARE(isElided(test.label), expected != text);
}

void TestWyElidedLabel::aWidthOfNothingDrawsNothing()
{
    TestLabel test;
    test.label.setMargin(50);
    test.label.resize(20, 20);
    WyTest::picture(&test.label);
    WY_COMPARE_PICTURES(WyTest::picture(&test.label), WyTest::painted(QSize(20, 20), [](QPainter&) {}));
}

void TestWyElidedLabel::surfacesOfScaledScreens()
{
    for (qreal scale : {1.0, 1.5, 2.0}) {
        TestLabel test;
        test.label.resize(120, 40);
        const QImage expected = WyTest::painted(
            test.label.size(),
            [&](QPainter& painter) {
                painter.setFont(test.label.font());
                painter.setPen(test.label.palette().color(QPalette::WindowText));
                painter.drawText(QRect(0, 0, 120, 40), int(Qt::AlignLeft | Qt::AlignVCenter),
                                 QFontMetrics(test.label.font()).elidedText(kText, Qt::ElideRight, 120));
            },
            scale);
        WY_COMPARE_PICTURES(WyTest::picture(&test.label, scale), expected);
    }
}

QTEST_MAIN(TestWyElidedLabel)
#include "tst_wyelidedlabel.moc"
