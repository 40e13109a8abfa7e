#include "Settling.h"
#include "Window.h"
#include "guide/NotesWindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCommandLineParser>
#include <QCursor>
#include <QDir>
#include <QFile>
#include <QFontDatabase>
#include <QPointer>
#include <QScreen>
#include <QTextEdit>
#include <QTextStream>

namespace {

constexpr QSize kWindowSizePx(440, 120);
constexpr QPoint kPlacePx(300, 200);
constexpr QPoint kDialogPlacePx(340, 190);
constexpr QPoint kFarAwayPx(1900, 1060);
constexpr int kMarginPx = 12;
constexpr int kSettleMs = 600;

/// Some show what they are for only under the pointer or after a click.
void use(const QByteArray& name, QWidget* widget)
{
    QCursor::setPos(kFarAwayPx);
    if (name == "WyBubbleButton" || name == "WyHandleSlider")
        QCursor::setPos(widget->mapToGlobal(widget->rect().center()));
    else if (name == "WyGifButton" || name == "WyAnimationButton")
        static_cast<QAbstractButton*>(widget)->click();
    else if (name.startsWith("WyDialog"))
        widget->window()->move(
            kDialogPlacePx); // window managers differ in where they put it
}

/// The window with what stands on it; only what the snippet made if that is
/// elsewhere.
QRect pictureRect(const QWidget& window, const QWidget* made)
{
    const QRect base = window.geometry();
    if (made && made->isWindow() && !base.intersects(made->frameGeometry()))
        return made->frameGeometry().adjusted(-kMarginPx, -kMarginPx, kMarginPx,
                                              kMarginPx);
    QRect rect = base;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget* other : windows) {
        if (other->isVisible() && base.intersects(other->frameGeometry()))
            rect |= other->frameGeometry();
    }
    return rect;
}

bool savePicture(const Window::Snippet& snippet, const QString& folder)
{
    Window window;
    window.setObjectName(
        QStringLiteral("gallery_page_content")); // the themes' background of a page
    window.setAttribute(Qt::WA_StyledBackground);
    window.setWindowFlags(Qt::FramelessWindowHint);
    // A bubble button takes its place in the window for one on the screen.
    const bool inTheCorner = qstrcmp(snippet.name, "WyBubbleButton") == 0;
    window.setGeometry(QRect(inTheCorner ? QPoint(0, 0) : kPlacePx, kWindowSizePx));
    window.show();
    runEventLoopFor(kSettleMs);
    // Some delete themselves after a while.
    const QPointer<QWidget> made = qobject_cast<QWidget*>((window.*snippet.run)());
    runEventLoopFor(kSettleMs);
    if (made)
        use(snippet.name, made);
    runEventLoopFor(kSettleMs);
    const QRect rect = pictureRect(window, made);
    const QString file =
        QDir(folder).filePath(QLatin1String(snippet.name) + QStringLiteral(".png"));
    const bool saved =
        window.screen()
            ->grabWindow(0, rect.x(), rect.y(), rect.width(), rect.height())
            .save(file);
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* other : windows) {
        if (other != &window)
            other->hide();
    }
    return saved;
}

/// The guide's application, with a notice on it.
bool saveGuidePicture(const QString& folder)
{
    NotesWindow window;
    window.move(kPlacePx);
    window.show();
    window.findChild<QTextEdit*>()->setPlainText(QStringLiteral("milk, bread"));
    runEventLoopFor(kSettleMs);
    window.clear();
    runEventLoopFor(2 * kSettleMs);
    return window.screen()
        ->grabWindow(0, window.x(), window.y(), window.width(), window.height())
        .save(QDir(folder).filePath(QStringLiteral("notes.png")));
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);

    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption themeOption(
        QStringLiteral("theme"), QStringLiteral("light or dark."),
        QStringLiteral("name"), QStringLiteral("light"));
    const QCommandLineOption onlyOption(QStringLiteral("only"),
                                        QStringLiteral("Takes this snippet alone."),
                                        QStringLiteral("name"));
    parser.addOptions({themeOption, onlyOption});
    parser.addPositionalArgument(QStringLiteral("folder"),
                                 QStringLiteral("Where the pictures go."));
    parser.process(application);
    QTextStream err(stderr);
    QFile theme(QStringLiteral(":/themes/%1.qss").arg(parser.value(themeOption)));
    if (!theme.open(QFile::ReadOnly) || parser.positionalArguments().isEmpty()) {
        err << parser.helpText();
        return 2;
    }
    qApp->setStyleSheet(QString::fromUtf8(theme.readAll()));
    const QString inter = QStringLiteral("Inter");
    if (QFontDatabase().families().contains(inter))
        QApplication::setFont(QFont(inter, 10));

    const QString folder = parser.positionalArguments().constFirst();
    for (const Window::Snippet& snippet : Window::snippets()) {
        const bool isWanted =
            !parser.isSet(onlyOption) ||
            parser.value(onlyOption) == QLatin1String(snippet.name);
        if (isWanted && !savePicture(snippet, folder)) {
            err << "could not save the picture of " << snippet.name << '\n';
            return 1;
        }
    }
    return parser.isSet(onlyOption) || saveGuidePicture(folder) ? 0 : 1;
}
