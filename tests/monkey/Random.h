#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QKeySequence>
#include <QLocale>
#include <QMargins>
#include <QPalette>
#include <QPixmap>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>
#include <QVariant>

#include <functional>
#include <optional>
#include <type_traits>

class QPushButton;
class QScreen;
class QWidget;

namespace Monkey {

/// Draws values from a seed, ordinary ones mostly and extreme ones often enough.
class Random
{
public:
    explicit Random(quint64 seed) : m_state(seed * 0x9e3779b97f4a7c15u + 0x632be59bd9b4e019u) {}

    quint64 next();
    /// 0 to `count` - 1.
    int below(int count) { return static_cast<int>(next() % static_cast<quint64>(count)); }
    /// True once in `times`.
    bool oneIn(int times) { return below(times) == 0; }

    int integer();
    /// Not so far out that Qt's own rectangles overflow.
    int coordinate() { return integer() / 8; }
    /// A length that a window of a real application could have.
    int length() { return below(400); }
    double real();
    QString text();
    QPoint point() { return {coordinate(), coordinate()}; }
    QSize size() { return {integer(), integer()}; }
    QColor color();
    QFont font();
    QPixmap pixmap();
    QVariant variant();

    /// A value for a parameter of this type.
    template <typename T>
    T draw();

    /// From now on no extreme numbers and no strange texts.
    void beOrdinary() { m_ordinary = true; }
    /// Every drawn text is this one from now on.
    void fixText(const QString& text) { m_fixedText = text; }
    /// Where arguments that are widgets come from; null without it.
    void setWidgets(std::function<QWidget*()> widgets) { m_widgets = std::move(widgets); }
    QWidget* widget() { return m_widgets ? m_widgets() : nullptr; }
    QPushButton* pushButton();
    QScreen* screen();

private:
    quint64 m_state;
    bool m_ordinary = false;
    std::optional<QString> m_fixedText;
    std::function<QWidget*()> m_widgets;
};

template <typename T>
T Random::draw()
{
    if constexpr (std::is_same_v<T, bool>)
        return oneIn(2);
    else if constexpr (std::is_enum_v<T>)
        return static_cast<T>(oneIn(20) ? integer() : below(12) - 1);
    else if constexpr (std::is_integral_v<T>)
        return sizeof(T) == 8 && oneIn(10) ? static_cast<T>(next()) : static_cast<T>(integer());
    else if constexpr (std::is_floating_point_v<T>)
        return static_cast<T>(real());
    else if constexpr (std::is_same_v<T, QString>)
        return text();
    else if constexpr (std::is_same_v<T, QPoint>)
        return point();
    else if constexpr (std::is_same_v<T, QSize>)
        return size();
    else if constexpr (std::is_same_v<T, QRect>)
        return QRect(coordinate(), coordinate(), coordinate(), coordinate());
    else if constexpr (std::is_same_v<T, QRectF>)
        return QRectF(real(), real(), real(), real());
    else if constexpr (std::is_same_v<T, QMargins>)
        return QMargins(integer(), integer(), integer(), integer());
    else if constexpr (std::is_same_v<T, QColor>)
        return color();
    else if constexpr (std::is_same_v<T, QFont>)
        return font();
    else if constexpr (std::is_same_v<T, QPixmap>)
        return pixmap();
    else if constexpr (std::is_same_v<T, QImage>)
        return pixmap().toImage();
    else if constexpr (std::is_same_v<T, QKeySequence>)
        return QKeySequence(integer(), integer(), integer(), integer());
    else if constexpr (std::is_same_v<T, Qt::Alignment>)
        return Qt::Alignment(below(0x1000));
    else if constexpr (std::is_same_v<T, QPushButton*>)
        return pushButton();
    else if constexpr (std::is_same_v<T, QScreen*>)
        return screen();
    else if constexpr (std::is_same_v<T, QWidget*>)
        return widget();
    else
        static_assert(!sizeof(T), "no way to draw a value of this type");
}

} // namespace Monkey
