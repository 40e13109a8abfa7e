#pragma once

#include <QString>
#include <QVector>

namespace WyTest {

struct HostileText
{
    const char* name;
    QString text;
};

/// Texts that break code which takes text for granted: markup, control characters, halves of surrogate pairs,
/// place holders, style-sheet syntax, huge ones.
inline QVector<HostileText> hostileTexts()
{
    const QChar high(0xd83d);
    const QChar low(0xde00);
    QString controls;
    for (ushort code = 0; code < 0x20; ++code)
        controls += QChar(code);
    return {
        {"null", QString()},
        {"empty", QLatin1String("")},
        {"rich", QStringLiteral(
                     "<b>bold</b> <a href='x'>link</a> <img src='/dev/null'> <table width=99999><tr><td>x")},
        {"unclosed markup", QStringLiteral("<p<b <i>< & &amp &#99999999; &#0;")},
        {"nested markup", QStringLiteral("<div>").repeated(200) + QStringLiteral("<ul><li>").repeated(50)},
        {"controls", controls + QChar(0x7f) + QChar(0x85) + controls},
        {"high surrogate", QString(high)},
        {"low surrogate", QString(low)},
        {"turned surrogates", QString(low) + high + QLatin1Char('a') + high},
        {"emoji", (QString(high) + low + QChar(0x200d)).repeated(20)},
        {"non-characters", QString(QChar(0xffff)) + QChar(0xfffe) + QChar(0xfdd0) + QChar(0xfeff)},
        {"bidirectional",
         QString(QChar(0x202e)) + QStringLiteral("abc") + QChar(0x2066) + QChar(0x05d0) + QChar(0x202c)},
        {"combining", QStringLiteral("e") + QString(1000, QChar(0x0301))},
        {"line ends", QStringLiteral("a\nb\r\nc\rd\u2028e\u2029f\vg\fh")},
        {"no-break spaces", QString(300, QChar(0x00a0))},
        {"spaces", QString(3000, QLatin1Char(' '))},
        {"place holders", QStringLiteral("%1 %2 %99 %n %L1 %%1 {0} %s")},
        {"style sheet", QStringLiteral("} * { color: red; image: url(/dev/zero) /* \" ' \\")},
        {"mnemonics", QStringLiteral("&&&a&b&")},
        {"path", QStringLiteral("../../:/\\?*|<>\"\0x")},
        {"long word", QString(20000, QLatin1Char('W'))},
        {"long text", QStringLiteral("lorem ipsum ").repeated(5000)},
        {"many lines", QStringLiteral("x\n").repeated(5000)},
    };
}

} // namespace WyTest
