#include "WyWidgets/frame/WyDialog.h"

#include "WyWidgets/frame/WyDialogBar.h"

#include "support/Contract.h"
#include "support/Events.h"
#include "support/RecordingStyle.h"
#include "support/WindowAgents.h"

#include <QGraphicsDropShadowEffect>
#include <QGraphicsOpacityEffect>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QtTest>

using WyTest::agentsOf;
using WyTest::OnEvent;
using WyTest::RecordingStyle;
using WyWidgets::WyDialog;
using WyWidgets::WyDialogBar;

namespace {

class ExposedDialog : public WyDialog
{
    Q_OBJECT

public:
    using WyDialog::event;
    using WyDialog::nativeEvent;
    using WyDialog::WyDialog;
};

bool activate(WyDialog* dialog, bool active)
{
    QEvent event(active ? QEvent::WindowActivate : QEvent::WindowDeactivate);
    return QCoreApplication::sendEvent(dialog, &event);
}

QGraphicsDropShadowEffect* shadowOf(QWidget* panel)
{
    return qobject_cast<QGraphicsDropShadowEffect*>(panel->graphicsEffect());
}

QLabel* maskOf(QWidget& parent)
{
    const auto labels = parent.findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
    return labels.size() == 1 ? labels.first() : nullptr;
}

} // namespace

class TestWyDialog : public QObject
{
    Q_OBJECT

private slots:
    void registersItsSignalSlotAndColors();
    void startsEmptyWithInvalidColors();
    void hasTheFlagsOfAPlainDialog();
    void theShortConstructorInstallsAnAgent();
    void theLongConstructorInstallsAnAgentOnRequest();
    void anAgentMakesTheDialogFrameless_data();
    void anAgentMakesTheDialogFrameless();
    void installingAgainAddsAnAgent();
    void aDialogWithTwoAgentsStillWorks();
    void theContentWidgetIsTheDialogItself();
    void createContentBuildsThePanel();
    void createContentGivesThePanelAShadow();
    void theShadowKeepsItsDefaultColorUntilAnActivation();
    void aSecondCreateContentReturnsThePanel();
    void createContentUsesALayoutThatTheHostHasMade();
    void createContentAfterTheHostDeletedThePanel();
    void activationColorsTheShadow();
    void activationWithInvalidColorsReachesTheShadow();
    void settingAColorWaitsForTheNextActivation();
    void aStyleSheetSetsTheColors();
    void activationPolishesThePanelThroughTheDialogsStyle();
    void styleSheetsFollowTheActivation();
    void activationWithoutContentOrBarChangesNothing();
    void aDeletedPanelIsForgotten();
    void aDeletedShadowIsMadeAnew();
    void anotherEffectIsReplacedByAShadow();
    void aShadowOfTheHostIsColored();
    void theTitleBarIsMadeOnce();
    void theTitleBarIsConnectedOnce();
    void theTitleBarIsRegisteredWithTheAgent();
    void withoutAgentTheTitleBarIsRegisteredNowhere();
    void aCloseButtonAddedLaterIsRegisteredByShowing();
    void onlyShowingRegistersTheCloseButton();
    void otherChildrenOfTheBarAreRegisteredByTheHost();
    void aDeletedTitleBarIsMadeAnew();
    void onlyActivationsAreSignalled();
    void eventsAreHandledByQWidget();
    void nativeEventsAreLeftAlone();
    void aSlotMayDeleteTheDialog_data();
    void aSlotMayDeleteTheDialog();
    void aSlotMayDeletePanelAndBar();
    void theNewShadowColorMayEndThePanel();
    void theNewStateMayEndPanelOrBar_data();
    void theNewStateMayEndPanelOrBar();
    void theMaskCoversItsParent_data();
    void theMaskCoversItsParent();
    void aNullParentGetsNoMask();
    void hidingTheMaskDeletesItAtOnce();
    void hidingWithoutMaskDoesNothing();
    void theEndOfTheMaskMayAskForItOnceMore();
    void aNewMaskAfterHidingTakesTheNewParentAndName();
    void aMaskThatIsThereIsReusedAndOnlyResized();
    void theMaskGoesWithTheDialog();
    void closingKeepsTheMask();
    void theMaskMayDieWithItsParent();
    void escapeStillRejects();
};

void TestWyDialog::registersItsSignalSlotAndColors()
{
    WY_COMPARE_CONTRACT(WyDialog, {"SignalWindowActive(bool active)"}, {"SlotHideMask()"},
                        {"QColor shadowActiveColor", "QColor shadowDeactiveColor"});
    const QMetaObject& metaObject = WyDialog::staticMetaObject;
    for (int i = metaObject.propertyOffset(); i < metaObject.propertyCount(); ++i) {
        QVERIFY(metaObject.property(i).isReadable());
        QVERIFY(metaObject.property(i).isWritable());
        QVERIFY(!metaObject.property(i).hasNotifySignal());
    }
}

void TestWyDialog::startsEmptyWithInvalidColors()
{
    WyDialog dialog(nullptr);
    QVERIFY(dialog.findChildren<QWidget*>().isEmpty());
    QVERIFY(!dialog.layout());
    QVERIFY(!dialog.shadowActiveColor().isValid());
    QVERIFY(!dialog.shadowDeactiveColor().isValid());
    QVERIFY(!dialog.testAttribute(Qt::WA_TranslucentBackground));
}

void TestWyDialog::hasTheFlagsOfAPlainDialog()
{
    QWidget parent;
    const QDialog plain(&parent);
    QCOMPARE(WyDialog(&parent).windowFlags(), plain.windowFlags());
    QCOMPARE(WyDialog(false, &parent).windowFlags(), plain.windowFlags());
    QCOMPARE(WyDialog(&parent).parentWidget(), &parent);
}

void TestWyDialog::theShortConstructorInstallsAnAgent()
{
    WyDialog dialog(nullptr);
    QCOMPARE(agentsOf(&dialog).size(), 1);
    QVERIFY2(!agentsOf(&dialog).first()->setup(&dialog), "the agent is already set up");
}

void TestWyDialog::theLongConstructorInstallsAnAgentOnRequest()
{
    QCOMPARE(agentsOf(std::make_unique<WyDialog>(true, nullptr).get()).size(), 1);
    WyDialog dialog(false, nullptr);
    QVERIFY(agentsOf(&dialog).isEmpty());
    dialog.installWindowAgent(false);
    QVERIFY(agentsOf(&dialog).isEmpty());
    dialog.installWindowAgent(true);
    QCOMPARE(agentsOf(&dialog).size(), 1);
}

void TestWyDialog::anAgentMakesTheDialogFrameless_data()
{
    QTest::addColumn<bool>("agent");
    QTest::newRow("with agent") << true;
    QTest::newRow("without") << false;
}

void TestWyDialog::anAgentMakesTheDialogFrameless()
{
    QFETCH(bool, agent);
    WyDialog dialog(agent, nullptr);
    dialog.show();
    QCOMPARE(dialog.windowHandle()->flags().testFlag(Qt::FramelessWindowHint), agent);
}

void TestWyDialog::installingAgainAddsAnAgent()
{
    WyDialog dialog(nullptr);
    QWK::WidgetWindowAgent* const first = agentsOf(&dialog).first();
    dialog.installWindowAgent(true);
    QCOMPARE(agentsOf(&dialog).size(), 2);
    QVERIFY(agentsOf(&dialog).contains(first));
    WyDialogBar* bar = dialog.GetTitleBar();
    QVERIFY(!first->titleBar());
    QCOMPARE(agentsOf(&dialog).last()->titleBar(), bar);
}

void TestWyDialog::aDialogWithTwoAgentsStillWorks()
{
    WyDialog dialog(nullptr);
    dialog.installWindowAgent(true);
    dialog.createContent();
    dialog.GetTitleBar()->resize(200, 32);
    dialog.resize(300, 200);
    dialog.show();
    QTest::mouseClick(dialog.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(50, 16));
    QTest::mouseMove(dialog.windowHandle(), QPoint(1, 1));
    dialog.hide();
    dialog.show();
    QVERIFY(dialog.isVisible());
}

void TestWyDialog::theContentWidgetIsTheDialogItself()
{
    WyDialog dialog(nullptr);
    QCOMPARE(dialog.GetContentWidget(), &dialog);
    QVERIFY(dialog.createContent() != dialog.GetContentWidget());
}

void TestWyDialog::createContentBuildsThePanel()
{
    WyDialog dialog(nullptr);
    QWidget* panel = dialog.createContent();
    QVERIFY(panel);
    QCOMPARE(panel->metaObject()->className(), "QWidget");
    QCOMPARE(panel->objectName(), QStringLiteral("dialog_content"));
    QCOMPARE(panel->property("active"), QVariant(true));
    QCOMPARE(panel->parentWidget(), &dialog);
    auto* layout = qobject_cast<QVBoxLayout*>(dialog.layout());
    QVERIFY(layout);
    QVERIFY(layout->objectName().isEmpty());
    QCOMPARE(layout->contentsMargins(), QMargins(12, 12, 12, 12));
    QCOMPARE(layout->count(), 1);
    QCOMPARE(layout->itemAt(0)->widget(), panel);
    QVERIFY(dialog.testAttribute(Qt::WA_TranslucentBackground));
}

void TestWyDialog::createContentGivesThePanelAShadow()
{
    WyDialog dialog(nullptr);
    QGraphicsDropShadowEffect* shadow = shadowOf(dialog.createContent());
    QVERIFY(shadow);
    QCOMPARE(shadow->parent(), &dialog);
    QCOMPARE(shadow->offset(), QPointF(0, 0));
    QCOMPARE(shadow->blurRadius(), 24.0);
}

void TestWyDialog::theShadowKeepsItsDefaultColorUntilAnActivation()
{
    WyDialog dialog(nullptr);
    dialog.setShadowActiveColor(Qt::red);
    QGraphicsDropShadowEffect* shadow = shadowOf(dialog.createContent());
    QCOMPARE(shadow->color(), QGraphicsDropShadowEffect().color());
    dialog.setShadowActiveColor(Qt::blue);
    QCOMPARE(shadow->color(), QGraphicsDropShadowEffect().color());
}

void TestWyDialog::aSecondCreateContentReturnsThePanel()
{
    WyDialog dialog(nullptr);
    QWidget* panel = dialog.createContent();
    QCOMPARE(dialog.createContent(), panel);
    QCOMPARE(dialog.layout()->count(), 1);
    QCOMPARE(dialog.findChildren<QGraphicsDropShadowEffect*>().size(), 1);
    activate(&dialog, false);
    QCOMPARE(panel->property("active"), QVariant(false));
}

void TestWyDialog::createContentUsesALayoutThatTheHostHasMade()
{
    WyDialog dialog(nullptr);
    auto* layout = new QHBoxLayout(&dialog);
    QWidget* panel = dialog.createContent();
    QCOMPARE(dialog.layout(), layout);
    QCOMPARE(layout->contentsMargins(), QMargins(12, 12, 12, 12));
    QCOMPARE(layout->itemAt(0)->widget(), panel);
}

void TestWyDialog::createContentAfterTheHostDeletedThePanel()
{
    WyDialog dialog(nullptr);
    delete dialog.createContent();
    QWidget* panel = dialog.createContent();
    QVERIFY(panel);
    QCOMPARE(dialog.layout()->count(), 1);
    dialog.setShadowDeactiveColor(Qt::green);
    activate(&dialog, false);
    QCOMPARE(shadowOf(panel)->color(), QColor(Qt::green));
}

void TestWyDialog::activationColorsTheShadow()
{
    WyDialog dialog(nullptr);
    QWidget* panel = dialog.createContent();
    dialog.setShadowActiveColor(QColor(1, 2, 3, 4));
    dialog.setShadowDeactiveColor(QColor(5, 6, 7, 8));
    for (bool active : {true, false, true}) {
        activate(&dialog, active);
        QCOMPARE(shadowOf(panel)->color(), active ? QColor(1, 2, 3, 4) : QColor(5, 6, 7, 8));
        QCOMPARE(panel->property("active"), QVariant(active));
    }
    QCOMPARE(dialog.findChildren<QGraphicsDropShadowEffect*>().size(), 1);
}

void TestWyDialog::activationWithInvalidColorsReachesTheShadow()
{
    WyDialog dialog(nullptr);
    QWidget* panel = dialog.createContent();
    for (bool active : {true, false}) {
        shadowOf(panel)->setColor(Qt::red);
        activate(&dialog, active);
        QVERIFY(!shadowOf(panel)->color().isValid());
    }
}

void TestWyDialog::settingAColorWaitsForTheNextActivation()
{
    WyDialog dialog(nullptr);
    QWidget* panel = dialog.createContent();
    dialog.setShadowActiveColor(Qt::red);
    activate(&dialog, true);
    dialog.setProperty("shadowActiveColor", QColor(Qt::blue));
    dialog.setProperty("shadowDeactiveColor", QColor(Qt::green));
    QCOMPARE(dialog.shadowActiveColor(), QColor(Qt::blue));
    QCOMPARE(dialog.shadowDeactiveColor(), QColor(Qt::green));
    QCOMPARE(shadowOf(panel)->color(), QColor(Qt::red));
    activate(&dialog, true);
    QCOMPARE(shadowOf(panel)->color(), QColor(Qt::blue));
}

void TestWyDialog::aStyleSheetSetsTheColors()
{
    WyDialog dialog(nullptr);
    dialog.setStyleSheet(QStringLiteral("WyWidgets--WyDialog { qproperty-shadowActiveColor: #102030;"
                                        "qproperty-shadowDeactiveColor: #405060; }"));
    dialog.ensurePolished();
    QCOMPARE(dialog.shadowActiveColor(), QColor(0x10, 0x20, 0x30));
    QCOMPARE(dialog.shadowDeactiveColor(), QColor(0x40, 0x50, 0x60));
}

void TestWyDialog::activationPolishesThePanelThroughTheDialogsStyle()
{
    RecordingStyle dialogStyle;
    RecordingStyle panelStyle;
    WyDialog dialog(nullptr);
    QWidget* panel = dialog.createContent();
    dialog.setStyle(&dialogStyle);
    panel->setStyle(&panelStyle);
    dialog.ensurePolished();
    panel->ensurePolished();
    dialogStyle.calls.clear();
    panelStyle.calls.clear();
    activate(&dialog, false);
    QCOMPARE(dialogStyle.calls, QStringList(QStringLiteral("polish QWidget dialog_content active=false")));
    QVERIFY(panelStyle.calls.isEmpty());
}

void TestWyDialog::styleSheetsFollowTheActivation()
{
    WyDialog dialog(nullptr);
    dialog.setStyleSheet(QStringLiteral("#dialog_content { background: #00FF00; }"
                                        "#dialog_content[active=\"false\"] { background: #FF0000; }"));
    QWidget* panel = dialog.createContent();
    dialog.resize(100, 100);
    dialog.show();
    const auto middle = [&] {
        const QImage image = panel->grab().toImage();
        return image.pixelColor(image.rect().center());
    };
    activate(&dialog, true);
    QCOMPARE(middle(), QColor(0, 255, 0));
    activate(&dialog, false);
    QCOMPARE(middle(), QColor(255, 0, 0));
}

void TestWyDialog::activationWithoutContentOrBarChangesNothing()
{
    WyDialog dialog(nullptr);
    activate(&dialog, true);
    activate(&dialog, false);
    QVERIFY(dialog.findChildren<QWidget*>().isEmpty());
    QVERIFY(dialog.findChildren<QGraphicsEffect*>().isEmpty());
}

void TestWyDialog::aDeletedPanelIsForgotten()
{
    WyDialog dialog(nullptr);
    delete dialog.createContent();
    activate(&dialog, true);
    QVERIFY(dialog.findChildren<QGraphicsEffect*>().isEmpty());
}

void TestWyDialog::aDeletedShadowIsMadeAnew()
{
    WyDialog dialog(nullptr);
    QWidget* panel = dialog.createContent();
    dialog.setShadowActiveColor(Qt::red);
    delete panel->graphicsEffect();
    activate(&dialog, true);
    QCOMPARE(shadowOf(panel)->color(), QColor(Qt::red));
    QCOMPARE(shadowOf(panel)->blurRadius(), 24.0);
    panel->setGraphicsEffect(nullptr);
    activate(&dialog, true);
    QCOMPARE(shadowOf(panel)->color(), QColor(Qt::red));
}

void TestWyDialog::anotherEffectIsReplacedByAShadow()
{
    WyDialog dialog(nullptr);
    QWidget* panel = dialog.createContent();
    dialog.setShadowActiveColor(Qt::red);
    panel->setGraphicsEffect(new QGraphicsOpacityEffect);
    activate(&dialog, true);
    QVERIFY(shadowOf(panel));
    QCOMPARE(shadowOf(panel)->color(), QColor(Qt::red));
}

void TestWyDialog::aShadowOfTheHostIsColored()
{
    WyDialog dialog(nullptr);
    QWidget* panel = dialog.createContent();
    dialog.setShadowActiveColor(Qt::red);
    auto* own = new QGraphicsDropShadowEffect;
    own->setBlurRadius(5);
    panel->setGraphicsEffect(own);
    activate(&dialog, true);
    QCOMPARE(panel->graphicsEffect(), own);
    QCOMPARE(own->color(), QColor(Qt::red));
    QCOMPARE(own->blurRadius(), 5.0);
}

void TestWyDialog::theTitleBarIsMadeOnce()
{
    WyDialog dialog(nullptr);
    WyDialogBar* bar = dialog.GetTitleBar();
    QVERIFY(bar);
    QCOMPARE(dialog.GetTitleBar(), bar);
    QCOMPARE(bar->parentWidget(), &dialog);
    QCOMPARE(bar->minimumHeight(), 32);
    QCOMPARE(bar->maximumHeight(), 32);
    QCOMPARE(dialog.findChildren<WyDialogBar*>().size(), 1);
}

void TestWyDialog::theTitleBarIsConnectedOnce()
{
    RecordingStyle style;
    WyDialog dialog(nullptr);
    WyDialogBar* bar = dialog.GetTitleBar();
    dialog.GetTitleBar();
    delete bar->findChild<QLabel*>();
    bar->setStyle(&style);
    bar->ensurePolished();
    style.calls.clear();
    activate(&dialog, false);
    QCOMPARE(style.calls, QStringList(QStringLiteral("polish WyWidgets::WyDialogBar active=false")));
}

void TestWyDialog::theTitleBarIsRegisteredWithTheAgent()
{
    WyDialog dialog(nullptr);
    WyDialogBar* bar = dialog.GetTitleBar();
    QCOMPARE(agentsOf(&dialog).first()->titleBar(), bar);
}

void TestWyDialog::withoutAgentTheTitleBarIsRegisteredNowhere()
{
    WyDialog dialog(false, nullptr);
    WyDialogBar* bar = dialog.GetTitleBar();
    QVERIFY(bar);
    dialog.installWindowAgent(true);
    QCOMPARE(dialog.GetTitleBar(), bar);
    QVERIFY(!agentsOf(&dialog).first()->titleBar());
}

void TestWyDialog::aCloseButtonAddedLaterIsRegisteredByShowing()
{
    WyDialog dialog(nullptr);
    WyDialogBar* bar = dialog.GetTitleBar();
    auto* button = new QPushButton(bar);
    button->setObjectName(QStringLiteral("dialog_close"));
    QCOMPARE(dialog.GetTitleBar()->GetCloseButton(), button);
    QVERIFY(!agentsOf(&dialog).first()->isHitTestVisible(button));
    dialog.show();
    QVERIFY(agentsOf(&dialog).first()->isHitTestVisible(button));
}

void TestWyDialog::onlyShowingRegistersTheCloseButton()
{
    WyDialog dialog(nullptr);
    auto* button = new QPushButton(dialog.GetTitleBar());
    button->setObjectName(QStringLiteral("dialog_close"));
    for (const QEvent::Type type : {QEvent::Polish, QEvent::ParentChange, QEvent::Hide}) {
        QEvent event(type);
        QApplication::sendEvent(&dialog, &event);
    }
    QVERIFY(!agentsOf(&dialog).first()->isHitTestVisible(button));
}

void TestWyDialog::otherChildrenOfTheBarAreRegisteredByTheHost()
{
    WyDialog dialog(nullptr);
    auto* widget = new QWidget(dialog.GetTitleBar());
    dialog.show();
    QVERIFY(!agentsOf(&dialog).first()->isHitTestVisible(widget));
    dialog.registHitTestVisible(widget, true);
    QVERIFY(agentsOf(&dialog).first()->isHitTestVisible(widget));
    dialog.registHitTestVisible(widget, false);
    QVERIFY(!agentsOf(&dialog).first()->isHitTestVisible(widget));
    dialog.registHitTestVisible(nullptr, true);
    WyDialog(false, nullptr).registHitTestVisible(widget, true);
}

void TestWyDialog::aDeletedTitleBarIsMadeAnew()
{
    WyDialog dialog(nullptr);
    delete dialog.GetTitleBar();
    activate(&dialog, true);
    WyDialogBar* bar = dialog.GetTitleBar();
    QVERIFY(bar);
    QCOMPARE(agentsOf(&dialog).first()->titleBar(), bar);
    activate(&dialog, false);
    QCOMPARE(bar->property("active"), QVariant(false));
}

void TestWyDialog::onlyActivationsAreSignalled()
{
    WyDialog dialog(nullptr);
    QSignalSpy spy(&dialog, &WyDialog::SignalWindowActive);
    QWindowStateChangeEvent stateChange(Qt::WindowNoState);
    QFocusEvent focusIn(QEvent::FocusIn);
    QCoreApplication::sendEvent(&dialog, &stateChange);
    QCoreApplication::sendEvent(&dialog, &focusIn);
    for (QEvent::Type type : {QEvent::ActivationChange, QEvent::ApplicationActivate, QEvent::WindowBlocked}) {
        QEvent event(type);
        QCoreApplication::sendEvent(&dialog, &event);
    }
    QCOMPARE(spy.size(), 0);
    activate(&dialog, true);
    activate(&dialog, true);
    activate(&dialog, false);
    QCOMPARE(spy, QList<QVariantList>({{true}, {true}, {false}}));
}

void TestWyDialog::eventsAreHandledByQWidget()
{
    ExposedDialog dialog(nullptr);
    QWidget plain;
    for (QEvent::Type type : {QEvent::WindowActivate, QEvent::WindowDeactivate, QEvent::Polish,
                              QEvent::HelpRequest, QEvent::User}) {
        QEvent mine(type);
        QEvent reference(type);
        QCOMPARE(dialog.event(&mine), static_cast<QObject&>(plain).event(&reference));
        QCOMPARE(mine.isAccepted(), reference.isAccepted());
    }
}

void TestWyDialog::nativeEventsAreLeftAlone()
{
    ExposedDialog dialog(nullptr);
    long result = 42;
    QVERIFY(!dialog.nativeEvent("any_event", nullptr, &result));
    QCOMPARE(result, 42L);
}

void TestWyDialog::aSlotMayDeleteTheDialog_data()
{
    QTest::addColumn<bool>("active");
    QTest::newRow("activated") << true;
    QTest::newRow("deactivated") << false;
}

void TestWyDialog::aSlotMayDeleteTheDialog()
{
    QFETCH(bool, active);
    QPointer<WyDialog> dialog(new WyDialog(nullptr));
    dialog->createContent();
    dialog->GetTitleBar();
    connect(dialog, &WyDialog::SignalWindowActive, this, [dialog] { delete dialog; });
    QVERIFY(activate(dialog, active));
    QVERIFY(!dialog);
}

void TestWyDialog::aSlotMayDeletePanelAndBar()
{
    WyDialog dialog(nullptr);
    connect(&dialog, &WyDialog::SignalWindowActive, &dialog, [&] {
        delete dialog.findChild<QWidget*>(QStringLiteral("dialog_content"));
        delete dialog.findChild<WyDialogBar*>();
    });
    dialog.createContent();
    dialog.GetTitleBar();
    activate(&dialog, false);
    QVERIFY(dialog.findChildren<QWidget*>().isEmpty());
}

void TestWyDialog::theNewShadowColorMayEndThePanel()
{
    WyDialog dialog(nullptr);
    dialog.setShadowActiveColor(Qt::red);
    const QPointer<QWidget> panel = dialog.createContent();
    connect(shadowOf(panel), &QGraphicsDropShadowEffect::colorChanged, panel, &QObject::deleteLater);
    connect(shadowOf(panel), &QGraphicsDropShadowEffect::colorChanged, &dialog,
            [] { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); });
    activate(&dialog, true);
    QTRY_VERIFY(!panel);
}

void TestWyDialog::theNewStateMayEndPanelOrBar_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("the panel") << QStringLiteral("dialog_content");
    QTest::newRow("the bar") << QStringLiteral("bar");
    QTest::newRow("the title") << QStringLiteral("dialog_title");
}

void TestWyDialog::theNewStateMayEndPanelOrBar()
{
    QFETCH(QString, name);
    WyDialog dialog(nullptr);
    dialog.createContent();
    dialog.GetTitleBar()->setObjectName(QStringLiteral("bar"));
    const QPointer<QWidget> widget = dialog.findChild<QWidget*>(name);
    const OnEvent end(widget, QEvent::DynamicPropertyChange, [widget] { delete widget; });
    activate(&dialog, false);
    QVERIFY(!widget);
}

void TestWyDialog::theMaskCoversItsParent_data()
{
    QTest::addColumn<bool>("withMargin");
    QTest::newRow("label_mask_with_margin") << true;
    QTest::newRow("label_mask_no_margin") << false;
}

void TestWyDialog::theMaskCoversItsParent()
{
    QFETCH(bool, withMargin);
    QWidget parent;
    parent.setGeometry(30, 40, 320, 240);
    parent.show();
    WyDialog dialog(&parent);
    dialog.ShowMask(&parent, withMargin);
    QLabel* mask = parent.findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
    QVERIFY(mask);
    QCOMPARE(mask->objectName(), QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(mask->geometry(), QRect(0, 0, 320, 240));
    QVERIFY(mask->isVisible());
    QVERIFY(mask->text().isEmpty());
}

void TestWyDialog::aNullParentGetsNoMask()
{
    const int before = QApplication::allWidgets().size();
    WyDialog dialog(nullptr);
    dialog.ShowMask(nullptr, true);
    QCOMPARE(QApplication::allWidgets().size(), before + 1);
    QWidget parent;
    dialog.ShowMask(&parent, true);
    dialog.ShowMask(nullptr, true);
    QVERIFY(maskOf(parent));
}

void TestWyDialog::hidingTheMaskDeletesItAtOnce()
{
    QWidget parent;
    WyDialog dialog(nullptr);
    dialog.ShowMask(&parent, true);
    const QPointer<QLabel> mask = maskOf(parent);
    QVERIFY(mask);
    QVERIFY(QMetaObject::invokeMethod(&dialog, "SlotHideMask", Qt::DirectConnection));
    QVERIFY(!mask);
}

void TestWyDialog::hidingWithoutMaskDoesNothing()
{
    QWidget parent;
    WyDialog dialog(nullptr);
    dialog.SlotHideMask();
    dialog.ShowMask(&parent, true);
    dialog.SlotHideMask();
    dialog.SlotHideMask();
    QVERIFY(parent.children().isEmpty());
}

void TestWyDialog::theEndOfTheMaskMayAskForItOnceMore()
{
    QWidget parent;
    WyDialog dialog(nullptr);
    dialog.ShowMask(&parent, true);
    int ends = 0;
    connect(maskOf(parent), &QWidget::destroyed, &dialog, [&] { ++ends; });
    bool hasAsked = false;
    const OnEvent askAgain(maskOf(parent), QEvent::Destroy, [&] {
        hasAsked = true;
        dialog.SlotHideMask();
    });
    dialog.SlotHideMask();
    QVERIFY(hasAsked);
    QCOMPARE(ends, 1);
}

void TestWyDialog::aNewMaskAfterHidingTakesTheNewParentAndName()
{
    QWidget first;
    QWidget second;
    WyDialog dialog(nullptr);
    dialog.ShowMask(&first, true);
    dialog.SlotHideMask();
    dialog.ShowMask(&second, false);
    QVERIFY(!maskOf(first));
    QVERIFY(maskOf(second));
    QCOMPARE(maskOf(second)->objectName(), QStringLiteral("label_mask_no_margin"));
}

void TestWyDialog::aMaskThatIsThereIsReusedAndOnlyResized()
{
    QWidget first;
    first.resize(100, 100);
    QWidget second;
    second.resize(250, 150);
    WyDialog dialog(nullptr);
    dialog.ShowMask(&first, true);
    QLabel* mask = maskOf(first);
    mask->move(7, 7);
    mask->hide();
    dialog.ShowMask(&second, false);
    QCOMPARE(maskOf(first), mask);
    QVERIFY(!maskOf(second));
    QCOMPARE(mask->objectName(), QStringLiteral("label_mask_with_margin"));
    QCOMPARE(mask->geometry(), QRect(0, 0, 250, 150));
    QVERIFY(!mask->isHidden());
}

void TestWyDialog::theMaskGoesWithTheDialog()
{
    QWidget parent;
    auto dialog = std::make_unique<WyDialog>(&parent);
    dialog->ShowMask(&parent, true);
    const QPointer<QLabel> mask = maskOf(parent);
    QVERIFY(mask);
    dialog.reset();
    QVERIFY(!mask);
}

void TestWyDialog::closingKeepsTheMask()
{
    QWidget parent;
    parent.show();
    WyDialog dialog(&parent);
    dialog.ShowMask(&parent, true);
    dialog.show();
    dialog.close();
    QVERIFY(maskOf(parent));
    QVERIFY(maskOf(parent)->isVisible());
}

void TestWyDialog::theMaskMayDieWithItsParent()
{
    WyDialog dialog(nullptr);
    auto parent = std::make_unique<QWidget>();
    dialog.ShowMask(parent.get(), true);
    parent.reset();
    dialog.SlotHideMask();
    QWidget next;
    dialog.ShowMask(&next, false);
    QCOMPARE(maskOf(next)->objectName(), QStringLiteral("label_mask_no_margin"));
}

void TestWyDialog::escapeStillRejects()
{
    WyDialog dialog(nullptr);
    dialog.show();
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QCOMPARE(rejected.size(), 1);
    QVERIFY(!dialog.isVisible());
}

QTEST_MAIN(TestWyDialog)
#include "tst_wydialog.moc"
