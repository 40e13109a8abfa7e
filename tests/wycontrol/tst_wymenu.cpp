#include "WyWidgets/wycontrol/WyMenu.h"

#include "support/Contract.h"

#include <QtTest>

using WyWidgets::WyMenu;

class TestWyMenu : public QObject
{
    Q_OBJECT

private slots:
    void registersNothing();
    void isAMenuOfItsParent();
    void aStyleSheetSelectsItByItsClass();
};

void TestWyMenu::registersNothing()
{
    WY_COMPARE_CONTRACT(WyMenu, {}, {}, {});
    QCOMPARE(WyMenu::staticMetaObject.superClass(), &QMenu::staticMetaObject);
}

void TestWyMenu::isAMenuOfItsParent()
{
    QWidget parent;
    auto* menu = new WyMenu(&parent);
    QCOMPARE(menu->parentWidget(), &parent);
    QVERIFY(menu->isEmpty());
    QVERIFY(menu->windowFlags().testFlag(Qt::Popup));
}

void TestWyMenu::aStyleSheetSelectsItByItsClass()
{
    QWidget parent;
    parent.setStyleSheet(QStringLiteral("WyWidgets--WyMenu { qproperty-toolTipsVisible: true; }"));
    auto* ours = new WyMenu(&parent);
    auto* other = new QMenu(&parent);
    ours->ensurePolished();
    other->ensurePolished();
    QVERIFY(ours->toolTipsVisible());
    QVERIFY(!other->toolTipsVisible());
}

QTEST_MAIN(TestWyMenu)
#include "tst_wymenu.moc"
