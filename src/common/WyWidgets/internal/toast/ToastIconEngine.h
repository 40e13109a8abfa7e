#pragma once

#include <QIcon>
#include <QIconEngine>
#include <QPixmap>

namespace WyWidgets {

/// An icon that is a plain one in every respect, but paints itself as sharp as the screen also where the
/// application has not asked Qt for dense pixmaps (Qt::AA_UseHighDpiPixmaps).
class ToastIconEngine : public QIconEngine
{
public:
    /// `dense` is the plain icon's picture with more pixels.
    ToastIconEngine(const QPixmap& plain, const QPixmap& dense);

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) const override;
    QIconEngine* clone() const override;

private:
    QIcon m_plain;
    QPixmap m_dense;
};

} // namespace WyWidgets
