#include "monkey/Actions.h"
#include "monkey/Random.h"

#include "support/FakeScreens.h"

#include <memory>

namespace Monkey {

using WyTest::FakeScreen;
using WyTest::FakeScreens;

namespace {

constexpr int kMostScreens = 4;

/// The platform's own screen until something happens to it.
std::unique_ptr<FakeScreens> screens;

FakeScreen anyScreen(Random& random)
{
    static const QSize sizes[] = {{1920, 1080}, {800, 800}, {640, 480}, {3840, 2160}};
    static constexpr qreal ratios[] = {1, 1, 1.5, 2};
    FakeScreen screen;
    screen.geometry = {QPoint(random.below(8) * 960 - 1920, random.below(5) * 540 - 1080),
                       sizes[random.below(4)]};
    if (random.oneIn(2))
        screen.availableGeometry = screen.geometry.adjusted(0, 25, 0, -60);
    screen.devicePixelRatio = ratios[random.below(4)];
    return screen;
}

FakeScreens& desktop(Random& random)
{
    if (!screens)
        screens = std::make_unique<FakeScreens>(QVector<FakeScreen>{anyScreen(random)});
    return *screens;
}

} // namespace

std::vector<ApplicationAction> screenActions()
{
    return {
        {"screen added",
         [](Random& random) {
             if (desktop(random).count() < kMostScreens)
                 desktop(random).add(anyScreen(random));
         }},
        {"screen moved or scaled",
         [](Random& random) {
             desktop(random).change(random.below(desktop(random).count()), anyScreen(random));
         }},
        {"screen removed",
         [](Random& random) {
             if (desktop(random).count() > 1)
                 desktop(random).remove(random.below(desktop(random).count()));
         }},
    };
}

void restoreScreens()
{
    screens.reset();
}

} // namespace Monkey
