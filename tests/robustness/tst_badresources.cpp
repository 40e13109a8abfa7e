// Every class that reads a file, with files that anything may have happened to.

#include "support/BadFiles.h"
#include "support/Silence.h"
#include "wycontrol/ToastSupport.h"

#include "WyWidgets/frame/WyWidgetUtils.h"
#include "WyWidgets/wycontrol/WyGifLabel.h"
#include "WyWidgets/wycontrol/WyImageButton.h"
#include "WyWidgets/wycontrol/WyLoadBox.h"
#include "WyWidgets/wycontrol/WySimpleToast.h"
#include "WyWidgets/wycontrol/WyToast.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QPixmapCache>
#include <QtTest>
#include <private/qfsfileengine_p.h>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

using WyWidgets::WyGifLabel;
using WyWidgets::WyImageButton;
using WyWidgets::WyLoadBox;
using WyWidgets::WySimpleToast;
using WyWidgets::WyToast;

namespace {

constexpr int kPatientMs = 5000;
/// Far more than the largest picture that is read takes, far less than what the files claim.
constexpr qint64 kMostMemoryMib = 1000;
constexpr QSize kPictureSize(24, 24);

/// The most memory that the process has ever had.
qint64 peakMemoryMib()
{
#ifdef Q_OS_UNIX
    rusage usage;
    getrusage(RUSAGE_SELF, &usage);
#ifdef Q_OS_MACOS
    return usage.ru_maxrss / 1024 / 1024;
#else
    return usage.ru_maxrss / 1024;
#endif
#else
    return 0;
#endif
}

/// Puts one file in the place of another, whose name may be a resource's.
class Redirection : public QAbstractFileEngineHandler
{
public:
    Redirection(QString name, QString path) : m_name(std::move(name)), m_path(std::move(path)) {}

    QAbstractFileEngine* create(const QString& name) const override
    {
        return name == m_name ? new QFSFileEngine(m_path) : nullptr;
    }

private:
    const QString m_name;
    const QString m_path;
};

QImage painted(QWidget& widget)
{
    return widget.grab().toImage();
}

QImage gifLabel(const QString& path)
{
    const Redirection frame(QStringLiteral("/gif/loading_01.png"), path);
    WyGifLabel label;
    label.resize(kPictureSize);
    label.SetGif(QStringLiteral("/gif/"), 1);
    label.slotTimeOut();
    return painted(label);
}

QImage loadBox(const QString& path)
{
    const Redirection frame(QStringLiteral("/gif/loading_01.png"), path);
    WyLoadBox box;
    box.resize(2 * kPictureSize);
    auto* label = box.findChild<WyGifLabel*>();
    label->SetGif(QStringLiteral("/gif/"), 1);
    label->slotTimeOut();
    return painted(box);
}

QImage imageButton(const QString& path)
{
    WyImageButton button(QStringLiteral("Text"));
    button.setIconNormal(path);
    button.setIconDisable(path); // without it Qt shows neither
    return painted(button);
}

QImage disabledImageButton(const QString& path)
{
    WyImageButton button(QStringLiteral("Text"));
    button.setIconDisable(path);
    button.setEnabled(false);
    return painted(button);
}

QImage borderImage(const QString& path)
{
    QLabel label;
    label.resize(kPictureSize);
    WyWidgets::updateStyle(&label, path, path);
    return painted(label);
}

QImage simpleToast(const QString& path)
{
    const Redirection resource(QStringLiteral(":/check.png"), path);
    WySimpleToast toast(nullptr);
    toast.setStyle(WySimpleToast::TOASTR_SUCCESS);
    return painted(toast);
}

QImage toastIcon(const QString& path)
{
    const Redirection icon(WyToast::getCurrentDirectory() + QStringLiteral("/icons/success.png"), path);
    WyToast toast;
    toast.setShowIcon(true);
    toast.setIcon(WyWidgets::ToastIcon::SUCCESS);
    return painted(toast);
}

QImage toastStyleSheet(const QString& path)
{
    const Redirection sheet(WyToast::getCurrentDirectory() + QStringLiteral("/css/toast.css"), path);
    WyToast toast;
    return painted(toast);
}

QByteArray greenPicture(const char* format)
{
    QImage image(kPictureSize, QImage::Format_RGB32);
    image.fill(Qt::green);
    return WyTest::encoded(image, format);
}

QByteArray drawing(const QByteArray& contents, const QByteArray& size = "24", const QByteArray& type = "")
{
    return "<?xml version='1.0'?>" + type +
           "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' width='" +
           size + "' height='" + size + "'>" + contents + "</svg>";
}

/// A text that consists of ten others, each of which consists of ten others, and so on.
QByteArray explosion(int generations)
{
    QByteArray entities = "<!DOCTYPE svg [<!ENTITY e0 'text'>";
    for (int i = 1; i <= generations; ++i) {
        const QByteArray former = "&e" + QByteArray::number(i - 1) + ";";
        entities += "<!ENTITY e" + QByteArray::number(i) + " '" + former.repeated(10) + "'>";
    }
    return drawing("<text>&e" + QByteArray::number(generations) + ";</text>", "24", entities + "]>");
}

/// Groups that use one another twice, to the end.
QByteArray avalanche(int generations)
{
    QByteArray groups = "<defs><g id='g0'><rect width='9' height='9'/></g>";
    for (int i = 1; i <= generations; ++i) {
        const QByteArray use = "<use xlink:href='#g" + QByteArray::number(i - 1) + "'/>";
        groups += "<g id='g" + QByteArray::number(i) + "'>" + use + use + "</g>";
    }
    return drawing(groups + "</defs><use xlink:href='#g" + QByteArray::number(generations) + "'/>");
}

/// Paints a widget of one class that reads this file.
using Show = QImage (*)(const QString& path);

struct Reader
{
    const char* name;
    Show show;
    QByteArray soundFile;
};

QVector<Reader> readers()
{
    const QByteArray png = greenPicture("PNG");
    return {
        {"gif label", gifLabel, png},
        {"load box", loadBox, png},
        {"image button", imageButton, png},
        {"disabled image button", disabledImageButton, png},
        {"border image", borderImage, png},
        {"simple toast", simpleToast, png},
        {"toast's icon", toastIcon, png},
        {"toast's style sheet", toastStyleSheet, "* { background: #00ff00; }"},
    };
}

struct BadFile
{
    const char* name;
    QByteArray bytes;
    /// Whether it is as good as no file. Of the others decoders may make what they like.
    bool isNothing;
};

QVector<BadFile> badFiles()
{
    const QByteArray png = greenPicture("PNG");
    const QByteArray jpeg = greenPicture("JPG");
    return {
        {"empty", QByteArray(), true},
        {"zeros", QByteArray(100000, '\0'), true},
        {"text", "no picture", true},
        {"signature alone", "\x89PNG\r\n\x1a\n", true},
        {"half a header", png.left(20), true},
        {"half a png", png.left(png.size() / 2), false},
        {"half a jpeg", jpeg.left(jpeg.size() / 2), false},
        {"huge png", WyTest::pngOfClaimedSize(png, 100000, 100000), true},
        {"largest png", WyTest::pngOfClaimedSize(png, 0x7FFFFFFF, 0x7FFFFFFF), true},
        {"large jpeg", WyTest::jpegOfClaimedSize(jpeg, 30000, 30000), true},
        {"large drawing", drawing("<rect width='9' height='9'/>", "30000"), true},
        {"drawing without end", drawing("<g>", "24").chopped(6), true},
        {"drawing of deep groups",
         drawing(QByteArray("<g>").repeated(50000) + QByteArray("</g>").repeated(50000)), false},
        {"drawing that explodes", explosion(12), true},
        {"drawing with an avalanche", avalanche(40), false},
    };
}

} // namespace

Q_DECLARE_METATYPE(Show)

class TestBadResources : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { WyTest::resetToasts(); }

    void soundFilesAreShown_data();
    void soundFilesAreShown();
    void badContentsDoNoHarm_data();
    void badContentsDoNoHarm();
    void aFileThatTurnsBadIsNoticed();
    void whatIsNoFileShowsNothing_data();
    void whatIsNoFileShowsNothing();
    void otherFilesAreNotReadForADrawing_data() { soundFilesAreShown_data(); }
    void otherFilesAreNotReadForADrawing();

private:
    void compareWithMissing(Show show, const QString& path, bool isNothing);

    WyTest::BadFiles m_files;
};

void TestBadResources::init()
{
    QPixmapCache::clear();
}

/// Shows the file, within bounds of time and memory.
void TestBadResources::compareWithMissing(Show show, const QString& path, bool isNothing)
{
    const WyTest::Silence silence;
    const QImage missing = show(m_files.path(QStringLiteral("missing")));
    const qint64 memoryBefore = peakMemoryMib();
    QElapsedTimer timer;
    timer.start();
    const QImage shown = show(path);
    QVERIFY2(timer.elapsed() < kPatientMs, qPrintable(QString::number(timer.elapsed())));
    QVERIFY2(peakMemoryMib() - memoryBefore < kMostMemoryMib, qPrintable(QString::number(peakMemoryMib())));
    QCOMPARE(shown.size(), missing.size());
    if (isNothing)
        QCOMPARE(shown, missing);
}

void TestBadResources::soundFilesAreShown_data()
{
    QTest::addColumn<Show>("show");
    QTest::addColumn<QByteArray>("bytes");
    for (const Reader& reader : readers())
        QTest::newRow(reader.name) << reader.show << reader.soundFile;
}

/// As a check that the files of the other tests are read at all.
void TestBadResources::soundFilesAreShown()
{
    QFETCH(const Show, show);
    QFETCH(const QByteArray, bytes);
    const WyTest::Silence silence;
    QVERIFY(show(m_files.write(bytes)) != show(m_files.path(QStringLiteral("missing"))));
}

void TestBadResources::badContentsDoNoHarm_data()
{
    QTest::addColumn<Show>("show");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isNothing");
    for (const Reader& reader : readers()) {
        for (const BadFile& file : badFiles())
            QTest::addRow("%s, %s", reader.name, file.name) << reader.show << file.bytes << file.isNothing;
    }
}

void TestBadResources::badContentsDoNoHarm()
{
    QFETCH(const Show, show);
    QFETCH(const QByteArray, bytes);
    QFETCH(const bool, isNothing);
    compareWithMissing(show, m_files.write(bytes), isNothing);
}

void TestBadResources::aFileThatTurnsBadIsNoticed()
{
    const QString path = m_files.write(greenPicture("PNG"));
    QVERIFY(gifLabel(path) != gifLabel(m_files.path(QStringLiteral("missing"))));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(WyTest::jpegOfClaimedSize(greenPicture("JPG"), 30000, 30000));
    file.close();
    compareWithMissing(gifLabel, path, true);
}

void TestBadResources::whatIsNoFileShowsNothing_data()
{
    QTest::addColumn<Show>("show");
    QTest::addColumn<QString>("path");
    const QString pipe = m_files.path(QStringLiteral("pipe"));
    const QString loop = m_files.path(QStringLiteral("loop"));
    for (const Reader& reader : readers()) {
        QTest::addRow("%s, no name", reader.name) << reader.show << QString();
        QTest::addRow("%s, folder", reader.name) << reader.show << QDir::tempPath();
#ifdef Q_OS_UNIX
        mkfifo(QFile::encodeName(pipe).constData(), 0600);
        QFile::link(loop, loop);
        QTest::addRow("%s, pipe", reader.name) << reader.show << pipe;
        QTest::addRow("%s, link to itself", reader.name) << reader.show << loop;
        QTest::addRow("%s, device", reader.name) << reader.show << QStringLiteral("/dev/zero");
        if (geteuid() != 0) {
            const QString forbidden = m_files.write(reader.soundFile);
            QFile::setPermissions(forbidden, {});
            QTest::addRow("%s, not ours to read", reader.name) << reader.show << forbidden;
        }
#endif
    }
}

void TestBadResources::whatIsNoFileShowsNothing()
{
    QFETCH(const Show, show);
    QFETCH(const QString, path);
    compareWithMissing(show, path, true);
}

/// It would wait for the pipe for ever.
void TestBadResources::otherFilesAreNotReadForADrawing()
{
#ifdef Q_OS_UNIX
    QFETCH(const Show, show);
    const QString pipe = m_files.path(QStringLiteral("secret"));
    mkfifo(QFile::encodeName(pipe).constData(), 0600);
    const QByteArray url = "file://" + QFile::encodeName(pipe);
    const QByteArray type = "<!DOCTYPE svg [<!ENTITY secret SYSTEM '" + url + "'>]>";
    const QByteArray image = "<image xlink:href='" + url + "' width='9' height='9'/>";
    compareWithMissing(show, m_files.write(drawing("<text>&secret;</text>", "24", type)), false);
    compareWithMissing(show, m_files.write(drawing(image)), false);
#else
    QSKIP("needs pipes");
#endif
}

QTEST_MAIN(TestBadResources)
#include "tst_badresources.moc"
