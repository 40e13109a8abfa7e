#include "WyWidgets/wycontrol/WyFlatTab.h"
#include "WyWidgets/wycontrol/WyToast.h"

#include <QAbstractButton>
#include <QtTest>

#include <dlfcn.h>

using namespace WyWidgets;

namespace {

/// A library of a host in this process.
class Host
{
public:
    explicit Host(const char* path) : m_library(dlopen(path, RTLD_NOW | RTLD_GLOBAL)) {}
    ~Host() { close(); }

    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    bool isLoaded() const { return m_library; }

    void close()
    {
        if (m_library)
            dlclose(m_library);
        m_library = nullptr;
    }

    QWidget* createWindow() const { return function<QWidget*()>("hostWindow")(); }
    void showToast(QWidget* window) const { function<void(QWidget*)>("hostShowToast")(window); }

private:
    template <typename Function>
    Function* function(const char* name) const
    {
        return reinterpret_cast<Function*>(dlsym(m_library, name));
    }

    void* m_library;
};

void flushDeletions()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

class TestTwoHosts : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void bothUseTheSameClasses();
    void theirToastsShareOneScreen();
    void oneMayGoWhileTheOtherWorksOn();
};

void TestTwoHosts::cleanup()
{
    WyToast::reset();
    flushDeletions();
}

void TestTwoHosts::bothUseTheSameClasses()
{
    const Host one(WY_HOST_One);
    const Host two(WY_HOST_Two);
    QVERIFY2(one.isLoaded() && two.isLoaded(), dlerror());
    const QScopedPointer<QWidget> first(one.createWindow());
    const QScopedPointer<QWidget> second(two.createWindow());
    QCOMPARE(first->objectName(), QStringLiteral("One"));
    QCOMPARE(second->objectName(), QStringLiteral("Two"));
    const auto* tabs = first->findChild<WyFlatTab*>();
    const auto* otherTabs = second->findChild<WyFlatTab*>();
    QVERIFY(tabs && otherTabs);
    QCOMPARE(tabs->metaObject(), otherTabs->metaObject());
    QCOMPARE(tabs->findChild<QAbstractButton*>()->text(), QStringLiteral("One"));
    QCOMPARE(otherTabs->findChild<QAbstractButton*>()->text(), QStringLiteral("Two"));
}

void TestTwoHosts::theirToastsShareOneScreen()
{
    const Host one(WY_HOST_One);
    const Host two(WY_HOST_Two);
    const QScopedPointer<QWidget> first(one.createWindow());
    const QScopedPointer<QWidget> second(two.createWindow());
    WyToast::setMaximumOnScreen(1);
    one.showToast(first.data());
    two.showToast(second.data());
    QCOMPARE(WyToast::getVisibleCount(), 1);
    QCOMPARE(WyToast::getQueuedCount(), 1);
}

void TestTwoHosts::oneMayGoWhileTheOtherWorksOn()
{
    Host one(WY_HOST_One);
    const Host two(WY_HOST_Two);
    delete one.createWindow();
    const QScopedPointer<QWidget> window(two.createWindow());
    one.close();
    two.showToast(window.data());
    QCOMPARE(WyToast::getVisibleCount(), 1);
    Host again(WY_HOST_One);
    QVERIFY(again.isLoaded());
    const QScopedPointer<QWidget> back(again.createWindow());
    QCOMPARE(back->objectName(), QStringLiteral("One"));
}

QTEST_MAIN(TestTwoHosts)
#include "tst_twohosts.moc"
