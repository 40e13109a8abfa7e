// A seeded random driver over every public class of the library.
//
//   monkey --seed 7 --steps 20000 [--trace]
//
// The time is virtual, so that the same seed does the same again. --trace prints each action before it is
// done.

#include "monkey/Actions.h"
#include "monkey/Driver.h"
#include "monkey/Trace.h"
#include "monkey/VirtualTime.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QMap>

#include <cstdio>

#include <unistd.h>

namespace {

/// How often each Qt warning was printed.
QMap<QString, int> warnings;

void countWarning(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    ++warnings[message];
    if (type == QtCriticalMsg || type == QtFatalMsg)
        Monkey::Trace::fail("%s", qPrintable(message));
}

void printWarnings()
{
    for (auto warning = warnings.cbegin(); warning != warnings.cend(); ++warning)
        std::fprintf(stderr, "%6d x %s\n", warning.value(), qPrintable(warning.key().left(200)));
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_HASH_SEED", "0");
    auto& time = *new Monkey::VirtualTime; // the application deletes it
    QCoreApplication::setEventDispatcher(&time);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setDoubleClickInterval(0); // of the real clock

    QCommandLineParser parser;
    const QCommandLineOption seed("seed", "Which actions.", "number", "1");
    const QCommandLineOption steps("steps", "How many.", "number", "2000");
    const QCommandLineOption limit("limit", "Seconds after which it hangs.", "number", "600");
    const QCommandLineOption trace("trace", "Print each action.");
    const QCommandLineOption chatty("warnings", "Print Qt's warnings at the end.");
    parser.addOptions({seed, steps, limit, trace, chatty});
    parser.addHelpOption();
    parser.process(application);

    qInstallMessageHandler(countWarning);
    Monkey::Trace::start(parser.value(seed).toULongLong(), parser.value(steps).toInt(), parser.isSet(trace));
    alarm(parser.value(limit).toUInt());
    QElapsedTimer watch;
    watch.start();
    {
        Monkey::VirtualAnimations animations(time);
        Monkey::Driver driver(parser.value(seed).toULongLong(), parser.value(steps).toInt(), time);
        driver.run();
        Monkey::restoreApplication();
    }
    if (parser.isSet(chatty))
        printWarnings();
    std::printf("seed %s: %s steps in %.1f s, %d failures\n", qPrintable(parser.value(seed)),
                qPrintable(parser.value(steps)), watch.elapsed() / 1000.0, Monkey::Trace::failures());
    return Monkey::Trace::failures() == 0 ? 0 : 1;
}
