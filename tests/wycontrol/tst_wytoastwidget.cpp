#include "WyWidgets/wycontrol/WyToastWidget.h"

#include "support/Contract.h"
#include "support/MessageRow.h"
#include "support/Painting.h"

#include <QLabel>
#include <QPointer>
#include <QtTest>

using WyWidgets::WyToastWidget;

namespace {

/// The toasts that exist now.
QList<WyToastWidget*> toasts()
{
    QList<WyToastWidget*> found;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (auto* toast = qobject_cast<WyToastWidget*>(window))
            found += toast;
    }
    return found;
}

QPointer<WyToastWidget> showToast(QPoint pos, const QString& text, int msec)
{
    const QList<WyToastWidget*> before = toasts();
    WyToastWidget::ShowToastText(pos, text, msec);
    for (WyToastWidget* toast : toasts()) {
        if (!before.contains(toast))
            return toast;
    }
    return nullptr;
}

/// Deletes every toast at the moment it appears, as a handler of the host might.
class Deleter : public QObject
{
public:
    Deleter() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::ShowToParent || !qobject_cast<WyToastWidget*>(watched))
            return false;
        delete watched;
        return true;
    }
};

QLabel* labelOf(const QWidget* toast)
{
    return toast->findChild<QLabel*>("label_toast");
}

} // namespace

class TestWyToastWidget : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        qDeleteAll(toasts());
        qApp->setStyleSheet(QString());
    }

    void registersNothing();
    void isATranslucentToolTipWindow();
    void holdsAHiddenIconAndALabel();
    void aSecondInitViewChangesNothing();
    void theTextReachesTheLabel();
    void screenReadersAreToldTheText();
    void theWindowFollowsTheText();
    void aStyleSheetPaintsTheWindow();
    void showsATextAtAPointForAWhile();
    void withoutTimeItClosesOnTheNextPass_data();
    void withoutTimeItClosesOnTheNextPass();
    void severalAreIndependent();
    void closingEarlyIsFine();
    void deletionWhileShowingIsSafe();
    void closingTheLastOneDoesNotQuit();
    void aDeletedLabelIsLeftOut();
};

void TestWyToastWidget::registersNothing()
{
    WY_COMPARE_CONTRACT(WyToastWidget, {}, {}, {});
    QCOMPARE(WyToastWidget::staticMetaObject.superClass()->className(), "QWidget");
}

void TestWyToastWidget::isATranslucentToolTipWindow()
{
    QWidget parent;
    for (QWidget* owner : {static_cast<QWidget*>(nullptr), &parent}) {
        const WyToastWidget toast(owner);
        QCOMPARE(toast.windowFlags(), Qt::ToolTip | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
        QVERIFY(toast.testAttribute(Qt::WA_StyledBackground));
        QVERIFY(toast.testAttribute(Qt::WA_TranslucentBackground));
        QCOMPARE(toast.parentWidget(), owner);
    }
}

void TestWyToastWidget::holdsAHiddenIconAndALabel()
{
    const WyToastWidget toast;
    auto* label = toast.findChild<QLabel*>(QStringLiteral("label_toast"));
    WyTest::compareMessageRow(toast, label);
    QCOMPARE(label->alignment(), Qt::AlignCenter);
}

void TestWyToastWidget::aSecondInitViewChangesNothing()
{
    WyToastWidget toast;
    const QObjectList children = toast.children();
    toast.InitView();
    QCOMPARE(toast.children(), children);
}

void TestWyToastWidget::theTextReachesTheLabel()
{
    WyToastWidget toast;
    toast.SetText("Saved");
    QCOMPARE(labelOf(&toast)->text(), QString("Saved"));
    toast.SetText(QString());
    QCOMPARE(labelOf(&toast)->text(), QString());
}

void TestWyToastWidget::screenReadersAreToldTheText()
{
    WyToastWidget toast;
    for (const QString& text : {QString("Saved"), QString("<b>Saved</b> again"), QString()}) {
        toast.SetText(text);
        QCOMPARE(toast.accessibleName(), QString(text).remove("<b>").remove("</b>"));
    }
    toast.setAccessibleName("News");
    toast.SetText("Saved");
    QCOMPARE(toast.accessibleName(), QString("News"));
}

void TestWyToastWidget::theWindowFollowsTheText()
{
    WyToastWidget toast;
    for (const QString& text : {QString("Saved"), QString("Saved, and a good deal longer"), QString("a\nb"),
                                QString("<b>rich</b>"), QString("שלום 🎉"), QString()}) {
        toast.SetText(text);
        toast.show();
        QCoreApplication::processEvents();
        QCOMPARE(toast.size(), labelOf(&toast)->sizeHint() + QSize(16, 16));
        QCOMPARE(labelOf(&toast)->pos(), QPoint(8, 8));
    }
}

void TestWyToastWidget::aStyleSheetPaintsTheWindow()
{
    qApp->setStyleSheet("WyWidgets--WyToastWidget { background: rgb(10, 20, 30); } "
                        "#label_toast { background: rgb(40, 50, 60); }");
    WyToastWidget toast;
    toast.SetText(" ");
    toast.show();
    const QImage image = toast.grab().toImage();
    QCOMPARE(image.pixelColor(2, 2), QColor(10, 20, 30));
    QCOMPARE(image.pixelColor(image.width() / 2, image.height() / 2), QColor(40, 50, 60));
}

void TestWyToastWidget::showsATextAtAPointForAWhile()
{
    QElapsedTimer timer;
    timer.start();
    const QPointer<WyToastWidget> toast = showToast(QPoint(120, 130), "Saved", 150);
    QVERIFY(toast);
    QVERIFY(!toast->parent());
    QVERIFY(toast->isVisible());
    QVERIFY(toast->testAttribute(Qt::WA_DeleteOnClose));
    QCOMPARE(toast->pos(), QPoint(120, 130));
    QCOMPARE(labelOf(toast)->text(), QString("Saved"));
    QTRY_VERIFY(!toast);
    QVERIFY2(timer.elapsed() >= 140, qPrintable(QString::number(timer.elapsed())));
}

void TestWyToastWidget::withoutTimeItClosesOnTheNextPass_data()
{
    QTest::addColumn<int>("msec");
    QTest::newRow("0") << 0;
    QTest::newRow("negative") << -5;
}

void TestWyToastWidget::withoutTimeItClosesOnTheNextPass()
{
    QFETCH(const int, msec);
    const QPointer<WyToastWidget> toast = showToast(QPoint(10, 10), "Saved", msec);
    QVERIFY(toast->isVisible());
    QCoreApplication::processEvents();
    QVERIFY(!toast || !toast->isVisible());
    QTRY_VERIFY(!toast);
}

void TestWyToastWidget::severalAreIndependent()
{
    const QPointer<WyToastWidget> first = showToast(QPoint(10, 10), "one", 60000);
    const QPointer<WyToastWidget> second = showToast(QPoint(10, 10), "two", 1);
    QVERIFY(first != second);
    QCOMPARE(first->pos(), second->pos());
    QTRY_VERIFY(!second);
    QVERIFY(first->isVisible());
    delete first;
}

void TestWyToastWidget::closingEarlyIsFine()
{
    const QPointer<WyToastWidget> closed = showToast(QPoint(10, 10), "one", 20);
    const QPointer<WyToastWidget> deleted = showToast(QPoint(10, 10), "two", 20);
    closed->close();
    delete deleted;
    QTRY_VERIFY(!closed);
    QTest::qWait(40);
    QVERIFY(toasts().isEmpty());
}

void TestWyToastWidget::deletionWhileShowingIsSafe()
{
    const Deleter deleter;
    QVERIFY(!showToast(QPoint(10, 10), "Saved", 0));
    QCoreApplication::processEvents();
    QVERIFY(toasts().isEmpty());
}

void TestWyToastWidget::closingTheLastOneDoesNotQuit()
{
    QSignalSpy lastClosed(qApp, &QGuiApplication::lastWindowClosed);
    WyToastWidget::ShowToastText(QPoint(10, 10), "Saved", 0);
    QTimer::singleShot(30, qApp, &QCoreApplication::quit);
    QApplication::exec();
    QVERIFY(toasts().isEmpty());
    QCOMPARE(lastClosed.count(), 0);
}

void TestWyToastWidget::aDeletedLabelIsLeftOut()
{
    WyToastWidget toast;
    delete labelOf(&toast);
    toast.SetText("Saved");
    toast.show();
    QVERIFY(toast.isVisible());
}

QTEST_MAIN(TestWyToastWidget)
#include "tst_wytoastwidget.moc"
