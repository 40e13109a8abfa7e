#pragma once

#include <memory>

class QWidget;

namespace WyTest {

/// Counts, from its creation on, how often the application asks the window manager to move a window with the
/// mouse. Listens on the X server's root window, where such requests go.
class MoveRequests
{
public:
    explicit MoveRequests(const QWidget* window);
    ~MoveRequests();

    int count();

private:
    struct Listener;
    std::unique_ptr<Listener> m_listener;
};

} // namespace WyTest
