#pragma once

#include <QByteArray>
#include <QDataStream>
#include <QFontDatabase>
#include <QVector>

#include <initializer_list>

namespace WyTest {

// A font whose letters move together, as the sloping words of Nastaliq do: each advances a whole em alone and
// a tenth of one behind another. The machine's own fonts have no such script.

constexpr QChar kStackingLetter(0x0531);

namespace StackingFont {

using Numbers = std::initializer_list<int>;

struct Table
{
    const char* tag;
    QByteArray data;
};

template <typename Number>
QByteArray written(Numbers numbers)
{
    QByteArray data;
    QDataStream stream(&data, QIODevice::WriteOnly);
    for (int number : numbers)
        stream << Number(number);
    return data;
}

inline QByteArray shorts(Numbers numbers)
{
    return written<quint16>(numbers);
}

inline QByteArray longs(Numbers numbers)
{
    return written<quint32>(numbers);
}

inline QByteArray square()
{
    const QByteArray flags(4, '\1'); // four points on the outline
    return shorts({1, 0, 0, 100, 100, 3, 0}) + flags + shorts({0, 100, 0, -100, 0, 0, 100, 0});
}

inline QByteArray names()
{
    QByteArray text;
    for (char letter : QByteArray("Stacking"))
        text += shorts({letter});
    const int length = text.size();
    return shorts({0, 2, 6 + 2 * 12}) + shorts({3, 1, 0x409, 1, length, 0}) +
           shorts({3, 1, 0x409, 2, length, 0}) + text;
}

inline QVector<Table> tables()
{
    const int glyph = square().size(); // of three glyphs the second, the space, is empty
    const int letter = kStackingLetter.unicode();
    return {
        {"cmap", shorts({0,    1,      3,      1, 0,    12,     4,      40,       0,          6, 4, 1, 2,
                         0x20, letter, 0xffff, 0, 0x20, letter, 0xffff, 1 - 0x20, 2 - letter, 1, 0, 0, 0})},
        {"glyf", square() + square()},
        {"head", longs({0x10000, 0x10000, 0, 0x5f0f3cf5}) + shorts({0, 1000}) + longs({0, 0, 0, 0}) +
                     shorts({0, 0, 100, 100, 0, 8, 2, 1, 0})},
        {"hhea", longs({0x10000}) + shorts({800, -200, 0, 1000, 0, 0, 1000, 1, 0, 0, 0, 0, 0, 0, 0, 3})},
        {"hmtx", shorts({1000, 0, 500, 0, 1000, 0})},
        {"kern", shorts({0, 1, 0, 20, 1, 1, 6, 0, 0, 2, 2, -900})},
        {"loca", longs({0, glyph, glyph, 2 * glyph})},
        {"maxp", longs({0x10000}) + shorts({3, 4, 1, 0, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0})},
        {"name", names()},
        {"post", longs({0x30000, 0}) + shorts({-100, 50}) + longs({0, 0, 0, 0, 0})},
    };
}

inline QByteArray file()
{
    const QVector<Table> all = tables();
    QByteArray directory = longs({0x10000}) + shorts({all.size(), 128, 3, 32});
    const int bodyStart = directory.size() + 16 * all.size();
    QByteArray body;
    for (const Table& table : all) {
        directory += table.tag + longs({0, bodyStart + body.size(), table.data.size()});
        body += table.data + QByteArray((4 - table.data.size() % 4) % 4, '\0');
    }
    return directory + body;
}

} // namespace StackingFont

/// The font, for as long as this lives.
class LoadedStackingFont
{
public:
    LoadedStackingFont() : m_id(QFontDatabase::addApplicationFontFromData(StackingFont::file())) {}
    ~LoadedStackingFont() { QFontDatabase::removeApplicationFont(m_id); }
    LoadedStackingFont(const LoadedStackingFont&) = delete;
    LoadedStackingFont& operator=(const LoadedStackingFont&) = delete;

    QString family() const { return QFontDatabase::applicationFontFamilies(m_id).value(0); }

private:
    int m_id;
};

} // namespace WyTest
