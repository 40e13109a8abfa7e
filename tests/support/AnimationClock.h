#pragma once

#include <QAnimationDriver>
#include <QCoreApplication>
#include <QVariantAnimation>

namespace WyTest {

/// The time of all animations, moved on by hand for as long as this lives; to be made before the first
/// animation starts. It keeps an animation of its own running: Qt looks at the real clock whenever a first
/// one starts.
class AnimationClock : public QAnimationDriver
{
public:
    AnimationClock()
    {
        QCoreApplication::processEvents(); // the real clock stops after the animations of other tests
        install();
        m_forever.setStartValue(0);
        m_forever.setEndValue(1);
        m_forever.setDuration(1000);
        m_forever.setLoopCount(-1);
        m_forever.start();
        while (m_forever.currentTime() == 0) // until Qt follows this clock
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
    QVariantAnimation m_forever;
    qint64 m_now = 0;
};

} // namespace WyTest
