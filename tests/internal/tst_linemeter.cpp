#include "WyWidgets/internal/text/LineMeter.h"

#include <QFont>
#include <QFontMetrics>
#include <QRandomGenerator>
#include <QtTest>

using WyWidgets::LineMeter;

namespace {

constexpr int kWide = 100000;

QFont sansFont()
{
    return QFont(QStringLiteral("DejaVu Sans"), 12);
}

int advanceOf(const QString& text, int length)
{
    return QFontMetrics(sansFont()).horizontalAdvance(text.left(length));
}

/// How often the decision about the line is made: once unless the meter was wrong.
int decisionsAbout(const QString& line, int width)
{
    LineMeter meter(sansFont(), width);
    int decisions = 0;
    meter.decideLine(line, [&] {
        ++decisions;
        int length = 1;
        while (length < line.size() && meter.fits(length))
            ++length;
        return length;
    });
    return decisions;
}

/// Whether the step behind the length is steady once so much of the line was asked about.
bool isSteady(const QString& line, int asked, int length, const QFont& font = sansFont())
{
    LineMeter meter(font, kWide);
    return meter.decideLine(line, [&] {
        meter.fits(asked);
        return meter.hasSteadyStep(length);
    });
}

} // namespace

class TestLineMeter : public QObject
{
    Q_OBJECT

private slots:
    void fitsAsTheWholeBeginningDoes_data();
    void fitsAsTheWholeBeginningDoes();
    void digitsGoByTheScriptBeforeThem();
    void noLetterFitsLessThanItsWidthWithNegativeSpacing();
    void findsTheFirstLengthThatIsTooWide();
    void ordinaryTextNeedsOneDecision_data();
    void ordinaryTextNeedsOneDecision();
    void stepsAreSteadyBetweenPlainCharacters();
    void theFirstLetterTellsTheScriptOfWhatIsBeforeIt();
    void noStepIsSteadyWithNegativeSpacing();
    void seemsToExceedFromTheSumOn();
    void theFirstCharacterBeyondTheBasicPlaneIsMeasured();
    void halfACharacterCountsAtTheBeginning();
    void halvesOfCharactersCountAnywhere();
    void aLineThatItsLettersMisleadIsDecidedAnew();
};

void TestLineMeter::fitsAsTheWholeBeginningDoes_data()
{
    QTest::addColumn<QString>("alphabet");
    QTest::newRow("plain") << QStringLiteral("iIlWAVTo.,- 1\u0416\u00e9\u4e2d");
    QTest::newRow("tabs") << QStringLiteral("abc  \t");
    QTest::newRow("marks") << QStringLiteral("abc  \u0301");
}

void TestLineMeter::fitsAsTheWholeBeginningDoes()
{
    QFETCH(QString, alphabet);
    QRandomGenerator random(7);
    for (int round = 0; round < 150; ++round) {
        QString text;
        for (int i = 0; i < 40; ++i)
            text += alphabet.at(random.bounded(alphabet.size()));
        const int width = random.bounded(20, 400);
        LineMeter meter(sansFont(), width);
        const int fitting = meter.decideLine(text, [&] {
            int length = 1;
            while (length < text.size() && meter.fits(length))
                ++length;
            return length - 1;
        });
        int expected = 0;
        while (expected + 1 < text.size() && advanceOf(text, expected + 1) <= width)
            ++expected;
        QCOMPARE(fitting, expected);
    }
}

void TestLineMeter::digitsGoByTheScriptBeforeThem()
{
    // A font that has no Arabic: behind Arabic letters its digits, too, come from another one.
    const QFont font(QStringLiteral("Liberation Sans"), 12);
    const QFontMetrics metrics(font);
    const QString line = QStringLiteral("\u0628\u062d\u0631 ") + QStringLiteral("123456789 ").repeated(10);
    for (int width = 10; width < 600; ++width) {
        LineMeter meter(font, width);
        const int fitting = meter.decideLine(line, [&] {
            int length = 1;
            while (length <= line.size() && meter.fits(length))
                ++length;
            return length - 1;
        });
        QVERIFY(metrics.horizontalAdvance(line.left(fitting)) <= width);
        QVERIFY(metrics.horizontalAdvance(line.left(fitting + 1)) > width);
    }
}

void TestLineMeter::noLetterFitsLessThanItsWidthWithNegativeSpacing()
{
    QFont font = sansFont();
    font.setWordSpacing(-1);
    const QString letter(QLatin1Char('m'));
    const int advance = QFontMetrics(font).horizontalAdvance(letter);
    for (int width = 0; width <= advance; ++width) {
        LineMeter meter(font, width);
        QCOMPARE(meter.decideLine(letter, [&] { return meter.fits(1); }), width == advance);
    }
}

void TestLineMeter::findsTheFirstLengthThatIsTooWide()
{
    const QString alphabet = QStringLiteral("iiilWWWmo");
    QRandomGenerator random(11);
    for (int round = 0; round < 300; ++round) {
        QString text;
        for (int i = 0; i < 20; ++i)
            text += alphabet.at(random.bounded(alphabet.size()));
        const int width = advanceOf(text, random.bounded(2, 16)) + random.bounded(16);
        int expected = 1;
        while (expected < text.size() && advanceOf(text, expected) <= width)
            ++expected;
        const int tooWide = qMin(text.size(), expected + random.bounded(4));
        LineMeter meter(sansFont(), width);
        const int found =
            meter.decideLine(text, [&] { return meter.fits(tooWide) ? -1 : meter.firstTooWide(1, tooWide); });
        QCOMPARE(found, expected);
    }
}

void TestLineMeter::ordinaryTextNeedsOneDecision_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("words") << QStringLiteral("The quick brown fox jumps over the lazy dog, AVATAR To Wa.");
    QTest::newRow("one word") << QString(60, QLatin1Char('m'));
    QTest::newRow("Chinese") << QString(40, QChar(0x4e2d));
    QTest::newRow("a mark first") << QStringLiteral("\u0301The quick brown fox jumps over the lazy dog.");
}

void TestLineMeter::ordinaryTextNeedsOneDecision()
{
    QFETCH(QString, line);
    for (int width = 50; width < 400; width += 25)
        QCOMPARE(decisionsAbout(line, width), 1);
}

void TestLineMeter::stepsAreSteadyBetweenPlainCharacters()
{
    const QString plain = QStringLiteral("ab cd");
    for (int length = 1; length < plain.size(); ++length)
        QVERIFY(isSteady(plain, length, length));
    QVERIFY(!isSteady(QStringLiteral("a\u0301b"), 1, 1));
    QVERIFY(!isSteady(QStringLiteral("a\u0301b"), 2, 2));
    QVERIFY(!isSteady(QStringLiteral("\u0628\u0628"), 1, 1));
}

void TestLineMeter::theFirstLetterTellsTheScriptOfWhatIsBeforeIt()
{
    QVERIFY(!isSteady(QStringLiteral("1a"), 1, 1));
    QVERIFY(isSteady(QStringLiteral("12"), 1, 1));
    QVERIFY(isSteady(QStringLiteral("a1b"), 2, 2));
}

void TestLineMeter::noStepIsSteadyWithNegativeSpacing()
{
    QFont font = sansFont();
    font.setWordSpacing(-1);
    QVERIFY(!isSteady(QStringLiteral("ab"), 1, 1, font));
    font.setWordSpacing(1);
    QVERIFY(isSteady(QStringLiteral("ab"), 1, 1, font));
    font.setLetterSpacing(QFont::AbsoluteSpacing, -1);
    QVERIFY(!isSteady(QStringLiteral("ab"), 1, 1, font));
}

void TestLineMeter::seemsToExceedFromTheSumOn()
{
    const QString line = QStringLiteral("mmmm");
    const qreal sum = 4 * QFontMetricsF(sansFont()).horizontalAdvance(QLatin1Char('m'));
    const int width = 10;
    for (const qreal beyond : {-0.5, 0.5}) {
        LineMeter meter(sansFont(), width);
        const bool exceeds =
            meter.decideLine(line, [&] { return meter.seemsToExceed(4, sum - width - beyond); });
        QCOMPARE(exceeds, beyond > 0);
    }
}

void TestLineMeter::theFirstCharacterBeyondTheBasicPlaneIsMeasured()
{
    const uint codePoint = 0x10000;
    const QString line = QString::fromUcs4(&codePoint, 1) + QStringLiteral("abc");
    const int whole = advanceOf(line, line.size());
    for (const int width : {whole, whole - 1}) {
        LineMeter meter(sansFont(), width);
        const bool fits = meter.decideLine(line, [&] { return meter.fits(line.size()); });
        QCOMPARE(fits, width == whole);
    }
}

void TestLineMeter::halfACharacterCountsAtTheBeginning()
{
    const QString text = QStringLiteral("\U00010000");
    const QStringView secondHalf = QStringView(text).mid(1);
    LineMeter meter(sansFont(), 0);
    QVERIFY(meter.decideLine(secondHalf, [&] { return meter.seemsToExceed(1, 0); }));
}

void TestLineMeter::halvesOfCharactersCountAnywhere()
{
    const QChar halves[] = {QChar(0xdc00), QChar(0xd800), QLatin1Char(' ')}; // the wrong way round
    const QString line = QString(halves, 3).repeated(10);
    const int whole = advanceOf(line, line.size());
    for (const int width : {whole, whole - 1}) {
        LineMeter meter(sansFont(), width);
        QCOMPARE(meter.decideLine(line, [&] { return meter.fits(line.size()); }), width == whole);
    }
}

void TestLineMeter::aLineThatItsLettersMisleadIsDecidedAnew()
{
    QFont font = sansFont();
    font.setCapitalization(QFont::Capitalize); // alone, each letter is the first of a word
    const QString word(60, QLatin1Char('w'));
    LineMeter meter(font, 300);
    int decisions = 0;
    const int fitting = meter.decideLine(word, [&] {
        ++decisions;
        int length = 1;
        while (length < word.size() && meter.fits(length))
            ++length;
        return length - 1;
    });
    QVERIFY(decisions > 1);
    const QFontMetrics metrics(font);
    QVERIFY(metrics.horizontalAdvance(word.left(fitting)) <= 300);
    QVERIFY(metrics.horizontalAdvance(word.left(fitting + 1)) > 300);
}

QTEST_MAIN(TestLineMeter)
#include "tst_linemeter.moc"
