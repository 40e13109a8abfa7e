#include "WyWidgets/wycontrol/WyPopupBox.h"

#include "WyWidgets/internal/widgets/PopupContent.h"

namespace WyWidgets {

WyPopupBox::WyPopupBox(QWidget* parent) : QWidget(parent)
{
    setWindowFlags(Qt::Popup);
    setAttribute(Qt::WA_TranslucentBackground);
    m_contentWidget = createContent();
}

QWidget* WyPopupBox::createContent()
{
    return addPopupContent(this);
}

} // namespace WyWidgets
