#pragma once

#include <QPointer>

#include <algorithm>
#include <deque>
#include <type_traits>
#include <vector>

namespace WyWidgets {

// Lists of widgets that the host may delete at any time.

/// A copy to walk over: what the host's slots and event filters do meanwhile does not disturb it.
template <typename List>
auto guarded(const List& list)
{
    using Widget = std::remove_pointer_t<typename List::value_type>;
    return std::vector<QPointer<Widget>>(list.begin(), list.end());
}

template <typename Widget>
bool contains(const std::deque<Widget*>& list, const Widget* widget)
{
    return std::find(list.begin(), list.end(), widget) != list.end();
}

/// Removes every occurrence; true if there was one.
template <typename Widget>
bool removeFrom(std::deque<Widget*>& list, const Widget* widget)
{
    const auto kept = std::remove(list.begin(), list.end(), widget);
    const bool found = kept != list.end();
    list.erase(kept, list.end());
    return found;
}

} // namespace WyWidgets
