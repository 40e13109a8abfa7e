#include "GalleryPage.h"
#include "GalleryWindow.h"
#include "KnobPanel.h"
#include "PageTile.h"
#include "Pages.h"
#include "Snippet.h"
#include "Theme.h"

#include <WyWidgets/wycontrol/WyToast.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QSpinBox>
#include <QStackedWidget>
#include <QWheelEvent>
#include <QtTest>

namespace {

constexpr int kPictureMs = 300;

template <typename Widget>
Widget* child(const QWidget& parent, const char* objectName)
{
    return parent.findChild<Widget*>(QLatin1String(objectName));
}

QStringList shownRows(const GalleryWindow& window)
{
    auto* navigation = child<QListWidget>(window, "gallery_navigation");
    QStringList names;
    for (int row = 0; row < navigation->count(); ++row) {
        if (!navigation->item(row)->isHidden())
            names += navigation->item(row)->text();
    }
    return names;
}

QString currentRow(const GalleryWindow& window)
{
    return child<QListWidget>(window, "gallery_navigation")->currentItem()->text();
}

QString withoutIndentation(const QString& code)
{
    QStringList lines = code.split(QLatin1Char('\n'));
    for (QString& line : lines)
        line = line.trimmed();
    return lines.join(QLatin1Char('\n'));
}

void clickAction(const QWidget& page, const QString& text)
{
    const auto buttons = page.findChildren<QPushButton*>(QStringLiteral("gallery_action"));
    for (QPushButton* button : buttons) {
        if (button->text() == text)
            button->click();
    }
}

} // namespace

class TestGallery : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyPageHasANameClassesAndAnIcon();
    void everyPageCanBePhotographedInBothThemes_data();
    void everyPageCanBePhotographedInBothThemes();
    void pagesOpenByNameWhateverTheCase();
    void unknownThemesAreRefused();
    void theThemeButtonSwitchesBackAndForth();
    void theSearchFindsPagesAndClasses_data();
    void theSearchFindsPagesAndClasses();
    void theSearchOpensTheFirstPageItFinds();
    void theSearchIsWorkedByKeyboard();
    void aTileOpensItsPage();
    void everySnippetIsOneThatIsCompiled_data();
    void everySnippetIsOneThatIsCompiled();
    void unknownSnippetsAreEmpty();
    void theCopyButtonCopiesTheSnippet();
    void theWheelTurnsOnlyAKnobInFocus();
    void onlyTheFirstActionOfAPanelStandsOut();
    void theMaximiseButtonFollowsTheWindow();
    void aBurstOfToastsWaitsForItsTurn();
    void aToastMayHaveAParentAcrossScreens();
};

void TestGallery::initTestCase()
{
    QVERIFY(Theme::apply(QStringLiteral("light")));
}

void TestGallery::everyPageHasANameClassesAndAnIcon()
{
    QSet<QString> names;
    const QVector<PageEntry> pages = allPages();
    for (const PageEntry& page : pages) {
        QVERIFY(!page.name.isEmpty());
        QVERIFY2(!names.contains(page.name), qPrintable(page.name));
        names += page.name;
        QVERIFY2(!page.classes.isEmpty() || page.name == QLatin1String("Welcome"), qPrintable(page.name));
        for (const char* theme : {"light", "dark"}) {
            const QString file =
                QStringLiteral(":/themes/icons/%1/%2.png").arg(QLatin1String(theme), page.icon);
            QVERIFY2(QFile::exists(file), qPrintable(page.name + QStringLiteral(": ") + file));
        }
    }
}

void TestGallery::everyPageCanBePhotographedInBothThemes_data()
{
    QTest::addColumn<QString>("page");
    const QVector<PageEntry> pages = allPages();
    for (const PageEntry& page : pages)
        QTest::newRow(qPrintable(page.name)) << page.name;
}

void TestGallery::everyPageCanBePhotographedInBothThemes()
{
    QFETCH(QString, page);
    GalleryWindow window;
    QVERIFY(window.applyTheme(QStringLiteral("light")));
    window.show();
    QVERIFY(window.openPage(page));
    QVERIFY(window.currentPage());
    QCOMPARE(currentRow(window), page);
    window.currentPage()->prepareForPicture();
    QTest::qWait(kPictureMs);
    const QImage light = window.grab().toImage();
    QVERIFY(window.applyTheme(QStringLiteral("dark")));
    QTest::qWait(kPictureMs);
    QVERIFY(window.grab().toImage() != light);
    window.currentPage()->endPicture();
    QVERIFY(window.applyTheme(QStringLiteral("light")));
}

void TestGallery::pagesOpenByNameWhateverTheCase()
{
    GalleryWindow window;
    QVERIFY(window.openPage(QStringLiteral("WINDOWS")));
    QCOMPARE(currentRow(window), QStringLiteral("Windows"));
    QVERIFY(!window.openPage(QStringLiteral("no such page")));
    QCOMPARE(currentRow(window), QStringLiteral("Windows"));
}

void TestGallery::unknownThemesAreRefused()
{
    GalleryWindow window;
    const QString before = qApp->styleSheet();
    QVERIFY(!window.applyTheme(QStringLiteral("purple")));
    QVERIFY(!window.applyTheme(QString()));
    QCOMPARE(qApp->styleSheet(), before);
    QCOMPARE(Theme::current(), QStringLiteral("light"));
}

void TestGallery::theThemeButtonSwitchesBackAndForth()
{
    GalleryWindow window;
    window.applyTheme(QStringLiteral("light"));
    auto* button = child<QPushButton>(window, "gallery_theme_button");
    QCOMPARE(button->accessibleName(), QStringLiteral("Switch to the dark theme"));
    button->click();
    QCOMPARE(Theme::current(), QStringLiteral("dark"));
    QCOMPARE(button->toolTip(), QStringLiteral("Switch to the light theme"));
    button->click();
    QCOMPARE(Theme::current(), QStringLiteral("light"));
}

void TestGallery::theSearchFindsPagesAndClasses_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QStringList>("found");
    QTest::newRow("name") << QStringLiteral("window") << QStringList(QStringLiteral("Windows"));
    QTest::newRow("class") << QStringLiteral("wydialogbar") << QStringList(QStringLiteral("Windows"));
    QTest::newRow("two words") << QStringLiteral(" flow  lay ") << QStringList(QStringLiteral("Flow layout"));
    QTest::newRow("nothing") << QStringLiteral("xyzzy") << QStringList();
}

void TestGallery::theSearchFindsPagesAndClasses()
{
    QFETCH(QString, words);
    QFETCH(QStringList, found);
    GalleryWindow window;
    window.show();
    auto* search = child<QLineEdit>(window, "gallery_search");
    search->setText(words);
    QCOMPARE(shownRows(window), found);
    QCOMPARE(child<QLabel>(window, "gallery_nothing_found")->isVisible(), found.isEmpty());
    search->clear();
    QCOMPARE(shownRows(window).size(), allPages().size());
    QVERIFY(!child<QLabel>(window, "gallery_nothing_found")->isVisible());
}

void TestGallery::theSearchOpensTheFirstPageItFinds()
{
    GalleryWindow window;
    auto* search = child<QLineEdit>(window, "gallery_search");
    search->setText(QStringLiteral("WySelectFrame"));
    QCOMPARE(currentRow(window), QStringLiteral("Selection"));
    search->setText(QStringLiteral("xyzzy"));
    QCOMPARE(currentRow(window), QStringLiteral("Selection"));
}

void TestGallery::theSearchIsWorkedByKeyboard()
{
    GalleryWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    auto* search = child<QLineEdit>(window, "gallery_search");
    QTest::keySequence(&window, QKeySequence(QKeySequence::Find));
    QTRY_VERIFY(search->hasFocus());
    const QStringList names = shownRows(window);
    QTest::keyClick(search, Qt::Key_Down);
    QCOMPARE(currentRow(window), names.at(1));
    QTest::keyClick(search, Qt::Key_Up);
    QTest::keyClick(search, Qt::Key_Up);
    QCOMPARE(currentRow(window), names.at(0));
    QTest::keyClicks(search, QStringLiteral("bu"));
    QVERIFY(shownRows(window).size() < names.size());
    QTest::keyClick(search, Qt::Key_Escape);
    QCOMPARE(shownRows(window), names);
    QTest::keyClick(search, Qt::Key_Return);
    QVERIFY(child<QListWidget>(window, "gallery_navigation")->hasFocus());
}

void TestGallery::aTileOpensItsPage()
{
    GalleryWindow window;
    const auto tiles = window.currentPage()->findChildren<PageTile*>();
    QCOMPARE(tiles.size(), allPages().size() - 1);
    tiles.first()->click();
    QCOMPARE(currentRow(window), tiles.first()->accessibleName());
}

void TestGallery::everySnippetIsOneThatIsCompiled_data()
{
    everyPageCanBePhotographedInBothThemes_data();
}

void TestGallery::everySnippetIsOneThatIsCompiled()
{
    QFETCH(QString, page);
    QString compiled;
    const QFileInfoList sources = QDir(QStringLiteral(":/snippets")).entryInfoList(QDir::Files);
    QVERIFY(!sources.isEmpty());
    for (const QFileInfo& info : sources) {
        QFile source(info.filePath());
        QVERIFY(source.open(QIODevice::ReadOnly));
        compiled += withoutIndentation(QString::fromUtf8(source.readAll()));
    }
    GalleryWindow window;
    QVERIFY(window.openPage(page));
    const auto codes = window.currentPage()->findChildren<QPlainTextEdit*>(QStringLiteral("gallery_snippet"));
    QVERIFY(!codes.isEmpty());
    for (const QPlainTextEdit* code : codes)
        QVERIFY2(compiled.contains(withoutIndentation(code->toPlainText())), qPrintable(code->toPlainText()));
}

void TestGallery::unknownSnippetsAreEmpty()
{
    QCOMPARE(snippet(QStringLiteral("WyNothing")), QString());
    const QString known = snippet(QStringLiteral("WyFlowLayout"));
    QVERIFY(known.startsWith(QLatin1String("//")));
    QVERIFY(known.contains(QLatin1String("\n    flow->addWidget")));
}

void TestGallery::theCopyButtonCopiesTheSnippet()
{
    GalleryPage page(QStringLiteral("Heading"), QStringLiteral("Introduction"));
    page.addExample(QStringLiteral("Example"), new QWidget, nullptr, QStringLiteral("int a;\nint b;"));
    QCOMPARE(child<QPlainTextEdit>(page, "gallery_snippet")->toPlainText(), QStringLiteral("int a;\nint b;"));
    auto* button = child<QPushButton>(page, "gallery_copy");
    button->click();
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("int a;\nint b;"));
    QCOMPARE(button->property("copied"), QVariant(true));
    QTRY_COMPARE(button->property("copied"), QVariant(false));
}

void TestGallery::theWheelTurnsOnlyAKnobInFocus()
{
    KnobPanel panel;
    QSpinBox* knob = panel.addInt(QStringLiteral("Value"), 0, 10, 5, [](int) {});
    panel.show();
    QVERIFY(QTest::qWaitForWindowActive(&panel));
    const auto turn = [&] {
        QWheelEvent event(QPointF(5, 5), knob->mapToGlobal(QPoint(5, 5)), QPoint(), QPoint(0, 120),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(knob, &event);
    };
    panel.setFocus();
    knob->clearFocus();
    turn();
    QCOMPARE(knob->value(), 5);
    knob->setFocus();
    turn();
    QCOMPARE(knob->value(), 6);
}

void TestGallery::onlyTheFirstActionOfAPanelStandsOut()
{
    KnobPanel panel;
    QCOMPARE(panel.addButton(QStringLiteral("First"), [] {})->property("primary"), QVariant(true));
    QCOMPARE(panel.addButton(QStringLiteral("Second"), [] {})->property("primary"), QVariant(false));
}

void TestGallery::theMaximiseButtonFollowsTheWindow()
{
    GalleryWindow window;
    window.show();
    auto* button = child<QPushButton>(window, "max_button");
    QVERIFY(!button->isChecked());
    QCOMPARE(window.contentsMargins(), QMargins(1, 1, 1, 1));
    window.showMaximized();
    QVERIFY(button->isChecked());
    QCOMPARE(window.contentsMargins(), QMargins());
    window.showNormal();
    QVERIFY(!button->isChecked());
}

void TestGallery::aBurstOfToastsWaitsForItsTurn()
{
    using WyWidgets::WyToast;
    GalleryWindow window;
    window.show();
    QVERIFY(window.openPage(QStringLiteral("Toasts")));
    const auto click = [&window](const QString& text) {
        clickAction(*window.currentPage(), text);
    };
    click(QStringLiteral("Show 50 at once"));
    QCOMPARE(WyToast::getVisibleCount(), 3);
    QCOMPARE(WyToast::getQueuedCount(), 47);
    const auto readouts = window.currentPage()->findChildren<QLabel*>(QStringLiteral("gallery_readout"));
    QTRY_COMPARE(readouts.at(0)->text(), QStringLiteral("3"));
    QTRY_COMPARE(readouts.at(1)->text(), QStringLiteral("47"));
    click(QStringLiteral("Reset"));
    QCOMPARE(WyToast::getCount(), 0);
    QTRY_COMPARE(readouts.at(1)->text(), QStringLiteral("0"));
    QCOMPARE(readouts.at(2)->text(), QStringLiteral("0"));
}

void TestGallery::aToastMayHaveAParentAcrossScreens()
{
    using WyWidgets::WyToast;
    GalleryWindow window;
    window.show();
    QVERIFY(window.openPage(QStringLiteral("Toasts")));
    QComboBox* parents = nullptr;
    const auto knobs = window.currentPage()->findChildren<QComboBox*>();
    for (QComboBox* knob : knobs) {
        if (knob->findText(QStringLiteral("Across two screens")) >= 0)
            parents = knob;
    }
    QVERIFY(parents);
    parents->setCurrentText(QStringLiteral("Across two screens"));
    clickAction(*window.currentPage(), QStringLiteral("Show a toast"));
    const auto shown = [] {
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget* widget : windows) {
            if (qobject_cast<WyToast*>(widget) && widget->isVisible())
                return widget;
        }
        return static_cast<QWidget*>(nullptr);
    };
    QVERIFY(shown());
    const QPointer<QWidget> parent = shown()->parentWidget();
    QVERIFY(parent && parent->isWindow() && parent != &window);
    QVERIFY(parent->isVisible());
    const QRect screen = QGuiApplication::screens().last()->geometry();
    QVERIFY(screen.intersects(parent->geometry()));
    QVERIFY(!screen.contains(parent->geometry()));
    parents->setCurrentText(QStringLiteral("None"));
    QVERIFY(!parent);
    QCOMPARE(WyToast::getCount(), 0);
}

QTEST_MAIN(TestGallery)
#include "tst_gallery.moc"
