#include "support/FakeScreens.h"

#include <QGuiApplication>
#include <QPixmap>

#include <private/qguiapplication_p.h>
#include <qpa/qplatformscreen.h>
#include <qpa/qwindowsysteminterface.h>

namespace WyTest {

namespace {

class PlatformScreen : public QPlatformScreen
{
public:
    PlatformScreen(const FakeScreen& screen, const QVector<PlatformScreen*>& all)
        : m_screen(screen), m_all(all)
    {
    }

    void change(const FakeScreen& screen)
    {
        m_screen = screen;
        QWindowSystemInterface::handleScreenGeometryChange(this->screen(), geometry(), availableGeometry());
    }

    QRect geometry() const override { return m_screen.geometry; }
    QRect availableGeometry() const override
    {
        return m_screen.availableGeometry.isNull() ? m_screen.geometry : m_screen.availableGeometry;
    }
    int depth() const override { return 32; }
    QImage::Format format() const override { return QImage::Format_ARGB32_Premultiplied; }
    qreal devicePixelRatio() const override { return m_screen.devicePixelRatio; }
    QList<QPlatformScreen*> virtualSiblings() const override
    {
        return QList<QPlatformScreen*>(m_all.begin(), m_all.end());
    }
    QPixmap grabWindow(WId, int x, int y, int width, int height) const override
    {
        grabbedAreas += QRect(x, y, width, height);
        const QSize size(width < 0 ? m_screen.geometry.width() : width,
                         height < 0 ? m_screen.geometry.height() : height);
        const qreal ratio = m_screen.devicePixelRatio;
        QPixmap pixmap = QPixmap::fromImage(m_screen.pixels.copy(QRect(QPoint(x, y) * ratio, size * ratio)));
        pixmap.setDevicePixelRatio(ratio);
        return pixmap;
    }

    mutable QVector<QRect> grabbedAreas;

private:
    FakeScreen m_screen;
    const QVector<PlatformScreen*>& m_all;
};

} // namespace

struct FakeScreens::Private
{
    QVector<PlatformScreen*> screens; // owned by the application once it knows them
    QList<QScreen*> realScreens;
};

FakeScreens::FakeScreens(const QVector<FakeScreen>& screens) : d(new Private)
{
    d->realScreens.swap(QGuiApplicationPrivate::screen_list);
    for (const FakeScreen& screen : screens)
        add(screen);
}

FakeScreens::~FakeScreens()
{
    // The real ones come back first: the last screen of an application cannot leave without a warning.
    QGuiApplicationPrivate::screen_list = d->realScreens + QGuiApplicationPrivate::screen_list;
    for (PlatformScreen* screen : qAsConst(d->screens))
        QWindowSystemInterface::handleScreenRemoved(screen);
}

int FakeScreens::count() const
{
    return d->screens.size();
}

void FakeScreens::add(const FakeScreen& screen)
{
    d->screens += new PlatformScreen(screen, d->screens);
    QWindowSystemInterface::handleScreenAdded(d->screens.last());
}

void FakeScreens::change(int index, const FakeScreen& screen)
{
    d->screens.at(index)->change(screen);
}

void FakeScreens::remove(int index)
{
    PlatformScreen* screen = d->screens.at(index);
    QWindowSystemInterface::handleScreenRemoved(screen);
    d->screens.removeAt(index);
}

QVector<QRect> FakeScreens::grabbedAreas(int index) const
{
    return d->screens.at(index)->grabbedAreas;
}

} // namespace WyTest
