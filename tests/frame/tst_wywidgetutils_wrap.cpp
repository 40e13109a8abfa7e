#include "WyWidgets/frame/WyWidgetUtils.h"

#include "support/Silence.h"
#include "support/WrapModels.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QRandomGenerator>
#include <QToolTip>
#include <QtTest>

using WyTest::plainWrap;
using WyTest::Silence;
using WyWidgets::WyWidgetUtils;

namespace {

/// Characters that belong together, one list a script.
QStringList alphabets()
{
    return {
        QStringLiteral("eeeeettttaaaooiinnssrrhhlldcumfpgwybvkxjqz"),
        QStringLiteral("AVAToTyWaLYPfiffiflffl.,'\"-"),
        QStringLiteral("0123456789()[]{}<>=!+-*/|&%#@"),
        QStringLiteral(" \t\n  "),
        QStringLiteral("éèüößñçÅŐžłđ"),
        QStringLiteral("ЖШЩабвгдежзиклмнопрстуфхцчшщъыьэюя"),
        QStringLiteral("αβγδεζηθικλμνξοπρστυφχψωΑΒΓΔ"),
        QStringLiteral("ابتثجحخدذرزسشصضطظعغفقكلمنهويلالا"),
        QStringLiteral("אבגדהוזחטיכלמנסעפצקרשת"),
        QStringLiteral("अआइकखगघचछजझटठडढणतथदधनपफबभमयरलवशषसहािीुूेैोौ्ंः"),
        QStringLiteral("กขคงจฉชซดตถทธนบปผฝพฟภมยรลวศษสหะัาำิีึืุูเแโใไ็่้"),
        QStringLiteral("的一是不了在人有我他这かなカナ한국어、。「」"),
        QStringLiteral("ᄀ깨ᅣᆨᆩᆪ나"),
        QStringLiteral(
            "\u0301\u0308\u0327\u0323\u200d\u200c\u200b\ufe0f\u20e3\u00ad\u200e\u200f\u202e\u202c\u2028"),
    };
}

/// Sequences of several code points that are drawn as one, and characters beyond the basic plane.
QStringList sequences()
{
    return {
        QStringLiteral("👨‍👩‍👧‍👦"),
        QStringLiteral("👍🏽"),
        QStringLiteral("🇩🇪"),
        QStringLiteral("🇫🇷🇬🇧"),
        QStringLiteral("1️⃣"),
        QStringLiteral("☺️"),
        QStringLiteral("❤️‍🔥"),
        QStringLiteral("👩🏿‍🚀"),
        QStringLiteral("𝒜𝓑𝔸"),
        QStringLiteral("﷽"),
        QStringLiteral("->"),
        QStringLiteral("!="),
        QStringLiteral("www"),
        QStringLiteral("ﻻ"),
        QStringLiteral("e\u0301"),
    };
}

class TextGenerator
{
public:
    explicit TextGenerator(quint32 seed) : m_random(seed) {}

    int below(int limit) { return int(m_random.bounded(limit)); }
    bool oneIn(int chances) { return below(chances) == 0; }

    /// Words of one script, of a few or of many, mostly with spaces between them.
    QString text()
    {
        const int length = below(oneIn(12) ? 700 : 110);
        const int scriptsChange = oneIn(2) ? 1000 : 1 + below(6);
        const int spaces = oneIn(6) ? 1000 : 1 + below(3);
        int script = below(m_alphabets.size() + 1);
        QString text;
        while (text.size() < length) {
            if (oneIn(scriptsChange))
                script = below(m_alphabets.size() + 1);
            text += word(script);
            if (oneIn(spaces))
                text += oneIn(15) ? QStringLiteral("  ") : QStringLiteral(" ");
        }
        return text;
    }

    QFont font(const QStringList& families)
    {
        QFont font(families.at(below(families.size())));
        font.setPointSizeF(6 + below(40) / 2.0);
        font.setBold(oneIn(5));
        font.setItalic(oneIn(6));
        font.setKerning(!oneIn(6));
        if (oneIn(6))
            font.setHintingPreference(QFont::PreferNoHinting);
        if (oneIn(8))
            font.setLetterSpacing(QFont::AbsoluteSpacing, below(9) - 4);
        else if (oneIn(10))
            font.setLetterSpacing(QFont::PercentageSpacing, 80 + below(50));
        if (oneIn(8))
            font.setWordSpacing(below(30) - 15);
        if (oneIn(10))
            font.setStretch(60 + below(120));
        return font;
    }

    int width()
    {
        static const int special[] = {
            0, -1, 1, 5, 3000, 100000, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()};
        return oneIn(8) ? special[below(8)] : 10 + below(oneIn(2) ? 150 : 600);
    }

private:
    QString word(int script)
    {
        QString word;
        for (int length = 1 + below(oneIn(8) ? 30 : 9); length > 0; --length) {
            if (script == m_alphabets.size())
                word += m_sequences.at(below(m_sequences.size()));
            else
                word += m_alphabets.at(script).at(below(m_alphabets.at(script).size()));
            if (oneIn(60))
                word += m_alphabets.last().at(below(m_alphabets.last().size()));
        }
        return word;
    }

    QRandomGenerator m_random;
    const QStringList m_alphabets = alphabets();
    const QStringList m_sequences = sequences();
};

QString prose(int length)
{
    QString text;
    for (int i = 0; text.size() < length; ++i)
        text += QString(1 + i * 7 % 11, QChar('a' + i * 5 % 26)) + QLatin1Char(' ');
    return text.left(length);
}

class ToolTipFont
{
public:
    explicit ToolTipFont(const QFont& font) { QToolTip::setFont(font); }
    ~ToolTipFont() { QToolTip::setFont(m_former); }

private:
    const QFont m_former = QToolTip::font();
};

} // namespace

/// Wrapping measures little, but its lines are those of measuring everything.
class TestWyWidgetUtilsWrap : public QObject
{
    Q_OBJECT

private slots:
    void generatedTextsWrapLikeThePlainAlgorithm_data();
    void generatedTextsWrapLikeThePlainAlgorithm();
    void everyWidthWrapsLikeThePlainAlgorithm();
    void breaksWithinCharactersAreThoseOfThePlainAlgorithm();
    void charactersFromOtherFontsWrapLikeThePlainAlgorithm();
    void aSingleWideCharacterIsFollowedByABreak();
    void aSpaceAtTheStartIsNoneToBreakAt();
    void aRestNoLongerThanItsLineIsNotWrapped();
    void theTooltipFontCounts();
    void hugeTextsAreWrappedInNoTime_data();
    void hugeTextsAreWrappedInNoTime();
};

void TestWyWidgetUtilsWrap::generatedTextsWrapLikeThePlainAlgorithm_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 4; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void TestWyWidgetUtilsWrap::generatedTextsWrapLikeThePlainAlgorithm()
{
    QFETCH(quint32, seed);
    const QStringList families = QFontDatabase().families();
    const Silence silence; // Qt warns of each old font that meets a script which it does not have
    TextGenerator random(seed);
    for (int i = 0; i < 600; ++i) {
        const ToolTipFont font(random.font(families));
        const QString text = random.text();
        const int width = random.width();
        const QString expected = plainWrap(text, width);
        const QString wrapped = WyWidgetUtils::ToolTipWrap(text, width);
        QVERIFY2(wrapped == expected,
                 qPrintable(QStringLiteral("text %1, font %2, width %3\ngot:\n%4\nexpected:\n%5")
                                .arg(i)
                                .arg(QToolTip::font().toString())
                                .arg(width)
                                .arg(wrapped, expected)));
    }
}

void TestWyWidgetUtilsWrap::everyWidthWrapsLikeThePlainAlgorithm()
{
    const QString text = QStringLiteral(
        "To Wave AVATAR fluffy office: e\u0301tude \u05e9\u05dc\u05d5\u05dd 👍🏽 unbreakableword "
        "\u0645\u0631\u062d\u0628\u0627 x  y\tz\nend of it");
    for (int width = -2; width < 420; ++width)
        QCOMPARE(WyWidgetUtils::ToolTipWrap(text, width), plainWrap(text, width));
}

void TestWyWidgetUtilsWrap::breaksWithinCharactersAreThoseOfThePlainAlgorithm()
{
    QFont mono(QStringLiteral("monospace"));
    mono.setPointSize(20);
    const ToolTipFont font(mono);
    // Letters beyond the basic plane that are much wider than their first halves are alone.
    const QString text = QStringLiteral("𝒐𝒦𝒽𝒦𝓜𝓛𝒐𝑸𝓶𝐓𝓍𝑫𝓝𝓜𝓜𝓜𝓦𝓦");
    plainWrap(text, 0); // Qt measures letters anew when it has found their font
    for (int width = -2; width < 420; ++width)
        QCOMPARE(WyWidgetUtils::ToolTipWrap(text, width), plainWrap(text, width));
}

/// A font without a script leaves what stands beside its letters to another one, digits included. Here the
/// first is much narrower, where it is installed.
void TestWyWidgetUtilsWrap::charactersFromOtherFontsWrapLikeThePlainAlgorithm()
{
    const Silence silence; // as above
    const ToolTipFont font(QFont(QStringLiteral("Nimbus Sans Narrow"), 12));
    for (const QString& letter : {QStringLiteral("א"), QStringLiteral("ا"), QStringLiteral("क")}) {
        for (int length = 2; length < 30; ++length) {
            const QString digits = QStringLiteral("0.1-2/3").repeated(5).left(length);
            const QString text = digits + letter + QLatin1Char(' ') + letter + digits;
            for (int width = 20; width < 400; width += 13)
                QCOMPARE(WyWidgetUtils::ToolTipWrap(text, width), plainWrap(text, width));
        }
    }
}

void TestWyWidgetUtilsWrap::aSingleWideCharacterIsFollowedByABreak()
{
    QCOMPARE(WyWidgetUtils::ToolTipWrap(QStringLiteral("W"), 1), QStringLiteral("W\n"));
    QCOMPARE(WyWidgetUtils::ToolTipWrap(QStringLiteral("W"), 1000), QStringLiteral("W"));
}

void TestWyWidgetUtilsWrap::aSpaceAtTheStartIsNoneToBreakAt()
{
    QCOMPARE(WyWidgetUtils::ToolTipWrap(QStringLiteral(" abcd"), 0), QStringLiteral(" \nb\nd"));
    QCOMPARE(WyWidgetUtils::ToolTipWrap(QStringLiteral("a bcd"), 0), QStringLiteral("a\nb\nd"));
}

void TestWyWidgetUtilsWrap::aRestNoLongerThanItsLineIsNotWrapped()
{
    const int width = QFontMetrics(QToolTip::font()).horizontalAdvance(QStringLiteral("iiiiiiiiii"));
    // The second line is wider than the first, but has no more characters.
    QCOMPARE(WyWidgetUtils::ToolTipWrap(QStringLiteral("iiiiiiiiii MMMMMMMMMM"), width),
             QStringLiteral("iiiiiiiiii\nMMMMMMMMMM"));
    QVERIFY(WyWidgetUtils::ToolTipWrap(QStringLiteral("iiiiiiiiii MMMMMMMMMMM"), width).count('\n') > 1);
}

void TestWyWidgetUtilsWrap::theTooltipFontCounts()
{
    const QString text = prose(300);
    QFont large = QToolTip::font();
    large.setPointSizeF(large.pointSizeF() * 2);
    const QString narrow = WyWidgetUtils::ToolTipWrap(text, 300);
    const ToolTipFont font(large);
    QVERIFY(WyWidgetUtils::ToolTipWrap(text, 300).count('\n') > narrow.count('\n'));
}

void TestWyWidgetUtilsWrap::hugeTextsAreWrappedInNoTime_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("width");
    const int huge = std::numeric_limits<int>::max();
    QTest::newRow("prose") << prose(100000) << 400;
    QTest::newRow("prose on one line") << prose(100000) << huge;
    QTest::newRow("prose, very wide") << prose(100000) << 50000;
    QTest::newRow("one word") << QString(100000, QLatin1Char('m')) << 400;
    QTest::newRow("one word on one line") << QString(100000, QLatin1Char('m')) << huge;
    QTest::newRow("one word, very wide") << QString(100000, QLatin1Char('m')) << 50000;
    QTest::newRow("spaces") << QString(100000, QLatin1Char(' ')) << 400;
    QTest::newRow("emoji") << QStringLiteral("😀").repeated(20000) << 400;
    QTest::newRow("emoji on one line") << QStringLiteral("😀").repeated(20000) << huge;
    QTest::newRow("Arabic, very wide")
        << QStringLiteral("\u0645\u0631\u062d\u0628\u0627 ").repeated(16000) << 50000;
    QTest::newRow("marks") << QString(100000, QChar(0x0301)) << 400;
    QTest::newRow("tabs") << QString(100000, QLatin1Char('\t')) << 400;
    QTest::newRow("no width") << prose(100000) << 0;
}

void TestWyWidgetUtilsWrap::hugeTextsAreWrappedInNoTime()
{
    QFETCH(QString, text);
    QFETCH(int, width);
    // Generous: a wrapping that is not linear takes minutes.
    QElapsedTimer timer;
    timer.start();
    const QString wrapped = WyWidgetUtils::ToolTipWrap(text, width);
    QVERIFY(timer.elapsed() < 20000);
    QVERIFY(wrapped.size() >= text.size());
}

QTEST_MAIN(TestWyWidgetUtilsWrap)
#include "tst_wywidgetutils_wrap.moc"
