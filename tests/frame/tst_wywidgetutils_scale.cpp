#include "WyWidgets/frame/WyWidgetUtils.h"

#include "support/FakeScreens.h"

#include <QLabel>
#include <QMap>
#include <QProcess>
#include <QtTest>

#include <functional>

using WyTest::FakeScreen;
using WyTest::FakeScreens;
using WyWidgets::WyWidgetUtils;

namespace {

/// Operations by name. Each runs in a process of its own, as the scale is read once in a process.
const QMap<QString, std::function<void()>>& operations()
{
    static const QMap<QString, std::function<void()>> map = {
        {QStringLiteral("GetDpiScale"),
         [] {
             WyWidgetUtils::GetDpiScale();
         }},
        {QStringLiteral("GetAllScreenGeometry"),
         [] {
             WyWidgetUtils::GetAllScreenGeometry(true);
         }},
        {QStringLiteral("GrabScreenPixMap"),
         [] {
             WyWidgetUtils::GrabScreenPixMap(0);
         }},
        {QStringLiteral("GrabAllScreenPixMap"),
         [] {
             WyWidgetUtils::GrabAllScreenPixMap();
         }},
        {QStringLiteral("MapToGlobal"),
         [] {
             bool found = false;
             WyWidgetUtils::MapToGlobal(QPoint(1, 1), found);
         }},
        {QStringLiteral("MapToParent"),
         [] {
             WyWidgetUtils::MapToParent(QPoint(1, 1));
         }},
        {QStringLiteral("GrabScreenPixMap of an unknown screen"),
         [] {
             WyWidgetUtils::GrabScreenPixMap(9);
         }},
        {QStringLiteral("GetScreenGeometry"),
         [] {
             WyWidgetUtils::GetScreenGeometry(0, false);
         }},
        {QStringLiteral("ScaledRect"),
         [] {
             WyWidgetUtils::ScaledRect(QRect(1, 2, 3, 4), 1.5);
         }},
        {QStringLiteral("ScaledRectF"),
         [] {
             WyWidgetUtils::ScaledRectF(QRectF(1, 2, 3, 4), 1.5);
         }},
        {QStringLiteral("RegisterShortcuts"),
         [] {
             WyWidgetUtils::RegisterShortcuts(1, 2, QString());
         }},
        {QStringLiteral("ToolTipWrap"),
         [] {
             WyWidgetUtils::ToolTipWrap(QStringLiteral("one two"), 20);
         }},
        {QStringLiteral("RefreshStyle"),
         [] {
             QLabel label;
             WyWidgetUtils::RefreshStyle(&label, "active", true);
         }},
        {QStringLiteral("updateStyle"),
         [] {
             QLabel label;
             WyWidgets::updateStyle(&label, QStringLiteral("a"), QStringLiteral("b"));
         }},
    };
    return map;
}

FakeScreen screenWithRatio(qreal ratio)
{
    FakeScreen screen;
    screen.geometry = QRect(0, 0, 50, 40);
    screen.devicePixelRatio = ratio;
    return screen;
}

/// The process of one operation: it runs while the primary screen's ratio is 3, and prints the scale of a
/// time when it is 5.
int runOperation(const QString& name)
{
    if (name == QLatin1String("no screen")) {
        const FakeScreens none({});
        WyWidgetUtils::GetDpiScale();
    } else {
        const FakeScreens before({screenWithRatio(3)});
        operations().value(name)();
    }
    const FakeScreens after({screenWithRatio(5)});
    QTextStream(stdout) << WyWidgetUtils::GetDpiScale();
    return 0;
}

} // namespace

class TestWyWidgetUtilsScale : public QObject
{
    Q_OBJECT

private slots:
    void theScaleIsFixedByWhatNeedsIt_data();
    void theScaleIsFixedByWhatNeedsIt();
    void everyOperationIsTried();
};

void TestWyWidgetUtilsScale::theScaleIsFixedByWhatNeedsIt_data()
{
    QTest::addColumn<QByteArray>("scale");
    QTest::newRow("GetDpiScale") << QByteArray("3");
    QTest::newRow("GetAllScreenGeometry") << QByteArray("3");
    QTest::newRow("GrabScreenPixMap") << QByteArray("3");
    QTest::newRow("GrabAllScreenPixMap") << QByteArray("3");
    QTest::newRow("MapToGlobal") << QByteArray("3");
    QTest::newRow("MapToParent") << QByteArray("3");
    QTest::newRow("no screen") << QByteArray("1");
    QTest::newRow("GrabScreenPixMap of an unknown screen") << QByteArray("5");
    QTest::newRow("GetScreenGeometry") << QByteArray("5");
    QTest::newRow("ScaledRect") << QByteArray("5");
    QTest::newRow("ScaledRectF") << QByteArray("5");
    QTest::newRow("RegisterShortcuts") << QByteArray("5");
    QTest::newRow("ToolTipWrap") << QByteArray("5");
    QTest::newRow("RefreshStyle") << QByteArray("5");
    QTest::newRow("updateStyle") << QByteArray("5");
}

void TestWyWidgetUtilsScale::theScaleIsFixedByWhatNeedsIt()
{
    QFETCH(QByteArray, scale);
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(QTest::currentDataTag())});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(process.readAllStandardOutput(), scale);
}

void TestWyWidgetUtilsScale::everyOperationIsTried()
{
    QCOMPARE(operations().size(), 14);
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QString argument = application.arguments().value(1);
    if (operations().contains(argument) || argument == QLatin1String("no screen"))
        return runOperation(argument);
    TestWyWidgetUtilsScale test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_wywidgetutils_scale.moc"
