#include "WyWidgets/wycontrol/WyHandleSlider.h"

#include "support/RealInput.h"
#include "support/RoomyWindow.h"

#include <QLabel>
#include <QtTest>

using WyWidgets::WyHandleSlider;
using namespace WyTest;

namespace {

constexpr int kPatienceMs = 10000;
constexpr QSize kSizePx(216, 16); // the handle travels 200 px

} // namespace

/// The slider in a window of a real window system, under the real pointer.
class TestWyHandleSliderDesktop : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void thePointerShowsTheHandleForAWhile();
    void aPressBesideTheHandleJumpsThere();
    void theHandleIsDragged();
    void aDragBeyondTheEndsStopsThere();
    void anotherButtonOnlyPressesTheHandle();
    void theSliderMayBeDeletedWhileItIsDragged();

private:
    /// In global coordinates, on the groove's middle row.
    QPoint at(int x) const { return m_slider->mapToGlobal(QPoint(x, 8)); }

    QScopedPointer<RoomyWindow> m_window;
    QPointer<WyHandleSlider> m_slider;
    QPointer<QLabel> m_handle;
};

void TestWyHandleSliderDesktop::init()
{
    m_slider = new WyHandleSlider;
    m_slider->setFixedSize(kSizePx);
    m_window.reset(new RoomyWindow(m_slider));
    m_handle = m_slider->findChild<QLabel*>();
    QVERIFY(RealInput::showAndActivate(m_window.data()));
    QVERIFY(RealInput::hover(m_window->besideTheControl()));
}

void TestWyHandleSliderDesktop::cleanup()
{
    m_window.reset();
}

void TestWyHandleSliderDesktop::thePointerShowsTheHandleForAWhile()
{
    QTRY_VERIFY_WITH_TIMEOUT(!m_handle->isVisible(), kPatienceMs); // the window may have come up under it
    QVERIFY(RealInput::hover(at(100)));
    QTRY_VERIFY_WITH_TIMEOUT(m_handle->isVisible(), kPatienceMs);
    QCOMPARE(m_slider->GetSliderPos(), 0);
    QVERIFY(RealInput::hover(m_window->besideTheControl()));
    QTRY_VERIFY_WITH_TIMEOUT(!m_handle->isVisible(), kPatienceMs);
}

void TestWyHandleSliderDesktop::aPressBesideTheHandleJumpsThere()
{
    QSignalSpy changed(m_slider, &WyHandleSlider::SignalPosChanged);
    QSignalSpy pressed(m_slider, &WyHandleSlider::SignalHanderPressed);
    QSignalSpy released(m_slider, &WyHandleSlider::SignalHanderReleased);
    RealInput::click(at(100));
    QTRY_COMPARE_WITH_TIMEOUT(changed, QList<QVariantList>({{qint64(50)}}), kPatienceMs);
    QTRY_COMPARE_WITH_TIMEOUT(released.count(), 1, kPatienceMs);
    QCOMPARE(pressed.count(), 0); // that is the handle's
    QCOMPARE(m_handle->pos(), QPoint(100, 0));
    QCOMPARE(m_slider->GetSliderPos(), 50);
}

void TestWyHandleSliderDesktop::theHandleIsDragged()
{
    m_slider->SetSliderPos(50);
    QVERIFY(RealInput::hover(at(105)));
    QTRY_VERIFY_WITH_TIMEOUT(m_handle->isVisible(), kPatienceMs);
    QSignalSpy changed(m_slider, &WyHandleSlider::SignalPosChanged);
    QSignalSpy pressed(m_slider, &WyHandleSlider::SignalHanderPressed);
    QSignalSpy released(m_slider, &WyHandleSlider::SignalHanderReleased);
    RealInput::dragPointer(at(105), at(160));
    QTRY_COMPARE_WITH_TIMEOUT(released.count(), 1, kPatienceMs);
    QCOMPARE(pressed.count(), 1);
    QCOMPARE(m_handle->pos(), QPoint(160, 0));
    QCOMPARE(m_slider->GetSliderPos(), 80);
    QVERIFY(!changed.isEmpty());
    QCOMPARE(changed.last().first().toLongLong(), 80);
    qint64 last = 50;
    for (const QVariantList& arguments : changed) {
        QVERIFY(arguments.first().toLongLong() > last); // it only went to the right, and tells only changes
        last = arguments.first().toLongLong();
    }
}

void TestWyHandleSliderDesktop::aDragBeyondTheEndsStopsThere()
{
    RealInput::dragPointer(at(100), at(100) + QPoint(170, 40));
    QTRY_COMPARE_WITH_TIMEOUT(m_slider->GetSliderPos(), 100, kPatienceMs);
    QCOMPARE(m_handle->pos(), QPoint(200, 0));
    RealInput::dragPointer(at(100), at(100) - QPoint(170, 40));
    QTRY_COMPARE_WITH_TIMEOUT(m_slider->GetSliderPos(), 0, kPatienceMs);
}

void TestWyHandleSliderDesktop::anotherButtonOnlyPressesTheHandle()
{
    QSignalSpy pressed(m_slider, &WyHandleSlider::SignalHanderPressed);
    QSignalSpy released(m_slider, &WyHandleSlider::SignalHanderReleased);
    RealInput::click(at(100), Qt::RightButton); // on the groove: nothing
    QVERIFY(RealInput::hover(at(8)));
    QTRY_VERIFY_WITH_TIMEOUT(m_handle->isVisible(), kPatienceMs);
    RealInput::click(at(8), Qt::RightButton);
    QTRY_COMPARE_WITH_TIMEOUT(pressed.count(), 1, kPatienceMs);
    QCOMPARE(m_slider->GetSliderPos(), 0);
    RealInput::click(at(150)); // the other press has ended
    QTRY_COMPARE_WITH_TIMEOUT(m_slider->GetSliderPos(), 75, kPatienceMs);
    QTRY_COMPARE_WITH_TIMEOUT(released.count(), 1, kPatienceMs);
}

void TestWyHandleSliderDesktop::theSliderMayBeDeletedWhileItIsDragged()
{
    connect(m_slider, &WyHandleSlider::SignalPosChanged, this, [this](qint64 value) {
        if (value > 60)
            delete m_slider;
    });
    const QPoint from = at(100);
    const QPoint to = at(160);
    RealInput::dragPointer(from, to);
    QTRY_VERIFY_WITH_TIMEOUT(!m_slider, kPatienceMs);
    QVERIFY(RealInput::hover(m_window->besideTheControl()));
}

QTEST_MAIN(TestWyHandleSliderDesktop)
#include "tst_wyhandleslider_desktop.moc"
