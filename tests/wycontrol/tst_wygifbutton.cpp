#include "WyWidgets/wycontrol/WyGifButton.h"

#include "WyWidgets/wycontrol/WyWaitingSpinnerWidget.h"

#include "support/Contract.h"
#include "support/Events.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QtTest>

using WyWidgets::WyGifButton;
using WyWidgets::WyWaitingSpinnerWidget;

namespace {

QLabel* label(const WyGifButton& button)
{
    return button.findChild<QLabel*>(QStringLiteral("label_text"));
}

WyWaitingSpinnerWidget* spinner(const WyGifButton& button)
{
    return button.findChild<WyWaitingSpinnerWidget*>();
}

/// The label, the spinner or the button itself.
QWidget* partOf(WyGifButton& button, const QString& part)
{
    if (part == QLatin1String("label"))
        return label(button);
    if (part == QLatin1String("spinner"))
        return spinner(button);
    return &button;
}

/// A button in a shown window, laid out by a row with room to spare.
struct ShownButton
{
    ShownButton()
    {
        window.resize(600, 80);
        auto* row = new QHBoxLayout(&window);
        row->setSizeConstraint(QLayout::SetNoConstraint);
        row->addWidget(&button);
        row->addStretch(1);
        window.show();
    }
    /// A change of the button's parts reaches the row of the window in the round after next.
    void settle()
    {
        for (int round = 0; round < 3; ++round)
            QCoreApplication::processEvents();
    }
    QWidget window;
    WyGifButton& button = *new WyGifButton;
};

} // namespace

class TestWyGifButton : public QObject
{
    Q_OBJECT

private slots:
    void registersItsProperties();
    void restsWithHiddenParts();
    void theSpinnerIsSmallAndWhite();
    void theSpinnerDisablesTheButtonWhileItSpins();
    void textAndSpinnerAreCentredTogether();
    void aRestingButtonHasTheSizeOfAPlainOne();
    void propertiesAreOnlyStored();
    void setButtonTextShowsTheFirst();
    void startingShowsTheBusyTextBesideTheSpinner();
    void withoutABusyTextTheRestingTextIsShown();
    void startingAgainRepeatsTheSteps();
    void stoppingBringsTheRestingTextBack();
    void stoppingWhenNothingRunsShowsTheRestingText();
    void setButtonTextWhileBusyShowsTheFirst();
    void aSecondInitViewChangesNothing();
    void initViewLaysItsPartsOutAnew();
    void aBusyButtonHasRoomForItsTexts_data();
    void aBusyButtonHasRoomForItsTexts();
    void aBusyButtonHasAnAccessibleName();
    void itsAccessibleNameIsWhatIsRead_data();
    void itsAccessibleNameIsWhatIsRead();
    void aNameOfTheHostsStays();
    void worksOnWithoutParts_data();
    void worksOnWithoutParts();
    void mayBeDeletedWhileBusy();
    void mayBeStoppedWhileItStarts();
    void mayBeStartedWhileItStops_data();
    void mayBeStartedWhileItStops();
    void mayBeDeletedWhileItChanges_data();
    void mayBeDeletedWhileItChanges();
};

void TestWyGifButton::registersItsProperties()
{
    WY_COMPARE_CONTRACT(WyGifButton, {}, {}, {"QString gifPath", "int gifStep"});
}

void TestWyGifButton::restsWithHiddenParts()
{
    QWidget parent;
    WyGifButton button(&parent);
    QCOMPARE(button.parentWidget(), &parent);
    QCOMPARE(button.text(), QString());
    QVERIFY(button.isEnabled());
    QVERIFY(label(button));
    QVERIFY(label(button)->isHidden());
    QCOMPARE(label(button)->text(), QString());
    QVERIFY(spinner(button));
    QVERIFY(spinner(button)->isHidden());
    QVERIFY(!spinner(button)->isSpinning());
    QCOMPARE(button.property("gifPath").toString(), QString());
    QCOMPARE(button.property("gifStep").toInt(), 0);
}

void TestWyGifButton::theSpinnerIsSmallAndWhite()
{
    WyGifButton button;
    const WyWaitingSpinnerWidget* ring = spinner(button);
    QCOMPARE(ring->parentWidget(), &button);
    QCOMPARE(ring->roundness(), 70.0);
    QCOMPARE(ring->minimumTrailOpacity(), 15.0);
    QCOMPARE(ring->trailFadePercentage(), 70.0);
    QCOMPARE(ring->numberOfLines(), 8);
    QCOMPARE(ring->lineLength(), 4);
    QCOMPARE(ring->lineWidth(), 2);
    QCOMPARE(ring->innerRadius(), 4);
    QCOMPARE(ring->revolutionsPersSecond(), 1.0);
    QCOMPARE(ring->color(), QColor(255, 255, 255));
    QCOMPARE(ring->minimumSize(), QSize(16, 16));
    QCOMPARE(ring->maximumSize(), QSize(16, 16));
}

void TestWyGifButton::theSpinnerDisablesTheButtonWhileItSpins()
{
    WyGifButton button;
    spinner(button)->start();
    QVERIFY(!button.isEnabled());
    spinner(button)->stop();
    QVERIFY(button.isEnabled());
}

void TestWyGifButton::aRestingButtonHasTheSizeOfAPlainOne()
{
    QPixmap pixmap(24, 24);
    pixmap.fill(Qt::red);
    QPushButton plain(QIcon(pixmap), QStringLiteral("Save the document"));
    WyGifButton button;
    button.setIcon(QIcon(pixmap));
    button.SetButtonText(QStringLiteral("Save the document"),
                         QStringLiteral("Saving all the changes of today"));
    QCOMPARE(button.sizeHint(), plain.sizeHint());
    QCOMPARE(button.minimumSizeHint(), plain.minimumSizeHint());
}

void TestWyGifButton::textAndSpinnerAreCentredTogether()
{
    ShownButton shown;
    WyGifButton& button = shown.button;
    auto* row = qobject_cast<QHBoxLayout*>(button.layout());
    QVERIFY(row);
    QCOMPARE(row->spacing(), 10);
    QCOMPARE(row->contentsMargins(), QMargins());
    QCOMPARE(row->count(), 4);
    QVERIFY(row->itemAt(0)->spacerItem());
    QCOMPARE(row->itemAt(1)->widget(), label(button));
    QCOMPARE(row->itemAt(2)->widget(), spinner(button));
    QVERIFY(row->itemAt(3)->spacerItem());

    button.SetButtonText(QStringLiteral("Save"), QStringLiteral("Saving"));
    button.setFixedSize(200, 32);
    button.StartAnimation();
    QCoreApplication::processEvents();
    const int leftRoom = label(button)->x();
    const int rightRoom = 200 - (spinner(button)->x() + 16);
    QVERIFY(leftRoom > 0);
    QVERIFY(qAbs(leftRoom - rightRoom) <= 1);
    QCOMPARE(spinner(button)->x(), label(button)->geometry().right() + 1 + 10);
    QCOMPARE(spinner(button)->y(), 8);
}

void TestWyGifButton::propertiesAreOnlyStored()
{
    WyGifButton button;
    QVERIFY(button.setProperty("gifPath", QStringLiteral("/res/gif/")));
    QVERIFY(button.setProperty("gifStep", 24));
    QCOMPARE(button.property("gifPath").toString(), QStringLiteral("/res/gif/"));
    QCOMPARE(button.property("gifStep").toInt(), 24);
    QVERIFY(!spinner(button)->isSpinning());
}

void TestWyGifButton::setButtonTextShowsTheFirst()
{
    WyGifButton button;
    button.SetButtonText(QStringLiteral("Save"), QStringLiteral("Saving"));
    QCOMPARE(button.text(), QStringLiteral("Save"));
    QVERIFY(label(button)->isHidden());
}

void TestWyGifButton::startingShowsTheBusyTextBesideTheSpinner()
{
    WyGifButton button;
    button.SetButtonText(QStringLiteral("Save"), QStringLiteral("Saving"));
    button.StartAnimation();
    QCOMPARE(button.text(), QString());
    QVERIFY(!button.isEnabled());
    QCOMPARE(label(button)->text(), QStringLiteral("Saving"));
    QVERIFY(!label(button)->isHidden());
    QVERIFY(!spinner(button)->isHidden());
    QVERIFY(spinner(button)->isSpinning());
}

void TestWyGifButton::withoutABusyTextTheRestingTextIsShown()
{
    WyGifButton button;
    button.SetButtonText(QStringLiteral("Save"), QString());
    button.StartAnimation();
    QCOMPARE(label(button)->text(), QStringLiteral("Save"));
    QCOMPARE(button.text(), QString());
}

void TestWyGifButton::startingAgainRepeatsTheSteps()
{
    WyGifButton button;
    button.SetButtonText(QStringLiteral("Save"), QStringLiteral("Saving"));
    button.StartAnimation();
    button.setEnabled(true);
    button.SetButtonText(QStringLiteral("Send"), QStringLiteral("Sending"));
    button.StartAnimation();
    QVERIFY(!button.isEnabled());
    QCOMPARE(button.text(), QString());
    QCOMPARE(label(button)->text(), QStringLiteral("Sending"));
    QVERIFY(spinner(button)->isSpinning());
}

void TestWyGifButton::stoppingBringsTheRestingTextBack()
{
    WyGifButton button;
    button.SetButtonText(QStringLiteral("Save"), QStringLiteral("Saving"));
    button.StartAnimation();
    button.StopAnimation();
    QVERIFY(button.isEnabled());
    QCOMPARE(button.text(), QStringLiteral("Save"));
    QVERIFY(label(button)->isHidden());
    QVERIFY(spinner(button)->isHidden());
    QVERIFY(!spinner(button)->isSpinning());
}

void TestWyGifButton::stoppingWhenNothingRunsShowsTheRestingText()
{
    WyGifButton button;
    button.SetButtonText(QStringLiteral("Save"), QStringLiteral("Saving"));
    button.setText(QStringLiteral("Host's own"));
    button.setEnabled(false);
    button.StopAnimation();
    QVERIFY(button.isEnabled());
    QCOMPARE(button.text(), QStringLiteral("Save"));
}

void TestWyGifButton::setButtonTextWhileBusyShowsTheFirst()
{
    WyGifButton button;
    button.SetButtonText(QStringLiteral("Save"), QStringLiteral("Saving"));
    button.StartAnimation();
    button.SetButtonText(QStringLiteral("Send"), QStringLiteral("Sending"));
    QCOMPARE(button.text(), QStringLiteral("Send"));
    QCOMPARE(label(button)->text(), QStringLiteral("Saving"));
}

void TestWyGifButton::aSecondInitViewChangesNothing()
{
    WyGifButton button;
    const QObjectList children = button.children();
    button.InitView();
    QCOMPARE(button.children(), children);
    QCOMPARE(button.layout()->count(), 4);
}

void TestWyGifButton::initViewLaysItsPartsOutAnew()
{
    WyGifButton button;
    button.SetButtonText(QStringLiteral("Save"), QStringLiteral("Saving"));
    button.StartAnimation();
    delete button.layout();
    button.InitView();
    QCOMPARE(button.findChildren<QLabel*>(QStringLiteral("label_text")).size(), 1);
    QCOMPARE(button.findChildren<WyWaitingSpinnerWidget*>().size(), 1);
    QCOMPARE(button.layout()->count(), 4);
    QVERIFY(!label(button)->isHidden());
    QVERIFY(spinner(button)->isSpinning());
    delete button.layout();
    delete label(button);
    delete spinner(button);
    button.InitView();
    QVERIFY(label(button)->isHidden());
    QCOMPARE(button.layout()->itemAt(1)->widget(), label(button));
    QCOMPARE(button.layout()->itemAt(2)->widget(), spinner(button));
}

void TestWyGifButton::aBusyButtonHasRoomForItsTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("loadingText");
    QTest::newRow("longer busy text") << "OK"
                                      << "Saving all the changes of today";
    QTest::newRow("longer resting text") << "Save all the changes of today"
                                         << "…";
    QTest::newRow("no busy text") << "Save all the changes of today"
                                  << "";
    QTest::newRow("no text at all") << ""
                                    << "";
}

void TestWyGifButton::aBusyButtonHasRoomForItsTexts()
{
    QFETCH(QString, text);
    QFETCH(QString, loadingText);
    ShownButton shown;
    WyGifButton& button = shown.button;
    button.SetButtonText(text, loadingText);
    shown.settle();
    const int restingWidth = text.isEmpty() ? 0 : button.width();
    button.StartAnimation();
    shown.settle();
    QVERIFY(button.width() >= restingWidth);
    QCOMPARE(label(button)->width(), label(button)->sizeHint().width());
    QVERIFY(button.rect().contains(label(button)->geometry()));
    QVERIFY(button.rect().contains(spinner(button)->geometry()));
    button.StopAnimation();
    shown.settle();
    if (!text.isEmpty())
        QCOMPARE(button.width(), restingWidth);
}

void TestWyGifButton::aBusyButtonHasAnAccessibleName()
{
    WyGifButton button;
    button.SetButtonText(QStringLiteral("Save"), QStringLiteral("Saving"));
    QCOMPARE(button.accessibleName(), QString());
    button.StartAnimation();
    QCOMPARE(button.accessibleName(), QStringLiteral("Saving"));
    button.SetButtonText(QStringLiteral("Send"), QStringLiteral("Sending"));
    button.StartAnimation();
    QCOMPARE(button.accessibleName(), QStringLiteral("Sending"));
    button.StopAnimation();
    QCOMPARE(button.accessibleName(), QString());
}

void TestWyGifButton::itsAccessibleNameIsWhatIsRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("loadingText");
    QTest::addColumn<QString>("name");
    QTest::newRow("mnemonic") << "&Save"
                              << ""
                              << "Save";
    QTest::newRow("ampersand") << "R&&D"
                               << ""
                               << "R&D";
    QTest::newRow("busy ampersand") << "&Save"
                                    << "Saving for R&D"
                                    << "Saving for R&D";
    QTest::newRow("rich text") << "Save"
                               << "<b>Saving</b>"
                               << "Saving";
}

void TestWyGifButton::itsAccessibleNameIsWhatIsRead()
{
    QFETCH(QString, text);
    QFETCH(QString, loadingText);
    WyGifButton button;
    button.SetButtonText(text, loadingText);
    button.StartAnimation();
    QTEST(button.accessibleName(), "name");
}

void TestWyGifButton::aNameOfTheHostsStays()
{
    WyGifButton button;
    button.setAccessibleName(QStringLiteral("Save the document"));
    button.SetButtonText(QStringLiteral("Save"), QStringLiteral("Saving"));
    button.StartAnimation();
    QCOMPARE(button.accessibleName(), QStringLiteral("Save the document"));
    button.StopAnimation();
    QCOMPARE(button.accessibleName(), QStringLiteral("Save the document"));
}

void TestWyGifButton::worksOnWithoutParts_data()
{
    QTest::addColumn<QString>("part");
    QTest::newRow("label") << "label";
    QTest::newRow("spinner") << "spinner";
    QTest::newRow("layout") << "layout";
}

void TestWyGifButton::worksOnWithoutParts()
{
    QFETCH(QString, part);
    ShownButton shown;
    WyGifButton& button = shown.button;
    button.SetButtonText(QStringLiteral("Save"), QStringLiteral("Saving"));
    if (part == QLatin1String("label"))
        delete label(button);
    else if (part == QLatin1String("spinner"))
        delete spinner(button);
    else
        delete button.layout();
    button.StartAnimation();
    QCoreApplication::processEvents();
    QVERIFY(!button.isEnabled());
    button.StopAnimation();
    QVERIFY(button.isEnabled());
    QCOMPARE(button.text(), QStringLiteral("Save"));
}

void TestWyGifButton::mayBeDeletedWhileBusy()
{
    auto* button = new WyGifButton;
    button->SetButtonText(QStringLiteral("Save"), QStringLiteral("Saving"));
    button->StartAnimation();
    QSignalSpy deleted(button, &QObject::destroyed);
    delete button;
    QCoreApplication::processEvents();
    QCOMPARE(deleted.count(), 1);
}

void TestWyGifButton::mayBeStoppedWhileItStarts()
{
    ShownButton shown;
    WyGifButton& button = shown.button;
    button.SetButtonText(QStringLiteral("Save"), QStringLiteral("Saving"));
    bool isStopped = false;
    const WyTest::OnEvent onDisabled(&button, QEvent::EnabledChange, [&button, &isStopped] {
        if (!std::exchange(isStopped, true))
            button.StopAnimation();
    });
    button.StartAnimation();
    QVERIFY(button.isEnabled());
    QCOMPARE(button.text(), QStringLiteral("Save"));
    QCOMPARE(button.accessibleName(), QString());
    QVERIFY(label(button)->isHidden());
    QVERIFY(!spinner(button)->isSpinning());
}

void TestWyGifButton::mayBeStartedWhileItStops_data()
{
    QTest::addColumn<QString>("part");
    QTest::addColumn<QEvent::Type>("event");
    QTest::newRow("button enabled") << "button" << QEvent::EnabledChange;
    QTest::newRow("text hidden") << "label" << QEvent::HideToParent;
    QTest::newRow("spinner hidden") << "spinner" << QEvent::HideToParent;
}

void TestWyGifButton::mayBeStartedWhileItStops()
{
    QFETCH(QString, part);
    QFETCH(QEvent::Type, event);
    ShownButton shown;
    WyGifButton& button = shown.button;
    button.SetButtonText(QStringLiteral("Save"), QStringLiteral("Saving"));
    button.StartAnimation();
    const WyTest::OnEvent onEvent(partOf(button, part), event, [&button] { button.StartAnimation(); });
    button.StopAnimation();
    QVERIFY(!button.isEnabled());
    QCOMPARE(button.text(), QString());
    QCOMPARE(button.accessibleName(), QStringLiteral("Saving"));
    QVERIFY(label(button)->isVisible());
    QVERIFY(spinner(button)->isSpinning());
}

void TestWyGifButton::mayBeDeletedWhileItChanges_data()
{
    QTest::addColumn<bool>("starts");
    QTest::addColumn<QString>("part");
    QTest::addColumn<QEvent::Type>("event");
    QTest::newRow("button disabled") << true << "button" << QEvent::EnabledChange;
    QTest::newRow("text shown") << true << "label" << QEvent::ShowToParent;
    QTest::newRow("button enabled") << false << "button" << QEvent::EnabledChange;
    QTest::newRow("text hidden") << false << "label" << QEvent::HideToParent;
    QTest::newRow("spinner hidden") << false << "spinner" << QEvent::HideToParent;
}

void TestWyGifButton::mayBeDeletedWhileItChanges()
{
    QFETCH(bool, starts);
    QFETCH(QString, part);
    QFETCH(QEvent::Type, event);
    ShownButton shown;
    const QPointer<WyGifButton> button = &shown.button;
    if (!starts)
        button->StartAnimation();
    const WyTest::OnEvent onEvent(partOf(*button, part), event, [button] { delete button; });
    if (starts)
        button->StartAnimation();
    else
        button->StopAnimation();
    QVERIFY(!button);
}

QTEST_MAIN(TestWyGifButton)
#include "tst_wygifbutton.moc"
