#include "guide/NotesWindow.h"

#include "WyWidgets/wycontrol/WyTipWidget.h"
#include "WyWidgets/wycontrol/WyToast.h"
#include "WyWidgets/wycontrol/WyWaitingSpinnerWidget.h"

#include <QApplication>
#include <QPushButton>
#include <QTextEdit>
#include <QtTest>

#include <algorithm>
#include <memory>

using namespace WyWidgets;

namespace {

QPushButton* buttonWith(const QWidget& window, const QString& text)
{
    const auto buttons = window.findChildren<QPushButton*>();
    const auto found = std::find_if(buttons.begin(), buttons.end(),
                                    [&](const QPushButton* button) { return button->text() == text; });
    return found == buttons.end() ? nullptr : *found;
}

} // namespace

/// The application of the guide does what the guide says.
class TestGuide : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void savingShowsASpinnerAndThenAToast();
    void clearingCanBeUndone();
    void theThemeSwitchesBackAndForth();
    void theSystemButtonsWork();

private:
    void click(const char* text);

    std::unique_ptr<NotesWindow> m_window;
};

void TestGuide::init()
{
    NotesWindow::applyTheme(QStringLiteral("light"));
    m_window = std::make_unique<NotesWindow>();
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TestGuide::cleanup()
{
    WyToast::reset();
    m_window.reset();
}

void TestGuide::click(const char* text)
{
    QPushButton* button = buttonWith(*m_window, QLatin1String(text));
    QVERIFY2(button, text);
    QTest::mouseClick(button, Qt::LeftButton);
}

void TestGuide::savingShowsASpinnerAndThenAToast()
{
    auto* editor = m_window->findChild<QTextEdit*>();
    auto* spinner = m_window->findChild<WyWaitingSpinnerWidget*>();
    QVERIFY(spinner->isHidden());
    click("Save");
    QVERIFY(spinner->isSpinning());
    QVERIFY(!editor->isEnabled());
    QCOMPARE(WyToast::getVisibleCount(), 0);
    QTRY_COMPARE(WyToast::getVisibleCount(), 1);
    QVERIFY(!spinner->isSpinning());
    QVERIFY(editor->isEnabled());
    QCOMPARE(m_window->findChild<WyToast*>()->getTitle(), QStringLiteral("Saved"));
}

void TestGuide::clearingCanBeUndone()
{
    auto* editor = m_window->findChild<QTextEdit*>();
    QTest::keyClicks(editor, QStringLiteral("milk"));
    click("Clear");
    QCOMPARE(editor->toPlainText(), QString());
    auto* tip = m_window->findChild<WyTipWidget*>();
    QVERIFY(tip->isVisible());
    QTest::mouseClick(buttonWith(*tip, QStringLiteral("Undo")), Qt::LeftButton);
    QCOMPARE(editor->toPlainText(), QStringLiteral("milk"));
    QTRY_VERIFY(!m_window->findChild<WyTipWidget*>());
}

void TestGuide::theThemeSwitchesBackAndForth()
{
    const QString light = qApp->styleSheet();
    QVERIFY(!light.isEmpty());
    click("Theme");
    QVERIFY(!qApp->styleSheet().isEmpty());
    QVERIFY(qApp->styleSheet() != light);
    click("Theme");
    QCOMPARE(qApp->styleSheet(), light);
}

void TestGuide::theSystemButtonsWork()
{
    auto* maximise = m_window->findChild<QPushButton*>(QStringLiteral("max_button"));
    QTest::mouseClick(maximise, Qt::LeftButton);
    QTRY_VERIFY(m_window->isMaximized());
    QTest::mouseClick(maximise, Qt::LeftButton);
    QTRY_VERIFY(!m_window->isMaximized());
    QTest::mouseClick(m_window->findChild<QPushButton*>(QStringLiteral("close_button")), Qt::LeftButton);
    QVERIFY(!m_window->isVisible());
}

QTEST_MAIN(TestGuide)
#include "tst_guide.moc"
