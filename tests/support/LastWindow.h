#pragma once

#include <functional>

namespace WyTest {

/// How often the application takes its last window for closed while `act` runs. Qt says so only inside
/// QApplication::exec(), so `act` runs there.
int lastWindowClosings(const std::function<void()>& act);

} // namespace WyTest
