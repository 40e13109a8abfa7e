#pragma once

#include "support/EndlessAnimation.h"

#include <QAnimationDriver>
#include <QCoreApplication>

namespace WyTest {

/// The time of all animations, moved on by hand for as long as this lives; to be made before the first
/// animation starts.
class AnimationClock : public QAnimationDriver
{
public:
    AnimationClock()
    {
        QCoreApplication::processEvents(); // the real clock stops after the animations of other tests
        install();
        m_endless.start();
        while (m_endless.currentTime() == 0) // until Qt follows this clock
            pass(1);
    }
    ~AnimationClock() override { uninstall(); }

    void pass(int ms)
    {
        QCoreApplication::processEvents(); // animations begin and end in the event loop
        m_now += ms;
        advance();
    }
    qint64 elapsed() const override { return m_now; }

private:
    EndlessAnimation m_endless;
    qint64 m_now = 0;
};

} // namespace WyTest
