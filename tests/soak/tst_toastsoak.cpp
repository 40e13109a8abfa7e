#include "WyWidgets/wycontrol/WySimpleToast.h"
#include "WyWidgets/wycontrol/WyToast.h"

#include "support/Events.h"

#include <QApplication>
#include <QFile>
#include <QtTest>

#include <functional>
#include <numeric>

using WyWidgets::ToastPosition;
using WyWidgets::ToastPreset;
using WyWidgets::WySimpleToast;
using WyWidgets::WyToast;

namespace {

/// Sets how many toasts of each kind there are.
constexpr const char* kCountVariable = "WY_SOAK_TOASTS";
constexpr int kShortCount = 600;
/// So many are shown or waiting at a time, so that the queue never runs dry and memory does not depend on the
/// count.
constexpr int kAtATime = 40;
constexpr int kPatientMs = 20000;
constexpr int kPatientMsPerToast = 100;
constexpr int kLookMs = 100;
/// What a process may grow by between a tenth of the way and its end: the heap settles late, and a leak of
/// half a kilobyte for each of 10,000 toasts is more.
constexpr qint64 kSettlingBytes = 3 * 1024 * 1024;

int toastCount()
{
    const int count = qEnvironmentVariableIntValue(kCountVariable);
    return count > 0 ? count : kShortCount;
}

/// The memory of the process that is in use; -1 where the system does not tell, or a sanitizer or valgrind
/// keeps what was freed.
qint64 residentBytes()
{
#if defined(__SANITIZE_ADDRESS__)
    return -1;
#else
    QFile file(QStringLiteral("/proc/self/smaps_rollup"));
    if (qgetenv("LD_PRELOAD").contains("vgpreload") || !file.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (line.startsWith("Rss:"))
            return line.mid(4).replace("kB", "").trimmed().toLongLong() * 1024;
    }
    return -1;
#endif
}

/// What happened to each toast, by its number.
struct Record
{
    explicit Record(int count) : shown(count), closed(count), destroyed(count) {}

    QVector<int> shown;
    QVector<int> closed;
    QVector<int> destroyed;
    /// The toasts in the order in which they came on screen and went.
    QVector<int> showOrder;
    QVector<int> destroyOrder;
};

void watch(QWidget* toast, int number, Record& record)
{
    auto* onShow = new WyTest::OnEvent(toast, QEvent::Show, [&record, number] {
        ++record.shown[number];
        record.showOrder += number;
    });
    onShow->setParent(toast);
    QObject::connect(toast, &QObject::destroyed, [&record, number] {
        ++record.destroyed[number];
        record.destroyOrder += number;
    });
}

QVector<int> upTo(int count)
{
    QVector<int> numbers(count);
    std::iota(numbers.begin(), numbers.end(), 0);
    return numbers;
}

} // namespace

/// Thousands of toasts one after the other: none is lost or comes twice, and nothing is left of them.
class TestToastSoak : public QObject
{
    Q_OBJECT

private slots:
    void richToasts();
    void simpleToasts();

private:
    /// Makes `count` toasts, a few at a time, and waits until all are gone.
    void soak(const char* kind, Record& record, const std::function<bool()>& mayShow,
              const std::function<void(int)>& showNumber);

    // Toasts that a failed test has left behind go on writing here.
    Record m_rich{toastCount()};
    Record m_simple{toastCount()};
};

void TestToastSoak::soak(const char* kind, Record& record, const std::function<bool()>& mayShow,
                         const std::function<void(int)>& showNumber)
{
    const int count = record.shown.size();
    const int widgets = QApplication::allWidgets().size();
    const int warm = count / 10;
    qint64 before = -1;
    int next = 0;
    QTimer look;
    look.start(kLookMs);
    QElapsedTimer timer;
    timer.start();
    const int patience = kPatientMs + count * kPatientMsPerToast;
    while (record.destroyOrder.size() < count && timer.elapsed() < patience) {
        if (mayShow()) {
            while (next < count && next - record.destroyOrder.size() < kAtATime)
                showNumber(next++);
        }
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (before < 0 && record.destroyOrder.size() >= warm)
            before = residentBytes();
    }
    const qint64 after = residentBytes();
    qInfo("%d %s toasts in %lld ms; memory after %d of them %lld KiB, at the end %lld KiB", count, kind,
          timer.elapsed(), warm, before / 1024, after / 1024);
    QCOMPARE(record.shown, QVector<int>(count, 1));
    QCOMPARE(record.destroyed, QVector<int>(count, 1));
    QCOMPARE(record.showOrder, upTo(count));
    QCOMPARE(QApplication::allWidgets().size(), widgets);
    if (before >= 0)
        QVERIFY2(after - before <= kSettlingBytes, qPrintable(QString::number(after - before)));
}

void TestToastSoak::richToasts()
{
    Record& record = m_rich;
    QWidget window;
    window.show();
    // A place that is free for the moment is that of the first in the queue; a newcomer would take it.
    const auto mayShow = [&record] {
        const bool allAreGone =
            WyToast::getQueuedCount() == 0 && record.destroyOrder.size() == record.showOrder.size();
        return allAreGone || WyToast::getVisibleCount() >= WyToast::getMaximumOnScreen();
    };
    soak("rich", record, mayShow, [&](int number) {
        auto* toast = new WyToast(number % 3 ? &window : nullptr);
        watch(toast, number, record);
        connect(toast, &WyToast::closed, this, [&record, number] { ++record.closed[number]; });
        toast->setTitle(QStringLiteral("Toast %1").arg(number));
        toast->setText(QStringLiteral("text ").repeated(number % 7));
        toast->applyPreset(ToastPreset(number % 8));
        toast->setDuration(1 + number % 3);
        toast->setFadeInDuration(number % 2);
        toast->setFadeOutDuration(number % 5 == 0);
        if (number % 50 == 0)
            WyToast::setPosition(ToastPosition(number / 50 % 7));
        if (number % 11 == 0)
            WyToast::setOffsetX(20 + number % 13);
        toast->show();
    });
    QCOMPARE(record.closed, QVector<int>(record.shown.size(), 1));
    QCOMPARE(WyToast::getCount(), 0);
    WyToast::reset();
}

void TestToastSoak::simpleToasts()
{
    Record& record = m_simple;
    QWidget window;
    window.resize(800, 600);
    window.show();
    WySimpleToast().setDuration(1);
    // The first toast without a parent makes Qt's widget of the desktop.
    WySimpleToast().stateOrientation();
    const auto always = [] {
        return true;
    };
    soak("simple", record, always, [&](int number) {
        auto* toast = new WySimpleToast(number % 3 ? &window : nullptr);
        watch(toast, number, record);
        toast->setText(QStringLiteral("Toast %1 ").arg(number).repeated(1 + number % 4));
        toast->setStyle(WySimpleToast::TOASTR_STYLE(number % 5));
        toast->setOrientation(WySimpleToast::TOASTR_ORIENTATION(number / 50 % 8));
        toast->setShowDuration(number % 2);
        // The same for all: whichever toast has faded, the oldest goes.
        toast->setHideDuration(1);
        toast->show();
    });
    QCOMPARE(record.destroyOrder, upTo(record.shown.size()));
    WySimpleToast().setDuration(2000);
}

QTEST_MAIN(TestToastSoak)
#include "tst_toastsoak.moc"
