#include "WyWidgets/internal/toast/ToastResources.h"

#include "WyWidgets/wycontrol/WyToast.h"
#include "support/BadFiles.h"
#include "support/Silence.h"
#include "wycontrol/ToastSupport.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using WyTest::Silence;
using WyWidgets::WyToast;
namespace ToastResources = WyWidgets::ToastResources;

namespace {

constexpr int kPatientMs = 5000;

QByteArray picture(const char* format, QSize size = {24, 24})
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    for (int i = 0; i < qMin(size.width(), size.height()); ++i)
        image.setPixel(i, i, qRgba(i * 9, 0, 0, 200));
    return WyTest::encoded(image, format);
}

/// A sound PNG file but for the size that it claims to have.
QByteArray pngOfClaimedSize(quint32 width, quint32 height)
{
    return WyTest::pngOfClaimedSize(picture("PNG"), width, height);
}

} // namespace

/// The toast's style sheet and icons are files that anything may have happened to.
class TestToastBadResources : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_files.reset(new WyTest::BadFiles); }
    void cleanup() { WyTest::resetToasts(); }

    void cutPictures_data();
    void cutPictures();
    void damagedPictures_data() { cutPictures_data(); }
    void damagedPictures();
    void picturesOfClaimedSizes_data();
    void picturesOfClaimedSizes();
    void largePicturesAreShown();
    void otherFilesThanPictures_data();
    void otherFilesThanPictures();
    void filesThatNeverEnd_data();
    void filesThatNeverEnd();
    void damagedStyleSheets_data();
    void damagedStyleSheets();
    void randomStyleSheets();
    void styleSheetsThatAreTooLarge();
    void filesThatComeAndGo();

private:
    QString write(const QByteArray& bytes) { return m_files->write(bytes); }
    /// Shows and paints a toast with this icon and this style sheet, and lets it end.
    void live(const QPixmap& icon, const QString& styleSheet = QString());

    QScopedPointer<WyTest::BadFiles> m_files;
};

void TestToastBadResources::live(const QPixmap& icon, const QString& styleSheet)
{
    QPointer<WyToast> toast = new WyToast;
    if (!styleSheet.isNull())
        toast->setStyleSheet(styleSheet);
    toast->setTitle(QStringLiteral("Title"));
    toast->setText(QStringLiteral("Text"));
    toast->setShowIcon(true);
    toast->setIcon(icon);
    toast->setCloseButtonIcon(icon);
    toast->setFadeInDuration(0);
    toast->setFadeOutDuration(0);
    toast->show();
    QCOMPARE(toast->grab().size(), toast->size());
    toast->hide();
    QTRY_VERIFY(!toast);
    QCOMPARE(WyToast::getCount(), 0);
}

void TestToastBadResources::cutPictures_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::newRow("png") << QByteArray("PNG");
    QTest::newRow("bmp") << QByteArray("BMP");
    QTest::newRow("xpm") << QByteArray("XPM");
    QTest::newRow("jpeg") << QByteArray("JPG");
}

void TestToastBadResources::cutPictures()
{
    QFETCH(const QByteArray, format);
    const Silence silence;
    const QByteArray whole = picture(format.constData());
    QCOMPARE(ToastResources::picture(write(whole)).size(), QSize(24, 24));
    for (int length = 0; length < whole.size(); length += 1 + whole.size() / 200) {
        const QPixmap icon = ToastResources::picture(write(whole.left(length)));
        // What a decoder makes of a part is its own affair; it must not be larger than the whole.
        QVERIFY(icon.isNull() || icon.size() == QSize(24, 24));
        if (length % 14 == 0)
            live(icon);
    }
}

void TestToastBadResources::damagedPictures()
{
    QFETCH(const QByteArray, format);
    const Silence silence;
    const QByteArray whole = picture(format.constData());
    QRandomGenerator random(5);
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 300; ++i) {
        QByteArray bytes = whole;
        for (int left = random.bounded(1, 6); left > 0; --left)
            bytes[random.bounded(bytes.size())] = char(random.bounded(256));
        const QPixmap icon = ToastResources::picture(write(bytes));
        QVERIFY(qint64(icon.width()) * icon.height() <= 4096 * 4096);
        if (i % 20 == 0)
            live(icon);
    }
    QVERIFY2(timer.elapsed() < 4 * kPatientMs, qPrintable(QString::number(timer.elapsed())));
}

void TestToastBadResources::picturesOfClaimedSizes_data()
{
    QTest::addColumn<quint32>("width");
    QTest::addColumn<quint32>("height");
    QTest::newRow("nothing") << 0U << 0U;
    QTest::newRow("a little too wide") << 4097U << 4096U;
    QTest::newRow("wide") << 1000000U << 1000U;
    QTest::newRow("large") << 60000U << 60000U;
    QTest::newRow("largest") << 0x7FFFFFFFU << 0x7FFFFFFFU;
    QTest::newRow("negative") << 0xFFFFFFFFU << 0xFFFFFFFFU;
}

void TestToastBadResources::picturesOfClaimedSizes()
{
    QFETCH(const quint32, width);
    QFETCH(const quint32, height);
    const Silence silence;
    QElapsedTimer timer;
    timer.start();
    const QPixmap icon = ToastResources::picture(write(pngOfClaimedSize(width, height)));
    QVERIFY(icon.isNull());
    QVERIFY(timer.elapsed() < kPatientMs);
    live(icon);
}

void TestToastBadResources::largePicturesAreShown()
{
    const Silence silence;
    // As a check of the file that the other sizes are put into.
    QCOMPARE(ToastResources::picture(write(pngOfClaimedSize(24, 24))).size(), QSize(24, 24));
    const QPixmap icon = ToastResources::picture(write(picture("PNG", {2000, 2000})));
    QCOMPARE(icon.size(), QSize(2000, 2000));
    live(icon);
    const QPixmap flat = ToastResources::picture(write(picture("PNG", {30000, 1})));
    QCOMPARE(flat.size(), QSize(30000, 1));
    live(flat);
}

void TestToastBadResources::otherFilesThanPictures_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("no picture");
    QTest::newRow("zeros") << QByteArray(100000, '\0');
    QTest::newRow("style sheet") << QByteArray("QWidget { color: red; }");
    QTest::newRow("signature alone") << QByteArray("\x89PNG\r\n\x1a\n");
    QTest::newRow("a drawing with a huge page")
        << QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='900000' height='900000'/>");
    QTest::newRow("a drawing that grows")
        << QByteArray("<?xml version='1.0'?><!DOCTYPE svg [<!ENTITY a 'aaaaaaaaaa'><!ENTITY b '&a;&a;&a;&a;'>"
                      "<!ENTITY c '&b;&b;&b;&b;'>]><svg xmlns='http://www.w3.org/2000/svg'>&c;</svg>");
}

void TestToastBadResources::otherFilesThanPictures()
{
    QFETCH(const QByteArray, bytes);
    const Silence silence;
    const QPixmap icon = ToastResources::picture(write(bytes));
    QVERIFY(qint64(icon.width()) * icon.height() <= 4096 * 4096);
    live(icon);
}

void TestToastBadResources::filesThatNeverEnd_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("folder") << QDir::tempPath();
    QTest::newRow("nowhere") << QString();
    QTest::newRow("no such file") << QStringLiteral("/no/such/file");
#ifdef Q_OS_UNIX
    QTest::newRow("zeros") << QStringLiteral("/dev/zero");
    QTest::newRow("pipe") << QStringLiteral("pipe");
    QTest::newRow("link to itself") << QStringLiteral("loop");
#endif
}

void TestToastBadResources::filesThatNeverEnd()
{
    QFETCH(QString, path);
#ifdef Q_OS_UNIX
    if (path == QLatin1String("pipe")) {
        path = m_files->path(path);
        QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    } else if (path == QLatin1String("loop")) {
        path = m_files->path(path);
        QVERIFY(QFile::link(path, path));
    }
#endif
    QVERIFY(ToastResources::picture(path).isNull());
    QCOMPARE(ToastResources::styleSheet(path), QString());
}

void TestToastBadResources::damagedStyleSheets_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("open comment") << QByteArray("/* and so on");
    QTest::newRow("open rule") << QByteArray("#toast-close-button { border: 1px solid");
    QTest::newRow("open string") << QByteArray("#toast-close-button { image: url(\"");
    QTest::newRow("open braces") << QByteArray(20000, '{');
    QTest::newRow("closed braces") << QByteArray(20000, '}');
    QTest::newRow("no text") << QByteArray("\xFF\xFE\x00\xD8", 4);
    QTest::newRow("broken encoding") << QByteArray("QLabel { color: \xC3\x28\xA0\xA1; }");
    QTest::newRow("missing pictures") << QByteArray("QWidget { border-image: url(/no/such/file) 9 9 9 9; }");
    QTest::newRow("huge lengths") << QByteArray(
        "QWidget { margin: 2147483647px; padding: 99999999999px; min-width: -2147483648px; }");
    QTest::newRow("many selectors") << QByteArray("QWidget QWidget ").repeated(300) + "{ color: red; }";
    QTest::newRow("many rules") << QByteArray("#a { color: red; } ").repeated(5000);
    QTest::newRow("unknown properties")
        << QByteArray("QWidget { qproperty-nothing: 7; qproperty-geometry: rect(0 0 1 1); frob: 2; }");
}

void TestToastBadResources::damagedStyleSheets()
{
    QFETCH(const QByteArray, bytes);
    const Silence silence;
    QElapsedTimer timer;
    timer.start();
    live(QPixmap(), ToastResources::styleSheet(write(bytes)));
    QVERIFY2(timer.elapsed() < kPatientMs, qPrintable(QString::number(timer.elapsed())));
}

void TestToastBadResources::randomStyleSheets()
{
    const Silence silence;
    QFile original(WyToast::getCurrentDirectory() + QStringLiteral("/css/toast.css"));
    QVERIFY(original.open(QIODevice::ReadOnly));
    const QByteArray whole = original.readAll();
    QVERIFY(whole.size() > 100);
    QRandomGenerator random(11);
    for (int i = 0; i < 60; ++i) {
        QByteArray bytes = whole.left(random.bounded(whole.size() + 1));
        for (int left = random.bounded(20); left > 0 && !bytes.isEmpty(); --left)
            bytes[random.bounded(bytes.size())] = char(random.bounded(1, 256));
        live(QPixmap(), ToastResources::styleSheet(write(bytes)));
    }
}

void TestToastBadResources::styleSheetsThatAreTooLarge()
{
    constexpr qint64 kLargest = 16 * 1024 * 1024;
    const QString path = write("/* as large as can be */");
    QFile file(path);
    QVERIFY(file.resize(kLargest));
    QCOMPARE(ToastResources::styleSheet(path), QStringLiteral("/* as large as can be */"));
    QVERIFY(file.resize(kLargest + 1));
    QCOMPARE(ToastResources::styleSheet(path), QString());
    // Without blocks on the disk, but with a length that no memory has.
    if (file.resize(kLargest * 1024 * 1024))
        QCOMPARE(ToastResources::styleSheet(path), QString());
}

void TestToastBadResources::filesThatComeAndGo()
{
    const Silence silence;
    const QByteArray whole = picture("PNG");
    const QString path = write(whole);
    for (int i = 0; i < 5; ++i) {
        QCOMPARE(ToastResources::picture(path).size(), QSize(24, 24));
        QVERIFY(QFile::resize(path, i * 5));
        QVERIFY(ToastResources::picture(path).isNull());
        QVERIFY(QFile::remove(path));
        QVERIFY(ToastResources::picture(path).isNull());
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(whole), qint64(whole.size()));
    }
}

QTEST_MAIN(TestToastBadResources)
#include "tst_toastbadresources.moc"
