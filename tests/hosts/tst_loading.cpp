#include <QAccessible>
#include <QApplication>
#include <QDirIterator>
#include <QtTest>

#include <clocale>
#include <csignal>
#include <cstdlib>
#include <dlfcn.h>

extern char** environ;

namespace {

QStringList entriesOf(const QString& folder)
{
    QStringList entries;
    QDirIterator files(folder, QDir::AllEntries | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (files.hasNext())
        entries += files.next();
    entries.sort();
    return entries;
}

/// What a process shares among all that is loaded into it.
struct GlobalState
{
    static GlobalState now()
    {
        GlobalState state;
        for (char** variable = environ; *variable; ++variable)
            state.environment += *variable;
        state.locale = setlocale(LC_ALL, nullptr);
        for (int signal = 1; signal < NSIG; ++signal) {
            struct sigaction action = {};
            sigaction(signal, nullptr, &action);
            state.signalHandlers += reinterpret_cast<quintptr>(action.sa_handler);
        }
        state.threads = QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        state.openFiles =
            QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::AllEntries | QDir::System).size();
        state.resources = entriesOf(QStringLiteral(":/"));
        state.translations = QCoreApplication::translate("WyWidgets::WyToast", "Close");
        return state;
    }

    QByteArrayList environment;
    QByteArray locale;
    QVector<quintptr> signalHandlers;
    QStringList threads;
    int openFiles = 0;
    QStringList resources;
    QString translations;
};

void compare(const GlobalState& after, const GlobalState& before)
{
    QCOMPARE(after.environment, before.environment);
    QCOMPARE(after.locale, before.locale);
    QCOMPARE(after.signalHandlers, before.signalHandlers);
    QCOMPARE(after.threads, before.threads);
    QCOMPARE(after.openFiles, before.openFiles);
    QCOMPARE(after.resources, before.resources);
    QCOMPARE(after.translations, before.translations);
}

/// In a process without the library. Qt's warnings fail a test; no application exists until a test makes one.
class TestLoading : public QObject
{
    Q_OBJECT

private slots:
    void loadingTouchesNothing();
    void unloadingTouchesNothing();
    void theLibraryMayComeBeforeTheApplication();
    void unloadingTakesItsAccessibilityAway();
};

void TestLoading::loadingTouchesNothing()
{
    QVERIFY(!QCoreApplication::instance());
    QVERIFY2(!dlopen(WY_LIBRARY, RTLD_NOW | RTLD_NOLOAD), "the library is linked");
    const GlobalState before = GlobalState::now();
    void* library = dlopen(WY_LIBRARY, RTLD_NOW);
    QVERIFY2(library, dlerror());
    compare(GlobalState::now(), before);
    QVERIFY(!QCoreApplication::instance());
    QCOMPARE(dlclose(library), 0);
}

void TestLoading::unloadingTouchesNothing()
{
    const GlobalState before = GlobalState::now();
    for (int round = 0; round < 3; ++round) {
        void* library = dlopen(WY_LIBRARY, RTLD_NOW);
        QVERIFY2(library, dlerror());
        QCOMPARE(dlclose(library), 0);
    }
    compare(GlobalState::now(), before);
}

void TestLoading::theLibraryMayComeBeforeTheApplication()
{
    void* host = dlopen(WY_HOST_One, RTLD_NOW);
    QVERIFY2(host, dlerror());
    int count = 1;
    char name[] = "host";
    char* arguments[] = {name, nullptr};
    const QApplication application(count, arguments);
    auto* createWindow = reinterpret_cast<QWidget* (*)()>(dlsym(host, "hostWindow"));
    QScopedPointer<QWidget> window(createWindow());
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.data()));
    window.reset();
    QCOMPARE(dlclose(host), 0);
}

void TestLoading::unloadingTakesItsAccessibilityAway()
{
    int count = 1;
    char name[] = "host";
    char* arguments[] = {name, nullptr};
    const QApplication application(count, arguments);
    void* host = dlopen(WY_HOST_One, RTLD_NOW);
    QVERIFY2(host, dlerror());
    auto* createWindow = reinterpret_cast<QWidget* (*)()>(dlsym(host, "hostWindow"));
    delete createWindow();
    QCOMPARE(dlclose(host), 0);
    QVERIFY2(!dlopen(WY_LIBRARY, RTLD_NOW | RTLD_NOLOAD), "the library is still there");
    QWidget plain;
    QVERIFY(QAccessible::queryAccessibleInterface(&plain));
}

} // namespace

QTEST_APPLESS_MAIN(TestLoading)
#include "tst_loading.moc"
