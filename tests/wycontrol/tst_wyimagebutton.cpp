#include "WyWidgets/wycontrol/WyImageButton.h"

#include "support/Contract.h"
#include "support/Painting.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QTemporaryDir>
#include <QtTest>

using WyWidgets::WyImageButton;

namespace {

QLabel* icon(const WyImageButton& button)
{
    return button.findChild<QLabel*>(QStringLiteral("label_icon"));
}

QString iconSheet(const QString& normal, const QString& disabled)
{
    return QStringLiteral("QLabel{border-image: url(") + normal +
           QStringLiteral(");}QLabel:disabled{border-image: url(") + disabled + QStringLiteral(");}");
}

QString writeImage(const QTemporaryDir& folder, const QString& name, const QColor& color)
{
    QImage image(24, 24, QImage::Format_RGB32);
    image.fill(color);
    const QString path = folder.filePath(name);
    return image.save(path) ? path : QString();
}

} // namespace

class TestWyImageButton : public QObject
{
    Q_OBJECT

private slots:
    void registersItsProperties();
    void bothConstructorsBuildTheSameView();
    void theIconStandsAtTheLeftInTheMiddle();
    void theIconStandsAtTheRightFromRightToLeft();
    void marginsOfTheHostsStay();
    void noStyleSheetIsAppliedAtFirst();
    void settingAPathStylesTheIcon();
    void pathsWithPercentSignsStayWhatTheyAre();
    void updateStyleStylesTheIconAnew();
    void propertiesReadAndWriteTheMembers();
    void sizeAndMarginHaveNoEffectAfterwards();
    void theIconShowsTheImageOfTheState();
    void aClickOnTheIconClicksTheButton();
    void aStyleSheetSetsThePaths();
    void worksOnWithoutIcon();
    void worksOnWithoutLayout();
};

void TestWyImageButton::registersItsProperties()
{
    WY_COMPARE_CONTRACT(WyImageButton, {}, {},
                        {"QSize iconSize", "QString iconNormal", "QString iconDisable", "int leftMargin"});
    const QMetaObject& metaObject = WyImageButton::staticMetaObject;
    for (int i = metaObject.propertyOffset(); i < metaObject.propertyCount(); ++i) {
        QVERIFY(metaObject.property(i).isReadable());
        QVERIFY(metaObject.property(i).isWritable());
        QVERIFY(!metaObject.property(i).hasNotifySignal());
    }
}

void TestWyImageButton::bothConstructorsBuildTheSameView()
{
    QWidget parent;
    const WyImageButton plain(&parent);
    const WyImageButton labelled(QStringLiteral("Open"), &parent);
    QCOMPARE(plain.text(), QString());
    QCOMPARE(labelled.text(), QStringLiteral("Open"));
    for (const WyImageButton* button : {&plain, &labelled}) {
        QCOMPARE(button->parentWidget(), &parent);
        QCOMPARE(button->property("iconSize").toSize(), QSize(24, 24));
        QCOMPARE(button->property("leftMargin").toInt(), 4);
        QCOMPARE(button->property("iconNormal").toString(), QString());
        QCOMPARE(button->property("iconDisable").toString(), QString());
        QVERIFY(icon(*button));
        QCOMPARE(icon(*button)->parentWidget(), button);
        QCOMPARE(icon(*button)->minimumSize(), QSize(24, 24));
        QCOMPARE(icon(*button)->maximumSize(), QSize(24, 24));
        auto* layout = qobject_cast<QHBoxLayout*>(button->layout());
        QVERIFY(layout);
        QCOMPARE(layout->contentsMargins(), QMargins(4, 0, 0, 0));
        QCOMPARE(layout->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
        QCOMPARE(layout->count(), 1);
        QCOMPARE(layout->itemAt(0)->widget(), icon(*button));
    }
}

void TestWyImageButton::theIconStandsAtTheLeftInTheMiddle()
{
    QWidget window;
    auto* button = new WyImageButton(QStringLiteral("Open"), &window);
    button->resize(120, 44);
    window.show();
    QCOMPARE(icon(*button)->geometry(), QRect(4, 10, 24, 24));
}

void TestWyImageButton::theIconStandsAtTheRightFromRightToLeft()
{
    QWidget window;
    auto* button = new WyImageButton(QStringLiteral("Open"), &window);
    button->resize(120, 44);
    window.setLayoutDirection(Qt::RightToLeft);
    window.show();
    QCOMPARE(icon(*button)->geometry(), QRect(120 - 4 - 24, 10, 24, 24));
    window.setLayoutDirection(Qt::LeftToRight);
    QTRY_COMPARE(icon(*button)->geometry(), QRect(4, 10, 24, 24));
}

void TestWyImageButton::marginsOfTheHostsStay()
{
    WyImageButton button;
    button.layout()->setContentsMargins(9, 1, 8, 2);
    button.setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(button.layout()->contentsMargins(), QMargins(9, 1, 8, 2));
    button.setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(button.layout()->contentsMargins(), QMargins(9, 1, 8, 2));
}

void TestWyImageButton::noStyleSheetIsAppliedAtFirst()
{
    QCOMPARE(icon(WyImageButton())->styleSheet(), QString());
}

void TestWyImageButton::settingAPathStylesTheIcon()
{
    WyImageButton button;
    button.setIconNormal(QStringLiteral(":/on.png"));
    QCOMPARE(icon(button)->styleSheet(), iconSheet(QStringLiteral(":/on.png"), QString()));
    button.setIconDisable(QStringLiteral(":/off.png"));
    QCOMPARE(icon(button)->styleSheet(), iconSheet(QStringLiteral(":/on.png"), QStringLiteral(":/off.png")));
    button.setIconNormal(QString());
    QCOMPARE(icon(button)->styleSheet(), iconSheet(QString(), QStringLiteral(":/off.png")));
    QCOMPARE(button.styleSheet(), QString());
}

void TestWyImageButton::pathsWithPercentSignsStayWhatTheyAre()
{
    WyImageButton button;
    button.setIconNormal(QStringLiteral(":/100%2.png"));
    button.setIconDisable(QStringLiteral(":/%1.png"));
    QCOMPARE(icon(button)->styleSheet(),
             iconSheet(QStringLiteral(":/100%2.png"), QStringLiteral(":/%1.png")));
}

void TestWyImageButton::updateStyleStylesTheIconAnew()
{
    WyImageButton button;
    button.UpdateStyle();
    QCOMPARE(icon(button)->styleSheet(), iconSheet(QString(), QString()));
    button.setIconNormal(QStringLiteral(":/on.png"));
    icon(button)->setStyleSheet(QString());
    button.UpdateStyle();
    QCOMPARE(icon(button)->styleSheet(), iconSheet(QStringLiteral(":/on.png"), QString()));
}

void TestWyImageButton::propertiesReadAndWriteTheMembers()
{
    WyImageButton button;
    QVERIFY(button.setProperty("iconNormal", QStringLiteral(":/on.png")));
    QVERIFY(button.setProperty("iconDisable", QStringLiteral(":/off.png")));
    QCOMPARE(button.property("iconNormal").toString(), QStringLiteral(":/on.png"));
    QCOMPARE(button.property("iconDisable").toString(), QStringLiteral(":/off.png"));
    QCOMPARE(icon(button)->styleSheet(), iconSheet(QStringLiteral(":/on.png"), QStringLiteral(":/off.png")));
    button.setIconNormal(QStringLiteral(":/new.png"));
    QCOMPARE(button.property("iconNormal").toString(), QStringLiteral(":/new.png"));
}

void TestWyImageButton::sizeAndMarginHaveNoEffectAfterwards()
{
    WyImageButton button;
    const QSize buttonIconSize = button.QPushButton::iconSize();
    QVERIFY(button.setProperty("iconSize", QSize(48, 40)));
    QVERIFY(button.setProperty("leftMargin", 30));
    button.UpdateStyle();
    QCOMPARE(button.property("iconSize").toSize(), QSize(48, 40));
    QCOMPARE(button.property("leftMargin").toInt(), 30);
    QCOMPARE(icon(button)->maximumSize(), QSize(24, 24));
    QCOMPARE(button.layout()->contentsMargins(), QMargins(4, 0, 0, 0));
    QCOMPARE(button.QPushButton::iconSize(), buttonIconSize);
}

void TestWyImageButton::theIconShowsTheImageOfTheState()
{
    QTemporaryDir folder;
    const QString red = writeImage(folder, QStringLiteral("on.png"), Qt::red);
    const QString blue = writeImage(folder, QStringLiteral("off.png"), Qt::blue);
    QVERIFY(!red.isEmpty() && !blue.isEmpty());
    WyImageButton button;
    button.setIconNormal(red);
    button.setIconDisable(blue);
    button.resize(120, 44);
    button.ensurePolished();
    const QImage expectedOn =
        WyTest::painted(QSize(24, 24), [](QPainter& painter) { painter.fillRect(0, 0, 24, 24, Qt::red); });
    const QImage expectedOff =
        WyTest::painted(QSize(24, 24), [](QPainter& painter) { painter.fillRect(0, 0, 24, 24, Qt::blue); });
    WY_COMPARE_PICTURES(WyTest::picture(icon(button)), expectedOn);
    button.setEnabled(false);
    WY_COMPARE_PICTURES(WyTest::picture(icon(button)), expectedOff);
    button.setEnabled(true);
    WY_COMPARE_PICTURES(WyTest::picture(icon(button)), expectedOn);
}

void TestWyImageButton::aClickOnTheIconClicksTheButton()
{
    QWidget window;
    auto* button = new WyImageButton(QStringLiteral("Open"), &window);
    button->resize(120, 44);
    window.show();
    QSignalSpy clicked(button, &QPushButton::clicked);
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(16, 22));
    QCOMPARE(clicked.count(), 1);
}

void TestWyImageButton::aStyleSheetSetsThePaths()
{
    WyImageButton button;
    button.setStyleSheet(QStringLiteral("WyWidgets--WyImageButton { qproperty-iconNormal: ':/on.png'; "
                                        "qproperty-iconDisable: ':/off.png'; }"));
    button.ensurePolished();
    QCOMPARE(icon(button)->styleSheet(), iconSheet(QStringLiteral(":/on.png"), QStringLiteral(":/off.png")));
}

void TestWyImageButton::worksOnWithoutIcon()
{
    WyImageButton button;
    delete icon(button);
    button.setIconNormal(QStringLiteral(":/on.png"));
    button.setIconDisable(QStringLiteral(":/off.png"));
    button.UpdateStyle();
    QCOMPARE(button.property("iconNormal").toString(), QStringLiteral(":/on.png"));
    QCOMPARE(button.property("iconDisable").toString(), QStringLiteral(":/off.png"));
}

void TestWyImageButton::worksOnWithoutLayout()
{
    WyImageButton button;
    delete button.layout();
    button.setIconNormal(QStringLiteral(":/on.png"));
    button.resize(120, 44);
    QCOMPARE(icon(button)->styleSheet(), iconSheet(QStringLiteral(":/on.png"), QString()));
}

QTEST_MAIN(TestWyImageButton)
#include "tst_wyimagebutton.moc"
