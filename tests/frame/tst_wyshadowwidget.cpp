#include "WyWidgets/frame/WyShadowWidget.h"

#include "support/Contract.h"

#include <QGraphicsDropShadowEffect>
#include <QtTest>

using WyWidgets::WyShadowWidget;

class TestWyShadowWidget : public QObject
{
    Q_OBJECT

private slots:
    void registersOnlyTheShadowColor();
    void startsWithoutShadowAndWithAnInvalidColor();
    void paintsAStyledBackground();
    void theFirstColorMakesACentredShadow();
    void theSecondColorReusesTheEffect();
    void anInvalidColorReachesTheEffect();
    void aReplacedEffectIsMadeAnewOnTheNextColor();
    void aStyleSheetSetsTheColor();
};

void TestWyShadowWidget::registersOnlyTheShadowColor()
{
    WY_COMPARE_CONTRACT(WyShadowWidget, {}, {}, {"QColor shadowColor"});
    QVERIFY(WyShadowWidget::staticMetaObject.property(WyShadowWidget::staticMetaObject.propertyOffset())
                .isWritable());
}

void TestWyShadowWidget::startsWithoutShadowAndWithAnInvalidColor()
{
    WyShadowWidget widget;
    QVERIFY(!widget.graphicsEffect());
    QVERIFY(!widget.shadowColor().isValid());
}

void TestWyShadowWidget::paintsAStyledBackground()
{
    QVERIFY(WyShadowWidget().testAttribute(Qt::WA_StyledBackground));
}

void TestWyShadowWidget::theFirstColorMakesACentredShadow()
{
    WyShadowWidget widget;
    widget.setShadowColor(QColor(1, 2, 3, 4));
    auto* effect = qobject_cast<QGraphicsDropShadowEffect*>(widget.graphicsEffect());
    QVERIFY(effect);
    QCOMPARE(effect->parent(), &widget);
    QCOMPARE(effect->offset(), QPointF(0, 0));
    QCOMPARE(effect->blurRadius(), 24.0);
    QCOMPARE(effect->color(), QColor(1, 2, 3, 4));
    QCOMPARE(widget.shadowColor(), QColor(1, 2, 3, 4));
}

void TestWyShadowWidget::theSecondColorReusesTheEffect()
{
    WyShadowWidget widget;
    widget.setShadowColor(Qt::red);
    QGraphicsEffect* first = widget.graphicsEffect();
    widget.setShadowColor(Qt::blue);
    QCOMPARE(widget.graphicsEffect(), first);
    QCOMPARE(widget.findChildren<QGraphicsDropShadowEffect*>().size(), 1);
    QCOMPARE(static_cast<QGraphicsDropShadowEffect*>(first)->color(), QColor(Qt::blue));
}

void TestWyShadowWidget::anInvalidColorReachesTheEffect()
{
    WyShadowWidget widget;
    widget.setShadowColor(QColor());
    auto* effect = qobject_cast<QGraphicsDropShadowEffect*>(widget.graphicsEffect());
    QVERIFY(effect);
    QVERIFY(!effect->color().isValid());
}

void TestWyShadowWidget::aReplacedEffectIsMadeAnewOnTheNextColor()
{
    WyShadowWidget widget;
    widget.setShadowColor(Qt::red);
    widget.setGraphicsEffect(nullptr);
    widget.setShadowColor(Qt::blue);
    auto* effect = qobject_cast<QGraphicsDropShadowEffect*>(widget.graphicsEffect());
    QVERIFY(effect);
    QCOMPARE(effect->color(), QColor(Qt::blue));
}

void TestWyShadowWidget::aStyleSheetSetsTheColor()
{
    WyShadowWidget widget;
    widget.setStyleSheet(QStringLiteral("WyWidgets--WyShadowWidget { qproperty-shadowColor: #102030; }"));
    widget.ensurePolished();
    QCOMPARE(widget.shadowColor(), QColor(0x10, 0x20, 0x30));
}

QTEST_MAIN(TestWyShadowWidget)
#include "tst_wyshadowwidget.moc"
