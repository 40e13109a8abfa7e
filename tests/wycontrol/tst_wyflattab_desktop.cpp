#include "WyWidgets/wycontrol/WyFlatTab.h"
#include "WyWidgets/wycontrol/WyFlatVTab.h"

#include "support/RealInput.h"
#include "support/RoomyWindow.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtTest>

using WyWidgets::WyFlatTab;
using WyWidgets::WyFlatVTab;
using namespace WyTest;

namespace {

QPushButton* tab(const QWidget& strip, int index)
{
    return strip.findChildren<QPushButton*>().value(index);
}

QWidget* marker(const QWidget& strip, const char* objectName)
{
    return strip.findChild<QLabel*>(QLatin1String(objectName));
}

template <typename Strip>
Strip* addStrip(QWidget& window)
{
    auto* strip = new Strip;
    for (const char* text : {"Files", "Branches", "Releases"})
        strip->AddTab(QLatin1String(text));
    window.layout()->addWidget(strip);
    return strip;
}

} // namespace

/// Both strips in a window of a real window system, clicked with the real pointer.
class TestWyFlatTabDesktop : public QObject
{
    Q_OBJECT

private slots:
    void aRealClickMovesTheUnderline();
    void quickClicksEndAtTheLastTab();
    void theUnderlineStaysRightWhileTheWindowIsResized();
    void aRealClickMovesBarAndHighlight();
};

void TestWyFlatTabDesktop::aRealClickMovesTheUnderline()
{
    QWidget window;
    new QVBoxLayout(&window);
    auto* strip = addStrip<WyFlatTab>(window);
    strip->SelectTab(0);
    QVERIFY(RealInput::showAndActivate(&window));
    QSignalSpy changed(strip, &WyFlatTab::SignalSelectChanged);
    RealInput::click(centreOf(tab(*strip, 2)));
    QTRY_COMPARE_WITH_TIMEOUT(changed, QList<QVariantList>({{2}}), 10000);
    QTRY_COMPARE_WITH_TIMEOUT(marker(*strip, "label_tab")->x(), tab(*strip, 2)->geometry().center().x() - 10,
                              10000);
}

void TestWyFlatTabDesktop::quickClicksEndAtTheLastTab()
{
    QWidget window;
    new QVBoxLayout(&window);
    auto* strip = addStrip<WyFlatTab>(window);
    strip->SelectTab(0);
    QVERIFY(RealInput::showAndActivate(&window));
    for (int index : {1, 2, 0, 1})
        RealInput::click(centreOf(tab(*strip, index)));
    QTRY_COMPARE_WITH_TIMEOUT(strip->CurrentSelect(), 1, 10000);
    QTRY_COMPARE_WITH_TIMEOUT(marker(*strip, "label_tab")->x(), tab(*strip, 1)->geometry().center().x() - 10,
                              10000);
}

void TestWyFlatTabDesktop::theUnderlineStaysRightWhileTheWindowIsResized()
{
    QWidget window;
    new QVBoxLayout(&window);
    auto* strip = addStrip<WyFlatTab>(window);
    strip->SelectTab(2);
    QVERIFY(RealInput::showAndActivate(&window));
    for (int width : {900, 500, 720}) {
        window.resize(width, 200);
        QTRY_COMPARE_WITH_TIMEOUT(window.width(), width, 10000);
        QTRY_COMPARE_WITH_TIMEOUT(marker(*strip, "label_tab")->x(),
                                  tab(*strip, 2)->geometry().center().x() - 10, 10000);
    }
}

void TestWyFlatTabDesktop::aRealClickMovesBarAndHighlight()
{
    QWidget window;
    new QVBoxLayout(&window);
    auto* list = addStrip<WyFlatVTab>(window);
    QVERIFY(RealInput::showAndActivate(&window));
    QSignalSpy changed(list, &WyFlatVTab::SignalSelectChanged);
    RealInput::click(centreOf(tab(*list, 1)));
    QTRY_COMPARE_WITH_TIMEOUT(changed, QList<QVariantList>({{1}}), 10000);
    QTRY_COMPARE_WITH_TIMEOUT(marker(*list, "label_rect")->pos(), tab(*list, 1)->pos(), 10000);
    QTRY_COMPARE_WITH_TIMEOUT(marker(*list, "label_line")->x(), tab(*list, 1)->x() - 1, 10000);
}

QTEST_MAIN(TestWyFlatTabDesktop)
#include "tst_wyflattab_desktop.moc"
