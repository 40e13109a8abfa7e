#include "FuzzTarget.h"

#include <QApplication>

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
    std::fprintf(stderr, "%s\n  actual:   \"%s\"\n  expected: \"%s\"\n", what, qPrintable(actual),
                 qPrintable(expected));
    std::abort();
}

void expect(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

} // namespace Fuzz
