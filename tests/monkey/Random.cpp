#include "monkey/Random.h"

#include "support/HostileTexts.h"

#include <QApplication>
#include <QPushButton>
#include <QScreen>

#include <iterator>
#include <limits>

namespace Monkey {

quint64 Random::next()
{
    quint64 value = (m_state += 0x9e3779b97f4a7c15u);
    value = (value ^ (value >> 30)) * 0xbf58476d1ce4e5b9u;
    value = (value ^ (value >> 27)) * 0x94d049bb133111ebu;
    return (value ^ (value >> 31)) >> 1;
}

int Random::integer()
{
    static constexpr int extremes[] = {std::numeric_limits<int>::min(),
                                       std::numeric_limits<int>::max(),
                                       std::numeric_limits<int>::min() + 1,
                                       std::numeric_limits<int>::max() - 1,
                                       -1,
                                       0,
                                       1,
                                       -32768,
                                       16777215,
                                       16777216,
                                       1 << 30};
    if (m_ordinary)
        return below(60);
    if (oneIn(12))
        return extremes[below(static_cast<int>(std::size(extremes)))];
    return below(oneIn(5) ? 1000 : 60) - 3;
}

double Random::real()
{
    static constexpr double extremes[] = {std::numeric_limits<double>::quiet_NaN(),
                                          std::numeric_limits<double>::infinity(),
                                          -std::numeric_limits<double>::infinity(),
                                          std::numeric_limits<double>::max(),
                                          std::numeric_limits<double>::denorm_min(),
                                          -0.0,
                                          -1.0,
                                          1e9};
    if (!m_ordinary && oneIn(8))
        return extremes[below(static_cast<int>(std::size(extremes)))];
    return below(12000) / 100.0;
}

QString Random::text()
{
    if (m_fixedText)
        return *m_fixedText;
    if (m_ordinary)
        return QStringLiteral("ordinary");
    if (oneIn(10))
        return QString();
    if (oneIn(8)) {
        const auto texts = WyTest::hostileTexts();
        return texts.at(below(texts.size())).text.left(2000);
    }
    static const QStringList words = {
        QStringLiteral("Save"), QStringLiteral("the"),   QStringLiteral("file"), QStringLiteral("again"),
        QStringLiteral("an&d"), QStringLiteral("50 %1"), QStringLiteral("red"),  QStringLiteral("#12345678"),
        QStringLiteral("-17"),  QStringLiteral("…\n")};
    QStringList chosen;
    for (int count = 1 + below(oneIn(20) ? 60 : 6); count > 0; --count)
        chosen += words.at(below(words.size()));
    return chosen.join(QLatin1Char(' '));
}

QColor Random::color()
{
    if (oneIn(8))
        return QColor();
    return QColor(below(256), below(256), below(256), below(256));
}

QFont Random::font()
{
    QFont font(oneIn(2) ? QStringLiteral("DejaVu Sans") : text().left(20));
    font.setPixelSize(1 + below(oneIn(10) ? 200 : 30));
    font.setBold(oneIn(2));
    font.setItalic(oneIn(2));
    return font;
}

QPixmap Random::pixmap()
{
    static const QSize sizes[] = {{0, 0}, {1, 1}, {16, 16}, {24, 10}, {300, 200}};
    QPixmap pixmap(sizes[below(static_cast<int>(std::size(sizes)))]);
    pixmap.fill(color());
    if (!pixmap.isNull() && oneIn(4))
        pixmap.setDevicePixelRatio(2);
    return pixmap;
}

QVariant Random::variant()
{
    switch (below(8)) {
    case 0:
        return integer();
    case 1:
        return real();
    case 2:
        return text();
    case 3:
        return color();
    case 4:
        return size();
    case 5:
        return point();
    case 6:
        return oneIn(2);
    default:
        return QVariant();
    }
}

QPushButton* Random::pushButton()
{
    if (oneIn(10))
        return nullptr;
    auto* button = new QPushButton(text(), widget());
    button->setObjectName(QStringLiteral("monkey_button"));
    return button;
}

QScreen* Random::screen()
{
    const QList<QScreen*> screens = QGuiApplication::screens();
    return oneIn(2) ? nullptr : screens.value(below(screens.size() + 1));
}

} // namespace Monkey
