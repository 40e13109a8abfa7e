#include "WyWidgets/wycontrol/WyPopupBox.h"

#include "support/Contract.h"
#include "support/LastWindow.h"
#include "support/Painting.h"
#include "support/PopupPanel.h"

#include <QPainter>
#include <QtTest>

using WyWidgets::WyPopupBox;

namespace {

/// What a host's own box sees of its base.
class FilledBox : public WyPopupBox
{
public:
    QWidget* content() const { return m_contentWidget; }
};

} // namespace

class TestWyPopupBox : public QObject
{
    Q_OBJECT

private slots:
    void registersNothingOfItsOwn();
    void isAPopupWindowAlsoWithAParent();
    void holdsOneEmptyPanelWithoutMargins();
    void derivedClassesReachThePanel();
    void paintsOnlyItsContent();
    void aSecondPanelSharesTheLayout();
    void aDeletedPanelCountsAsNone();
    void closingHidesAndIsNotTheLastWindow();
};

void TestWyPopupBox::registersNothingOfItsOwn()
{
    WY_COMPARE_CONTRACT(WyPopupBox, {}, {}, {});
}

void TestWyPopupBox::isAPopupWindowAlsoWithAParent()
{
    QWidget parent;
    const WyPopupBox box(&parent);
    QCOMPARE(box.parentWidget(), &parent);
    QVERIFY(box.isWindow());
    QCOMPARE(box.windowFlags(), WyPopupBox().windowFlags());
    QCOMPARE(box.windowType(), Qt::Popup);
    QVERIFY(box.testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(box.isHidden());
}

void TestWyPopupBox::holdsOneEmptyPanelWithoutMargins()
{
    WyTest::comparePopupPanel(WyPopupBox());
}

void TestWyPopupBox::derivedClassesReachThePanel()
{
    const FilledBox box;
    QVERIFY(box.content());
    QCOMPARE(box.content(), box.findChild<QWidget*>(QStringLiteral("widget_content")));
}

void TestWyPopupBox::paintsOnlyItsContent()
{
    WyPopupBox box;
    box.resize(40, 30);
    WY_COMPARE_PICTURES(WyTest::picture(&box), WyTest::painted(box.size(), [](QPainter&) {}));

    box.setStyleSheet(QStringLiteral("#widget_content { background: #102030; }"));
    WY_COMPARE_PICTURES(WyTest::picture(&box), WyTest::painted(box.size(), [](QPainter& painter) {
                            painter.fillRect(0, 0, 40, 30, QColor(0x10, 0x20, 0x30));
                        }));
}

void TestWyPopupBox::aSecondPanelSharesTheLayout()
{
    FilledBox box;
    QWidget* first = box.content();
    QWidget* second = box.createContent();
    QVERIFY(second != first);
    QCOMPARE(second->objectName(), QStringLiteral("widget_content"));
    QCOMPARE(box.layout()->count(), 2);
    QCOMPARE(box.layout()->itemAt(1)->widget(), second);
    QCOMPARE(box.content(), first);
}

void TestWyPopupBox::aDeletedPanelCountsAsNone()
{
    FilledBox box;
    delete box.content();
    QVERIFY(!box.content());
    delete box.layout();
    QVERIFY(box.createContent());
    QCOMPARE(box.layout()->count(), 1);
}

void TestWyPopupBox::closingHidesAndIsNotTheLastWindow()
{
    QCOMPARE(WyTest::lastWindowClosings([] {
                 WyPopupBox box;
                 box.show();
                 QVERIFY(box.isVisible());
                 QVERIFY(box.close());
                 QVERIFY(box.isHidden());
             }),
             0);
}

QTEST_MAIN(TestWyPopupBox)
#include "tst_wypopupbox.moc"
