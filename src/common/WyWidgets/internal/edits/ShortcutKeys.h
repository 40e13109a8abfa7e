#pragma once

#include <QtGlobal>

#include <optional>

class QKeyEvent;

namespace WyWidgets {

/// The key code (with modifier bits) that a key pressed together with Shift stands for in a shortcut: the
/// symbol where the keyboard layout turns the key into one ("!"), else the key with Shift ("Shift+A"). Empty
/// if the event names no key.
std::optional<int> shiftedShortcutKey(QKeyEvent* event);

} // namespace WyWidgets
