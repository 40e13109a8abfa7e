#include "WyWidgets/internal/toast/ToastIconEngine.h"

#include <QPainter>

namespace WyWidgets {

ToastIconEngine::ToastIconEngine(const QPixmap& plain, const QPixmap& dense) : m_plain(plain), m_dense(dense)
{
}

void ToastIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State)
{
    painter->save();
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawPixmap(rect, m_dense);
    painter->restore();
}

QPixmap ToastIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state)
{
    return m_plain.pixmap(size, mode, state);
}

QSize ToastIconEngine::actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state)
{
    return m_plain.actualSize(size, mode, state);
}

QList<QSize> ToastIconEngine::availableSizes(QIcon::Mode mode, QIcon::State state) const
{
    return m_plain.availableSizes(mode, state);
}

QIconEngine* ToastIconEngine::clone() const
{
    return new ToastIconEngine(*this);
}

} // namespace WyWidgets
