#include "WyWidgets/wycontrol/WyToast.h"

#include "WyWidgets/internal/toast/ToastText.h"
#include "wycontrol/ToastGeometryModel.h"
#include "wycontrol/ToastSupport.h"

#include <QRandomGenerator>
#include <QtMath>
#include <QtTest>

using namespace ToastGeometry;
using namespace WyWidgets;

namespace {

class Generator
{
public:
    explicit Generator(quint32 seed) : m_random(seed) {}

    /// From `from` to `to`, both included.
    int number(int from, int to) { return m_random.bounded(from, to + 1); }
    bool oneIn(int count) { return number(1, count) == 1; }

    QString word()
    {
        static const QStringList others = {"файл",
                                           "文件已经上传完成",
                                           "מסמך",
                                           "ملف",
                                           "🎉",
                                           "ﬁne",
                                           "a\u00ADb\u00ADc",
                                           "A\u0301",
                                           "--",
                                           "and/or",
                                           "e\nf",
                                           "g\th",
                                           "...",
                                           "100\u00A0%",
                                           "tall\u009Cer",
                                           "\u0001\u0092"};
        if (oneIn(12))
            return others.at(number(0, others.size() - 1));
        QString result;
        for (int letters = number(1, oneIn(9) ? 24 : 9); letters > 0; --letters)
            result += QChar('a' + number(0, 25));
        return result;
    }

    QString words(int most)
    {
        QStringList result;
        for (int left = number(0, most); left > 0; --left)
            result += word();
        return result.join(oneIn(10) ? "  " : " ");
    }

    QMargins margins(const QMargins& usual)
    {
        if (oneIn(2))
            return usual;
        return {number(-10, 25), number(-10, 25), number(-10, 25), number(-10, 25)};
    }

    Settings settings(int mostWords)
    {
        Settings s;
        s.title = oneIn(8) ? QString() : words(qMin(mostWords, 6));
        s.text = oneIn(8) ? QString() : words(mostWords);
        if (oneIn(4))
            s.titleFont = QFont(QStringLiteral("DejaVu Sans"), number(7, 20));
        if (oneIn(4))
            s.textFont = QFont(QStringLiteral("DejaVu Serif"), number(7, 20));
        s.showIcon = oneIn(2);
        s.iconSize = oneIn(3) ? QSize(number(0, 80), number(0, 80)) : s.iconSize;
        s.showSeparator = !oneIn(4);
        s.separatorWidth = number(0, 9);
        s.showCloseButton = !oneIn(4);
        s.closeButtonSize = oneIn(3) ? QSize(number(0, 60), number(0, 60)) : s.closeButtonSize;
        s.alignment = ToastButtonAlignment(number(0, 3));
        s.showBar = !oneIn(3);
        s.spacing = number(-4, 20);
        s.m = margins(s.m);
        s.im = margins(s.im);
        s.ism = margins(s.ism);
        s.tsm = margins(s.tsm);
        s.cbm = margins(s.cbm);
        if (oneIn(2))
            s.minimum.setHeight(number(0, 500));
        if (oneIn(3))
            s.minimum.setWidth(number(0, 600));
        if (oneIn(3))
            s.maximum.setWidth(qMax(s.minimum.width(), number(20, 600)));
        if (oneIn(4))
            s.maximum.setHeight(qMax(s.minimum.height(), number(20, 400)));
        return s;
    }

private:
    QRandomGenerator m_random;
};

} // namespace

class TestWyToastGeometry : public QObject
{
    Q_OBJECT

private slots:
    void init() { WyToast::setMaximumOnScreen(1000000); }
    void cleanup() { WyTest::resetToasts(); }

    void aPlainToast();
    void anyToastIsLaidOutAsTheModel();
    void longTextsAreWidenedAsTheModel();
    void textsAreMeasuredAsByFontMetrics();
    void ofAWrappedTextInSeveralLengthsTheLastCounts();
    void textsOfControlCharactersAreMeasuredAsByFontMetrics();
    void theHeightBoundHoldsAndNeverRises();

    void textsAreMeasuredInTheFontTheyAreShownIn_data();
    void textsAreMeasuredInTheFontTheyAreShownIn();
    void emptyTextsAreOnePixelWide();
    void aFixedWidthWrapsAndHolds();
    void textsTakeRoomFromOnePixelOn();
    void aTextThatIsTallerOnePixelOnStaysAtItsLongestWord();
    void aMinimumHeightCentresTheTextsAndNotTheIcon();
    void aHiddenCloseButtonStillCountsItsHeightMargins();
    void aHiddenCloseButtonLiesWhereOneWithoutSizeWould();
    void aSingleTitleIsCentredAboveTheBar();
    void aSingleTextIsCentredAboveTheBar();
    void anUnknownAlignmentLeavesTheCloseButton();
    void hugeSettingsEndSomewhere_data();
    void hugeSettingsEndSomewhere();
    void missingPartsAreLeftOut();
    void theBodyIsAboveTheShadow();
    void longTextsWithAMinimumHeightAreFast_data();
    void longTextsWithAMinimumHeightAreFast();
};

void TestWyToastGeometry::aPlainToast()
{
    WyToast toast;
    toast.setTitle("Title");
    toast.setText("Some text");
    toast.setTitleFont(QFont("DejaVu Sans", 12));
    toast.setTextFont(QFont("DejaVu Sans", 9));
    toast.setShowIcon(true);
    const int textWidth = QFontMetrics(toast.getTextFont()).boundingRect("Some text").width() + 1;
    const int titleHeight = QFontMetrics(toast.getTitleFont()).boundingRect("Title").height();
    const int textHeight = QFontMetrics(toast.getTextFont()).boundingRect("Some text").height();
    toast.show();
    const ToastParts parts(&toast);
    // icon 18 + 15, separator 2 + 15, close button 24, margins 20, 15 and 10
    QCOMPARE(parts.body->width(), 18 + 15 + 2 + 15 + 24 + textWidth + 20 + 15 + 10);
    QCOMPARE(parts.body->height(), titleHeight + 8 + textHeight + 18 + 18 + 4);
    QCOMPARE(parts.title->geometry(), QRect(70, 18, textWidth, titleHeight));
    QCOMPARE(parts.text->geometry(), QRect(70, 18 + titleHeight + 8, textWidth, textHeight));
    QCOMPARE(parts.closeButton->pos(), QPoint(parts.body->width() - 34, 10));
    QCOMPARE(parts.separator->geometry(), QRect(53, 18, 2, titleHeight + 8 + textHeight));
    QCOMPARE(parts.icon->pos(), QPoint(20, 18 + (titleHeight + 8 + textHeight - 18) / 2));
    QCOMPARE(parts.barContainer->geometry(), QRect(0, parts.body->height() - 4, parts.body->width(), 4));
    QVERIFY(!parts.title->wordWrap());
}

void TestWyToastGeometry::anyToastIsLaidOutAsTheModel()
{
    Generator generator(20240521);
    int heightened = 0;
    int narrowed = 0;
    for (int i = 0; i < 2000; ++i) {
        const Settings settings = generator.settings(12);
        Model model(settings);
        const QStringList expected = model.places().lines();
        const QStringList actual = shownPlaces(settings).lines();
        if (actual != expected)
            qDebug() << "setting" << i << settings.title << settings.text;
        QCOMPARE(actual, expected);
        heightened += model.widthsTried > 0;
        narrowed += settings.maximum.width() < QWIDGETSIZE_MAX;
        if (i % 100 == 0)
            WyTest::flushDeletions();
    }
    QVERIFY(heightened > 500);
    QVERIFY(narrowed > 500);
}

/// Only settings whose texts have to be wrapped to reach the minimum height.
void TestWyToastGeometry::longTextsAreWidenedAsTheModel()
{
    Generator generator(7);
    int stopped = 0;
    int widened = 0;
    while (widened < 1000) {
        Settings settings = generator.settings(25);
        settings.minimum.setHeight(generator.number(60, 400));
        settings.maximum.setHeight(QWIDGETSIZE_MAX);
        Model model(settings);
        const QStringList expected = model.places().lines();
        if (model.widthsTried < 2)
            continue;
        ++widened;
        stopped += model.triedTooLow;
        const QStringList actual = shownPlaces(settings).lines();
        if (actual != expected)
            qDebug() << "setting" << widened << settings.title << settings.text;
        QCOMPARE(actual, expected);
        if (widened % 100 == 0)
            WyTest::flushDeletions();
    }
    QVERIFY(stopped > 500);
}

void TestWyToastGeometry::textsAreMeasuredAsByFontMetrics()
{
    Generator generator(31);
    for (int i = 0; i < 600; ++i) {
        const QFont font(i % 2 ? QStringLiteral("Arial") : QStringLiteral("DejaVu Sans"),
                         generator.number(7, 20));
        const QString words = generator.words(30);
        const ToastText text(font, words);
        const QFontMetrics metrics(font);
        QCOMPARE(text.oneLine(), metrics.boundingRect(words).size());
        for (int width = 0; width < 700; width += generator.number(1, 60)) {
            const QSize expected = words.isEmpty() ? QSize(0, 0) : wrappedSize(metrics, words, width);
            QCOMPARE(text.wrapped(width), expected);
        }
    }
}

void TestWyToastGeometry::ofAWrappedTextInSeveralLengthsTheLastCounts()
{
    const QFont font(QStringLiteral("DejaVu Sans"), 9);
    const QString lengths = QStringLiteral("a sentence of some length%1in short").arg(QChar(0x9c));
    const ToastText text(font, lengths);
    for (int width = 0; width < 300; ++width) {
        QCOMPARE(text.wrapped(width), ToastText(font, QStringLiteral("in short")).wrapped(width));
        QCOMPARE(text.wrapped(width), wrappedSize(QFontMetrics(font), lengths, width));
    }
    const QString endsInNothing = QStringLiteral("a sentence") + QChar(0x9c);
    QCOMPARE(ToastText(font, endsInNothing).wrapped(50), wrappedSize(QFontMetrics(font), endsInNothing, 50));
}

void TestWyToastGeometry::textsOfControlCharactersAreMeasuredAsByFontMetrics()
{
    const QString characters = QStringLiteral(
        "o a\u05D0\t\n\r\u0001\u000B\u000C\u001B\u007F\u0085\u0092\u009C\u00AD\u200B\u200D\u200E\u200F"
        "\u2028\u2029\u202A\u202B\u202C\u202D\u202E\u2066\u2067\u2068\u2069\uFEFF\uFFFC\uFFFD\uFE0F");
    const QFont font(QStringLiteral("DejaVu Sans"), 9);
    const QFontMetrics metrics(font);
    Generator generator(20);
    for (int i = 0; i < 4000; ++i) {
        QString garbage;
        for (int length = generator.number(1, 12); length > 0; --length)
            garbage += characters.at(generator.number(0, characters.size() - 1));
        const ToastText text(font, garbage);
        int last = std::numeric_limits<int>::max();
        for (int width = 0; width < 80; width += generator.number(1, 24)) {
            const QSize size = text.wrapped(width);
            QVERIFY2(size == wrappedSize(metrics, garbage, width),
                     qPrintable(garbage.toUtf8().toPercentEncoding()));
            const int least = text.leastHeight(width);
            QVERIFY(least >= 0 && least <= qMin(last, qMax(0, size.height())));
            last = least;
        }
    }
}

void TestWyToastGeometry::theHeightBoundHoldsAndNeverRises()
{
    Generator generator(99);
    for (int i = 0; i < 200; ++i) {
        const QFont font(i % 2 ? QStringLiteral("Arial") : QStringLiteral("DejaVu Sans"),
                         generator.number(7, 20));
        const ToastText text(font, generator.words(60));
        int last = std::numeric_limits<int>::max();
        for (int width = 0; width < 900; width += generator.number(1, 40)) {
            const int least = text.leastHeight(width);
            QVERIFY(least <= text.wrapped(width).height());
            QVERIFY(least <= last);
            last = least;
        }
    }
    // Without glyphs of other fonts the bound is the height.
    const ToastText plain(QFont("DejaVu Sans", 9), "one two three four five six seven eight nine ten");
    for (int width = 0; width < 400; ++width)
        QCOMPARE(plain.leastHeight(width), plain.wrapped(width).height());
}

void TestWyToastGeometry::textsAreMeasuredInTheFontTheyAreShownIn_data()
{
    QTest::addColumn<QString>("ofApplication");
    QTest::addColumn<QString>("ofParent");
    QTest::addColumn<QString>("ofToast");
    QTest::addColumn<bool>("boldApplication");
    const QString forAll = QStringLiteral("QWidget { FONT-SIZE: 24px; }");
    QTest::newRow("style sheet for all") << forAll << ""
                                         << "" << false;
    QTest::newRow("style sheet for dialogs and labels")
        << "QDialog { font: bold 30px; } QLabel { font-family: 'DejaVu Serif'; }"
        << ""
        << "" << false;
    QTest::newRow("style sheet of the parent") << "" << forAll << "" << false;
    QTest::newRow("style sheet of the toast") << ""
                                              << "" << forAll << false;
    QTest::newRow("font of the application") << ""
                                             << ""
                                             << "" << true;
}

/// What the application says about fonts reaches the labels where the toast's own fonts say nothing.
void TestWyToastGeometry::textsAreMeasuredInTheFontTheyAreShownIn()
{
    QFETCH(const QString, ofApplication);
    QFETCH(const QString, ofParent);
    QFETCH(const QString, ofToast);
    QFETCH(const bool, boldApplication);
    const QFont font = QApplication::font();
    const auto restore = qScopeGuard([font] {
        qApp->setStyleSheet(QString());
        QApplication::setFont(font);
    });
    qApp->setStyleSheet(ofApplication);
    if (boldApplication) {
        QFont bold = font;
        bold.setBold(true);
        bold.setLetterSpacing(QFont::AbsoluteSpacing, 3);
        QApplication::setFont(bold);
    }
    QFont inPixels(QStringLiteral("DejaVu Sans"));
    inPixels.setPixelSize(12);
    QWidget parent;
    parent.setStyleSheet(ofParent);
    WyToast toast(&parent);
    if (!ofToast.isEmpty())
        toast.setStyleSheet(ofToast);
    toast.setTitle("Title");
    toast.setText("A text that is longer than the title");
    toast.setTitleFont(inPixels);
    toast.setTextFont(inPixels);
    toast.show();
    const ToastParts parts(&toast);
    for (const QLabel* label : {parts.title, parts.text}) {
        const QRect shown = label->fontMetrics().boundingRect(label->text());
        QVERIFY(shown != QFontMetrics(inPixels).boundingRect(label->text()));
        QCOMPARE(label->height(), shown.height());
        QVERIFY(label->width() >= shown.width() + 1);
    }
    QCOMPARE(parts.text->width(), parts.text->fontMetrics().boundingRect(parts.text->text()).width() + 1);
}

void TestWyToastGeometry::emptyTextsAreOnePixelWide()
{
    WyToast toast;
    toast.show();
    const ToastParts parts(&toast);
    QCOMPARE(parts.title->size(), QSize(1, 0));
    QCOMPARE(parts.text->size(), QSize(1, 0));
    // close button 24, margins 20, 15 and 10; 24 - 8 - 8, margins 18 and 18, bar 4
    QCOMPARE(parts.body->size(), QSize(24 + 1 + 20 + 15 + 10, 8 + 18 + 18 + 4));
}

void TestWyToastGeometry::aFixedWidthWrapsAndHolds()
{
    WyToast toast;
    toast.setTitle("A title that is too long for so narrow a toast");
    toast.setText("A text that is much too long for so narrow a toast, and longer still than the title");
    toast.setFixedWidth(260);
    toast.show();
    const ToastParts parts(&toast);
    QCOMPARE(parts.body->width(), 260);
    QCOMPARE(toast.width(), 270);
    QVERIFY(parts.title->wordWrap());
    QVERIFY(parts.text->wordWrap());
    QVERIFY(parts.title->height() >= 2 * QFontMetrics(toast.getTitleFont()).height());
    QVERIFY(parts.text->height() >= 2 * QFontMetrics(toast.getTextFont()).height());
}

/// Without any room the texts are as wide as ever, and reach over the edge.
void TestWyToastGeometry::textsTakeRoomFromOnePixelOn()
{
    Settings settings;
    settings.title = "Title";
    settings.text = "A text that is longer than the title";
    const Places free = shownPlaces(settings);
    for (const int room : {-1, 0, 1, 2}) {
        settings.maximum.setWidth(free.body.width() - free.text.width() + room);
        const Places narrow = shownPlaces(settings);
        QCOMPARE(narrow.text.width(), room > 0 ? room : free.text.width());
        QCOMPARE(narrow.lines(), Model(settings).places().lines());
    }
}

/// The first width that is too low ends the search, whatever comes behind it.
void TestWyToastGeometry::aTextThatIsTallerOnePixelOnStaysAtItsLongestWord()
{
    Settings settings;
    settings.textFont = QFont(QStringLiteral("Arial"), 12);
    settings.text = QStringLiteral("\u0001\u0092 🎉 ملف x🎉 eeeeeeeeee");
    for (int height = 60; height < 140; ++height) {
        settings.minimum = QSize(0, height);
        QCOMPARE(shownPlaces(settings).lines(), Model(settings).places().lines());
    }
}

void TestWyToastGeometry::aMinimumHeightCentresTheTextsAndNotTheIcon()
{
    Settings settings;
    settings.title = "Up";
    settings.text = "Down";
    settings.showIcon = true;
    settings.minimum = QSize(0, 300);
    const Places places = shownPlaces(settings);
    QCOMPARE(places.body.height(), 300);
    const int textsHeight = places.text.bottom() + 1 - places.title.top();
    // The centre of the texts is off by the margins and the bar at most, the icon is where it would be
    // without.
    QVERIFY(qAbs(places.title.top() + textsHeight / 2 - 148) <= 3);
    settings.minimum = QSize(0, 0);
    QCOMPARE(places.icon, shownPlaces(settings).icon);
}

void TestWyToastGeometry::aHiddenCloseButtonStillCountsItsHeightMargins()
{
    Settings settings;
    settings.title = "Title";
    settings.showCloseButton = false;
    settings.cbm = QMargins(100, 30, 100, 40);
    const Places places = shownPlaces(settings);
    QCOMPARE(places.body.height(), 30 + 40 + 18 + 18 + 4);
    QCOMPARE(places.body.width(), places.title.width() + 20 + 15 + 10);
}

void TestWyToastGeometry::aHiddenCloseButtonLiesWhereOneWithoutSizeWould()
{
    WyToast toast;
    toast.setTitle("Title");
    toast.setShowCloseButton(false);
    toast.setCloseButtonAlignment(ToastButtonAlignment::BOTTOM);
    toast.show();
    const ToastParts parts(&toast);
    // margin 10; bar 4, margins -8 and 18
    QCOMPARE(parts.closeButton->pos(), QPoint(parts.body->width() - 10, parts.body->height() - (4 - 8 + 18)));
}

void TestWyToastGeometry::aSingleTitleIsCentredAboveTheBar()
{
    Settings settings;
    settings.title = "Title";
    settings.minimum = QSize(0, 101);
    const Places places = shownPlaces(settings);
    QCOMPARE(places.title.top(), (101 - (places.title.height() + 4)) / 2);
}

void TestWyToastGeometry::aSingleTextIsCentredAboveTheBar()
{
    Settings settings;
    settings.text = "Text";
    settings.closeButtonSize = QSize(24, 91);
    const Places places = shownPlaces(settings);
    QCOMPARE(places.text.top(), (places.body.height() - (places.text.height() + 4)) / 2);
}

void TestWyToastGeometry::anUnknownAlignmentLeavesTheCloseButton()
{
    WyToast toast;
    toast.setCloseButtonAlignment(ToastButtonAlignment(17));
    ToastParts(&toast).closeButton->move(11, 12);
    toast.show();
    QCOMPARE(ToastParts(&toast).closeButton->pos(), QPoint(11, 12));
}

void TestWyToastGeometry::hugeSettingsEndSomewhere_data()
{
    QTest::addColumn<int>("value");
    QTest::newRow("largest") << std::numeric_limits<int>::max();
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
    QTest::newRow("far below zero") << -100000;
}

void TestWyToastGeometry::hugeSettingsEndSomewhere()
{
    QFETCH(const int, value);
    Settings settings;
    settings.title = "Title";
    settings.text = "Text";
    settings.showIcon = true;
    settings.spacing = value;
    settings.m = settings.im = settings.ism = settings.tsm = settings.cbm =
        QMargins(value, value, value, value);
    settings.maximum = QSize(500, 400);
    WyToast* toast = settings.createToast(nullptr);
    toast->show();
    QVERIFY(toast->width() >= 10 && toast->width() <= 510);
    QVERIFY(toast->height() >= 10 && toast->height() <= 410);
    delete toast;
}

void TestWyToastGeometry::missingPartsAreLeftOut()
{
    // Each part in turn is deleted by the host before the toast is set up and shown.
    for (int missing = 0; missing < 13; ++missing) {
        auto* toast = new WyToast;
        ToastParts parts(toast);
        const QList<QObject*> all = {
            parts.body,  parts.layers.at(2),  parts.effect,    parts.closeButton,  parts.title,
            parts.text,  parts.icon,          parts.separator, parts.barContainer, parts.bar,
            parts.chunk, parts.durationTimer, parts.barTimer};
        delete all.at(missing);
        toast->applyPreset(ToastPreset::ERROR_DARK);
        toast->setTitle("Title");
        toast->setText("A text that has to be wrapped");
        toast->setIconSize(QSize(20, 20));
        toast->setCloseButtonSize(QSize(20, 20));
        toast->setCloseButtonIconSize(QSize(9, 9));
        toast->setTitleFont(QFont("Arial", 10));
        toast->setTextFont(QFont("Arial", 10));
        toast->setFixedWidth(170);
        toast->setMinimumHeight(100);
        toast->setFadeOutDuration(0);
        toast->show();
        QCOMPARE(WyToast::getVisibleCount(), 1);
        QEvent enter(QEvent::Enter);
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(toast, &enter);
        QMetaObject::invokeMethod(toast, "updateDurationBar");
        QCoreApplication::sendEvent(toast, &leave);
        WyToast::setOffsetX(WyToast::getOffsetX() + 1);
        toast->hide();
        QCOMPARE(WyToast::getVisibleCount(), 0);
        delete toast;
    }
}

void TestWyToastGeometry::theBodyIsAboveTheShadow()
{
    WyToast toast;
    toast.show();
    const ToastParts parts(&toast);
    const QList<QObject*> siblings = toast.children();
    for (QWidget* layer : parts.layers)
        QVERIFY(siblings.indexOf(parts.body) > siblings.indexOf(layer));
}

void TestWyToastGeometry::longTextsWithAMinimumHeightAreFast_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<int>("times");
    QTest::newRow("words") << "a few words that are repeated " << 400;
    QTest::newRow("as a terminal shows them in colour")
        << "a few \x1b[31mwords that\x1b[0m are repeated " << 80;
}

/// The plain loop lays the text out at thousands of widths, and would take hundreds of times as long.
void TestWyToastGeometry::longTextsWithAMinimumHeightAreFast()
{
    QFETCH(const QString, words);
    QFETCH(const int, times);
    Settings settings;
    settings.title = "Title";
    settings.text = words.repeated(times);
    const auto fastestUs = [&settings] {
        qint64 fastest = std::numeric_limits<qint64>::max();
        for (int i = 0; i < 3; ++i) {
            QElapsedTimer timer;
            timer.start();
            shownPlaces(settings);
            fastest = qMin(fastest, timer.nsecsElapsed() / 1000);
        }
        return fastest;
    };
    const qint64 withoutUs = fastestUs();
    settings.minimum = QSize(0, 500);
    QVERIFY(shownPlaces(settings).body.height() >= 500);
    const qint64 withUs = fastestUs();
    QVERIFY2(withUs < 50 * withoutUs, qPrintable(QStringLiteral("%1 µs, %2 µs").arg(withUs).arg(withoutUs)));
}

QTEST_MAIN(TestWyToastGeometry)
#include "tst_wytoast_geometry.moc"
