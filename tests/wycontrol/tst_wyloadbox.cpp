#include "WyWidgets/wycontrol/WyLoadBox.h"

#include "WyWidgets/wycontrol/WyGifLabel.h"

#include "support/Contract.h"
#include "support/Events.h"
#include "support/Painting.h"
#include "support/RecordingStyle.h"

#include <QTimer>
#include <QVBoxLayout>
#include <QtTest>

using WyWidgets::WyGifLabel;
using WyWidgets::WyLoadBox;

namespace {

WyGifLabel* gif(const WyLoadBox& box)
{
    return box.findChild<WyGifLabel*>();
}

/// The timer of the time limit: the images' own timer is a child of their label.
QTimer* timer(const WyLoadBox& box)
{
    return box.findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
}

bool isPlaying(const WyLoadBox& box)
{
    const auto* frames = gif(box)->findChild<QTimer*>();
    return frames && frames->isActive();
}

/// A shown box in a window that knows the masked look.
struct ShownBox
{
    ShownBox()
    {
        window.setStyleSheet(QStringLiteral("#mask_margin { background: #102030; }"));
        window.resize(300, 200);
        box.resize(60, 60);
        window.show();
    }
    QWidget window;
    WyLoadBox& box = *new WyLoadBox(&window);
};

bool isMasked(WyLoadBox& box)
{
    return WyTest::picture(&box).pixelColor(2, 2) == QColor(0x10, 0x20, 0x30);
}

} // namespace

class TestWyLoadBox : public QObject
{
    Q_OBJECT

private slots:
    void registersNothing();
    void holdsAnImageSequenceInItsMiddle();
    void neitherShowsNorTimesItself();
    void aLoadPlaysAndRunsForThreeMinutes();
    void startingAgainStartsTheThreeMinutesAnew();
    void maskedLoadsGetTheMaskedLook();
    void maskedLoadsArePolishedAnewAndRepainted();
    void unmaskedLoadsChangeNothing();
    void theMaskedLookStaysForLaterLoads();
    void stoppingKeepsTheBoxVisible();
    void stoppingBeforeAnyLoadDoesNothing();
    void theTimeLimitHidesAndStops();
    void aLoadMayStartWhenTheTimeLimitHidesTheBox();
    void mayBeDeletedWhenTheTimeLimitHidesIt();
    void mayBeDeletedWhenItsNameChanges();
    void aVisibleBoxTakesTheSizeOfItsParent();
    void aHiddenBoxKeepsItsSize();
    void aBoxWithoutParentKeepsItsSize();
    void worksOnWithoutItsImages();
    void mayBeDeletedDuringALoad();
    void survivesItsTimer();
};

void TestWyLoadBox::registersNothing()
{
    WY_COMPARE_CONTRACT(WyLoadBox, {}, {}, {});
}

void TestWyLoadBox::holdsAnImageSequenceInItsMiddle()
{
    ShownBox shown;
    QVERIFY(shown.box.testAttribute(Qt::WA_StyledBackground));
    QVERIFY(gif(shown.box));
    QCOMPARE(gif(shown.box)->minimumSize(), QSize(32, 32));
    QCOMPARE(gif(shown.box)->maximumSize(), QSize(32, 32));
    QCOMPARE(gif(shown.box)->property("gifPath").toString(), QString());
    QCOMPARE(gif(shown.box)->property("gifStep").toInt(), 12);
    auto* layout = qobject_cast<QVBoxLayout*>(shown.box.layout());
    QVERIFY(layout);
    QWidget sibling(&shown.window);
    const QVBoxLayout plain(&sibling);
    QCOMPARE(layout->contentsMargins(), plain.contentsMargins());
    QCOMPARE(layout->spacing(), plain.spacing());
    QCOMPARE(layout->itemAt(0)->alignment(), Qt::Alignment(Qt::AlignHCenter));
    QCOMPARE(gif(shown.box)->geometry(), QRect(14, 14, 32, 32));
}

void TestWyLoadBox::neitherShowsNorTimesItself()
{
    WyLoadBox box;
    QVERIFY(!box.isVisible());
    QVERIFY(!timer(box));
    box.StartLoad(false);
    QVERIFY(!box.isVisible());
}

void TestWyLoadBox::aLoadPlaysAndRunsForThreeMinutes()
{
    WyLoadBox box;
    box.StartLoad(false);
    QVERIFY(isPlaying(box));
    QVERIFY(timer(box));
    QVERIFY(timer(box)->isActive());
    QVERIFY(timer(box)->isSingleShot());
    QCOMPARE(timer(box)->interval(), 180000);
}

void TestWyLoadBox::startingAgainStartsTheThreeMinutesAnew()
{
    WyLoadBox box;
    box.StartLoad(false);
    timer(box)->start(500);
    box.StartLoad(true);
    QCOMPARE(box.findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly).size(), 1);
    QVERIFY(timer(box)->remainingTime() > 170000);
    QVERIFY(timer(box)->isSingleShot());
}

void TestWyLoadBox::maskedLoadsGetTheMaskedLook()
{
    ShownBox shown;
    QVERIFY(!isMasked(shown.box));
    shown.box.StartLoad(true);
    QCOMPARE(shown.box.objectName(), QStringLiteral("mask_margin"));
    QVERIFY(isMasked(shown.box));
}

void TestWyLoadBox::maskedLoadsArePolishedAnewAndRepainted()
{
    WyTest::RecordingStyle style;
    QWidget window;
    auto& box = *new WyLoadBox(&window);
    box.setStyle(&style);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCoreApplication::processEvents();
    const WyTest::EventCounter paints(&box, QEvent::Paint);
    style.calls.clear();
    box.StartLoad(true);
    box.StopLoad(); // a frame would repaint what lies below it
    QCOMPARE(style.calls, QStringList({"unpolish WyWidgets::WyLoadBox mask_margin",
                                       "polish WyWidgets::WyLoadBox mask_margin"}));
    QTRY_COMPARE(paints.count(), 1);
    style.calls.clear();
    box.StartLoad(false);
    box.StopLoad();
    QCoreApplication::processEvents();
    QCOMPARE(style.calls, QStringList());
    QCOMPARE(paints.count(), 1);
    box.setStyle(nullptr);
}

void TestWyLoadBox::unmaskedLoadsChangeNothing()
{
    ShownBox shown;
    shown.box.setObjectName(QStringLiteral("own_name"));
    shown.box.StartLoad(false);
    QCOMPARE(shown.box.objectName(), QStringLiteral("own_name"));
    QVERIFY(!isMasked(shown.box));
    // A name is not even looked at again.
    shown.box.setObjectName(QStringLiteral("mask_margin"));
    shown.box.StartLoad(false);
    QVERIFY(!isMasked(shown.box));
}

void TestWyLoadBox::theMaskedLookStaysForLaterLoads()
{
    ShownBox shown;
    shown.box.StartLoad(true);
    shown.box.StopLoad();
    shown.box.StartLoad(false);
    QCOMPARE(shown.box.objectName(), QStringLiteral("mask_margin"));
    QVERIFY(isMasked(shown.box));
}

void TestWyLoadBox::stoppingKeepsTheBoxVisible()
{
    ShownBox shown;
    shown.box.StartLoad(false);
    shown.box.StopLoad();
    QVERIFY(!isPlaying(shown.box));
    QVERIFY(!timer(shown.box)->isActive());
    QVERIFY(shown.box.isVisible());
}

void TestWyLoadBox::stoppingBeforeAnyLoadDoesNothing()
{
    ShownBox shown;
    shown.box.StopLoad();
    QVERIFY(shown.box.isVisible());
    QVERIFY(!timer(shown.box));
}

void TestWyLoadBox::theTimeLimitHidesAndStops()
{
    ShownBox shown;
    shown.box.StartLoad(false);
    timer(shown.box)->setInterval(1);
    QTRY_VERIFY(!shown.box.isVisible());
    QVERIFY(!isPlaying(shown.box));
    QVERIFY(!timer(shown.box)->isActive());
}

void TestWyLoadBox::aLoadMayStartWhenTheTimeLimitHidesTheBox()
{
    ShownBox shown;
    shown.box.StartLoad(false);
    const WyTest::OnEvent onHidden(&shown.box, QEvent::Hide, [&shown] { shown.box.StartLoad(false); });
    timer(shown.box)->setInterval(1);
    QTRY_VERIFY(!shown.box.isVisible());
    QVERIFY(isPlaying(shown.box));
    QVERIFY(timer(shown.box)->isActive());
    QCOMPARE(timer(shown.box)->interval(), 180000);
}

void TestWyLoadBox::mayBeDeletedWhenTheTimeLimitHidesIt()
{
    ShownBox shown;
    const QPointer<WyLoadBox> box = &shown.box;
    box->StartLoad(false);
    const WyTest::OnEvent onHidden(box, QEvent::HideToParent, [box] { delete box; });
    timer(*box)->setInterval(1);
    QTRY_VERIFY(!box);
}

void TestWyLoadBox::mayBeDeletedWhenItsNameChanges()
{
    const QPointer<WyLoadBox> box = new WyLoadBox;
    connect(box, &QObject::objectNameChanged, this, [box] { delete box; });
    box->StartLoad(true);
    QVERIFY(!box);
}

void TestWyLoadBox::aVisibleBoxTakesTheSizeOfItsParent()
{
    ShownBox shown;
    shown.box.move(7, 8);
    shown.box.AdjustParentSize();
    QCOMPARE(shown.box.geometry(), QRect(7, 8, 300, 200));
}

void TestWyLoadBox::aHiddenBoxKeepsItsSize()
{
    ShownBox shown;
    shown.box.hide();
    shown.box.AdjustParentSize();
    QCOMPARE(shown.box.size(), QSize(60, 60));
}

void TestWyLoadBox::aBoxWithoutParentKeepsItsSize()
{
    WyLoadBox box;
    box.resize(80, 90);
    box.setAttribute(Qt::WA_DontShowOnScreen);
    box.show();
    box.AdjustParentSize();
    QCOMPARE(box.size(), QSize(80, 90));
}

void TestWyLoadBox::worksOnWithoutItsImages()
{
    ShownBox shown;
    delete gif(shown.box);
    shown.box.StartLoad(true);
    QVERIFY(timer(shown.box)->isActive());
    timer(shown.box)->setInterval(1);
    QTRY_VERIFY(!shown.box.isVisible());
    shown.box.StopLoad();
}

void TestWyLoadBox::mayBeDeletedDuringALoad()
{
    auto* box = new WyLoadBox;
    box->StartLoad(true);
    QSignalSpy deleted(box, &QObject::destroyed);
    delete box;
    QCoreApplication::processEvents();
    QCOMPARE(deleted.count(), 1);
}

void TestWyLoadBox::survivesItsTimer()
{
    WyLoadBox box;
    box.StartLoad(false);
    delete timer(box);
    box.StopLoad();
    box.StartLoad(false);
    QVERIFY(timer(box)->isActive());
}

QTEST_MAIN(TestWyLoadBox)
#include "tst_wyloadbox.moc"
