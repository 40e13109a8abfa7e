#include "WyWidgets/wycontrol/WyGifLabel.h"

#include "support/Contract.h"
#include "support/Events.h"
#include "support/Painting.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

using WyWidgets::WyGifLabel;

namespace {

QTimer* timer(const WyGifLabel& label)
{
    return label.findChild<QTimer*>();
}

/// Shows the next frame at once.
void tick(WyGifLabel& label)
{
    QVERIFY(QMetaObject::invokeMethod(&label, "slotTimeOut"));
}

QString sheet(const QString& path)
{
    return QStringLiteral("border-image:url(") + path + QStringLiteral(");");
}

} // namespace

class TestWyGifLabel : public QObject
{
    Q_OBJECT

private slots:
    void registersItsSlotAndProperties();
    void startsWithTwelveFramesAndNoTimer();
    void startRunsATimerOf84Ms();
    void theFirstFrameComesWithTheFirstTimeout();
    void framesFollowEachOtherAndStartOver();
    void setGifChoosesFolderAndNumber();
    void setGifNeitherRestartsNorRepaints();
    void frameNumbersHaveAtLeastTwoDigits_data();
    void frameNumbersHaveAtLeastTwoDigits();
    void withoutAFrameTheFirstIsRepeated_data();
    void withoutAFrameTheFirstIsRepeated();
    void startingAgainStartsOver();
    void stoppingKeepsTheLastFrame();
    void stoppingWithoutATimerDoesNothing();
    void pathsWithPercentSignsStayWhatTheyAre();
    void theTimerShowsTheFrames();
    void framesArePaintedAcrossTheLabel();
    void mayBeDeletedWhileItPlays();
    void mayBeDeletedByAFrame();
    void mayStartOverAtAFrame();
    void survivesItsTimer();
};

void TestWyGifLabel::registersItsSlotAndProperties()
{
    WY_COMPARE_CONTRACT(WyGifLabel, {}, {"slotTimeOut()"}, {"QString gifPath", "int gifStep"});
}

void TestWyGifLabel::startsWithTwelveFramesAndNoTimer()
{
    QWidget parent;
    WyGifLabel label(&parent);
    QCOMPARE(label.parentWidget(), &parent);
    QCOMPARE(label.property("gifPath").toString(), QString());
    QCOMPARE(label.property("gifStep").toInt(), 12);
    QVERIFY(!timer(label));
    QCOMPARE(label.styleSheet(), QString());
}

void TestWyGifLabel::startRunsATimerOf84Ms()
{
    WyGifLabel label;
    label.start();
    QCOMPARE(label.findChildren<QTimer*>().size(), 1);
    QVERIFY(timer(label)->isActive());
    QVERIFY(!timer(label)->isSingleShot());
    QCOMPARE(timer(label)->interval(), 84);
}

void TestWyGifLabel::theFirstFrameComesWithTheFirstTimeout()
{
    WyGifLabel label;
    label.setStyleSheet(QStringLiteral("color: red;"));
    label.start();
    QCOMPARE(label.styleSheet(), QStringLiteral("color: red;"));
    tick(label);
    QCOMPARE(label.styleSheet(), sheet(QStringLiteral("loading_01.png")));
}

void TestWyGifLabel::framesFollowEachOtherAndStartOver()
{
    WyGifLabel label;
    label.setProperty("gifStep", 3);
    label.start();
    for (const char* frame :
         {"loading_01.png", "loading_02.png", "loading_03.png", "loading_01.png", "loading_02.png"}) {
        tick(label);
        QCOMPARE(label.styleSheet(), sheet(QLatin1String(frame)));
    }
}

void TestWyGifLabel::setGifChoosesFolderAndNumber()
{
    WyGifLabel label;
    label.SetGif(QStringLiteral("/res/gif/"), 12);
    QCOMPARE(label.property("gifPath").toString(), QStringLiteral("/res/gif/"));
    QCOMPARE(label.property("gifStep").toInt(), 12);
    label.start();
    tick(label);
    QCOMPARE(label.styleSheet(), sheet(QStringLiteral("/res/gif/loading_01.png")));
    label.SetGif(QString(), 2);
    QCOMPARE(label.property("gifStep").toInt(), 2);
    tick(label);
    QCOMPARE(label.styleSheet(), sheet(QStringLiteral("loading_02.png")));
    tick(label);
    QCOMPARE(label.styleSheet(), sheet(QStringLiteral("loading_01.png")));
}

void TestWyGifLabel::setGifNeitherRestartsNorRepaints()
{
    WyGifLabel label;
    label.start();
    tick(label);
    tick(label);
    const QString before = label.styleSheet();
    label.SetGif(QStringLiteral("/other/"), 8);
    QCOMPARE(label.styleSheet(), before);
    tick(label);
    QCOMPARE(label.styleSheet(), sheet(QStringLiteral("/other/loading_03.png")));
}

void TestWyGifLabel::frameNumbersHaveAtLeastTwoDigits_data()
{
    QTest::addColumn<int>("frame");
    QTest::addColumn<QString>("file");
    QTest::newRow("one digit") << 9 << "loading_09.png";
    QTest::newRow("two digits") << 10 << "loading_10.png";
    QTest::newRow("last of two digits") << 99 << "loading_99.png";
    QTest::newRow("three digits") << 100 << "loading_100.png";
}

void TestWyGifLabel::frameNumbersHaveAtLeastTwoDigits()
{
    QFETCH(int, frame);
    QFETCH(QString, file);
    WyGifLabel label;
    label.SetGif(QString(), 100);
    label.start();
    for (int i = 0; i < frame; ++i)
        tick(label);
    QCOMPARE(label.styleSheet(), sheet(file));
}

void TestWyGifLabel::withoutAFrameTheFirstIsRepeated_data()
{
    QTest::addColumn<int>("step");
    QTest::newRow("one frame") << 1;
    QTest::newRow("none") << 0;
    QTest::newRow("negative") << -3;
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
}

void TestWyGifLabel::withoutAFrameTheFirstIsRepeated()
{
    QFETCH(int, step);
    WyGifLabel label;
    label.SetGif(QString(), step);
    label.start();
    for (int i = 0; i < 3; ++i) {
        tick(label);
        QCOMPARE(label.styleSheet(), sheet(QStringLiteral("loading_01.png")));
    }
}

void TestWyGifLabel::startingAgainStartsOver()
{
    WyGifLabel label;
    label.start();
    tick(label);
    tick(label);
    label.start();
    QCOMPARE(label.findChildren<QTimer*>().size(), 1);
    QVERIFY(timer(label)->isActive());
    QCOMPARE(label.styleSheet(), sheet(QStringLiteral("loading_02.png")));
    tick(label);
    QCOMPARE(label.styleSheet(), sheet(QStringLiteral("loading_01.png")));
}

void TestWyGifLabel::stoppingKeepsTheLastFrame()
{
    WyGifLabel label;
    label.start();
    tick(label);
    tick(label);
    label.stop();
    label.stop();
    QVERIFY(!timer(label)->isActive());
    QCOMPARE(label.styleSheet(), sheet(QStringLiteral("loading_02.png")));
}

void TestWyGifLabel::stoppingWithoutATimerDoesNothing()
{
    WyGifLabel label;
    label.stop();
    QVERIFY(!timer(label));
}

void TestWyGifLabel::pathsWithPercentSignsStayWhatTheyAre()
{
    WyGifLabel label;
    label.SetGif(QStringLiteral("/100%1/%2/"), 12);
    label.start();
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Could not parse stylesheet")));
    tick(label);
    QCOMPARE(label.styleSheet(), sheet(QStringLiteral("/100%1/%2/loading_01.png")));
}

void TestWyGifLabel::theTimerShowsTheFrames()
{
    WyGifLabel label;
    label.SetGif(QString(), 3);
    label.start();
    timer(label)->setInterval(1);
    QTRY_COMPARE(label.styleSheet(), sheet(QStringLiteral("loading_03.png")));
}

void TestWyGifLabel::framesArePaintedAcrossTheLabel()
{
    QTemporaryDir folder;
    const QVector<QColor> colors{Qt::red, Qt::blue};
    for (int frame = 0; frame < colors.size(); ++frame) {
        QImage image(8, 8, QImage::Format_RGB32);
        image.fill(colors.at(frame));
        QVERIFY(image.save(folder.filePath(QStringLiteral("loading_0%1.png").arg(frame + 1))));
    }
    WyGifLabel label;
    label.resize(30, 20);
    label.SetGif(folder.path() + QLatin1Char('/'), 2);
    label.start();
    for (const QColor& color : {colors.at(0), colors.at(1), colors.at(0)}) {
        tick(label);
        WY_COMPARE_PICTURES(WyTest::picture(&label), WyTest::painted(QSize(30, 20), [&](QPainter& painter) {
                                painter.fillRect(0, 0, 30, 20, color);
                            }));
    }
}

void TestWyGifLabel::mayBeDeletedWhileItPlays()
{
    auto* label = new WyGifLabel;
    label->start();
    timer(*label)->setInterval(0);
    QSignalSpy stopped(timer(*label), &QObject::destroyed);
    delete label;
    QCoreApplication::processEvents();
    QCOMPARE(stopped.count(), 1);
}

void TestWyGifLabel::mayBeDeletedByAFrame()
{
    const QPointer<WyGifLabel> label = new WyGifLabel;
    label->start();
    const WyTest::OnEvent onFrame(label, QEvent::StyleChange, [label] { delete label; });
    tick(*label);
    QVERIFY(!label);
}

void TestWyGifLabel::mayStartOverAtAFrame()
{
    WyGifLabel label;
    label.ensurePolished();
    label.start();
    tick(label);
    {
        const WyTest::OnEvent onFrame(&label, QEvent::StyleChange, [&label] { label.start(); });
        tick(label);
    }
    tick(label);
    QCOMPARE(label.styleSheet(), sheet(QStringLiteral("loading_01.png")));
}

void TestWyGifLabel::survivesItsTimer()
{
    WyGifLabel label;
    label.start();
    delete timer(label);
    label.stop();
    label.start();
    QVERIFY(timer(label)->isActive());
}

QTEST_MAIN(TestWyGifLabel)
#include "tst_wygiflabel.moc"
