#pragma once

#include <QVariantAnimation>

namespace WyTest {

/// Keeps an animation driver in charge: Qt looks at the real clock whenever a first animation starts. To be
/// started once the driver is installed.
class EndlessAnimation : public QVariantAnimation
{
public:
    EndlessAnimation()
    {
        setStartValue(0);
        setEndValue(1);
        setDuration(1000);
        setLoopCount(-1);
    }
};

} // namespace WyTest
