#include "monkey/Actions.h"
#include "monkey/Pool.h"

#include <QGraphicsEffect>
#include <QLineEdit>
#include <QMetaProperty>
#include <QVBoxLayout>
#include <QWidget>
#include <QWindow>

namespace Monkey {

namespace {

/// Qt deletes those together with a window that becomes a child, and forgets to tell their widgets.
bool hasNativeChildren(const QWidget* widget)
{
    const QWindow* window = widget->isWindow() ? widget->windowHandle() : nullptr;
    return window && window->findChild<QWindow*>();
}

/// Whether the widget may move below the other one without a circle, windows in between included.
bool mayLiveIn(const QWidget* widget, const QWidget* parent)
{
    if (parent && hasNativeChildren(widget))
        return false;
    while (parent && parent != widget)
        parent = parent->parentWidget();
    return !parent;
}

void changeParent(QWidget* widget, Random& random, Pool& pool)
{
    QWidget* parent = random.oneIn(4) ? nullptr : pool.any(random).object.data();
    if (!mayLiveIn(widget, parent))
        return;
    const Qt::WindowFlags kept = widget->windowFlags();
    if (random.oneIn(2))
        widget->setParent(parent);
    else
        widget->setParent(parent, kept);
}

void joinLayout(QWidget* widget, Random& random, Pool& pool)
{
    QWidget* parent = pool.any(random).object;
    if (!parent || parent->inherits("QMainWindow") || !mayLiveIn(widget, parent))
        return;
    if (!parent->layout())
        new QVBoxLayout(parent);
    parent->layout()->addWidget(widget);
}

void setAnyProperty(QWidget* widget, Random& random)
{
    const QMetaObject* meta = widget->metaObject();
    const QMetaProperty property = meta->property(random.below(meta->propertyCount()));
    static const QByteArrayList kept = {"geometry",      "size",          "minimumSize",   "maximumSize",
                                        "minimumWidth",  "minimumHeight", "maximumWidth",  "maximumHeight",
                                        "sizeIncrement", "baseSize",      "pos",           "cursor",
                                        "dragEnabled",   "styleSheet",    "windowFilePath"};
    if (property.isWritable() && !kept.contains(property.name()))
        property.write(widget, random.variant());
}

void readProperties(QWidget* widget)
{
    const QMetaObject* meta = widget->metaObject();
    for (int i = QWidget::staticMetaObject.propertyCount(); i < meta->propertyCount(); ++i)
        meta->property(i).read(widget);
}

void setSheet(QWidget* widget, Random& random)
{
    static const QString sheets[] = {
        QString(),
        QStringLiteral("* { border: 1px solid red; padding: 3px; }"),
        QStringLiteral("QLabel { min-width: 40px; font: 20px; } QPushButton:hover { margin: 9px; }"),
        QStringLiteral("* { qproperty-shadowColor: red; qproperty-bubbleColor: blue; }"),
        QStringLiteral("nonsense { ] url("),
    };
    widget->setStyleSheet(sheets[random.below(5)]);
}

/// Sizes that a window server can take; anything else only for what is not a window.
QSize anySize(const QWidget* widget, Random& random)
{
    if (!widget->isWindow() && !widget->isVisible() && random.oneIn(3))
        return random.size();
    return {random.length(), random.length()};
}

void toggleState(QWidget* widget, Random& random)
{
    const Qt::WindowState states[] = {Qt::WindowNoState, Qt::WindowMinimized, Qt::WindowMaximized,
                                      Qt::WindowFullScreen, Qt::WindowActive};
    widget->setWindowState(widget->windowState() ^ states[random.below(5)]);
}

void measure(QWidget* widget, Random& random)
{
    widget->sizeHint();
    widget->minimumSizeHint();
    widget->heightForWidth(random.integer());
}

void grab(QWidget* widget)
{
    if (isPaintable(widget))
        widget->grab();
}

void repaint(QWidget* widget)
{
    if (isPaintable(widget->window()))
        widget->repaint();
}

std::vector<WidgetAction> placing()
{
    return {
        {"show",
         [](QWidget* w, Random&, Pool&) {
             w->show();
         }},
        {"show again",
         [](QWidget* w, Random&, Pool&) {
             w->show();
         }},
        {"hide",
         [](QWidget* w, Random&, Pool&) {
             w->hide();
         }},
        {"setVisible",
         [](QWidget* w, Random& r, Pool&) {
             w->setVisible(r.oneIn(2));
         }},
        {"close",
         [](QWidget* w, Random&, Pool&) {
             w->close();
         }},
        {"raise",
         [](QWidget* w, Random&, Pool&) {
             w->raise();
         }},
        {"lower",
         [](QWidget* w, Random&, Pool&) {
             w->lower();
         }},
        {"move",
         [](QWidget* w, Random& r, Pool&) {
             w->move(r.length(), r.length());
         }},
        {"move far",
         [](QWidget* w, Random& r, Pool&) {
             w->move(r.below(99999) - 50000, r.below(99999));
         }},
        {"resize",
         [](QWidget* w, Random& r, Pool&) {
             w->resize(anySize(w, r));
         }},
        {"setGeometry",
         [](QWidget* w, Random& r, Pool&) {
             w->setGeometry(9, -9, r.length(), r.length());
         }},
        {"adjustSize",
         [](QWidget* w, Random&, Pool&) {
             w->adjustSize();
         }},
        {"setMinimumWidth",
         [](QWidget* w, Random& r, Pool&) {
             w->setMinimumWidth(r.length());
         }},
        {"setMaximumHeight",
         [](QWidget* w, Random& r, Pool&) {
             w->setMaximumHeight(r.length());
         }},
        {"setContentsMargins",
         [](QWidget* w, Random& r, Pool&) {
             w->setContentsMargins(r.below(30) - 9, 3, r.below(99), 4);
         }},
        {"setSizePolicy",
         [](QWidget* w, Random& r, Pool&) {
             w->setSizePolicy(QSizePolicy::Policy(r.below(8)), QSizePolicy::Fixed);
         }},
        {"window state",
         [](QWidget* w, Random& r, Pool&) {
             toggleState(w, r);
         }},
        {"activateWindow",
         [](QWidget* w, Random&, Pool&) {
             w->activateWindow();
         }},
        {"setParent", changeParent},
        {"join a layout", joinLayout},
    };
}

std::vector<WidgetAction> looks()
{
    return {
        {"setEnabled",
         [](QWidget* w, Random& r, Pool&) {
             w->setEnabled(!r.oneIn(3));
         }},
        {"setLayoutDirection",
         [](QWidget* w, Random& r, Pool&) {
             w->setLayoutDirection(Qt::LayoutDirection(r.below(3)));
         }},
        {"setFont",
         [](QWidget* w, Random& r, Pool&) {
             w->setFont(r.oneIn(2) ? QFont() : r.font());
         }},
        {"setPalette",
         [](QWidget* w, Random& r, Pool&) {
             w->setPalette(QPalette(r.color(), r.color()));
         }},
        {"setStyleSheet",
         [](QWidget* w, Random& r, Pool&) {
             setSheet(w, r);
         }},
        {"setToolTip",
         [](QWidget* w, Random& r, Pool&) {
             w->setToolTip(r.text());
         }},
        {"setWindowTitle",
         [](QWidget* w, Random& r, Pool&) {
             w->setWindowTitle(r.text());
         }},
        {"setWindowOpacity",
         [](QWidget* w, Random& r, Pool&) {
             w->setWindowOpacity(r.real());
         }},
        {"setLocale",
         [](QWidget* w, Random& r, Pool&) {
             w->setLocale(QLocale(QLocale::Language(r.below(300))));
         }},
        {"setCursor",
         [](QWidget* w, Random& r, Pool&) {
             w->setCursor(Qt::CursorShape(r.below(20)));
         }},
        {"setAccessibleName",
         [](QWidget* w, Random& r, Pool&) {
             w->setAccessibleName(r.text());
         }},
        {"setProperty",
         [](QWidget* w, Random& r, Pool&) {
             setAnyProperty(w, r);
         }},
        {"read properties",
         [](QWidget* w, Random&, Pool&) {
             readProperties(w);
         }},
        {"measure",
         [](QWidget* w, Random& r, Pool&) {
             measure(w, r);
         }},
        {"update",
         [](QWidget* w, Random&, Pool&) {
             w->update();
         }},
        {"repaint",
         [](QWidget* w, Random&, Pool&) {
             repaint(w);
         }},
        {"grab",
         [](QWidget* w, Random&, Pool&) {
             grab(w);
         }},
        {"setFocus",
         [](QWidget* w, Random&, Pool&) {
             w->setFocus();
         }},
        {"clearFocus",
         [](QWidget* w, Random&, Pool&) {
             w->clearFocus();
         }},
        {"ensurePolished",
         [](QWidget* w, Random&, Pool&) {
             w->ensurePolished();
         }},
        // Qt loses track of native windows inside others, see hasNativeChildren().
        {"create window",
         [](QWidget* w, Random&, Pool&) {
             if (w->isWindow())
                 w->winId();
         }},
        {"setMouseTracking",
         [](QWidget* w, Random& r, Pool&) {
             w->setMouseTracking(r.oneIn(2));
         }},
        {"grabMouse",
         [](QWidget* w, Random&, Pool&) {
             w->grabMouse();
             w->releaseMouse();
         }},
    };
}

} // namespace

bool isPaintable(const QWidget* widget)
{
    return widget->width() <= kLargestWindowPx && widget->height() <= kLargestWindowPx;
}

const std::vector<WidgetAction>& widgetActions()
{
    static const std::vector<WidgetAction> actions = [] {
        std::vector<WidgetAction> all = placing();
        const std::vector<WidgetAction> more = looks();
        all.insert(all.end(), more.begin(), more.end());
        return all;
    }();
    return actions;
}

} // namespace Monkey
