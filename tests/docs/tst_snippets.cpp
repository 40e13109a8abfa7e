#include "Window.h"

#include "WyWidgets/wycontrol/WyFlatTab.h"
#include "WyWidgets/wycontrol/WyGifButton.h"
#include "WyWidgets/wycontrol/WyHandleSlider.h"
#include "WyWidgets/wycontrol/WyTipWidget.h"
#include "WyWidgets/wycontrol/WyToast.h"
#include "WyWidgets/wycontrol/WyWaitingSpinnerWidget.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

#include <memory>

using namespace WyWidgets;

namespace {

/// What a snippet makes that is not named after its class: it calls static functions, or shows styling.
const QStringList kNoClass = {QStringLiteral("WyTransWidget"), QStringLiteral("WyWidgetUtils"),
                              QStringLiteral("styling")};

const char* nthSnippet(int index)
{
    return Window::snippets().at(index).name;
}

} // namespace

class TestSnippets : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void everySnippetShowsItsClass_data();
    void everySnippetShowsItsClass();
    void theMainWindowIsFramedByItsBar();
    void theDialogTakesItsMaskAlongWhenItCloses();
    void aClickedLinkReachesTheWindow();
    void theBusyButtonRestsWhenTheUploadIsDone();
    void theSpinnerGivesTheFormBack();
    void aSeekReachesTheWindow();
    void aClickedTabOpensItsPage();
    void theToolTipIsWrappedAndTheStateSet();

private:
    template <typename Made>
    Made* made(QObject* (Window::*snippet)())
    {
        return qobject_cast<Made*>((m_window.get()->*snippet)());
    }

    std::unique_ptr<Window> m_window;
};

void TestSnippets::init()
{
    m_window = std::make_unique<Window>();
    m_window->resize(440, 300);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TestSnippets::cleanup()
{
    WyToast::reset();
    m_window.reset();
    qApp->setStyleSheet(QString());
    const QWidgetList left = QApplication::topLevelWidgets();
    for (QWidget* window : left)
        window->deleteLater();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void TestSnippets::everySnippetShowsItsClass_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < Window::snippets().size(); ++i)
        QTest::newRow(nthSnippet(i)) << i;
}

void TestSnippets::everySnippetShowsItsClass()
{
    QFETCH(int, index);
    const Window::Snippet& snippet = Window::snippets().at(index);
    const QPointer<QObject> made = (m_window.get()->*snippet.run)();
    QVERIFY(made);
    QCoreApplication::processEvents();
    QVERIFY(made);
    const QString className = QString::fromLatin1(snippet.name).section(QLatin1Char('-'), 0, 0);
    if (!kNoClass.contains(className)) {
        const QByteArray full = "WyWidgets::" + className.toLatin1();
        QCOMPARE(made->metaObject()->className(), full.constData());
    }
    // A child without layout shows with its parent only if it was there before; hosts build first, then show.
    if (auto* widget = qobject_cast<QWidget*>(made)) {
        if (!widget->isWindow() && widget->isHidden() &&
            !widget->testAttribute(Qt::WA_WState_ExplicitShowHide))
            widget->show();
        QTRY_VERIFY(widget->isVisible());
        QVERIFY(!widget->grab().isNull());
    }
}

void TestSnippets::theMainWindowIsFramedByItsBar()
{
    auto* window = made<QMainWindow>(&Window::mainWindow);
    QVERIFY(window->menuWidget()->isVisible());
    auto* close = window->findChild<QPushButton*>(QStringLiteral("close_button"));
    QTest::mouseClick(close, Qt::LeftButton);
    QVERIFY(!window->isVisible());
}

void TestSnippets::theDialogTakesItsMaskAlongWhenItCloses()
{
    auto* dialog = made<QDialog>(&Window::dialog);
    QVERIFY(m_window->findChild<QWidget*>(QStringLiteral("label_mask_no_margin")));
    dialog->findChild<QPushButton*>()->click();
    QCOMPARE(m_window->calls(), QStringList(QStringLiteral("save")));
    QVERIFY(!m_window->findChild<QWidget*>(QStringLiteral("label_mask_no_margin")));
}

void TestSnippets::aClickedLinkReachesTheWindow()
{
    auto* tip = made<WyTipWidget>(&Window::tipWidget);
    const auto links = tip->findChildren<QPushButton*>(QStringLiteral("button_link_underline"));
    QCOMPARE(links.size(), 2);
    QTest::mouseClick(links.at(0), Qt::LeftButton);
    QCOMPARE(m_window->calls(), QStringList(QStringLiteral("undo")));
}

void TestSnippets::theBusyButtonRestsWhenTheUploadIsDone()
{
    auto* button = made<WyGifButton>(&Window::gifButton);
    button->click();
    QVERIFY(!button->isEnabled());
    QCOMPARE(m_window->calls(), QStringList(QStringLiteral("upload")));
    emit m_window->uploaded();
    QVERIFY(button->isEnabled());
}

void TestSnippets::theSpinnerGivesTheFormBack()
{
    auto* spinner = made<WyWaitingSpinnerWidget>(&Window::waitingSpinner);
    QWidget* form = spinner->parentWidget();
    QVERIFY(!form->isEnabled());
    emit m_window->uploaded();
    QVERIFY(form->isEnabled());
    QVERIFY(!spinner->isSpinning());
}

void TestSnippets::aSeekReachesTheWindow()
{
    auto* slider = made<WyHandleSlider>(&Window::handleSlider);
    QCOMPARE(slider->GetSliderPos(), 1800);
    QCoreApplication::processEvents();
    QTest::mouseClick(slider, Qt::LeftButton, Qt::NoModifier, QPoint(slider->width() - 20, 8));
    QCOMPARE(m_window->calls(), QStringList(QStringLiteral("seek")));
}

void TestSnippets::aClickedTabOpensItsPage()
{
    auto* tabs = made<WyFlatTab>(&Window::flatTab);
    QCOMPARE(tabs->CurrentSelect(), 0);
    tabs->findChildren<QPushButton*>().at(2)->click();
    QCOMPARE(tabs->CurrentSelect(), 2);
    QCOMPARE(m_window->calls(), QStringList(QStringLiteral("openPage")));
}

void TestSnippets::theToolTipIsWrappedAndTheStateSet()
{
    QVERIFY(made<QPushButton>(&Window::widgetUtils)->toolTip().contains(QLatin1Char('\n')));
    qApp->setStyleSheet(QStringLiteral("QLabel[state=\"done\"] { color: #07BE8B; }"));
    auto* label = made<QLabel>(&Window::widgetUtilsStyle);
    QCOMPARE(label->property("state"), QVariant(QStringLiteral("done")));
    QCOMPARE(label->palette().color(QPalette::WindowText), QColor(QStringLiteral("#07BE8B")));
}

QTEST_MAIN(TestSnippets)
#include "tst_snippets.moc"
