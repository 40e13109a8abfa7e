#include "WyWidgets/internal/widgets/PopupContent.h"

#include <QVBoxLayout>
#include <QWidget>

namespace WyWidgets {

QWidget* addPopupContent(QWidget* window)
{
    // A second panel shares the layout of the first.
    if (!window->layout())
        (new QVBoxLayout(window))->setContentsMargins(0, 0, 0, 0);
    auto* content = new QWidget(window);
    content->setObjectName(QStringLiteral("widget_content"));
    window->layout()->addWidget(content);
    return content;
}

} // namespace WyWidgets
