#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>

class QFont;

namespace Fuzz {

/// Turns the bytes of an input into values; past its end everything is 0 or empty.
class Input
{
public:
    Input(const std::uint8_t* data, std::size_t size) : m_data(data), m_size(size) {}

    bool atEnd() const { return m_at >= m_size; }
    int byte() { return atEnd() ? 0 : m_data[m_at++]; }
    bool flag() { return byte() & 1; }
    /// From two bytes, `from` to `to`, both included.
    int between(int from, int to)
    {
        const int high = byte();
        return from + (high << 8 | byte()) % (to - from + 1);
    }
    /// `count` bytes as text, or all that are left: UTF-8 if they are, else one character each.
    QString text(std::size_t count = SIZE_MAX);

private:
    const std::uint8_t* m_data;
    std::size_t m_size;
    std::size_t m_at = 0;
};

/// What each fuzz program defines: compares the library with the plain algorithm on one input.
void check(Input& input);

/// Ends the process with what was expected unless the two are equal.
void expectEqual(const QString& actual, const QString& expected, const char* what);
void expect(bool holds, const char* what);

/// Finds a font for each character. Qt measures some control characters in another one until those around
/// them have been drawn or measured, so that the same comparison would come out differently at first.
void loadFonts(const QString& text, const QFont& font);

} // namespace Fuzz
