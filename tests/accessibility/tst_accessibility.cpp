#include "WyWidgets/frame/WyMoveableFrame.h"
#include "WyWidgets/frame/WyWindowBar.h"
#include "WyWidgets/layout/WySelectFrame.h"
#include "WyWidgets/wycontrol/WyClearEdit.h"
#include "WyWidgets/wycontrol/WyDotButton.h"
#include "WyWidgets/wycontrol/WyDotCheckBox.h"
#include "WyWidgets/wycontrol/WyDotLabel.h"
#include "WyWidgets/wycontrol/WyErrorWidget.h"
#include "WyWidgets/wycontrol/WyFlatTab.h"
#include "WyWidgets/wycontrol/WyFlatVTab.h"
#include "WyWidgets/wycontrol/WyGifButton.h"
#include "WyWidgets/wycontrol/WyGifLabel.h"
#include "WyWidgets/wycontrol/WyHandleSlider.h"
#include "WyWidgets/wycontrol/WyLoadBox.h"
#include "WyWidgets/wycontrol/WyPasswordEdit.h"
#include "WyWidgets/wycontrol/WySimpleToast.h"
#include "WyWidgets/wycontrol/WyTipWidget.h"
#include "WyWidgets/wycontrol/WyToast.h"
#include "WyWidgets/wycontrol/WyToastWidget.h"
#include "WyWidgets/wycontrol/WyWaitingBar.h"
#include "WyWidgets/wycontrol/WyWaitingSpinnerWidget.h"

#include <QAccessible>
#include <QLabel>
#include <QPushButton>
#include <QtTest>
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

using namespace WyWidgets;

namespace {

QAccessibleInterface* seen(QObject* object)
{
    return QAccessible::queryAccessibleInterface(object);
}

QString nameOf(QObject* object)
{
    return object ? seen(object)->text(QAccessible::Name) : QStringLiteral("there is no such object");
}

QWidget* part(const QWidget& widget, const char* objectName)
{
    return widget.findChild<QWidget*>(QLatin1String(objectName));
}

template <typename Start, typename Stop>
bool isBusyBetween(QWidget& widget, Start start, Stop stop)
{
    const QAccessibleInterface* interface = seen(&widget);
    const bool before = interface->state().busy;
    start();
    const bool meanwhile = interface->state().busy;
    stop();
    return !before && meanwhile && !interface->state().busy;
}

/// The events of one kind that assistive tools are told while this lives.
class Told
{
public:
    explicit Told(QAccessible::Event type)
    {
        s_type = type;
        s_objects.clear();
        s_values.clear();
        m_former = QAccessible::installUpdateHandler(note);
        setActive(true);
    }
    ~Told()
    {
        setActive(false);
        QAccessible::installUpdateHandler(m_former);
    }
    static QVector<QObject*> objects() { return s_objects; }
    static QVariantList values() { return s_values; }

private:
    static void setActive(bool active)
    {
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(active);
    }
    static void note(QAccessibleEvent* event)
    {
        if (event->type() != s_type)
            return;
        s_objects += event->object();
        if (event->type() == QAccessible::ValueChanged)
            s_values += static_cast<QAccessibleValueChangeEvent*>(event)->value();
    }

    static inline QAccessible::Event s_type;
    static inline QVector<QObject*> s_objects;
    static inline QVariantList s_values;
    QAccessible::UpdateHandler m_former;
};

} // namespace

/// What assistive tools are told of the controls, asked in the process.
class TestAccessibility : public QObject
{
    Q_OBJECT

private slots:
    void nothingIsInstalledAtLoad();
    void partsWithoutTextHaveNames();
    void theSliderHasAValue();
    void aValueSetFromOutsideCountsLikeADrag();
    void noValueFromOutsideGetsLost();
    void aSliderMayBeDeletedByAValueFromOutside();
    void theSliderTellsItsValue();
    void aDerivedSliderIsASliderToo();
    void whatMovesIsBusyWhileItMoves();
    void imagesWithoutANameOfTheHostsAreBusy();
    void tabsAreSelectedAndPressed();
    void tabsTellTheirMnemonics_data();
    void tabsTellTheirMnemonics();
    void theVerticalTabsAreTabsToo();
    void selectingATabIsTold();
    void otherPushButtonsStayPushButtons();
    void thePasswordSwitchTellsWhetherItIsOn();
    void floatingMessagesAreAlerts();
    void toastsAreToldAsAlerts();
    void theDividerIsASplitter();
};

void TestAccessibility::nothingIsInstalledAtLoad()
{
    // The first test of all: no control has been made yet.
    QPushButton button(QStringLiteral("Plain"));
    QCOMPARE(seen(&button)->role(), QAccessible::Button);
    class Impostor : public QWidget
    {
    } impostor;
    QCOMPARE(seen(&impostor)->role(), QAccessible::Client);
}

void TestAccessibility::partsWithoutTextHaveNames()
{
    WyWindowBar windowBar;
    windowBar.InitSysButton();
    QCOMPARE(nameOf(part(windowBar, "min_button")), QStringLiteral("Minimize"));
    QCOMPARE(nameOf(part(windowBar, "max_button")), QStringLiteral("Maximize or restore"));
    QCOMPARE(nameOf(part(windowBar, "close_button")), QStringLiteral("Close"));
    WyClearEdit clearEdit;
    QCOMPARE(nameOf(part(clearEdit, "edit_button_clear")), QStringLiteral("Clear"));
    WyPasswordEdit passwordEdit;
    QCOMPARE(nameOf(part(passwordEdit, "edit_psw_switch")), QStringLiteral("Show password"));
    WyDotButton dotButton;
    QCOMPARE(nameOf(part(dotButton, "label_dot")), QStringLiteral("New"));
    WyDotCheckBox dotCheckBox;
    QCOMPARE(nameOf(part(dotCheckBox, "label_dot")), QStringLiteral("New"));
    WyDotLabel dotLabel;
    QCOMPARE(nameOf(part(dotLabel, "label_dot")), QStringLiteral("New"));
    WyHandleSlider slider;
    QCOMPARE(nameOf(&slider), QStringLiteral("Position"));
    WyErrorWidget error;
    QCOMPARE(nameOf(part(error, "label_icon")), QStringLiteral("Error"));
    WySelectFrame frame(WySelectFrame::kType_Close);
    QCOMPARE(nameOf(&frame), QStringLiteral("Selection"));
    QCOMPARE(nameOf(part(frame, "button_close")), QStringLiteral("Close the selection"));
    QCOMPARE(nameOf(part(frame, "label_point")), QStringLiteral("Resize the selection"));
    WySelectFrame corners(WySelectFrame::kType_Corners);
    QCOMPARE(nameOf(part(corners, "label_move")), QStringLiteral("Move the selection"));
}

void TestAccessibility::theSliderHasAValue()
{
    WyHandleSlider slider;
    slider.SetMaxValue(240);
    slider.SetSliderPos(80);
    QAccessibleInterface* interface = seen(&slider);
    QCOMPARE(interface->role(), QAccessible::Slider);
    QCOMPARE(interface->childCount(), 0);
    QVERIFY(!interface->child(0));
    QAccessibleValueInterface* value = interface->valueInterface();
    QVERIFY(value);
    QCOMPARE(value->currentValue(), QVariant(qint64(80)));
    QCOMPARE(value->minimumValue(), QVariant(qint64(0)));
    QCOMPARE(value->maximumValue(), QVariant(qint64(240)));
    QCOMPARE(value->minimumStepSize(), QVariant(qint64(1)));
}

void TestAccessibility::aValueSetFromOutsideCountsLikeADrag()
{
    WyHandleSlider slider;
    slider.resize(216, 16);
    QAccessibleValueInterface* value = seen(&slider)->valueInterface();
    QSignalSpy changed(&slider, &WyHandleSlider::SignalPosChanged);
    value->setCurrentValue(40);
    QCOMPARE(slider.GetSliderPos(), 40);
    value->setCurrentValue(40); // no change, no signal
    value->setCurrentValue(400);
    QCOMPARE(slider.GetSliderPos(), 100);
    value->setCurrentValue(-7);
    QCOMPARE(slider.GetSliderPos(), 0);
    QCOMPARE(changed, (QList<QVariantList>{{qint64(40)}, {qint64(100)}, {qint64(0)}}));
}

void TestAccessibility::noValueFromOutsideGetsLost()
{
    WyHandleSlider slider;
    QAccessibleValueInterface* value = seen(&slider)->valueInterface();
    for (const qint64 maximum : {qint64(1), qint64(7), qint64(100), qint64(1000), qint64(3600000)}) {
        slider.SetMaxValue(maximum);
        const qint64 step = qMax<qint64>(1, maximum / 1000);
        for (qint64 chosen = 0; chosen <= maximum; chosen += step) {
            Told told(QAccessible::ValueChanged);
            value->setCurrentValue(chosen);
            QCOMPARE(value->currentValue(), QVariant(chosen));
            QCOMPARE(told.values(), QVariantList{chosen});
        }
    }
}

void TestAccessibility::aSliderMayBeDeletedByAValueFromOutside()
{
    QPointer<WyHandleSlider> slider = new WyHandleSlider;
    connect(slider, &WyHandleSlider::SignalPosChanged, this, [slider] { delete slider; });
    seen(slider)->valueInterface()->setCurrentValue(40);
    QVERIFY(!slider);
}

void TestAccessibility::theSliderTellsItsValue()
{
    WyHandleSlider slider;
    slider.resize(216, 16);
    Told told(QAccessible::ValueChanged);
    slider.SetSliderPos(30);
    slider.MoveToPos(100);
    slider.SetMaxValue(1000);
    QCOMPARE(told.objects(), (QVector<QObject*>{&slider, &slider, &slider}));
    QCOMPARE(told.values(), (QVariantList{qint64(30), qint64(50), qint64(500)}));
}

void TestAccessibility::aDerivedSliderIsASliderToo()
{
    class VolumeSlider : public WyHandleSlider
    {
    } slider;
    QCOMPARE(seen(&slider)->role(), QAccessible::Slider);
}

void TestAccessibility::whatMovesIsBusyWhileItMoves()
{
    WyWaitingSpinnerWidget spinner;
    QVERIFY(isBusyBetween(
        spinner, [&] { spinner.start(); }, [&] { spinner.stop(); }));
    QCOMPARE(seen(&spinner)->role(), QAccessible::Animation);
    WyWaitingBar bar;
    QVERIFY(isBusyBetween(
        bar, [&] { bar.start(); }, [&] { bar.stop(); }));
    QCOMPARE(seen(&bar)->role(), QAccessible::ProgressBar);
    WyGifLabel images;
    QVERIFY(isBusyBetween(
        images, [&] { images.start(); }, [&] { images.stop(); }));
    QCOMPARE(seen(&images)->role(), QAccessible::Animation);
    WyLoadBox box;
    QVERIFY(isBusyBetween(
        box, [&] { box.StartLoad(false); }, [&] { box.StopLoad(); }));
    QCOMPARE(seen(&box)->role(), QAccessible::Animation);
    for (QObject* widget : std::initializer_list<QObject*>{&spinner, &bar, &images, &box})
        QCOMPARE(nameOf(widget), QStringLiteral("Busy"));
}

void TestAccessibility::imagesWithoutANameOfTheHostsAreBusy()
{
    WyGifLabel label;
    QCOMPARE(label.accessibleName(), QString()); // nothing the host would have to take away
    QCOMPARE(nameOf(&label), QStringLiteral("Busy"));
    label.setAccessibleName(QStringLiteral("Searching"));
    QCOMPARE(nameOf(&label), QStringLiteral("Searching"));
}

void TestAccessibility::tabsAreSelectedAndPressed()
{
    WyFlatTab strip;
    strip.AddTab(QStringLiteral("&Files"));
    strip.AddTab(QStringLiteral("Branches"));
    strip.SelectTab(1);
    QAccessibleInterface* tabs = seen(&strip);
    QCOMPARE(tabs->role(), QAccessible::PageTabList);
    QCOMPARE(tabs->childCount(), 2); // without the underline
    QAccessibleInterface* first = tabs->child(0);
    QAccessibleInterface* second = tabs->child(1);
    QVERIFY(!tabs->child(2));
    QVERIFY(!tabs->child(-1));
    QCOMPARE(tabs->indexOfChild(second), 1);
    QCOMPARE(tabs->indexOfChild(tabs), -1);
    QCOMPARE(first->parent(), tabs);
    QCOMPARE(first->role(), QAccessible::PageTab);
    QCOMPARE(first->text(QAccessible::Name), QStringLiteral("Files"));
    QVERIFY(first->state().selectable);
    QVERIFY(!first->state().selected);
    QVERIFY(second->state().selected);

    QSignalSpy changed(&strip, &WyFlatTab::SignalSelectChanged);
    QVERIFY(first->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    first->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(changed, QList<QVariantList>({{0}}));
    QVERIFY(first->state().selected);
    QVERIFY(!second->state().selected);
}

void TestAccessibility::tabsTellTheirMnemonics_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("accelerator");
    QTest::newRow("none") << "Files"
                          << "Files"
                          << "";
    QTest::newRow("at the start") << "&Files"
                                  << "Files"
                                  << "Alt+F";
    QTest::newRow("within") << "F&iles"
                            << "Files"
                            << "Alt+I";
    QTest::newRow("ampersand") << "R&&D"
                               << "R&D"
                               << "";
    QTest::newRow("ampersand too") << "R&&&D"
                                   << "R&D"
                                   << "Alt+D";
    QTest::newRow("at the end") << "R&"
                                << "R"
                                << "";
}

void TestAccessibility::tabsTellTheirMnemonics()
{
    QFETCH(QString, text);
    QFETCH(QString, name);
    WyFlatTab strip;
    strip.AddTab(text);
    const QAccessibleInterface* tab = seen(&strip)->child(0);
    QCOMPARE(tab->text(QAccessible::Name), name);
    QTEST(tab->text(QAccessible::Accelerator), "accelerator");
}

void TestAccessibility::theVerticalTabsAreTabsToo()
{
    WyFlatVTab list;
    list.AddTab(QStringLiteral("General"));
    list.AddTab(QStringLiteral("Account"));
    const QAccessibleInterface* tabs = seen(&list);
    QCOMPARE(tabs->role(), QAccessible::PageTabList);
    QCOMPARE(tabs->childCount(), 2); // without bar and highlight
    QCOMPARE(tabs->child(1)->role(), QAccessible::PageTab);
    tabs->child(1)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QVERIFY(tabs->child(1)->state().selected);
}

void TestAccessibility::selectingATabIsTold()
{
    WyFlatTab strip;
    strip.AddTab(QStringLiteral("Files"));
    strip.AddTab(QStringLiteral("Branches"));
    const auto buttons = strip.findChildren<QPushButton*>();
    Told told(QAccessible::Selection);
    strip.SelectTab(1);
    buttons.at(0)->click();
    QCOMPARE(told.objects(), (QVector<QObject*>{buttons.at(1), buttons.at(0)}));
}

void TestAccessibility::otherPushButtonsStayPushButtons()
{
    WyFlatTab strip; // the interfaces are there now
    QWidget window;
    QPushButton button(QStringLiteral("Plain"), &window);
    QCOMPARE(seen(&button)->role(), QAccessible::Button);
    WyGifButton busyButton;
    QCOMPARE(seen(&busyButton)->role(), QAccessible::Button);
}

void TestAccessibility::thePasswordSwitchTellsWhetherItIsOn()
{
    WyPasswordEdit edit;
    QVERIFY(seen(&edit)->state().passwordEdit);
    auto* button = edit.findChild<QPushButton*>();
    const QAccessibleInterface* toggle = seen(button);
    QCOMPARE(toggle->role(), QAccessible::CheckBox);
    QVERIFY(toggle->state().checkable);
    QVERIFY(!toggle->state().checked);
    button->click();
    QVERIFY(toggle->state().checked);
    QVERIFY(!seen(&edit)->state().passwordEdit);
}

void TestAccessibility::floatingMessagesAreAlerts()
{
    WyToast toast(nullptr);
    QCOMPARE(seen(&toast)->role(), QAccessible::AlertMessage);
    WySimpleToast simpleToast(nullptr);
    QCOMPARE(seen(&simpleToast)->role(), QAccessible::AlertMessage);
    WyToastWidget textToast;
    QCOMPARE(seen(&textToast)->role(), QAccessible::AlertMessage);
    WyErrorWidget error;
    QCOMPARE(seen(&error)->role(), QAccessible::AlertMessage);
    WyTipWidget tip;
    QCOMPARE(seen(&tip)->role(), QAccessible::ToolTip);
}

void TestAccessibility::toastsAreToldAsAlerts()
{
    WyToast toast;
    WyToast waiting;
    WySimpleToast simpleToast;
    WyToast::setMaximumOnScreen(1);
    Told told(QAccessible::Alert);
    toast.show();
    waiting.show();
    simpleToast.show();
    WyToastWidget::ShowToastText(QPoint(10, 10), QStringLiteral("Saved"), 0);
    const QVector<QObject*> objects = told.objects();
    QCOMPARE(objects.mid(0, 2), (QVector<QObject*>{&toast, &simpleToast}));
    QCOMPARE(objects.size(), 3);
    QVERIFY(qobject_cast<WyToastWidget*>(objects.last()));
    WyToast::reset();
}

void TestAccessibility::theDividerIsASplitter()
{
    WyMoveableFrame divider(WyMoveableFrame::kDirection_H);
    QCOMPARE(seen(&divider)->role(), QAccessible::Splitter);
    QCOMPARE(nameOf(&divider), QStringLiteral("Divider"));
}

QTEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
