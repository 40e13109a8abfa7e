#include "WyWidgets/wycontrol/WyCheckBox.h"

#include "support/Contract.h"
#include "support/StackingFont.h"
#include "support/WrapModels.h"

#include <QtTest>

#include <limits>
#include <random>

using WyTest::wrappedPlainly;
using WyWidgets::WyCheckBox;

namespace {

/// Texts, fonts and widths of all kinds, the same in every run.
class Generator
{
public:
    explicit Generator(unsigned seed) : m_random(seed) {}

    int below(int limit) { return int(m_random() % unsigned(limit)); }

    QFont font()
    {
        static const char* const families[] = {"DejaVu Sans", "DejaVu Serif", "DejaVu Sans Mono"};
        QFont font(QString::fromLatin1(families[below(3)]));
        font.setPixelSize(6 + below(30));
        font.setBold(below(4) == 0);
        font.setKerning(below(5) > 0);
        if (below(10) == 0)
            font.setLetterSpacing(QFont::AbsoluteSpacing, below(8) - 3);
        else if (below(10) == 0)
            font.setLetterSpacing(QFont::PercentageSpacing, 40 + below(120));
        if (below(12) == 0)
            font.setWordSpacing(below(20) - 6);
        if (below(10) == 0)
            font.setCapitalization(QFont::Capitalization(below(5)));
        if (below(6) == 0)
            font.setHintingPreference(QFont::PreferNoHinting);
        m_changesCase = font.capitalization() != QFont::MixedCase;
        return font;
    }

    QString text(int words)
    {
        const bool mixed = below(3) == 0;
        QStringList letters = script();
        QString text;
        while (words-- > 0) {
            if (mixed && below(3) == 0)
                letters = script();
            for (int i = 1 + below(10); i > 0; --i)
                text += letters.at(below(letters.size()));
            if (below(300) == 0)
                text += QChar(0x9C);
            // Half of a pair, which Qt loses where it changes the case: it measures memory that it has not
            // set.
            if (below(300) == 0 && !m_changesCase)
                text += QChar(0xD83D);
            text += space();
            if (below(8) == 0)
                text += space();
        }
        return text;
    }

    int width()
    {
        if (below(20) == 0)
            return below(10) - 5;
        return below(below(2) == 0 ? 150 : 600);
    }

private:
    QStringList script()
    {
        static const QVector<QStringList> scripts = {
            characters("abcdefghijklmnopqrstuvwxyz"),
            characters("AVTLYPWQ.,fijl"),
            characters("0123456789"),
            characters("()[]{}.,;:!?-\"'/&%"),
            characters("абвгдежЯЮЁ"),
            characters("αβγδεΩΣ"),
            characters("ابتثجحخدذلاهي"),
            characters("שלוםעליכ"),
            characters("कखगघङ्िाीु"),
            characters("漢字仮名ひらカタ"),
            characters("한국어글"),
            characters("ไทยภาษา"),
            {QString::fromUtf8("😀"), QString::fromUtf8("👨‍👩‍👧"), QString::fromUtf8("❤️"),
             QString::fromUtf8("🇩🇪")},
            {QStringLiteral("e\u0301"), QStringLiteral("a\u20DD"), QStringLiteral("\u00AD"),
             QStringLiteral("\u200Bx")},
        };
        // Half of the texts are Latin.
        return scripts.at(below(2) == 0 ? below(2) : below(scripts.size()));
    }

    QChar space()
    {
        static const QString spaces = QStringLiteral("          \n\n\t\v\f\r\u0085\u00A0\u2003\u2028\u3000");
        return spaces.at(below(below(3) == 0 ? spaces.size() : 12));
    }

    static QStringList characters(const char* utf8)
    {
        QStringList list;
        const QString all = QString::fromUtf8(utf8);
        for (QChar character : all)
            list += character;
        return list;
    }

    std::mt19937 m_random;
    bool m_changesCase = false; ///< the last font
};

int advance(const QWidget& widget, const QString& text)
{
    return QFontMetrics(widget.font()).horizontalAdvance(text);
}

/// Notes how the check box asks for the room that its text takes, and answers with a width of its own.
class RectStyle : public QProxyStyle
{
public:
    static constexpr int kTextWidthPx = 33;

    QRect itemTextRect(const QFontMetrics& metrics, const QRect& rect, int flags, bool enabled,
                       const QString& text) const override
    {
        const bool isAsked = rect == QRect() && flags == Qt::TextShowMnemonic && !enabled;
        calls += isAsked ? text : QStringLiteral("another question");
        lastMetrics = metrics;
        return QRect(0, 0, kTextWidthPx, 10);
    }

    mutable QStringList calls;
    mutable QFontMetrics lastMetrics{QFont()};
};

} // namespace

class TestWyCheckBox : public QObject
{
    Q_OBJECT

private slots:
    void registersNothing();
    void isACheckBoxWithATextOfItsParent();
    void layoutsMayNarrowIt();
    void breaksWhereTheNextWordDoesNotFit();
    void aWordThatJustFitsStays();
    void aWiderWidthJoinsTheLinesAgain();
    void lineFeedsCountAsSpaces();
    void aWordWiderThanTheWidthStandsAlone();
    void whiteSpaceThatBreaksLines_data();
    void whiteSpaceThatBreaksLines();
    void otherWhiteSpaceStaysInsideALine();
    void aDoubleSpaceAtABreakLeavesABlankLine();
    void outerSpaceGoesAway();
    void ampersandsAreMeasured();
    void widthsBeyondReason_data();
    void widthsBeyondReason();
    void emptyTextStaysEmpty();
    void breaksAsWordByWordMeasuringDoes_data();
    void breaksAsWordByWordMeasuringDoes();
    void kernedWordsFillTheirLine();
    void stackedWordsFillTheirLine();
    void longTextsBreakAlike_data();
    void longTextsBreakAlike();
    void textsWithoutWidthEnd();
    void resizingWrapsToTheRoomBesideTheIndicator();
    void resizingAsksTheStyleForTheTextsRoom();
    void resizingGoesByTheEventsWidth();
    void canBeSqueezedToItsIndicator();
    void itsHeightFollowsTheLines();
    void aLayoutGivesItTheHeightOfItsLines();
    void keepsItsState();
};

void TestWyCheckBox::registersNothing()
{
    WY_COMPARE_CONTRACT(WyCheckBox, {}, {}, {});
}

void TestWyCheckBox::isACheckBoxWithATextOfItsParent()
{
    QWidget parent;
    auto* box = new WyCheckBox(QStringLiteral("one two"), &parent);
    QCOMPARE(box->parentWidget(), &parent);
    QCOMPARE(box->text(), QStringLiteral("one two"));
    QCOMPARE(WyCheckBox::staticMetaObject.superClass(), &QCheckBox::staticMetaObject);
}

void TestWyCheckBox::layoutsMayNarrowIt()
{
    const WyCheckBox box(QStringLiteral("text"));
    QCOMPARE(box.sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(box.sizePolicy().verticalPolicy(), QCheckBox().sizePolicy().verticalPolicy());
}

void TestWyCheckBox::breaksWhereTheNextWordDoesNotFit()
{
    WyCheckBox box(QStringLiteral("one two three"));
    box.wrapLines(advance(box, QStringLiteral("one two three")) - 1);
    QCOMPARE(box.text(), QStringLiteral("one two\nthree"));
    box.wrapLines(advance(box, QStringLiteral("one two")) - 1);
    QCOMPARE(box.text(), QStringLiteral("one\ntwo\nthree"));
}

void TestWyCheckBox::aWordThatJustFitsStays()
{
    WyCheckBox box(QStringLiteral("one two three"));
    box.wrapLines(advance(box, QStringLiteral("one two")));
    QCOMPARE(box.text(), QStringLiteral("one two\nthree"));
}

void TestWyCheckBox::aWiderWidthJoinsTheLinesAgain()
{
    WyCheckBox box(QStringLiteral("one two three"));
    box.wrapLines(0);
    QCOMPARE(box.text(), QStringLiteral("one\ntwo\nthree"));
    box.wrapLines(advance(box, QStringLiteral("one two three")));
    QCOMPARE(box.text(), QStringLiteral("one two three"));
}

void TestWyCheckBox::lineFeedsCountAsSpaces()
{
    WyCheckBox box(QStringLiteral("one\ntwo\n\nthree"));
    box.wrapLines(10000);
    QCOMPARE(box.text(), QStringLiteral("one two  three"));
}

void TestWyCheckBox::aWordWiderThanTheWidthStandsAlone()
{
    WyCheckBox box(QStringLiteral("a incomprehensibilities b"));
    box.wrapLines(advance(box, QStringLiteral("a b")));
    QCOMPARE(box.text(), QStringLiteral("a\nincomprehensibilities\nb"));
    box.setText(QStringLiteral("incomprehensibilities"));
    box.wrapLines(1);
    QCOMPARE(box.text(), QStringLiteral("incomprehensibilities"));
}

void TestWyCheckBox::whiteSpaceThatBreaksLines_data()
{
    QTest::addColumn<QChar>("space");
    for (ushort code :
         {0x09, 0x0A, 0x0B, 0x0C, 0x0D, 0x20, 0x85, 0xA0, 0x1680, 0x2003, 0x2028, 0x2029, 0x202F, 0x3000})
        QTest::addRow("U+%04X", code) << QChar(code);
}

void TestWyCheckBox::whiteSpaceThatBreaksLines()
{
    QFETCH(QChar, space);
    WyCheckBox box(QStringLiteral("one") + space + QStringLiteral("two"));
    box.wrapLines(0);
    QCOMPARE(box.text(), QStringLiteral("one\ntwo"));
}

void TestWyCheckBox::otherWhiteSpaceStaysInsideALine()
{
    const QString text = QStringLiteral("one\ttwo\u00A0three\u3000four\rfive");
    WyCheckBox box(text);
    box.wrapLines(10000);
    QCOMPARE(box.text(), text);
}

void TestWyCheckBox::aDoubleSpaceAtABreakLeavesABlankLine()
{
    WyCheckBox box(QStringLiteral("one  two"));
    box.wrapLines(0);
    QCOMPARE(box.text(), QStringLiteral("one\n\ntwo"));
    box.setText(QStringLiteral("one  two"));
    box.wrapLines(10000);
    QCOMPARE(box.text(), QStringLiteral("one  two"));
}

void TestWyCheckBox::outerSpaceGoesAway()
{
    WyCheckBox box(QStringLiteral(" \t one two \n "));
    box.wrapLines(10000);
    QCOMPARE(box.text(), QStringLiteral("one two"));
    box.setText(QStringLiteral("   one two   "));
    box.wrapLines(0);
    QCOMPARE(box.text(), QStringLiteral("one\ntwo"));
}

void TestWyCheckBox::ampersandsAreMeasured()
{
    WyCheckBox box(QStringLiteral("&one &two"));
    box.wrapLines(advance(box, QStringLiteral("&one &two")) - 1);
    QCOMPARE(box.text(), QStringLiteral("&one\n&two"));
    box.wrapLines(advance(box, QStringLiteral("&one &two")));
    QCOMPARE(box.text(), QStringLiteral("&one &two"));
}

void TestWyCheckBox::widthsBeyondReason_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("expected");
    QTest::newRow("least") << std::numeric_limits<int>::min() << QStringLiteral("one\ntwo\nthree");
    QTest::newRow("negative") << -1 << QStringLiteral("one\ntwo\nthree");
    QTest::newRow("zero") << 0 << QStringLiteral("one\ntwo\nthree");
    QTest::newRow("greatest") << std::numeric_limits<int>::max() << QStringLiteral("one two three");
}

void TestWyCheckBox::widthsBeyondReason()
{
    QFETCH(int, width);
    QFETCH(QString, expected);
    WyCheckBox box(QStringLiteral("one two three"));
    box.wrapLines(width);
    QCOMPARE(box.text(), expected);
}

void TestWyCheckBox::emptyTextStaysEmpty()
{
    WyCheckBox box{QString()};
    box.wrapLines(100);
    QCOMPARE(box.text(), QString());
    box.setText(QStringLiteral(" \n "));
    box.wrapLines(100);
    QCOMPARE(box.text(), QString());
}

void TestWyCheckBox::breaksAsWordByWordMeasuringDoes_data()
{
    QTest::addColumn<unsigned>("seed");
    for (unsigned seed = 1; seed <= 8; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void TestWyCheckBox::breaksAsWordByWordMeasuringDoes()
{
    QFETCH(unsigned, seed);
    Generator generator(seed);
    WyCheckBox box{QString()};
    for (int round = 0; round < 300; ++round) {
        const QFont font = generator.font();
        const QString text = generator.text(generator.below(25));
        const int width = generator.width();
        box.setFont(font);
        const QString expected = wrappedPlainly(text, box.font(), width); // tab stops know the screen
        box.setText(text);
        box.wrapLines(width);
        QVERIFY2(box.text() == expected,
                 qPrintable(QStringLiteral("round %1, %2, width %3: \"%4\", expected \"%5\"")
                                .arg(round)
                                .arg(font.toString())
                                .arg(width)
                                .arg(box.text(), expected)));
    }
}

void TestWyCheckBox::kernedWordsFillTheirLine()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(16);
    const QString text = QStringLiteral("Y.Y.Y.Y.Y. Y.Y.Y.Y.Y. Y.Y.Y.Y.Y. Y.Y.Y.Y.Y.");
    WyCheckBox box(text);
    box.setFont(font);
    for (int width = advance(box, text); width > 0; --width) {
        box.wrapLines(width);
        QCOMPARE(box.text(), wrappedPlainly(text, box.font(), width));
    }
}

void TestWyCheckBox::stackedWordsFillTheirLine()
{
    const WyTest::LoadedStackingFont stacking;
    QFont font(stacking.family());
    font.setPixelSize(20);
    QCOMPARE(QFontMetrics(font).horizontalAdvance(QString(1, WyTest::kStackingLetter)), 20);
    QCOMPARE(QFontMetrics(font).horizontalAdvance(QString(6, WyTest::kStackingLetter)), 20 + 5 * 2);
    Generator generator(7);
    WyCheckBox box{QString()};
    box.setFont(font);
    for (int round = 0; round < 300; ++round) {
        QString text;
        for (int words = generator.below(20); words > 0; --words)
            text += QString(1 + generator.below(10), WyTest::kStackingLetter) + QLatin1Char(' ');
        const int width = generator.below(400);
        box.setText(text);
        box.wrapLines(width);
        QCOMPARE(box.text(), wrappedPlainly(text, box.font(), width));
    }
}

void TestWyCheckBox::longTextsBreakAlike_data()
{
    QTest::addColumn<QString>("text");
    Generator generator(99);
    QTest::newRow("all kinds") << generator.text(1500);
    QTest::newRow("one letter each") << QStringLiteral("i ").repeated(4000);
    QTest::newRow("spaces") << QStringLiteral("word") + QString(3000, QLatin1Char(' ')) +
                                   QStringLiteral("word");
    QTest::newRow("a long word") << QString(20000, QLatin1Char('m')) + QStringLiteral(" and more");
    // Hidden in the line, but wide on its own: guesses from such widths go from one end to the other.
    QTest::newRow("soft hyphens first") << QString(3000, QChar(0xAD)) + QStringLiteral(" a").repeated(3000);
    QTest::newRow("numbers before letters")
        << QStringLiteral("12 34 (5) 6/7 89 ").repeated(20) + QStringLiteral("خط");
}

void TestWyCheckBox::longTextsBreakAlike()
{
    QFETCH(QString, text);
    for (int width : {60, 300, 1200}) {
        WyCheckBox box(text);
        box.wrapLines(width);
        const bool isAlike = box.text() == wrappedPlainly(text, box.font(), width);
        QVERIFY2(isAlike, qPrintable(QString::number(width)));
    }
}

void TestWyCheckBox::textsWithoutWidthEnd()
{
    // Guessing from the widths of characters leads nowhere here.
    const QString marks = QStringLiteral("\u0301\u0308 ").repeated(20000);
    WyCheckBox box(marks);
    box.wrapLines(100);
    QCOMPARE(box.text().remove(QLatin1Char('\n')).remove(QLatin1Char(' ')).size(), 40000);
}

void TestWyCheckBox::resizingWrapsToTheRoomBesideTheIndicator()
{
    const QString text =
        QStringLiteral("Keep a copy of every message on this computer, also of those that were deleted");
    for (int width = 40; width < 700; width += 7) {
        WyCheckBox box(text);
        const QRect textRect =
            box.style()->itemTextRect(box.fontMetrics(), QRect(), Qt::TextShowMnemonic, false, text);
        const int beside = box.sizeHint().width() - textRect.width();
        QVERIFY(beside > 0);
        box.resize(width, 30);
        box.show();
        QCOMPARE(box.text(), wrappedPlainly(text, box.font(), width - beside));
    }
}

void TestWyCheckBox::resizingAsksTheStyleForTheTextsRoom()
{
    RectStyle style;
    WyCheckBox box(QStringLiteral("&one two three"));
    QFont font = box.font();
    font.setPixelSize(23);
    box.setFont(font);
    box.setStyle(&style);
    const int beside = box.sizeHint().width() - RectStyle::kTextWidthPx;
    style.calls.clear();
    QResizeEvent event(QSize(beside + advance(box, QStringLiteral("&one two")), 20), QSize());
    QCoreApplication::sendEvent(&box, &event);
    QVERIFY(!style.calls.isEmpty());
    QCOMPARE(style.calls.first(), QStringLiteral("&one two three"));
    QVERIFY(!style.calls.contains(QStringLiteral("another question")));
    QCOMPARE(style.lastMetrics, QFontMetrics(box.font()));
    QCOMPARE(box.text(), QStringLiteral("&one two\nthree"));
}

void TestWyCheckBox::resizingGoesByTheEventsWidth()
{
    WyCheckBox box(QStringLiteral("one two three"));
    box.resize(1000, 30);
    QResizeEvent event(QSize(1, 30), QSize());
    QCoreApplication::sendEvent(&box, &event);
    QCOMPARE(box.text(), QStringLiteral("one\ntwo\nthree"));
}

void TestWyCheckBox::canBeSqueezedToItsIndicator()
{
    const WyCheckBox box(QStringLiteral("a text that is much wider than the indicator"));
    QCOMPARE(box.minimumSizeHint().width(), QCheckBox().minimumSizeHint().width());
    QVERIFY(box.minimumSizeHint().width() < box.sizeHint().width() / 2);
    QCOMPARE(box.minimumSizeHint().height(), box.sizeHint().height());
}

void TestWyCheckBox::itsHeightFollowsTheLines()
{
    WyCheckBox box(QStringLiteral("one two three"));
    const int oneLine = box.minimumSizeHint().height();
    box.wrapLines(0);
    QCOMPARE(box.minimumSizeHint().height(), box.sizeHint().height());
    QVERIFY(box.minimumSizeHint().height() >= oneLine + box.fontMetrics().lineSpacing());
}

void TestWyCheckBox::aLayoutGivesItTheHeightOfItsLines()
{
    QWidget window;
    QVBoxLayout layout(&window);
    auto* box = new WyCheckBox(QStringLiteral("Keep a copy of every message on this computer"));
    layout.addWidget(box);
    layout.addStretch();
    window.resize(150, 400);
    window.show();
    QVERIFY(box->text().contains(QLatin1Char('\n')));
    QTRY_COMPARE(box->height(), box->sizeHint().height());
    const int lines = 1 + box->text().count(QLatin1Char('\n'));
    QVERIFY(box->height() >= lines * box->fontMetrics().height());
    window.resize(800, 400);
    QVERIFY(!box->text().contains(QLatin1Char('\n')));
    QTRY_COMPARE(box->height(), box->sizeHint().height());
}

void TestWyCheckBox::keepsItsState()
{
    WyCheckBox box(QStringLiteral("one &two three"));
    box.setChecked(true);
    const QKeySequence shortcut = box.shortcut();
    QSignalSpy toggled(&box, &QCheckBox::toggled);
    box.wrapLines(0);
    QVERIFY(box.isChecked());
    QCOMPARE(toggled.count(), 0);
    QCOMPARE(box.shortcut(), shortcut);
}

QTEST_MAIN(TestWyCheckBox)
#include "tst_wycheckbox.moc"
