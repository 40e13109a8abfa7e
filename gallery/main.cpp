#include "GalleryPage.h"
#include "GalleryWindow.h"
#include "Pages.h"
#include "Settling.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFontDatabase>
#include <QScreen>
#include <QTextStream>

namespace {

constexpr int kSettleMs = 400;
constexpr int kPrepareMs = 1000;

/// A desktop chooses the font; a bare X server leaves Qt with its fallback, and Inter is easier on the eye.
void chooseFont()
{
    const QString inter = QStringLiteral("Inter");
    const bool isFallback = QApplication::font().family() == QLatin1String("Sans Serif");
    if (isFallback && QFontDatabase().families().contains(inter))
        QApplication::setFont(QFont(inter, 10));
}

/// Saves a picture of the whole screen for every page, so that toasts and dialogs beside the window are on
/// it.
int grabPages(GalleryWindow& window, const QString& folder, const QString& onlyPage)
{
    if (!QDir().mkpath(folder))
        return 1;
    QTextStream out(stdout);
    const QVector<PageEntry> pages = allPages();
    for (const PageEntry& page : pages) {
        if (!onlyPage.isEmpty() && page.name.compare(onlyPage, Qt::CaseInsensitive) != 0)
            continue;
        window.openPage(page.name);
        runEventLoopFor(kSettleMs);
        window.currentPage()->prepareForPicture();
        runEventLoopFor(kPrepareMs);
        const QString file = QDir(folder).filePath(
            page.name.toLower().replace(QLatin1Char(' '), QLatin1Char('-')) + QStringLiteral(".png"));
        if (!window.screen()->grabWindow(0).save(file)) {
            out << "could not write " << file << '\n';
            return 1;
        }
        out << QDir::toNativeSeparators(QFileInfo(file).absoluteFilePath()) << '\n';
        window.currentPage()->endPicture();
        runEventLoopFor(kSettleMs);
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_DontCreateNativeWidgetSiblings);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("gallery"));
    QCoreApplication::setApplicationVersion(QStringLiteral(WY_VERSION));

    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption pageOption(QStringLiteral("page"), QStringLiteral("Opens this page."),
                                        QStringLiteral("name"));
    const QCommandLineOption themeOption(QStringLiteral("theme"), QStringLiteral("light or dark."),
                                         QStringLiteral("name"), QStringLiteral("light"));
    const QCommandLineOption grabOption(
        QStringLiteral("grab"), QStringLiteral("Saves a picture of every page (or of --page) and ends."),
        QStringLiteral("folder"));
    parser.addOptions({pageOption, themeOption, grabOption});
    parser.process(application);

    chooseFont();
    GalleryWindow window;
    QTextStream err(stderr);
    if (!window.applyTheme(parser.value(themeOption))) {
        err << "there is no theme " << parser.value(themeOption) << '\n';
        return 2;
    }
    if (parser.isSet(pageOption) && !window.openPage(parser.value(pageOption))) {
        err << "there is no page " << parser.value(pageOption) << '\n';
        return 2;
    }
    window.show();
    if (parser.isSet(grabOption))
        return grabPages(window, parser.value(grabOption), parser.value(pageOption));
    return QApplication::exec();
}
