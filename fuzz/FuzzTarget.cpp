#include "FuzzTarget.h"

#include <QApplication>
#include <QDebug>
#include <QFontMetrics>

#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    new QApplication(*argc, *argv); // lives as long as the process
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz::Input input(data, size);
    Fuzz::check(input);
    return 0;
}

namespace Fuzz {

QString Input::text(std::size_t count)
{
    const std::size_t length = std::min(count, m_size - std::min(m_at, m_size));
    const char* start = reinterpret_cast<const char*>(m_data) + m_at;
    m_at += length;
    const QString decoded = QString::fromUtf8(start, static_cast<int>(length));
    return decoded.contains(QChar::ReplacementCharacter)
               ? QString::fromLatin1(start, static_cast<int>(length))
               : decoded;
}

void expectEqual(const QString& actual, const QString& expected, const char* what)
{
    if (actual == expected)
        return;
    QString texts; // with escapes for what would end or hide them
    QDebug(&texts).nospace() << "\n  actual:   " << actual << "\n  expected: " << expected;
    std::fprintf(stderr, "%s%s\n", what, qPrintable(texts));
    std::abort();
}

void expect(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

void loadFonts(const QString& text, const QFont& font)
{
    const QFontMetrics metrics(font);
    for (const QString& part : text.split(QChar(0x009c))) // metrics stop there
        metrics.horizontalAdvance(part);
}

} // namespace Fuzz
