#include "WyWidgets/internal/toast/ToastIconEngine.h"
#include "WyWidgets/internal/toast/ToastResources.h"

#include "support/Painting.h"

#include <QElapsedTimer>
#include <QPainter>
#include <QTemporaryDir>
#include <QtTest>

using namespace WyWidgets;

class TestToastResources : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void aDensePictureIsMadeSmallerSmoothly();
    void aMissingStyleSheetIsEmpty();
    void aStyleSheetKeepsItsLineEnds();
    void aStyleSheetEndsAtTheFirstNul_data();
    void aStyleSheetEndsAtTheFirstNul();
    void aStyleSheetIsUtf8();
    void aChangedStyleSheetIsReadAgain();
    void aRemovedStyleSheetIsForgotten();
    void aMissingPictureIsNull();
    void aBrokenPictureIsNull();
    void aPictureIsReadOnce();
    void aChangedPictureIsReadAgain();
    void anIconOfNothingIsNull();
    void anIconIsRecoloredOnce();
    void theCachesAreBounded();
    void hugePicturesAreNotKept();

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }
    void write(const QString& name, const QByteArray& bytes);
    void paint(const QString& name, const QColor& color, QSize size = {8, 8});

    QScopedPointer<QTemporaryDir> m_folder;
    qint64 m_modifiedMs = 0;
};

void TestToastResources::init()
{
    m_folder.reset(new QTemporaryDir);
}

/// Writes the file, with another time of change than any before.
void TestToastResources::write(const QString& name, const QByteArray& bytes)
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
    QVERIFY(file.flush());
    m_modifiedMs = qMax(m_modifiedMs + 1, QDateTime::currentMSecsSinceEpoch());
    QVERIFY(
        file.setFileTime(QDateTime::fromMSecsSinceEpoch(m_modifiedMs), QFileDevice::FileModificationTime));
}

void TestToastResources::paint(const QString& name, const QColor& color, QSize size)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QVERIFY(image.save(&buffer, "PNG"));
    write(name, bytes);
}

void TestToastResources::aDensePictureIsMadeSmallerSmoothly()
{
    QPixmap stripes(40, 40);
    stripes.fill(Qt::white);
    {
        QPainter painter(&stripes);
        for (int x = 0; x < stripes.width(); x += 2)
            painter.fillRect(x, 0, 1, stripes.height(), Qt::black);
    }
    QImage canvas(20, 20, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    ToastIconEngine(QPixmap(), stripes).paint(&painter, canvas.rect(), QIcon::Normal, QIcon::Off);
    painter.end();
    const int grey = canvas.pixelColor(10, 10).red();
    QVERIFY2(grey > 64 && grey < 192, qPrintable(QString::number(grey)));
}

void TestToastResources::aMissingStyleSheetIsEmpty()
{
    QCOMPARE(ToastResources::styleSheet(path("none.css")), QString());
    // A folder cannot be read, either.
    QCOMPARE(ToastResources::styleSheet(m_folder->path()), QString());
}

void TestToastResources::aStyleSheetKeepsItsLineEnds()
{
    write("a.css", "one\r\ntwo\nthree\r");
    QCOMPARE(ToastResources::styleSheet(path("a.css")), QString("one\r\ntwo\nthree\r"));
}

void TestToastResources::aStyleSheetEndsAtTheFirstNul_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("in the middle") << QByteArray("ab\0cd\0ef", 8) << "ab";
    QTest::newRow("at the start") << QByteArray("\0cd", 3) << "";
    QTest::newRow("empty") << QByteArray() << "";
}

void TestToastResources::aStyleSheetEndsAtTheFirstNul()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, text);
    write("a.css", bytes);
    QCOMPARE(ToastResources::styleSheet(path("a.css")), text);
}

void TestToastResources::aStyleSheetIsUtf8()
{
    write("a.css", "/* \xC3\xA4 \xF0\x9F\x8E\x89 */");
    QCOMPARE(ToastResources::styleSheet(path("a.css")), QString::fromUtf8("/* ä 🎉 */"));
}

void TestToastResources::aChangedStyleSheetIsReadAgain()
{
    write("a.css", "one");
    QCOMPARE(ToastResources::styleSheet(path("a.css")), QString("one"));
    write("a.css", "two");
    QCOMPARE(ToastResources::styleSheet(path("a.css")), QString("two"));
    write("a.css", "longer");
    QCOMPARE(ToastResources::styleSheet(path("a.css")), QString("longer"));
}

void TestToastResources::aRemovedStyleSheetIsForgotten()
{
    write("a.css", "one");
    QCOMPARE(ToastResources::styleSheet(path("a.css")), QString("one"));
    QVERIFY(QFile::remove(path("a.css")));
    QCOMPARE(ToastResources::styleSheet(path("a.css")), QString());
}

void TestToastResources::aMissingPictureIsNull()
{
    QVERIFY(ToastResources::picture(path("none.png")).isNull());
}

void TestToastResources::aBrokenPictureIsNull()
{
    write("a.png", "this is no picture");
    QVERIFY(ToastResources::picture(path("a.png")).isNull());
}

void TestToastResources::aPictureIsReadOnce()
{
    paint("a.png", Qt::red);
    const QPixmap first = ToastResources::picture(path("a.png"));
    QCOMPARE(first.toImage().pixelColor(3, 3), QColor(Qt::red));
    QCOMPARE(ToastResources::picture(path("a.png")).cacheKey(), first.cacheKey());
    paint("b.png", Qt::red);
    QVERIFY(ToastResources::picture(path("b.png")).cacheKey() != first.cacheKey());
}

void TestToastResources::aChangedPictureIsReadAgain()
{
    // Within the same second, with the same length.
    paint("a.png", QColor(255, 0, 0));
    QCOMPARE(ToastResources::picture(path("a.png")).toImage().pixelColor(3, 3), QColor(255, 0, 0));
    paint("a.png", QColor(0, 255, 0));
    QCOMPARE(ToastResources::picture(path("a.png")).toImage().pixelColor(3, 3), QColor(0, 255, 0));
}

void TestToastResources::anIconOfNothingIsNull()
{
    QVERIFY(ToastResources::plainIcon(QPixmap()).isNull());
    QVERIFY(ToastResources::recoloredIcon(QIcon(), QSize(18, 18), Qt::red).isNull());
}

void TestToastResources::anIconIsRecoloredOnce()
{
    QPixmap pixmap(20, 20);
    pixmap.fill(Qt::black);
    const QIcon plain = ToastResources::plainIcon(pixmap);
    QCOMPARE(ToastResources::plainIcon(pixmap).cacheKey(), plain.cacheKey());
    const auto key = [&plain](QSize size, const QColor& color) {
        return ToastResources::recoloredIcon(plain, size, color).cacheKey();
    };
    const qint64 red = key({18, 18}, Qt::red);
    QCOMPARE(key({18, 18}, Qt::red), red);
    QVERIFY(key({18, 18}, Qt::blue) != red);
    QVERIFY(key({18, 17}, Qt::red) != red);
    QVERIFY(key({17, 18}, Qt::red) != red);
    // A pixmap that is painted on is another picture.
    QPainter(&pixmap).fillRect(0, 0, 5, 5, Qt::transparent);
    QVERIFY(ToastResources::plainIcon(pixmap).cacheKey() != plain.cacheKey());
}

/// Both what was used long ago and its memory are let go.
void TestToastResources::theCachesAreBounded()
{
    QPixmap first(256, 256);
    first.fill(Qt::black);
    const qint64 key = ToastResources::plainIcon(first).cacheKey();
    for (int i = 0; i < 100; ++i) {
        QPixmap other(256, 256);
        other.fill(Qt::red);
        ToastResources::plainIcon(other);
    }
    QVERIFY(ToastResources::plainIcon(first).cacheKey() != key);
}

void TestToastResources::hugePicturesAreNotKept()
{
    QPixmap small(16, 16);
    small.fill(Qt::black);
    const qint64 key = ToastResources::plainIcon(small).cacheKey();
    QPixmap huge(2000, 2000);
    huge.fill(Qt::black);
    const QIcon icon = ToastResources::plainIcon(huge);
    QCOMPARE(icon.pixmap(100, 100).size(), QSize(100, 100));
    QCOMPARE(ToastResources::plainIcon(small).cacheKey(), key);
    QVERIFY(ToastResources::plainIcon(huge).cacheKey() != icon.cacheKey());
}

QTEST_MAIN(TestToastResources)
#include "tst_toastresources.moc"
