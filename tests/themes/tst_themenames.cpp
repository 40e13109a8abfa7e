#include "support/LibraryWidgets.h"

#include "GalleryPage.h"
#include "GalleryWindow.h"
#include "Pages.h"

#include <QApplication>
#include <QDirIterator>
#include <QFile>
#include <QPushButton>
#include <QRegularExpression>
#include <QtTest>

namespace {

using Names = QSet<QString>;

const QStringList kThemes = {QStringLiteral("light"), QStringLiteral("dark")};

/// What a style sheet can find widgets by.
struct Handles
{
    Names objectNames;
    Names properties;
    Names classes;

    void add(const QWidget& widget)
    {
        // Qt's own parts carry names and properties with these prefixes.
        if (!widget.objectName().isEmpty() && !widget.objectName().startsWith(QLatin1String("qt_")))
            objectNames += widget.objectName();
        const QList<QByteArray> dynamic = widget.dynamicPropertyNames();
        for (const QByteArray& name : dynamic) {
            if (!name.startsWith("_q_"))
                properties += QString::fromLatin1(name);
        }
        for (const QMetaObject* type = widget.metaObject(); type; type = type->superClass())
            classes +=
                QString::fromLatin1(type->className()).replace(QLatin1String("::"), QLatin1String("--"));
    }

    void addWithParts(const QWidget& widget)
    {
        add(widget);
        const auto parts = widget.findChildren<QWidget*>();
        for (const QWidget* part : parts)
            add(*part);
    }
};

Names captured(const QString& text, const char* pattern)
{
    Names found;
    auto matches = QRegularExpression(QLatin1String(pattern)).globalMatch(text);
    while (matches.hasNext())
        found += matches.next().captured(1);
    return found;
}

/// The handles that the selectors of a style sheet name.
Handles selectedBy(const QString& styleSheet)
{
    QString selectors = styleSheet;
    selectors.remove(
        QRegularExpression(QStringLiteral("/\\*.*?\\*/"), QRegularExpression::DotMatchesEverythingOption));
    selectors.replace(QRegularExpression(QStringLiteral("\\{[^}]*\\}")), QStringLiteral("\n"));
    return {captured(selectors, "#([A-Za-z0-9_-]+)"), captured(selectors, "\\[([A-Za-z0-9_-]+)"),
            captured(selectors, "\\b(WyWidgets--\\w+)")};
}

Handles selectedByTheme(const QString& theme)
{
    QFile file(QStringLiteral(":/themes/%1.qss").arg(theme));
    return file.open(QIODevice::ReadOnly) ? selectedBy(QString::fromUtf8(file.readAll())) : Handles();
}

QString sorted(const Names& names)
{
    QStringList list = names.values();
    list.sort();
    return list.join(QStringLiteral(", "));
}

} // namespace

/// Holds the themes against widgets that really exist: one of every class and every page of the gallery.
class TestThemeNames : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyWidgetClassTakesPart();
    void everyNameInTheSourcesIsOnAWidget();
    void themesSelectOnlyWhatExists_data();
    void themesSelectOnlyWhatExists();
    void themesStyleAllThatTheLibraryNames_data();
    void themesStyleAllThatTheLibraryNames();
    void bothThemesSelectTheSame();

private:
    void collectLibrary();
    void collectGallery();

    Handles m_library;
    /// Style sheets that the library's classes set on themselves; the application's cannot overrule those.
    QString m_ownStyleSheets;
    Handles m_all;
};

void TestThemeNames::initTestCase()
{
    collectLibrary();
    collectGallery();
}

void TestThemeNames::collectLibrary()
{
    for (const WyTest::LibraryWidget& entry : WyTest::libraryWidgets()) {
        const QScopedPointer<QWidget> widget(entry.create());
        QCOMPARE(QByteArray(widget->metaObject()->className()), "WyWidgets::" + entry.className);
        m_library.addWithParts(*widget);
        m_ownStyleSheets += widget->styleSheet() + QLatin1Char('\n');
    }
}

void TestThemeNames::collectGallery()
{
    m_all = m_library;
    GalleryWindow window;
    window.show();
    const QVector<PageEntry> pages = allPages();
    for (const PageEntry& page : pages) {
        QVERIFY(window.openPage(page.name));
        window.currentPage()->prepareForPicture();
        if (auto* copy = window.currentPage()->findChild<QPushButton*>(QStringLiteral("gallery_copy")))
            copy->click();
        QCoreApplication::processEvents();
        const QWidgetList widgets = QApplication::allWidgets();
        for (const QWidget* widget : widgets)
            m_all.add(*widget);
        window.currentPage()->endPicture();
    }
}

void TestThemeNames::everyWidgetClassTakesPart()
{
    const Names noWidgets = {QStringLiteral("WyFlowLayout"), QStringLiteral("WyIntValidator"),
                             QStringLiteral("WyWidgetUtils")};
    Names made;
    for (const WyTest::LibraryWidget& entry : WyTest::libraryWidgets())
        made += QString::fromLatin1(entry.className);
    Names published;
    const QStringList headers = QStringLiteral(WY_PUBLIC_HEADERS).split(QLatin1Char(','));
    for (const QString& header : headers)
        published += QFileInfo(header).baseName();
    QCOMPARE(sorted(made), sorted(published - noWidgets));
}

/// Guards against a part that no widget of the list has because it comes only in a later state.
void TestThemeNames::everyNameInTheSourcesIsOnAWidget()
{
    Names written;
    QDirIterator sources(QStringLiteral(WY_SOURCE_DIR), {QStringLiteral("*.cpp")}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (sources.hasNext()) {
        QFile file(sources.next());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString source = QString::fromUtf8(file.readAll());
        const Names calls = captured(source, "(?s)(?<!ayout->)(setObjectName\\([^;]*;)");
        for (const QString& call : calls)
            written += captured(call, "QStringLiteral\\(\"([^\"]+)\"\\)");
    }
    QVERIFY(written.size() > 10);
    written -= QStringLiteral("toast-drop-shadow-layer-%1");
    QCOMPARE(sorted(written - m_library.objectNames), QString());
}

void TestThemeNames::themesSelectOnlyWhatExists_data()
{
    QTest::addColumn<QString>("theme");
    for (const QString& theme : kThemes)
        QTest::newRow(qPrintable(theme)) << theme;
}

void TestThemeNames::themesSelectOnlyWhatExists()
{
    QFETCH(QString, theme);
    const Handles selected = selectedByTheme(theme);
    QVERIFY(!selected.objectNames.isEmpty());
    QVERIFY(!selected.properties.isEmpty());
    QVERIFY(!selected.classes.isEmpty());
    QCOMPARE(sorted(selected.objectNames - m_all.objectNames), QString());
    QCOMPARE(sorted(selected.properties - m_all.properties), QString());
    QCOMPARE(sorted(selected.classes - m_library.classes), QString());
}

void TestThemeNames::themesStyleAllThatTheLibraryNames_data()
{
    themesSelectOnlyWhatExists_data();
}

void TestThemeNames::themesStyleAllThatTheLibraryNames()
{
    QFETCH(QString, theme);
    const Handles selected = selectedByTheme(theme);
    const Handles own = selectedBy(m_ownStyleSheets);
    QVERIFY(own.objectNames.contains(QStringLiteral("toast-close-button")));
    QCOMPARE(sorted(m_library.objectNames - own.objectNames - selected.objectNames), QString());
    QCOMPARE(sorted(m_library.properties - own.properties - selected.properties), QString());
}

void TestThemeNames::bothThemesSelectTheSame()
{
    const Handles light = selectedByTheme(QStringLiteral("light"));
    const Handles dark = selectedByTheme(QStringLiteral("dark"));
    QCOMPARE(sorted(light.objectNames), sorted(dark.objectNames));
    QCOMPARE(sorted(light.properties), sorted(dark.properties));
    QCOMPARE(sorted(light.classes), sorted(dark.classes));
}

QTEST_MAIN(TestThemeNames)
#include "tst_themenames.moc"
