#pragma once

#include <functional>
#include <vector>

class QWidget;

namespace Monkey {

class Pool;
class Random;

/// What can be done with any widget.
struct WidgetAction
{
    const char* name;
    std::function<void(QWidget*, Random&, Pool&)> run;
};

/// What a host does with widgets through QWidget.
const std::vector<WidgetAction>& widgetActions();
/// What a user does with them: events of every kind, some through the window, some straight to the widget.
const std::vector<WidgetAction>& inputActions();
/// What a careless host does with the insides of a control.
const std::vector<WidgetAction>& damages();

constexpr int kLargestWindowPx = 1000;
/// Whether a window server could hold the pixels of the widget.
bool isPaintable(const QWidget* widget);

struct ApplicationAction
{
    const char* name;
    std::function<void(Random&)> run;
};

/// What changes the whole application: its style sheet, style, font, palette, direction, language and
/// screens.
const std::vector<ApplicationAction>& applicationActions();
/// The part of them that concerns screens.
std::vector<ApplicationAction> screenActions();
/// Back to what the application started with.
void restoreApplication();
void restoreScreens();

} // namespace Monkey
