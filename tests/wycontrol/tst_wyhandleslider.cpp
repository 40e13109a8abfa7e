#include "WyWidgets/wycontrol/WyHandleSlider.h"

#include "support/Contract.h"
#include "support/Events.h"

#include <QDialog>
#include <QtTest>

#include <limits>
#include <random>

using WyTest::EventCounter;
using WyWidgets::WyHandleSlider;

using LossOfRelease = void (*)(QWidget*);
Q_DECLARE_METATYPE(LossOfRelease)

namespace {

constexpr qint64 kLeast = std::numeric_limits<qint64>::min();
constexpr qint64 kGreatest = std::numeric_limits<qint64>::max();

QLabel* handleOf(const QWidget& slider)
{
    return slider.findChild<QLabel*>(QStringLiteral("label_pos"), Qt::FindDirectChildrenOnly);
}

QTimer* timerOf(const QWidget& slider)
{
    return slider.findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
}

void sendMouse(QWidget* widget, QEvent::Type type, QPointF pos, Qt::MouseButton button, Qt::MouseButtons held)
{
    QMouseEvent event(type, pos, button, held, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

void press(QWidget& widget, double x, Qt::MouseButton button = Qt::LeftButton)
{
    sendMouse(&widget, QEvent::MouseButtonPress, QPointF(x, 8), button, button);
}

void drag(QWidget& widget, double x, Qt::MouseButtons held = Qt::LeftButton)
{
    sendMouse(&widget, QEvent::MouseMove, QPointF(x, 8), Qt::NoButton, held);
}

void release(QWidget& widget, Qt::MouseButton button = Qt::LeftButton)
{
    sendMouse(&widget, QEvent::MouseButtonRelease, QPointF(50, 8), button, Qt::NoButton);
}

/// A press on the handle as the window system delivers it: unwanted there, it goes on to the slider.
void pressHandle(WyHandleSlider& slider, Qt::MouseButton button = Qt::LeftButton)
{
    sendMouse(handleOf(slider), QEvent::MouseButtonPress, QPointF(5, 5), button, button);
}

void sendPlain(QWidget& widget, QEvent::Type type)
{
    QEvent event(type);
    QCoreApplication::sendEvent(&widget, &event);
}

/// Counts calls of the handlers that QWidget passes presses, moves and releases on to: those of the parent.
class Parent : public QWidget
{
public:
    int presses = 0;
    int moves = 0;
    int releases = 0;

protected:
    void mousePressEvent(QMouseEvent*) override { ++presses; }
    void mouseMoveEvent(QMouseEvent*) override { ++moves; }
    void mouseReleaseEvent(QMouseEvent*) override { ++releases; }
};

/// 216 pixels wide, so that the handle travels 200.
class Slider : public WyHandleSlider
{
public:
    explicit Slider(QWidget* parent = nullptr) : WyHandleSlider(parent) { resize(216, 16); }

    int handleX() const { return handleOf(*this)->x(); }
    QVector<qint64> values() const
    {
        QVector<qint64> values;
        for (const QList<QVariant>& arguments : changes)
            values += arguments.first().toLongLong();
        return values;
    }

    QSignalSpy released{this, &WyHandleSlider::SignalHanderReleased};
    QSignalSpy pressed{this, &WyHandleSlider::SignalHanderPressed};
    QSignalSpy changes{this, &WyHandleSlider::SignalPosChanged};
};

template <typename Integer>
Integer nearest(long double value)
{
    if (value >= static_cast<long double>(std::numeric_limits<Integer>::max()))
        return std::numeric_limits<Integer>::max();
    if (value <= static_cast<long double>(std::numeric_limits<Integer>::min()))
        return std::numeric_limits<Integer>::min();
    return static_cast<Integer>(value);
}

/// The slider's arithmetic, told once more.
struct Model
{
    int width = 216;
    double ratio = 0.0;
    qint64 maximum = 100;
    int handleX = 0;
    int pressState = 0;
    QVector<qint64> values;

    int travel() const { return width - 16; }
    void place()
    {
        const int x = nearest<int>(std::trunc(static_cast<double>(travel()) * ratio));
        handleX = qBound(-QWIDGETSIZE_MAX, x, QWIDGETSIZE_MAX); // as far as Qt's rectangles reach
    }
    qint64 value() const { return nearest<qint64>(std::floor(static_cast<double>(maximum) * ratio)); }

    void setMaximum(qint64 newMaximum)
    {
        maximum = newMaximum;
        place();
    }
    void setPos(qint64 pos)
    {
        if (maximum != 0)
            ratio = static_cast<double>(pos) / static_cast<double>(maximum);
        place();
    }
    void resize(int newWidth)
    {
        if (width == newWidth)
            return;
        width = newWidth;
        place();
    }
    void moveTo(double x)
    {
        double c = x < 0.0 ? 0.0 : x;
        if (c > travel())
            c = travel();
        handleX = static_cast<int>(c);
        if (travel() == 0)
            return;
        const float newRatio = static_cast<float>(c / static_cast<double>(travel()));
        const double oldValue = std::floor(static_cast<double>(maximum) * ratio);
        const float newValue = std::floor(static_cast<float>(maximum) * newRatio);
        if (static_cast<double>(newValue) != oldValue)
            values += nearest<qint64>(newValue);
        ratio = static_cast<double>(newRatio);
    }
};

} // namespace

class TestWyHandleSlider : public QObject
{
    Q_OBJECT

private slots:
    void registersThreeSignals();
    void startsAtZeroWithAHiddenHandle();
    void tellsWhatItIs();
    void aPressOnTheGrooveMovesTheHandle();
    void draggingTellsOnlyNewValues();
    void positionsStopAtTheEnds();
    void pointerPositionsAreRounded_data();
    void pointerPositionsAreRounded();
    void otherButtonsDoNotMoveTheHandle();
    void aPressOnTheGrooveStaysWithTheSlider();
    void aPressOnTheHandleDoesNotMoveIt();
    void anyButtonPressesTheHandle();
    void onlyALeftReleaseEndsAPressAloud();
    void aReleaseWithoutAPressIsSilent();
    void theReleaseIsToldWhileThePressCounts();
    void movingWithoutAPressChangesNothing();
    void aSecondPressDuringAPressDoesNotMove();
    void movesAndReleasesGoOn();
    void otherEventsOfTheHandleDoNotCount();
    void aReleaseThatGetsLostEndsThePress_data();
    void aReleaseThatGetsLostEndsThePress();
    void aPressOnTheHandleMayEndInItsSignal();
    void settingThePositionClampsNothing();
    void settingThePositionRepaints();
    void theMaximumKeepsTheFraction();
    void theMaximumRepaintsNothing();
    void resizingKeepsTheFraction();
    void placingTheHandleAgainKeepsTheFraction();
    void theRatioIsStoredAfterTheSignal();
    void signalledAndReturnedValueMayDiffer();
    void aValueThatRoundingLosesIsToldAgain();
    void withoutTravelTheRatioStays();
    void aNegativeTravelWinsOverZero();
    void withoutMaximumTheRatioStays();
    void hugeNumbersSaturate_data();
    void hugeNumbersSaturate();
    void followsTheModel_data();
    void followsTheModel();
    void enteringShowsTheHandle();
    void leavingHidesTheHandleAfterASecond();
    void enteringAgainKeepsTheHandle();
    void theTimerRunsOnWhenStartedAgain();
    void stoppingWithoutATimerDoesNothing();
    void negativeTimesStartNothing();
    void enteringForwardsToTheLeaveHandler();
    void mayBeDeletedInItsSignals_data();
    void mayBeDeletedInItsSignals();
    void mayBeDeletedWhenTheHandleComesOrGoes();
    void theHandleMayBeDeleted();
    void theTimerMayBeDeleted();
};

void TestWyHandleSlider::registersThreeSignals()
{
    WY_COMPARE_CONTRACT(
        WyHandleSlider,
        {"SignalHanderReleased()", "SignalHanderPressed()", "SignalPosChanged(qlonglong nValue)"}, {}, {});
    QCOMPARE(WyHandleSlider::staticMetaObject.superClass(), &QWidget::staticMetaObject);
}

void TestWyHandleSlider::startsAtZeroWithAHiddenHandle()
{
    QWidget parent;
    auto* slider = new WyHandleSlider(&parent);
    QCOMPARE(slider->parentWidget(), &parent);
    QVERIFY(slider->testAttribute(Qt::WA_StyledBackground));
    QVERIFY(slider->testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(slider->GetSliderPos(), 0);
    QCOMPARE(slider->findChildren<QLabel*>().size(), 1);
    const QLabel* handle = handleOf(*slider);
    QCOMPARE(handle->pos(), QPoint(0, 0));
    QVERIFY(handle);
    QVERIFY(handle->isHidden());
    QCOMPARE(handle->pos(), QPoint(0, 0));
    QCOMPARE(handle->minimumSize(), QSize(16, 16));
    QCOMPARE(handle->maximumSize(), QSize(16, 16));
    QCOMPARE(handle->cursor().shape(), Qt::PointingHandCursor);
    QVERIFY(!timerOf(*slider));
}

void TestWyHandleSlider::tellsWhatItIs()
{
    const WyHandleSlider slider;
    QVERIFY(!slider.accessibleName().isEmpty());
    QVERIFY(!slider.toolTip().isEmpty());
}

void TestWyHandleSlider::aPressOnTheGrooveMovesTheHandle()
{
    Slider slider;
    press(slider, 100);
    QCOMPARE(slider.handleX(), 100);
    QCOMPARE(handleOf(slider)->y(), 0);
    QCOMPARE(slider.GetSliderPos(), 50);
    QCOMPARE(slider.values(), (QVector<qint64>{50}));
    QCOMPARE(slider.pressed.count(), 0);
    QCOMPARE(slider.released.count(), 0);
}

void TestWyHandleSlider::draggingTellsOnlyNewValues()
{
    Slider slider;
    press(slider, 100);
    drag(slider, 101);
    QCOMPARE(slider.values(), (QVector<qint64>{50}));
    QCOMPARE(slider.handleX(), 101);
    drag(slider, 102);
    QCOMPARE(slider.values(), (QVector<qint64>{50, 51}));
    release(slider);
    QCOMPARE(slider.released.count(), 1);
    QCOMPARE(slider.handleX(), 102);
}

void TestWyHandleSlider::positionsStopAtTheEnds()
{
    Slider slider;
    press(slider, 5000);
    QCOMPARE(slider.handleX(), 200);
    QCOMPARE(slider.GetSliderPos(), 100);
    drag(slider, -30);
    QCOMPARE(slider.handleX(), 0);
    QCOMPARE(slider.GetSliderPos(), 0);
    QCOMPARE(slider.values(), (QVector<qint64>{100, 0}));
    slider.MoveToPos(kGreatest);
    QCOMPARE(slider.handleX(), 200);
    slider.MoveToPos(kLeast);
    QCOMPARE(slider.handleX(), 0);
}

void TestWyHandleSlider::pointerPositionsAreRounded_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<int>("handleX");
    QTest::newRow("down") << 10.49 << 10;
    QTest::newRow("half goes up") << 10.5 << 11;
    QTest::newRow("up") << 10.9 << 11;
    QTest::newRow("half of one") << 0.5 << 1;
    QTest::newRow("negative") << -0.5 << 0;
    QTest::newRow("beyond every integer") << 1e300 << 200;
    QTest::newRow("below every integer") << -1e300 << 0;
}

void TestWyHandleSlider::pointerPositionsAreRounded()
{
    QFETCH(double, x);
    QFETCH(int, handleX);
    Slider slider;
    press(slider, x);
    QCOMPARE(slider.handleX(), handleX);
    drag(slider, 77);
    drag(slider, x);
    QCOMPARE(slider.handleX(), handleX);
}

void TestWyHandleSlider::otherButtonsDoNotMoveTheHandle()
{
    for (Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        Parent parent;
        Slider slider(&parent);
        press(slider, 100, button);
        QCOMPARE(slider.handleX(), 0);
        QCOMPARE(parent.presses, 1);
        drag(slider, 120, button);
        QCOMPARE(slider.handleX(), 0);
        drag(slider, 120); // no press is in progress
        QCOMPARE(slider.handleX(), 0);
        QVERIFY(slider.changes.isEmpty());
    }
}

void TestWyHandleSlider::aPressOnTheGrooveStaysWithTheSlider()
{
    Parent parent;
    Slider slider(&parent);
    press(slider, 100);
    QCOMPARE(parent.presses, 0);
}

void TestWyHandleSlider::aPressOnTheHandleDoesNotMoveIt()
{
    Parent parent;
    Slider slider(&parent);
    slider.SetSliderPos(50);
    pressHandle(slider);
    QCOMPARE(slider.pressed.count(), 1);
    QCOMPARE(slider.handleX(), 100);
    QCOMPARE(parent.presses, 1); // past the label and the slider
    drag(slider, 104);
    QCOMPARE(slider.handleX(), 104);
    QCOMPARE(slider.values(), (QVector<qint64>{52}));
    release(slider);
    QCOMPARE(slider.released.count(), 1);
}

void TestWyHandleSlider::anyButtonPressesTheHandle()
{
    Slider slider;
    pressHandle(slider, Qt::RightButton);
    QCOMPARE(slider.pressed.count(), 1);
    drag(slider, 60); // the left button, while that press is in progress
    QCOMPARE(slider.handleX(), 60);
    release(slider, Qt::RightButton);
    QCOMPARE(slider.released.count(), 0);
    drag(slider, 90);
    QCOMPARE(slider.handleX(), 60);
}

void TestWyHandleSlider::onlyALeftReleaseEndsAPressAloud()
{
    Slider slider;
    press(slider, 100);
    release(slider, Qt::RightButton);
    QCOMPARE(slider.released.count(), 0);
    release(slider);
    QCOMPARE(slider.released.count(), 0); // the other button has ended the press
    press(slider, 120);
    QCOMPARE(slider.handleX(), 120); // and the next press counts
    release(slider);
    QCOMPARE(slider.released.count(), 1);
}

void TestWyHandleSlider::aReleaseWithoutAPressIsSilent()
{
    Slider slider;
    release(slider);
    QCOMPARE(slider.released.count(), 0);
}

void TestWyHandleSlider::theReleaseIsToldWhileThePressCounts()
{
    Slider slider;
    press(slider, 100);
    // A press in the slot is one too many: it does not move the handle.
    connect(&slider, &WyHandleSlider::SignalHanderReleased, &slider, [&] { press(slider, 20); });
    release(slider);
    QCOMPARE(slider.handleX(), 100);
    drag(slider, 150); // the press has ended all the same
    QCOMPARE(slider.handleX(), 100);
}

void TestWyHandleSlider::movingWithoutAPressChangesNothing()
{
    Slider slider;
    drag(slider, 100);
    drag(slider, 100, Qt::NoButton);
    QCOMPARE(slider.handleX(), 0);
    press(slider, 50);
    drag(slider, 100, Qt::NoButton); // a release that went to another window
    QCOMPARE(slider.handleX(), 50);
    drag(slider, 100, Qt::LeftButton | Qt::RightButton);
    QCOMPARE(slider.handleX(), 100);
}

void TestWyHandleSlider::aSecondPressDuringAPressDoesNotMove()
{
    Parent parent;
    Slider slider(&parent);
    press(slider, 50);
    press(slider, 90);
    QCOMPARE(slider.handleX(), 50);
    QCOMPARE(parent.presses, 1);
}

void TestWyHandleSlider::movesAndReleasesGoOn()
{
    Parent parent;
    Slider slider(&parent);
    drag(slider, 10);
    release(slider);
    QCOMPARE(parent.moves, 1);
    QCOMPARE(parent.releases, 1);
    press(slider, 50);
    drag(slider, 60);
    release(slider);
    QCOMPARE(parent.moves, 2);
    QCOMPARE(parent.releases, 2);
}

void TestWyHandleSlider::otherEventsOfTheHandleDoNotCount()
{
    Slider slider;
    QLabel* handle = handleOf(slider);
    sendMouse(handle, QEvent::MouseButtonRelease, QPointF(5, 5), Qt::LeftButton, Qt::NoButton);
    sendMouse(handle, QEvent::MouseButtonDblClick, QPointF(5, 5), Qt::LeftButton, Qt::LeftButton);
    QCOMPARE(slider.pressed.count(), 0);
    QWidget other;
    other.installEventFilter(&slider);
    press(other, 5);
    QCOMPARE(slider.pressed.count(), 0);
    QMouseEvent event(QEvent::MouseButtonPress, QPointF(1, 1), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QVERIFY(!slider.eventFilter(handle, &event)); // never consumed
    QCOMPARE(slider.pressed.count(), 1);
}

void TestWyHandleSlider::aReleaseThatGetsLostEndsThePress_data()
{
    QTest::addColumn<LossOfRelease>("lose");
    QTest::newRow("to a dialog") << LossOfRelease([](QWidget* slider) {
        QDialog dialog(slider);
        dialog.open();
    });
    QTest::newRow("hidden") << LossOfRelease([](QWidget* slider) {
        slider->hide();
        slider->show();
    });
    QTest::newRow("disabled") << LossOfRelease([](QWidget* slider) {
        slider->setEnabled(false);
        slider->setEnabled(true);
    });
}

void TestWyHandleSlider::aReleaseThatGetsLostEndsThePress()
{
    QFETCH(LossOfRelease, lose);
    Slider slider;
    slider.show();
    press(slider, 50);
    lose(&slider);
    drag(slider, 70);
    QCOMPARE(slider.handleX(), 50);
    press(slider, 100); // a new one
    QCOMPARE(slider.handleX(), 100);
    release(slider);
    QCOMPARE(slider.released.count(), 1);
}

void TestWyHandleSlider::aPressOnTheHandleMayEndInItsSignal()
{
    Slider slider;
    slider.show();
    connect(&slider, &WyHandleSlider::SignalHanderPressed, &slider, [&] {
        QDialog dialog(&slider);
        dialog.open();
    });
    pressHandle(slider);
    QCOMPARE(slider.handleX(), 0);
    drag(slider, 70);
    QCOMPARE(slider.handleX(), 0);
}

void TestWyHandleSlider::settingThePositionClampsNothing()
{
    Slider slider;
    slider.SetSliderPos(150);
    QCOMPARE(slider.handleX(), 300);
    QCOMPARE(slider.GetSliderPos(), 150);
    slider.SetSliderPos(-25);
    QCOMPARE(slider.handleX(), -50);
    QCOMPARE(slider.GetSliderPos(), -25);
    QVERIFY(slider.changes.isEmpty());
    slider.SetMaxValue(-100);
    slider.SetSliderPos(-25);
    QCOMPARE(slider.handleX(), 50);
    QCOMPARE(slider.GetSliderPos(), -25);
}

void TestWyHandleSlider::settingThePositionRepaints()
{
    Slider slider;
    slider.show();
    QVERIFY(QTest::qWaitForWindowExposed(&slider));
    QCoreApplication::processEvents();
    EventCounter paints(&slider, QEvent::Paint);
    slider.SetSliderPos(0);
    QTRY_VERIFY(paints.count() > 0);
    paints.reset();
    slider.MoveToPos(0);
    QTRY_VERIFY(paints.count() > 0);
}

void TestWyHandleSlider::theMaximumKeepsTheFraction()
{
    Slider slider;
    slider.SetSliderPos(50);
    slider.SetMaxValue(1000);
    QCOMPARE(slider.GetSliderPos(), 500);
    QCOMPARE(slider.handleX(), 100);
    QVERIFY(slider.changes.isEmpty());
    slider.SetSliderPos(1000);
    QCOMPARE(slider.handleX(), 200);
}

void TestWyHandleSlider::theMaximumRepaintsNothing()
{
    Slider slider;
    slider.show();
    QVERIFY(QTest::qWaitForWindowExposed(&slider));
    QCoreApplication::processEvents();
    EventCounter paints(&slider, QEvent::Paint);
    slider.SetMaxValue(7);
    slider.UpdateControlPos();
    QCoreApplication::processEvents();
    QCOMPARE(paints.count(), 0);
}

void TestWyHandleSlider::resizingKeepsTheFraction()
{
    Slider slider;
    slider.show();
    slider.SetSliderPos(33);
    QCOMPARE(slider.handleX(), 66);
    slider.resize(116, 16);
    QCOMPARE(slider.handleX(), 33);
    QCOMPARE(slider.GetSliderPos(), 33);
    slider.resize(117, 40);
    QCOMPARE(handleOf(slider)->pos(), QPoint(33, 0));
    QVERIFY(slider.changes.isEmpty());
}

void TestWyHandleSlider::placingTheHandleAgainKeepsTheFraction()
{
    Slider slider;
    slider.SetSliderPos(50);
    handleOf(slider)->move(7, 9);
    slider.UpdateControlPos();
    QCOMPARE(handleOf(slider)->pos(), QPoint(100, 0));
}

void TestWyHandleSlider::theRatioIsStoredAfterTheSignal()
{
    Slider slider;
    slider.SetSliderPos(10);
    qint64 before = -1;
    connect(&slider, &WyHandleSlider::SignalPosChanged, &slider, [&] {
        before = slider.GetSliderPos();
        slider.SetSliderPos(77); // overwritten
    });
    press(slider, 100);
    QCOMPARE(before, 10);
    QCOMPARE(slider.GetSliderPos(), 50);
    // The handle stays where the slot has put it until it is placed the next time.
    QCOMPARE(slider.handleX(), 154);
    slider.UpdateControlPos();
    QCOMPARE(slider.handleX(), 100);
}

void TestWyHandleSlider::signalledAndReturnedValueMayDiffer()
{
    Slider slider;
    slider.SetMaxValue(100);
    int differing = 0;
    for (int width = 40; width < 400; ++width) {
        slider.resize(width, 16);
        for (int x = 1; x <= width - 16; x += 3) {
            slider.SetSliderPos(0);
            slider.changes.clear();
            slider.MoveToPos(x);
            const float ratio = float(x / double(width - 16));
            const qint64 signalled = qint64(std::floor(100.0f * ratio));
            if (signalled != 0)
                QCOMPARE(slider.values(), QVector<qint64>{signalled});
            QCOMPARE(slider.GetSliderPos(), qint64(std::floor(100.0 * double(ratio))));
            QVERIFY(std::abs(slider.GetSliderPos() - signalled) <= 1);
            differing += slider.GetSliderPos() != signalled;
        }
    }
    QVERIFY(differing > 0);
}

void TestWyHandleSlider::aValueThatRoundingLosesIsToldAgain()
{
    Slider slider;
    slider.MoveToPos(102); // 0.51 in single precision lies below 51 of 100, but 100 times it is 51 there
    QCOMPARE(slider.values(), (QVector<qint64>{51}));
    QCOMPARE(slider.GetSliderPos(), 50);
    slider.MoveToPos(102);
    QCOMPARE(slider.values(), (QVector<qint64>{51, 51}));
}

void TestWyHandleSlider::withoutTravelTheRatioStays()
{
    Slider slider;
    slider.SetSliderPos(30);
    slider.resize(16, 16);
    press(slider, 5);
    QCOMPARE(slider.handleX(), 0);
    QCOMPARE(slider.GetSliderPos(), 30);
    QVERIFY(slider.changes.isEmpty());
    slider.resize(216, 16);
    slider.UpdateControlPos();
    QCOMPARE(slider.handleX(), 60);
}

void TestWyHandleSlider::aNegativeTravelWinsOverZero()
{
    Slider slider;
    slider.resize(10, 16);
    slider.MoveToPos(3);
    QCOMPARE(slider.handleX(), -6);
    QCOMPARE(slider.GetSliderPos(), 100);
    QCOMPARE(slider.values(), (QVector<qint64>{100}));
}

void TestWyHandleSlider::withoutMaximumTheRatioStays()
{
    Slider slider;
    slider.SetSliderPos(30);
    slider.SetMaxValue(0);
    QCOMPARE(slider.GetSliderPos(), 0);
    slider.SetSliderPos(7);
    QCOMPARE(slider.handleX(), 60);
    slider.MoveToPos(100); // always 0 of 0
    QVERIFY(slider.changes.isEmpty());
    slider.SetMaxValue(100);
    QCOMPARE(slider.GetSliderPos(), 50);
}

void TestWyHandleSlider::hugeNumbersSaturate_data()
{
    QTest::addColumn<qint64>("maximum");
    QTest::addColumn<qint64>("pos");
    QTest::addColumn<int>("handleX");
    QTest::addColumn<qint64>("value");
    QTest::newRow("far right") << qint64(1) << kGreatest << QWIDGETSIZE_MAX << kGreatest;
    QTest::newRow("far left") << qint64(1) << kLeast << -QWIDGETSIZE_MAX << kLeast;
    QTest::newRow("negative maximum") << qint64(-1) << kGreatest << -QWIDGETSIZE_MAX << kGreatest;
    QTest::newRow("end of a huge range") << kGreatest << kGreatest << 200 << kGreatest;
    QTest::newRow("least maximum") << kLeast << kLeast << 200 << kLeast;
    QTest::newRow("least of all") << kLeast << kGreatest << -200 << kGreatest;
}

void TestWyHandleSlider::hugeNumbersSaturate()
{
    QFETCH(qint64, maximum);
    QFETCH(qint64, pos);
    QFETCH(int, handleX);
    QFETCH(qint64, value);
    Slider slider;
    slider.show();
    slider.SetMaxValue(maximum);
    slider.SetSliderPos(pos);
    QCOMPARE(slider.handleX(), handleX);
    QCOMPARE(slider.GetSliderPos(), value);
    slider.grab(); // whatever it shows
    slider.changes.clear();
    slider.MoveToPos(100);
    slider.MoveToPos(200);
    QCOMPARE(slider.GetSliderPos(), nearest<qint64>(double(maximum)));
    if (!slider.changes.isEmpty())
        QCOMPARE(slider.values().last(), nearest<qint64>(float(maximum)));
}

void TestWyHandleSlider::followsTheModel_data()
{
    QTest::addColumn<unsigned>("seed");
    for (unsigned seed = 1; seed <= 6; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void TestWyHandleSlider::followsTheModel()
{
    QFETCH(unsigned, seed);
    std::mt19937_64 random(seed);
    const auto below = [&random](qint64 limit) {
        return qint64(random() % quint64(limit));
    };
    Slider slider;
    slider.show();
    Model model;
    for (int round = 0; round < 5000; ++round) {
        const double x = double(below(8000)) / 16 - 50;
        switch (below(10)) {
        case 0:
            model.resize(below(8) == 0 ? int(1 + below(30)) : int(17 + below(500)));
            slider.resize(model.width, 16);
            break;
        case 1: {
            const qint64 maximum = below(6) == 0   ? qint64(random())
                                   : below(3) == 0 ? below(7) - 2
                                                   : below(100000);
            model.setMaximum(maximum);
            slider.SetMaxValue(maximum);
            break;
        }
        case 2: {
            const qint64 pos = below(6) == 0 ? qint64(random()) : below(100000) - 20000;
            model.setPos(pos);
            slider.SetSliderPos(pos);
            break;
        }
        case 3:
            model.moveTo(double(std::llround(x)));
            slider.MoveToPos(std::llround(x));
            break;
        case 4:
            if (model.pressState == 0)
                model.moveTo(std::round(x));
            model.pressState = 1;
            press(slider, x);
            break;
        case 5:
            model.pressState = 0;
            release(slider, below(2) == 0 ? Qt::LeftButton : Qt::RightButton);
            break;
        default:
            if (model.pressState == 1)
                model.moveTo(std::round(x));
            drag(slider, x);
        }
        const QByteArray where = "round " + QByteArray::number(round);
        QVERIFY2(slider.handleX() == model.handleX, where);
        QVERIFY2(slider.GetSliderPos() == model.value(), where);
        QVERIFY2(slider.values() == model.values, where);
    }
    QVERIFY(model.values.size() > 1000);
}

void TestWyHandleSlider::enteringShowsTheHandle()
{
    Slider slider;
    slider.show();
    sendPlain(slider, QEvent::Enter);
    QVERIFY(handleOf(slider)->isVisible());
    QVERIFY(!timerOf(slider));
}

void TestWyHandleSlider::leavingHidesTheHandleAfterASecond()
{
    Slider slider;
    slider.show();
    sendPlain(slider, QEvent::Enter);
    sendPlain(slider, QEvent::Leave);
    QVERIFY(handleOf(slider)->isVisible());
    QTimer* timer = timerOf(slider);
    QVERIFY(timer);
    QVERIFY(timer->isActive());
    QVERIFY(timer->isSingleShot());
    QCOMPARE(timer->interval(), 1000);
    timer->setInterval(1);
    QTRY_VERIFY(!handleOf(slider)->isVisible());
    QVERIFY(!timer->isActive());
}

void TestWyHandleSlider::enteringAgainKeepsTheHandle()
{
    Slider slider;
    slider.show();
    sendPlain(slider, QEvent::Enter);
    sendPlain(slider, QEvent::Leave);
    sendPlain(slider, QEvent::Enter);
    QTimer* timer = timerOf(slider);
    QVERIFY(!timer->isActive());
    QVERIFY(handleOf(slider)->isVisible());
    sendPlain(slider, QEvent::Leave); // a fresh second
    QVERIFY(timer->isActive());
    QCOMPARE(timer->interval(), 1000);
    QCOMPARE(timerOf(slider), timer);
    QCOMPARE(slider.findChildren<QTimer*>().size(), 1);
}

void TestWyHandleSlider::theTimerRunsOnWhenStartedAgain()
{
    Slider slider;
    slider.StartTimer(50000);
    QTimer* timer = timerOf(slider);
    slider.StartTimer(1);
    QCOMPARE(timer->interval(), 50000);
    sendPlain(slider, QEvent::Leave);
    QCOMPARE(timer->interval(), 50000);
    slider.StopTimer();
    QVERIFY(!timer->isActive());
    slider.StartTimer(70000);
    QCOMPARE(timer->interval(), 70000);
    QVERIFY(timer->isActive());
}

void TestWyHandleSlider::stoppingWithoutATimerDoesNothing()
{
    Slider slider;
    slider.StopTimer();
    QVERIFY(!timerOf(slider));
}

void TestWyHandleSlider::negativeTimesStartNothing()
{
    Slider slider;
    slider.StartTimer(-5);
    QVERIFY(!timerOf(slider)->isActive());
    slider.StartTimer(60000);
    QCOMPARE(timerOf(slider)->interval(), 60000);
}

void TestWyHandleSlider::enteringForwardsToTheLeaveHandler()
{
    // Neither of QWidget's handlers does anything but leave the event as it is.
    Slider slider;
    QEvent event(QEvent::Enter);
    event.ignore();
    QCoreApplication::sendEvent(&slider, &event);
    QVERIFY(!event.isAccepted());
}

void TestWyHandleSlider::mayBeDeletedInItsSignals_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("pressed") << 0;
    QTest::newRow("changed by a press") << 1;
    QTest::newRow("changed by a drag") << 2;
    QTest::newRow("released") << 3;
    QTest::newRow("changed from code") << 4;
}

void TestWyHandleSlider::mayBeDeletedInItsSignals()
{
    QFETCH(int, signal);
    auto* slider = new WyHandleSlider;
    slider->resize(216, 16);
    slider->show();
    const QPointer<WyHandleSlider> guard(slider);
    if (signal == 2 || signal == 3)
        QTest::mousePress(slider, Qt::LeftButton, Qt::NoModifier, QPoint(100, 8));
    const auto end = [slider] {
        delete slider;
    };
    connect(slider, &WyHandleSlider::SignalHanderPressed, end);
    connect(slider, &WyHandleSlider::SignalPosChanged, end);
    connect(slider, &WyHandleSlider::SignalHanderReleased, end);
    if (signal == 0)
        QTest::mousePress(handleOf(*slider), Qt::LeftButton);
    if (signal == 1)
        QTest::mousePress(slider, Qt::LeftButton, Qt::NoModifier, QPoint(100, 8));
    if (signal == 2)
        drag(*slider, 150);
    if (signal == 3)
        QTest::mouseRelease(slider, Qt::LeftButton, Qt::NoModifier, QPoint(100, 8));
    if (signal == 4)
        slider->MoveToPos(50);
    QVERIFY(!guard);
}

void TestWyHandleSlider::mayBeDeletedWhenTheHandleComesOrGoes()
{
    for (const QEvent::Type type : {QEvent::ShowToParent, QEvent::HideToParent}) {
        QPointer<Slider> slider = new Slider;
        slider->show();
        const WyTest::OnEvent deleter(handleOf(*slider), type, [slider] { delete slider; });
        sendPlain(*slider, QEvent::Enter);
        if (type == QEvent::HideToParent) {
            slider->StartTimer(1);
            QTRY_VERIFY(!slider);
        }
        QVERIFY(!slider);
    }
}

void TestWyHandleSlider::theHandleMayBeDeleted()
{
    Slider slider;
    slider.show();
    connect(&slider, &WyHandleSlider::SignalHanderPressed, &slider, [&slider] { delete handleOf(slider); });
    QTest::mousePress(handleOf(slider), Qt::LeftButton);
    QVERIFY(!handleOf(slider));
    release(slider);
    QCOMPARE(slider.released.count(), 1);
    press(slider, 100);
    QCOMPARE(slider.values(), (QVector<qint64>{50}));
    slider.SetSliderPos(20);
    slider.SetMaxValue(10);
    slider.resize(100, 16);
    sendPlain(slider, QEvent::Enter);
    sendPlain(slider, QEvent::Leave);
    timerOf(slider)->setInterval(1);
    QTRY_VERIFY(!timerOf(slider)->isActive());
    slider.grab();
}

void TestWyHandleSlider::theTimerMayBeDeleted()
{
    Slider slider;
    slider.StartTimer(60000);
    delete timerOf(slider);
    slider.StopTimer();
    slider.StartTimer(70000);
    QCOMPARE(timerOf(slider)->interval(), 70000);
}

QTEST_MAIN(TestWyHandleSlider)
#include "tst_wyhandleslider.moc"
