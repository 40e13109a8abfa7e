#pragma once

#include <QImage>
#include <QList>
#include <QRect>
#include <QScopedPointer>
#include <QVector>

class QScreen;

namespace WyTest {

/// A monitor as a platform would report it: its place, and the pixels that a grab of it sees. Pictures of
/// another size than the place make a screen of higher resolution.
struct FakeScreen
{
    QRect geometry;
    /// Null: the whole geometry.
    QRect availableGeometry;
    qreal devicePixelRatio = 1;
    QImage pixels;
};

/// Replaces the application's screens by made-up ones, in this order, the first as the primary one, for as
/// long as it lives. An empty list makes an application without any screen. Together they are one desktop:
/// windows stay visible when they move from one to the other.
class FakeScreens
{
public:
    explicit FakeScreens(const QVector<FakeScreen>& screens);
    ~FakeScreens();

    int count() const;
    /// Plugs another screen in, as the last one.
    void add(const FakeScreen& screen);
    /// The screen of this index gets another place, resolution or content.
    void change(int index, const FakeScreen& screen);
    /// Unplugs a screen; another one has to be left.
    void remove(int index);

    /// The areas that were grabbed from the screen of this index, as the platform was asked for them.
    QVector<QRect> grabbedAreas(int index) const;

private:
    struct Private;
    QScopedPointer<Private> d;
};

} // namespace WyTest
