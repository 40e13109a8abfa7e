#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QtEndian>

namespace WyTest {

/// A folder for files that last as long as it does.
class BadFiles
{
public:
    /// The path of a new file with this content.
    QString write(const QByteArray& bytes)
    {
        const QString file = path(QString::number(++m_count));
        QFile out(file);
        if (!out.open(QIODevice::WriteOnly) || out.write(bytes) != bytes.size())
            qFatal("%s", qPrintable(out.errorString()));
        return file;
    }
    QString path(const QString& name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
    int m_count = 0;
};

inline QByteArray encoded(const QImage& image, const char* format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, format);
    return bytes;
}

inline quint32 pngChecksum(const QByteArray& bytes)
{
    quint32 sum = 0xFFFFFFFF;
    for (const char byte : bytes) {
        sum ^= quint8(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = sum & 1 ? sum >> 1 ^ 0xEDB88320 : sum >> 1;
    }
    return ~sum;
}

/// The PNG file, but with another size than it has.
inline QByteArray pngOfClaimedSize(QByteArray png, quint32 width, quint32 height)
{
    constexpr int kHeader = 12;
    constexpr int kHeaderLength = 17;
    qToBigEndian(width, png.data() + kHeader + 4);
    qToBigEndian(height, png.data() + kHeader + 8);
    qToBigEndian(pngChecksum(png.mid(kHeader, kHeaderLength)), png.data() + kHeader + kHeaderLength);
    return png;
}

/// The JPEG file, but with another size than it has: decoders make up what is missing.
inline QByteArray jpegOfClaimedSize(QByteArray jpeg, quint16 width, quint16 height)
{
    constexpr int kHeightInFrame = 5;
    const int frame = jpeg.indexOf("\xFF\xC0");
    qToBigEndian(height, jpeg.data() + frame + kHeightInFrame);
    qToBigEndian(width, jpeg.data() + frame + kHeightInFrame + 2);
    return jpeg;
}

} // namespace WyTest
