#include "WyWidgets/frame/WyMainWindow.h"

#include <QtTest>

namespace QWK {

/// What a host has that links the package itself: another class of the name that the library uses inside.
class WidgetWindowAgent : public QObject
{
public:
    explicit WidgetWindowAgent(QObject* parent = nullptr);
    bool setup(QWidget* w);

    static int s_calls;
};

int WidgetWindowAgent::s_calls = 0;

WidgetWindowAgent::WidgetWindowAgent(QObject* parent) : QObject(parent)
{
    ++s_calls;
}

bool WidgetWindowAgent::setup(QWidget*)
{
    ++s_calls;
    return true;
}

} // namespace QWK

class TestHostAgent : public QObject
{
    Q_OBJECT

private slots:
    void theLibraryKeepsToItsOwnAgent();
};

void TestHostAgent::theLibraryKeepsToItsOwnAgent()
{
    WyWidgets::WyMainWindow window;
    window.winId();
    QVERIFY(window.windowFlags().testFlag(Qt::FramelessWindowHint));
    QCOMPARE(QWK::WidgetWindowAgent::s_calls, 0);
    QVERIFY(QWK::WidgetWindowAgent().setup(&window));
    QCOMPARE(QWK::WidgetWindowAgent::s_calls, 2);
}

QTEST_MAIN(TestHostAgent)
#include "tst_hostagent.moc"
