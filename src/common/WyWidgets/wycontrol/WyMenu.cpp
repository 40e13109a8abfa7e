#include "WyWidgets/wycontrol/WyMenu.h"

namespace WyWidgets {

WyMenu::WyMenu(QWidget* parent) : QMenu(parent) {}

} // namespace WyWidgets
