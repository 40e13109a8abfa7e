#include "WyWidgets/wycontrol/WyErrorWidget.h"

#include "support/AnimationClock.h"
#include "support/Contract.h"
#include "support/Events.h"
#include "support/FreedMemory.h"
#include "support/MessageRow.h"
#include "support/Painting.h"

#include <QGraphicsDropShadowEffect>
#include <QGraphicsOpacityEffect>
#include <QLabel>
#include <QParallelAnimationGroup>
#include <QPauseAnimation>
#include <QPropertyAnimation>
#include <QRandomGenerator>
#include <QSequentialAnimationGroup>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

#include <memory>
#include <utility>

using WyWidgets::WyErrorWidget;

namespace {

QLabel* label(const WyErrorWidget& error)
{
    return error.findChild<QLabel*>(QStringLiteral("err_widget_label"));
}

template <typename T>
T* directChild(const WyErrorWidget& error)
{
    return error.findChild<T*>(QString(), Qt::FindDirectChildrenOnly);
}

QParallelAnimationGroup* fadeIn(const WyErrorWidget& error)
{
    return directChild<QParallelAnimationGroup>(error);
}

QGraphicsOpacityEffect* effect(const WyErrorWidget& error)
{
    return qobject_cast<QGraphicsOpacityEffect*>(error.graphicsEffect());
}

/// What one animation does, in a form that a test can compare.
QString described(const QPropertyAnimation* animation)
{
    QString text;
    QDebug(&text).noquote().nospace()
        << animation->propertyName() << ' ' << animation->duration() << ' ' << animation->startValue() << ' '
        << animation->endValue() << ' ' << int(animation->easingCurve().type());
    return text;
}

/// Lines that a plain text of words and single spaces takes: word after word as long as the line holds them.
/// 0 if rounding decides.
int linesOf(const QString& text, const QFontMetricsF& metrics, int width)
{
    int lines = 0;
    QString line;
    for (const QString& word : text.split(QLatin1Char(' '))) {
        const QString longer = line.isEmpty() ? word : line + QLatin1Char(' ') + word;
        if (std::abs(metrics.horizontalAdvance(longer) - width) < 1.5)
            return 0;
        if (lines > 0 && metrics.horizontalAdvance(longer) <= width) {
            line = longer;
        } else {
            ++lines;
            line = word;
        }
    }
    return lines;
}

} // namespace

class TestWyErrorWidget : public QObject
{
    Q_OBJECT

private slots:
    void registersNothingOfItsOwn();
    void laysOutAHiddenIconAndTheText();
    void takesTheSizeOfItsContents();
    void paintsAStyledBackground();
    void startsAtFullOpacity();
    void appearsWithItsParent();
    void theFadeInRunsFrom0To1In400Ms();
    void keepsTheAnimationsThatNothingStarts();

    void fadesUpToTheSizeOfAScreen_data();
    void fadesUpToTheSizeOfAScreen();

    void showingWithoutAnimationStays();
    void showingWithAnimationFadesInAndHidesAfter5Seconds();
    void theHideTimerIsConnectedByName();
    void theTimeOutOnlyHides();
    void showingAgainRestartsFadeAndTimer();
    void aCallAfterTheFadeFadesAgain();
    void everyFadeRunsForwardsOnce();
    void showingWithoutAnimationCancelsTheHiding();

    void withoutMaximumOnlyTheTextChanges();
    void aTextThatFitsShrinksTheLabel();
    void aLongerTextWrapsAtExactlyTheMaximum();
    void aShortTextAfterALongOneShrinksTheLabelAgain();
    void twoLinesAlwaysWrap();
    void wrapsExactlyWhenTheWordsNeedTwoLines_data();
    void wrapsExactlyWhenTheWordsNeedTwoLines();
    void measuresWithTheStyleSheetFont();
    void settingTheMaximumDoesNotFitAgain();
    void aFixedWidthCentresTheText();
    void wrappingCanBeSwitched();
    void outOfRangeWidthsStayQuiet();

    void aSecondInitLeavesNothingOnTheOldEffect();
    void aReplacedEffectTakesTheFadeWithIt();
    void initInASlotOfTheFadeIsSafe();
    void deletionInTheMiddleOfTheFadeIsSafe();
    void deletionWithinAStepOfTheFadeIsSafe_data();
    void deletionWithinAStepOfTheFadeIsSafe();
    void deletionWhileShowingIsSafe();
    void deletionWhenTheFadeStartsOrStartsOverIsSafe();
    void aDeletedLabelIsLeftAlone();
    void makesAnotherTimerWhenItsOwnIsDeleted();
};

void TestWyErrorWidget::registersNothingOfItsOwn()
{
    WY_COMPARE_CONTRACT(WyErrorWidget, {}, {}, {});
}

void TestWyErrorWidget::laysOutAHiddenIconAndTheText()
{
    QWidget parent;
    const WyErrorWidget error(&parent);
    QCOMPARE(error.parentWidget(), &parent);
    const QLabel* text = label(error);
    WyTest::compareMessageRow(error, text);
    QVERIFY(text->wordWrap());
    QCOMPARE(text->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QVERIFY(text->text().isEmpty());
}

void TestWyErrorWidget::takesTheSizeOfItsContents()
{
    WyErrorWidget error;
    error.SetErrLabelWrap(false);
    error.ShowAnimation(false);
    error.SetErrText(QStringLiteral("The name is taken"));
    QTRY_COMPARE(error.size(), label(error)->sizeHint() + QSize(16, 16));
    const int width = error.width();
    error.SetErrText(QStringLiteral("The name is taken; choose another one"));
    QTRY_VERIFY(error.width() > width);
    QCOMPARE(error.size(), label(error)->sizeHint() + QSize(16, 16));
}

void TestWyErrorWidget::paintsAStyledBackground()
{
    WyErrorWidget error;
    QVERIFY(error.testAttribute(Qt::WA_StyledBackground));
    error.setStyleSheet(QStringLiteral("WyWidgets--WyErrorWidget { background: #402010; }"));
    error.adjustSize();
    WY_COMPARE_PICTURES(WyTest::picture(&error), WyTest::painted(error.size(), [&](QPainter& painter) {
                            painter.fillRect(error.rect(), QColor(0x40, 0x20, 0x10));
                        }));
}

void TestWyErrorWidget::startsAtFullOpacity()
{
    const WyErrorWidget error;
    QVERIFY(effect(error));
    QCOMPARE(effect(error)->parent(), &error);
    QCOMPARE(effect(error)->opacity(), 1.0);
    QVERIFY(!directChild<QTimer>(error));
}

void TestWyErrorWidget::appearsWithItsParent()
{
    QWidget parent;
    const WyErrorWidget error(&parent);
    QVERIFY(!error.isVisible());
    parent.show();
    QVERIFY(error.isVisible());
    QVERIFY(WyErrorWidget().isHidden());
}

void TestWyErrorWidget::theFadeInRunsFrom0To1In400Ms()
{
    const WyErrorWidget error;
    QVERIFY(fadeIn(error));
    QCOMPARE(fadeIn(error)->state(), QAbstractAnimation::Stopped);
    QCOMPARE(fadeIn(error)->animationCount(), 1);
    auto* sequence = qobject_cast<QSequentialAnimationGroup*>(fadeIn(error)->animationAt(0));
    QVERIFY(sequence);
    QCOMPARE(sequence->animationCount(), 1);
    auto* animation = qobject_cast<QPropertyAnimation*>(sequence->animationAt(0));
    QVERIFY(animation);
    QCOMPARE(animation->targetObject(), effect(error));
    QCOMPARE(animation->propertyName(), QByteArray("opacity"));
    QCOMPARE(animation->duration(), 400);
    QCOMPARE(animation->startValue().userType(), int(QMetaType::Int));
    QCOMPARE(animation->endValue().userType(), int(QMetaType::Int));
    QCOMPARE(animation->startValue().toInt(), 0);
    QCOMPARE(animation->endValue().toInt(), 1);
    QCOMPARE(animation->easingCurve(), QEasingCurve(QEasingCurve::Linear));
}

void TestWyErrorWidget::keepsTheAnimationsThatNothingStarts()
{
    WyErrorWidget error;
    const auto sequences =
        error.findChildren<QSequentialAnimationGroup*>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(sequences.size(), 2);
    QCOMPARE(sequences.at(0)->animationCount(), 2);
    const QRect small(190, 230, 0, 0);
    const QRect large(120, 160, 140, 140);
    for (int i = 0; i < 2; ++i) {
        auto* growing = qobject_cast<QPropertyAnimation*>(sequences.at(0)->animationAt(i));
        QVERIFY(growing);
        QCOMPARE(growing->targetObject(), &error);
        QCOMPARE(growing->propertyName(), QByteArray("geometry"));
        QCOMPARE(growing->duration(), 1000);
        QCOMPARE(growing->easingCurve(), QEasingCurve(QEasingCurve::InOutQuad));
        QCOMPARE(growing->startValue().toRect(), i == 0 ? small : large);
        QCOMPARE(growing->endValue().toRect(), i == 0 ? large : small);
    }

    QCOMPARE(sequences.at(1)->animationCount(), 2);
    auto* pause = qobject_cast<QPauseAnimation*>(sequences.at(1)->animationAt(0));
    QVERIFY(pause);
    QCOMPARE(pause->duration(), 500);
    auto* falling = qobject_cast<QPropertyAnimation*>(sequences.at(1)->animationAt(1));
    QVERIFY(falling);
    QCOMPARE(falling->targetObject(), &error);
    QCOMPARE(falling->propertyName(), QByteArray("pos"));
    QCOMPARE(falling->duration(), 1000);
    QCOMPARE(falling->easingCurve(), QEasingCurve(QEasingCurve::InOutQuad));
    QCOMPARE(falling->startValue().toPoint(), QPoint(360, 10));
    QCOMPARE(falling->endValue().toPoint(), QPoint(360, 350));

    auto* fadeOut = directChild<QPropertyAnimation>(error);
    QVERIFY(fadeOut);
    QCOMPARE(fadeOut->targetObject(), effect(error));
    QCOMPARE(fadeOut->propertyName(), QByteArray("opacity"));
    QCOMPARE(fadeOut->duration(), 1000);
    QCOMPARE(fadeOut->startValue().toInt(), 1);
    QCOMPARE(fadeOut->endValue().toInt(), 0);

    error.ShowAnimation(true);
    for (QAbstractAnimation* animation :
         {static_cast<QAbstractAnimation*>(sequences.at(0)),
          static_cast<QAbstractAnimation*>(sequences.at(1)), static_cast<QAbstractAnimation*>(fadeOut)})
        QCOMPARE(animation->state(), QAbstractAnimation::Stopped);
}

void TestWyErrorWidget::fadesUpToTheSizeOfAScreen_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<qreal>("opacity");
    QTest::addColumn<QColor>("color");
    const QSize large(7680, 4320);
    QTest::newRow("invisible") << QSize(100, 100) << 0.0 << QColor(255, 255, 255);
    QTest::newRow("half") << QSize(100, 100) << 0.5 << QColor(127, 127, 255);
    QTest::newRow("as large as a screen, half") << large << 0.5 << QColor(127, 127, 255);
    // Pictures of these would take the memory of the machine.
    const QSize larger(7680, 4321);
    const QSize largest(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    QTest::newRow("larger, invisible") << larger << 0.0 << QColor(255, 255, 255);
    QTest::newRow("larger, almost invisible") << larger << 0.1 << QColor(0, 0, 255);
    QTest::newRow("larger, half") << larger << 0.5 << QColor(0, 0, 255);
    QTest::newRow("largest, invisible") << largest << 0.0 << QColor(255, 255, 255);
    QTest::newRow("largest, half") << largest << 0.5 << QColor(0, 0, 255);
}

void TestWyErrorWidget::fadesUpToTheSizeOfAScreen()
{
    QFETCH(const QSize, size);
    QFETCH(const qreal, opacity);
    QFETCH(const QColor, color);
    QWidget window;
    window.setStyleSheet(QStringLiteral("background: white"));
    window.resize(100, 100);
    WyErrorWidget error(&window);
    delete error.layout();
    error.setStyleSheet(QStringLiteral("background: blue"));
    error.setGeometry(QRect(QPoint(10, 10), size));
    effect(error)->setOpacity(opacity);
    const QColor painted = window.grab().toImage().pixelColor(50, 50);
    const auto isNear = [](int a, int b) {
        return qAbs(a - b) <= 1;
    };
    QVERIFY2(isNear(painted.red(), color.red()) && isNear(painted.green(), color.green()) &&
                 isNear(painted.blue(), color.blue()),
             qPrintable(painted.name()));
}

void TestWyErrorWidget::showingWithoutAnimationStays()
{
    WyErrorWidget error;
    error.ShowAnimation(false);
    QVERIFY(error.isVisible());
    QCOMPARE(fadeIn(error)->state(), QAbstractAnimation::Stopped);
    QCOMPARE(effect(error)->opacity(), 1.0);
    QVERIFY(!directChild<QTimer>(error));
}

void TestWyErrorWidget::showingWithAnimationFadesInAndHidesAfter5Seconds()
{
    WyErrorWidget error;
    error.ShowAnimation(true);
    QVERIFY(error.isVisible());
    QCOMPARE(fadeIn(error)->state(), QAbstractAnimation::Running);
    QCOMPARE(fadeIn(error)->direction(), QAbstractAnimation::Forward);
    QCOMPARE(fadeIn(error)->loopCount(), 1);
    QCOMPARE(effect(error)->opacity(), 0.0);
    fadeIn(error)->setCurrentTime(200);
    QCOMPARE(effect(error)->opacity(), 0.5);
    fadeIn(error)->setCurrentTime(400);
    QCOMPARE(effect(error)->opacity(), 1.0);
    QCOMPARE(fadeIn(error)->state(), QAbstractAnimation::Stopped);

    QTimer* timer = directChild<QTimer>(error);
    QVERIFY(timer);
    QVERIFY(timer->isActive());
    QVERIFY(timer->isSingleShot());
    QCOMPARE(timer->interval(), 5000);
}

void TestWyErrorWidget::theHideTimerIsConnectedByName()
{
    WyErrorWidget error;
    error.ShowAnimation(true);
    QTimer* timer = directChild<QTimer>(error);
    QVERIFY(disconnect(timer, SIGNAL(timeout()), &error, SLOT(hide())));
    QVERIFY(!disconnect(timer, SIGNAL(timeout()), nullptr, nullptr));
}

void TestWyErrorWidget::theTimeOutOnlyHides()
{
    QPointer<WyErrorWidget> error = new WyErrorWidget;
    error->ShowAnimation(true);
    directChild<QTimer>(*error)->start(1);
    QTRY_VERIFY(error->isHidden());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(error);
    delete error;
}

void TestWyErrorWidget::showingAgainRestartsFadeAndTimer()
{
    WyErrorWidget error;
    error.ShowAnimation(true);
    QTimer* timer = directChild<QTimer>(error);
    timer->start(60000); // to be seen by its interval
    fadeIn(error)->setCurrentTime(300);
    QCOMPARE(effect(error)->opacity(), 0.75);

    error.ShowAnimation(true);
    QCOMPARE(effect(error)->opacity(), 0.0);
    QCOMPARE(fadeIn(error)->currentTime(), 0);
    QCOMPARE(fadeIn(error)->state(), QAbstractAnimation::Running);
    QVERIFY(timer->isActive());
    QCOMPARE(timer->interval(), 5000);
    QCOMPARE(error.findChildren<QTimer*>().size(), 1);
}

void TestWyErrorWidget::everyFadeRunsForwardsOnce()
{
    WyErrorWidget error;
    fadeIn(error)->setDirection(QAbstractAnimation::Backward);
    fadeIn(error)->setLoopCount(3);
    error.ShowAnimation(true);
    QCOMPARE(fadeIn(error)->direction(), QAbstractAnimation::Forward);
    QCOMPARE(fadeIn(error)->loopCount(), 1);
}

void TestWyErrorWidget::aCallAfterTheFadeFadesAgain()
{
    WyErrorWidget error;
    error.ShowAnimation(true);
    fadeIn(error)->setCurrentTime(400);
    error.hide();
    error.ShowAnimation(true);
    QVERIFY(error.isVisible());
    QCOMPARE(effect(error)->opacity(), 0.0);
    QCOMPARE(fadeIn(error)->state(), QAbstractAnimation::Running);
}

void TestWyErrorWidget::showingWithoutAnimationCancelsTheHiding()
{
    WyErrorWidget error;
    error.ShowAnimation(true);
    error.ShowAnimation(false);
    QVERIFY(!directChild<QTimer>(error)->isActive());
    QVERIFY(error.isVisible());
    // The fade that is under way still ends at full opacity.
    QCOMPARE(fadeIn(error)->state(), QAbstractAnimation::Running);
    fadeIn(error)->setCurrentTime(400);
    QCOMPARE(effect(error)->opacity(), 1.0);
}

void TestWyErrorWidget::withoutMaximumOnlyTheTextChanges()
{
    WyErrorWidget error;
    error.SetErrText(QString(500, QLatin1Char('m')));
    QCOMPARE(label(error)->text(), QString(500, QLatin1Char('m')));
    QVERIFY(label(error)->wordWrap());
    QCOMPARE(label(error)->minimumWidth(), 0);
    QCOMPARE(label(error)->maximumWidth(), QWIDGETSIZE_MAX);

    error.SetErrLabelWrap(false);
    error.SetErrText(QStringLiteral("one two three four five six seven eight nine ten"));
    error.AdjustLabel();
    QVERIFY(!label(error)->wordWrap());
    QCOMPARE(label(error)->maximumWidth(), QWIDGETSIZE_MAX);
}

void TestWyErrorWidget::aTextThatFitsShrinksTheLabel()
{
    WyErrorWidget error;
    error.SetWidgetMaxWidth(300);
    error.SetErrText(QStringLiteral("Too short"));
    QVERIFY(!label(error)->wordWrap());
    QCOMPARE(label(error)->minimumWidth(), 0);
    QCOMPARE(label(error)->maximumWidth(), 300);
    error.ShowAnimation(false);
    QTRY_COMPARE(label(error)->width(), label(error)->sizeHint().width());
    QVERIFY(label(error)->width() < 300);
}

void TestWyErrorWidget::aLongerTextWrapsAtExactlyTheMaximum()
{
    WyErrorWidget error;
    error.SetWidgetMaxWidth(120);
    error.SetErrText(QStringLiteral("The password needs eight characters, one of them a digit"));
    QVERIFY(label(error)->wordWrap());
    QCOMPARE(label(error)->minimumWidth(), 120);
    QCOMPARE(label(error)->maximumWidth(), 120);
    error.ShowAnimation(false);
    QTRY_COMPARE(label(error)->width(), 120);
    QTRY_COMPARE(error.width(), 136);
    QVERIFY(label(error)->height() >= 2 * label(error)->fontMetrics().height());
}

void TestWyErrorWidget::aShortTextAfterALongOneShrinksTheLabelAgain()
{
    WyErrorWidget error;
    error.SetWidgetMaxWidth(120);
    error.SetErrText(QStringLiteral("The password needs eight characters, one of them a digit"));
    error.SetErrText(QStringLiteral("Empty"));
    QVERIFY(!label(error)->wordWrap());
    QCOMPARE(label(error)->minimumWidth(), 0);
    QCOMPARE(label(error)->maximumWidth(), 120);
}

void TestWyErrorWidget::twoLinesAlwaysWrap()
{
    // Fonts with leading (their line spacing exceeds their height), without, and with a negative one.
    const QStringList families = QFontDatabase().families();
    for (const QString& family : families) {
        for (const int pointSize : {1, 7, 10, 23, 60}) {
            WyErrorWidget error;
            label(error)->setFont(QFont(family, pointSize));
            error.SetWidgetMaxWidth(4000);
            error.SetErrText(QStringLiteral("one"));
            // Rounding makes a line of tiny text as high as two.
            QVERIFY2(!label(error)->wordWrap() || pointSize == 1, qPrintable(family));
            error.SetErrText(QStringLiteral("one\ntwo"));
            QVERIFY2(label(error)->wordWrap(), qPrintable(family));
        }
    }
}

void TestWyErrorWidget::wrapsExactlyWhenTheWordsNeedTwoLines_data()
{
    QTest::addColumn<QString>("family");
    for (const char* family : {"DejaVu Sans", "DejaVu Serif", "Nimbus Sans", "DejaVu Sans Mono"})
        QTest::newRow(family) << QString::fromLatin1(family);
}

void TestWyErrorWidget::wrapsExactlyWhenTheWordsNeedTwoLines()
{
    QFETCH(QString, family);
    QRandomGenerator random(20240607);
    WyErrorWidget error;
    QFont font(family, 11);
    font.setStyleStrategy(QFont::PreferNoShaping);
    font.setKerning(false);
    label(error)->setFont(font);
    const QFontMetricsF metrics(font);
    int wrapped = 0;
    for (int round = 0; round < 3000; ++round) {
        QStringList words;
        for (int count = random.bounded(1, 9); count > 0; --count)
            words += QString(random.bounded(1, 9), QLatin1Char(char('a' + random.bounded(26))));
        const QString text = words.join(QLatin1Char(' '));
        const int width = random.bounded(30, 400);
        const int lines = linesOf(text, metrics, width);
        if (lines == 0)
            continue;
        error.SetWidgetMaxWidth(width);
        error.SetErrText(text);
        QVERIFY2(
            label(error)->wordWrap() == (lines >= 2),
            qPrintable(QStringLiteral("\"%1\" at %2 px takes %3 lines").arg(text).arg(width).arg(lines)));
        QCOMPARE(label(error)->minimumWidth(), lines >= 2 ? width : 0);
        QCOMPARE(label(error)->maximumWidth(), width);
        wrapped += lines >= 2;
    }
    QVERIFY(wrapped > 300 && wrapped < 2700);
}

void TestWyErrorWidget::measuresWithTheStyleSheetFont()
{
    WyErrorWidget error;
    error.SetWidgetMaxWidth(200);
    error.setStyleSheet(QStringLiteral("#err_widget_label { font-size: 40px; }"));
    error.SetErrText(QStringLiteral("one two three four"));
    QVERIFY(label(error)->wordWrap());
}

void TestWyErrorWidget::settingTheMaximumDoesNotFitAgain()
{
    WyErrorWidget error;
    error.SetWidgetMaxWidth(400);
    error.SetErrText(QStringLiteral("The password needs eight characters"));
    QVERIFY(!label(error)->wordWrap());
    error.SetWidgetMaxWidth(60);
    QVERIFY(!label(error)->wordWrap());
    QCOMPARE(label(error)->maximumWidth(), 60);
    error.AdjustLabel();
    QVERIFY(label(error)->wordWrap());
    QCOMPARE(label(error)->minimumWidth(), 60);
}

void TestWyErrorWidget::aFixedWidthCentresTheText()
{
    WyErrorWidget error;
    error.SetWidgetMaxWidth(90);
    error.SetWidgetFixedWidth(150);
    QCOMPARE(label(error)->alignment(), Qt::Alignment(Qt::AlignCenter));
    QCOMPARE(label(error)->minimumWidth(), 150);
    QCOMPARE(label(error)->maximumWidth(), 150);
    // The maximum stays the one for fitting.
    error.SetErrText(QStringLiteral("The password needs eight characters"));
    QCOMPARE(label(error)->maximumWidth(), 90);
}

void TestWyErrorWidget::wrappingCanBeSwitched()
{
    WyErrorWidget error;
    error.SetErrLabelWrap(false);
    QVERIFY(!label(error)->wordWrap());
    error.SetErrLabelWrap(true);
    QVERIFY(label(error)->wordWrap());
}

void TestWyErrorWidget::outOfRangeWidthsStayQuiet()
{
    WyErrorWidget error;
    error.SetWidgetMaxWidth(INT_MAX);
    error.SetErrText(QString(3000, QLatin1Char('w')) + QStringLiteral("\nsecond line"));
    QCOMPARE(label(error)->maximumWidth(), QWIDGETSIZE_MAX);
    QVERIFY(label(error)->wordWrap());
    error.SetWidgetMaxWidth(-1);
    QCOMPARE(label(error)->maximumWidth(), 0);
    error.SetErrText(QStringLiteral("text"));
    QVERIFY(label(error)->wordWrap());
    error.SetWidgetFixedWidth(INT_MIN);
    QCOMPARE(label(error)->maximumWidth(), 0);
    error.SetWidgetFixedWidth(INT_MAX);
    QCOMPARE(label(error)->maximumWidth(), QWIDGETSIZE_MAX);
}

void TestWyErrorWidget::aSecondInitLeavesNothingOnTheOldEffect()
{
    WyErrorWidget error;
    error.ShowAnimation(true);
    fadeIn(error)->setCurrentTime(100);
    const QPointer<QGraphicsEffect> oldEffect = error.graphicsEffect();
    const QPointer<QParallelAnimationGroup> oldFade = fadeIn(error);
    const int children = error.children().size();

    error.InitAnimation();
    QVERIFY(!oldEffect);
    QTRY_VERIFY(!oldFade);
    QCOMPARE(error.children().size(), children);
    QCOMPARE(effect(error)->opacity(), 1.0);
    const auto animations = error.findChildren<QPropertyAnimation*>();
    QCOMPARE(animations.size(), 5);
    for (QPropertyAnimation* animation : animations)
        QVERIFY2(animation->targetObject(), qPrintable(described(animation)));

    error.ShowAnimation(true);
    QCOMPARE(effect(error)->opacity(), 0.0);
    fadeIn(error)->setCurrentTime(400);
    QCOMPARE(effect(error)->opacity(), 1.0);
}

void TestWyErrorWidget::aReplacedEffectTakesTheFadeWithIt()
{
    WyErrorWidget error;
    error.ShowAnimation(true);
    auto* shadow = new QGraphicsDropShadowEffect;
    error.setGraphicsEffect(shadow);
    QVERIFY(error.findChildren<QAbstractAnimation*>().isEmpty());

    error.ShowAnimation(true);
    QVERIFY(error.isVisible());
    QCOMPARE(error.graphicsEffect(), shadow);
    QVERIFY(directChild<QTimer>(error)->isActive());

    error.InitAnimation();
    error.ShowAnimation(true);
    QCOMPARE(effect(error)->opacity(), 0.0);
}

void TestWyErrorWidget::initInASlotOfTheFadeIsSafe()
{
    WyErrorWidget error;
    error.ShowAnimation(true);
    connect(fadeIn(error), &QAbstractAnimation::finished, &error, [&error] { error.InitAnimation(); });
    const QPointer<QParallelAnimationGroup> oldFade = fadeIn(error);
    oldFade->setCurrentTime(399);
    QTRY_VERIFY(!oldFade);
    QVERIFY(fadeIn(error));
}

void TestWyErrorWidget::deletionInTheMiddleOfTheFadeIsSafe()
{
    auto* error = new WyErrorWidget;
    error->ShowAnimation(true);
    fadeIn(*error)->setCurrentTime(100);
    delete error;

    auto* parent = new QWidget;
    error = new WyErrorWidget(parent);
    parent->show();
    error->ShowAnimation(true);
    delete parent;

    QPointer<WyErrorWidget> last = new WyErrorWidget;
    last->ShowAnimation(true);
    connect(fadeIn(*last), &QAbstractAnimation::finished, this, [last] { delete last; });
    fadeIn(*last)->setCurrentTime(399);
    QTRY_VERIFY(!last);
}

void TestWyErrorWidget::deletionWithinAStepOfTheFadeIsSafe_data()
{
    QTest::addColumn<bool>("deletesWidget");
    QTest::addColumn<double>("from");
    QTest::newRow("of the widget, in the first") << true << 0.0;
    QTest::newRow("of the widget, in the middle") << true << 0.5;
    QTest::newRow("of the widget, in the last") << true << 1.0;
    QTest::newRow("of the effect, in the middle") << false << 0.5;
    QTest::newRow("of the effect, in the last") << false << 1.0;
}

void TestWyErrorWidget::deletionWithinAStepOfTheFadeIsSafe()
{
    QFETCH(const bool, deletesWidget);
    QFETCH(const double, from);
    WyTest::AnimationClock clock;
    auto error = std::make_unique<WyErrorWidget>();
    error->ShowAnimation(true);
    const QPointer<QGraphicsOpacityEffect> fading = effect(*error);
    connect(fading, &QGraphicsOpacityEffect::opacityChanged, this, [&](qreal opacity) {
        if (opacity < from)
            return;
        if (deletesWidget)
            error.reset();
        else
            error->setGraphicsEffect(nullptr);
        WyTest::overwriteFreedMemory();
    });
    for (int step = 0; step < 50; ++step)
        clock.pass(10);
    QVERIFY(!fading);
    QCOMPARE(bool(error), !deletesWidget);
}

void TestWyErrorWidget::deletionWhileShowingIsSafe()
{
    QPointer<WyErrorWidget> error = new WyErrorWidget;
    const WyTest::OnEvent deleter(error, QEvent::ShowToParent, [error] { delete error; });
    error->ShowAnimation(true);
    QVERIFY(!error);
}

void TestWyErrorWidget::deletionWhenTheFadeStartsOrStartsOverIsSafe()
{
    for (const bool isUnderWay : {false, true}) {
        QPointer<WyErrorWidget> error = new WyErrorWidget;
        if (isUnderWay)
            error->ShowAnimation(true);
        bool isDeleting = false; // deleting the widget ends the fade, too
        connect(fadeIn(*error), &QAbstractAnimation::stateChanged, this, [error, &isDeleting] {
            if (!std::exchange(isDeleting, true))
                delete error;
        });
        error->ShowAnimation(true);
        QVERIFY(!error);
    }
}

void TestWyErrorWidget::aDeletedLabelIsLeftAlone()
{
    WyErrorWidget error;
    error.SetWidgetMaxWidth(100);
    delete label(error);
    error.SetErrText(QStringLiteral("text"));
    error.SetWidgetMaxWidth(50);
    error.SetWidgetFixedWidth(50);
    error.SetErrLabelWrap(false);
    error.AdjustLabel();
    error.ShowAnimation(true);
    QVERIFY(error.isVisible());
}

void TestWyErrorWidget::makesAnotherTimerWhenItsOwnIsDeleted()
{
    WyErrorWidget error;
    error.ShowAnimation(true);
    delete directChild<QTimer>(error);
    error.ShowAnimation(false);
    QVERIFY(!directChild<QTimer>(error));
    error.ShowAnimation(true);
    QVERIFY(directChild<QTimer>(error)->isActive());
}

QTEST_MAIN(TestWyErrorWidget)
#include "tst_wyerrorwidget.moc"
