#pragma once

#include "WyWidgets/WyExport.h"

#include <QColor>
#include <QPointer>
#include <QWidget>

class QGraphicsDropShadowEffect;

namespace WyWidgets {

/// A plain container that casts a soft shadow of a configurable colour.
///
/// It has no shadow until the first colour is set, from code or with "qproperty-shadowColor" in a style
/// sheet. The shadow falls outside what is painted: leave about 12 px around the widget in the layout that
/// holds it. The widget paints a style-sheet background. A widget of more than 33 million pixels (7680 x
/// 4320), say the content of a scroll area, is painted without its shadow, which would take gigabytes.
class WYWIDGETS_EXPORT WyShadowWidget : public QWidget
{
    Q_OBJECT
    /// The colour of the shadow; a style sheet sets it with "qproperty-shadowColor".
    Q_PROPERTY(QColor shadowColor READ shadowColor WRITE setShadowColor)

public:
    /// A container without shadow.
    explicit WyShadowWidget(QWidget* parent = nullptr);

    /// The colour set last; invalid until one is set.
    QColor shadowColor() const;
    /// Stores the colour and shows the shadow in it. A graphics effect that the host installed instead of the
    /// shadow is replaced by a new shadow.
    void setShadowColor(QColor color);

private:
    QPointer<QGraphicsDropShadowEffect> m_effect;
    QColor m_shadowColor;
};

} // namespace WyWidgets
