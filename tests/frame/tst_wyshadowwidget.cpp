#include "WyWidgets/frame/WyShadowWidget.h"

#include "support/Contract.h"
#include "support/Silence.h"

#include <QGraphicsBlurEffect>
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
    void theShadowSurroundsTheWidget();
    void aWidgetLargerThanAnyScreenIsPaintedWithoutShadow();
    void aShadowInAPictureThatCouldNotBeMadeIsLeftOut();
};

namespace {

/// The colour beside the left edge of a blue widget of this size with a red shadow, in a white window; and
/// the widget's own.
QPair<QColor, QColor> colorsAtTheEdge(const QSize& size)
{
    QWidget window;
    window.setPalette(Qt::white);
    window.resize(100, 100);
    WyShadowWidget widget(&window);
    widget.setStyleSheet(QStringLiteral("background: blue"));
    widget.setShadowColor(Qt::red);
    widget.setGeometry(QRect(QPoint(50, 50), size));
    const QImage picture = window.grab().toImage();
    return {picture.pixelColor(48, 80), picture.pixelColor(60, 80)};
}

} // namespace

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

void TestWyShadowWidget::theShadowSurroundsTheWidget()
{
    const auto colors = colorsAtTheEdge({1000, 1000});
    QVERIFY(colors.first != QColor(Qt::white));
    QCOMPARE(colors.first.red(), 255);
    QCOMPARE(colors.second, QColor(Qt::blue));
}

void TestWyShadowWidget::aWidgetLargerThanAnyScreenIsPaintedWithoutShadow()
{
    for (const QSize& size : {QSize(7680, 4330), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX)}) {
        const auto colors = colorsAtTheEdge(size);
        QCOMPARE(colors.first, QColor(Qt::white));
        QCOMPARE(colors.second, QColor(Qt::blue));
    }
}

void TestWyShadowWidget::aShadowInAPictureThatCouldNotBeMadeIsLeftOut()
{
    QWidget window;
    window.resize(100, 100);
    QWidget huge(&window);
    huge.resize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    huge.setGraphicsEffect(new QGraphicsBlurEffect);
    WyShadowWidget widget(&huge);
    widget.setShadowColor(Qt::red);
    const WyTest::Silence silence; // Qt warns of its painter
    QCOMPARE(window.grab().size(), QSize(100, 100));
}

QTEST_MAIN(TestWyShadowWidget)
#include "tst_wyshadowwidget.moc"
