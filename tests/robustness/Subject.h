#pragma once

#include "monkey/Catalogue.h"

#include "WyWidgets/wycontrol/WyToast.h"
#include "WyWidgets/wycontrol/WyToastWidget.h"

#include <QtTest>
#include <QtWidgets>

namespace WyTest {

/// An object of a class of the catalogue in a window of its own, both of which may be gone at any moment.
struct Subject
{
    explicit Subject(const Monkey::ClassEntry& entry, Monkey::Random& random) : window(new QWidget)
    {
        window->resize(300, 200);
        object = static_cast<QWidget*>(entry.create(random, window));
    }
    ~Subject()
    {
        delete object;
        delete window;
        WyWidgets::WyToast::reset();
        for (QWidget* left : QApplication::topLevelWidgets()) {
            // Made by a static function, or an argument that nobody has taken.
            if (qobject_cast<WyWidgets::WyToastWidget*>(left) ||
                left->objectName() == QLatin1String("monkey_button"))
                left->deleteLater();
        }
        deliver();
    }

    /// Carries out what is posted, deletions included.
    static void deliver()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// Paints what of the object a screen could hold.
    void paint() const
    {
        if (object)
            object->grab(QRect(QPoint(0, 0), object->size().boundedTo({1500, 1500})));
    }

    QPointer<QWidget> window;
    QPointer<QWidget> object;
};

/// The windows that nobody owns. Menus and tool tips end by themselves.
inline int strayWindows()
{
    int count = 0;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        const bool endsItself = window->inherits("QMenu") || window->inherits("QTipLabel");
        count += !window->parentWidget() && !endsItself;
    }
    return count;
}

} // namespace WyTest
