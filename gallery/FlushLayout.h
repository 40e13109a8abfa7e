#pragma once

#include <QLayout>

/// A layout of this class on the widget whose items reach its edges.
template <typename Layout>
Layout* flushLayout(QWidget* widget)
{
    auto* layout = new Layout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    return layout;
}
