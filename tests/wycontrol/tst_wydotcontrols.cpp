#include "WyWidgets/wycontrol/WyDotButton.h"
#include "WyWidgets/wycontrol/WyDotCheckBox.h"
#include "WyWidgets/wycontrol/WyDotLabel.h"

#include "support/Contract.h"
#include "support/Painting.h"

#include <QtTest>

#include <memory>

using WyWidgets::WyDotButton;
using WyWidgets::WyDotCheckBox;
using WyWidgets::WyDotLabel;

namespace {

/// One of the three classes as the tests see them; they have no base class of their own.
struct Control
{
    std::unique_ptr<QWidget> widget;
    std::function<void(bool)> setDotVisible;
    std::function<bool()> isDotVisible;
    std::function<void()> initView;

    QList<QLabel*> dots() const
    {
        return widget->findChildren<QLabel*>(QStringLiteral("label_dot"), Qt::FindDirectChildrenOnly);
    }
    QLabel* dot() const { return dots().value(0); }
};

template <typename Class>
Control make(QWidget* parent)
{
    auto* control = new Class(parent);
    return {std::unique_ptr<QWidget>(control), [control](bool visible) { control->SetDotVisible(visible); },
            [control] { return control->IsDotVisible(); },
            [control] {
                control->InitView();
            }};
}

using Factory = Control (*)(QWidget*);

constexpr QSize kSizePx(120, 40);

} // namespace

Q_DECLARE_METATYPE(Factory)
Q_DECLARE_METATYPE(QMargins)

class TestWyDotControls : public QObject
{
    Q_OBJECT

private slots:
    void registerNothing();
    void passTheParentOn_data() { controls(); }
    void passTheParentOn();
    void carryOneDotOfAFixedSize_data() { controls(); }
    void carryOneDotOfAFixedSize();
    void layTheDotOutInTheSecondColumn_data() { controls(); }
    void layTheDotOutInTheSecondColumn();
    void showTheDotInTheTopRightCorner_data() { controls(); }
    void showTheDotInTheTopRightCorner();
    void showTheDotInTheTopLeftCornerRightToLeft_data() { controls(); }
    void showTheDotInTheTopLeftCornerRightToLeft();
    void theDotShowsFromTheStart_data() { controls(); }
    void theDotShowsFromTheStart();
    void theDotCanBeHidden_data() { controls(); }
    void theDotCanBeHidden();
    void aHiddenControlHasNoVisibleDot_data() { controls(); }
    void aHiddenControlHasNoVisibleDot();
    void aStyleSheetPaintsTheDot_data() { controls(); }
    void aStyleSheetPaintsTheDot();
    void theDotTellsWhatItMeans_data() { controls(); }
    void theDotTellsWhatItMeans();
    void buildingTwiceAddsNothing_data() { controls(); }
    void buildingTwiceAddsNothing();
    void surviveTheirDot_data() { controls(); }
    void surviveTheirDot();
    void surviveTheirLayout_data() { controls(); }
    void surviveTheirLayout();
    void leaveAForeignLayoutAlone_data() { controls(); }
    void leaveAForeignLayoutAlone();
    void aPressOnTheDotPressesTheButton();

private:
    void controls();
};

void TestWyDotControls::controls()
{
    QTest::addColumn<Factory>("make");
    QTest::addColumn<QByteArray>("base");
    QTest::addColumn<QSize>("dotSize");
    QTest::addColumn<QMargins>("margins");
    QTest::newRow("button") << Factory(make<WyDotButton>) << QByteArray("QPushButton") << QSize(4, 4)
                            << QMargins(0, 2, 2, 0);
    QTest::newRow("check box") << Factory(make<WyDotCheckBox>) << QByteArray("QCheckBox") << QSize(4, 4)
                               << QMargins(20, 10, 0, 0);
    QTest::newRow("label") << Factory(make<WyDotLabel>) << QByteArray("QLabel") << QSize(8, 8)
                           << QMargins(0, 2, 2, 0);
}

void TestWyDotControls::registerNothing()
{
    WY_COMPARE_CONTRACT(WyDotButton, {}, {}, {});
    WY_COMPARE_CONTRACT(WyDotCheckBox, {}, {}, {});
    WY_COMPARE_CONTRACT(WyDotLabel, {}, {}, {});
}

void TestWyDotControls::passTheParentOn()
{
    QFETCH(Factory, make);
    QFETCH(QByteArray, base);
    QWidget parent;
    const Control control = make(&parent);
    QCOMPARE(control.widget->parentWidget(), &parent);
    QCOMPARE(QByteArray(control.widget->metaObject()->superClass()->className()), base);
}

void TestWyDotControls::carryOneDotOfAFixedSize()
{
    QFETCH(Factory, make);
    QFETCH(QSize, dotSize);
    const Control control = make(nullptr);
    QCOMPARE(control.dots().size(), 1);
    QCOMPARE(control.dot()->minimumSize(), dotSize);
    QCOMPARE(control.dot()->maximumSize(), dotSize);
    QVERIFY(control.dot()->text().isEmpty());
}

void TestWyDotControls::layTheDotOutInTheSecondColumn()
{
    QFETCH(Factory, make);
    QFETCH(QMargins, margins);
    const Control control = make(nullptr);
    auto* grid = qobject_cast<QGridLayout*>(control.widget->layout());
    QVERIFY(grid);
    QCOMPARE(grid->contentsMargins(), margins);
    QCOMPARE(grid->spacing(), 0);
    QCOMPARE(grid->count(), 1);
    int row = -1;
    int column = -1;
    int rowSpan = -1;
    int columnSpan = -1;
    grid->getItemPosition(grid->indexOf(control.dot()), &row, &column, &rowSpan, &columnSpan);
    QCOMPARE(row, 0);
    QCOMPARE(column, 1);
    QCOMPARE(rowSpan, 1);
    QCOMPARE(columnSpan, 1);
    QCOMPARE(grid->itemAt(0)->alignment(), Qt::AlignRight | Qt::AlignTop);
}

void TestWyDotControls::showTheDotInTheTopRightCorner()
{
    QFETCH(Factory, make);
    QFETCH(QSize, dotSize);
    QFETCH(QMargins, margins);
    const Control control = make(nullptr);
    control.widget->resize(kSizePx);
    control.widget->show();
    QCOMPARE(control.dot()->geometry(),
             QRect(QPoint(kSizePx.width() - margins.right() - dotSize.width(), margins.top()), dotSize));
}

void TestWyDotControls::showTheDotInTheTopLeftCornerRightToLeft()
{
    QFETCH(Factory, make);
    QFETCH(QSize, dotSize);
    QFETCH(QMargins, margins);
    const Control control = make(nullptr);
    control.widget->setLayoutDirection(Qt::RightToLeft);
    control.widget->resize(kSizePx);
    control.widget->show();
    QCOMPARE(control.dot()->geometry(), QRect(QPoint(margins.right(), margins.top()), dotSize));
    control.widget->setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(control.widget->layout()->contentsMargins(), margins);
}

void TestWyDotControls::theDotShowsFromTheStart()
{
    QFETCH(Factory, make);
    const Control control = make(nullptr);
    QVERIFY(!control.dot()->isHidden());
    control.widget->show();
    QVERIFY(control.isDotVisible());
}

void TestWyDotControls::theDotCanBeHidden()
{
    QFETCH(Factory, make);
    const Control control = make(nullptr);
    control.widget->show();
    control.setDotVisible(false);
    QVERIFY(!control.isDotVisible());
    QVERIFY(control.dot()->isHidden());
    control.setDotVisible(true);
    QVERIFY(control.isDotVisible());
}

void TestWyDotControls::aHiddenControlHasNoVisibleDot()
{
    QFETCH(Factory, make);
    const Control control = make(nullptr);
    QVERIFY(!control.isDotVisible());
    control.setDotVisible(true);
    QVERIFY(!control.isDotVisible());
    control.widget->show();
    QVERIFY(control.isDotVisible());
    control.widget->hide();
    QVERIFY(!control.isDotVisible());
}

void TestWyDotControls::aStyleSheetPaintsTheDot()
{
    QFETCH(Factory, make);
    const Control control = make(nullptr);
    control.widget->setStyleSheet(QStringLiteral("#label_dot { background: #e02020; }"));
    control.widget->resize(kSizePx);
    control.widget->show();
    const QImage picture = WyTest::picture(control.widget.get());
    const QRect dot = control.dot()->geometry();
    const qreal scale = picture.devicePixelRatio();
    QCOMPARE(picture.pixelColor((QPointF(dot.center()) * scale).toPoint()), QColor(0xe0, 0x20, 0x20));
    control.setDotVisible(false);
    QVERIFY(WyTest::picture(control.widget.get()).pixelColor((QPointF(dot.center()) * scale).toPoint()) !=
            QColor(0xe0, 0x20, 0x20));
}

void TestWyDotControls::theDotTellsWhatItMeans()
{
    QFETCH(Factory, make);
    const Control control = make(nullptr);
    QVERIFY(!control.dot()->accessibleName().isEmpty());
    QCOMPARE(control.dot()->toolTip(), control.dot()->accessibleName());
}

void TestWyDotControls::buildingTwiceAddsNothing()
{
    QFETCH(Factory, make);
    const Control control = make(nullptr);
    const QObjectList children = control.widget->children();
    control.setDotVisible(false);
    control.initView();
    QCOMPARE(control.widget->children(), children);
    QCOMPARE(control.widget->layout()->count(), 1);
    QVERIFY(control.dot()->isHidden());
}

void TestWyDotControls::surviveTheirDot()
{
    QFETCH(Factory, make);
    const Control control = make(nullptr);
    control.widget->show();
    delete control.dot();
    QVERIFY(!control.isDotVisible());
    control.setDotVisible(true);
    QVERIFY(!control.isDotVisible());
    control.initView();
    QCOMPARE(control.dots().size(), 1);
    QTRY_VERIFY(control.isDotVisible());
}

void TestWyDotControls::surviveTheirLayout()
{
    QFETCH(Factory, make);
    QFETCH(QMargins, margins);
    const Control control = make(nullptr);
    delete control.widget->layout();
    control.setDotVisible(false);
    control.setDotVisible(true);
    control.initView();
    QCOMPARE(control.dots().size(), 1);
    QCOMPARE(control.widget->layout()->indexOf(control.dot()), 0);
    QCOMPARE(control.widget->layout()->contentsMargins(), margins);
}

void TestWyDotControls::leaveAForeignLayoutAlone()
{
    QFETCH(Factory, make);
    const Control control = make(nullptr);
    delete control.dot();
    delete control.widget->layout();
    auto* row = new QHBoxLayout(control.widget.get());
    control.initView();
    QCOMPARE(control.widget->layout(), row);
    QCOMPARE(row->count(), 0);
    QVERIFY(control.dots().isEmpty());
    control.setDotVisible(true);
    QVERIFY(!control.isDotVisible());
}

void TestWyDotControls::aPressOnTheDotPressesTheButton()
{
    WyDotButton button;
    button.resize(kSizePx);
    button.show();
    QSignalSpy clicked(&button, &QPushButton::clicked);
    QTest::mouseClick(button.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      button.findChild<QLabel*>(QStringLiteral("label_dot"))->geometry().center());
    QCOMPARE(clicked.count(), 1);
}

QTEST_MAIN(TestWyDotControls)
#include "tst_wydotcontrols.moc"
