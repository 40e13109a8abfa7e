#include "monkey/Actions.h"
#include "monkey/Pool.h"

#include <QAbstractButton>
#include <QGraphicsColorizeEffect>
#include <QGraphicsOpacityEffect>
#include <QGridLayout>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QWidget>

namespace Monkey {

namespace {

constexpr int kLargestPicturePx = 2000;

/// Qt's own insides (scroll areas, calendar buttons, icons in edits) are Qt's.
bool isQtInternal(const QWidget* child)
{
    const QByteArray name = child->metaObject()->className();
    return child->objectName().startsWith(QLatin1String("qt_")) || name.startsWith("QLineEdit") ||
           name == "QMenu" || name == "QMainWindowLayout" || name == "QTipLabel" || name == "QRubberBand";
}

/// A child of the control, at any depth; null if there is none.
QWidget* anyChild(QWidget* widget, Random& random)
{
    const QList<QWidget*> children = widget->findChildren<QWidget*>();
    QWidget* child = children.isEmpty() ? nullptr : children.at(random.below(children.size()));
    return child && !isQtInternal(child) ? child : nullptr;
}

/// Whether the widget uses its layout without asking whether it is still there.
bool layoutIsQts(const QWidget* widget)
{
    return widget->inherits("QMainWindow");
}

void setEffect(QWidget* widget, Random& random)
{
    // Effects paint the whole widget into pictures, however little of it is seen.
    const bool isPicture = widget->width() <= kLargestPicturePx && widget->height() <= kLargestPicturePx;
    switch (random.below(isPicture ? 4 : 2)) {
    case 0:
        widget->setGraphicsEffect(nullptr);
        break;
    case 1:
        delete widget->graphicsEffect();
        break;
    case 2:
        widget->setGraphicsEffect(new QGraphicsColorizeEffect);
        break;
    default:
        widget->setGraphicsEffect(new QGraphicsOpacityEffect);
    }
}

void replaceLayout(QWidget* widget, Random& random)
{
    if (layoutIsQts(widget))
        return;
    delete widget->layout();
    if (random.oneIn(2))
        (new QGridLayout(widget))->addWidget(new QLabel(random.text()), random.below(3), random.below(3));
}

void deleteLayoutOfChild(QWidget* widget, Random& random)
{
    QWidget* child = anyChild(widget, random);
    if (child && !layoutIsQts(child))
        delete child->layout();
}

void deleteParent(QWidget* widget, Random& random)
{
    QWidget* parent = widget->parentWidget();
    if (!parent)
        return;
    if (random.oneIn(2))
        delete parent;
    else
        parent->deleteLater();
}

/// Another widget with the name, and not of the type, that the control's own child has.
void addImpostor(QWidget* widget, Random& random)
{
    QWidget* child = anyChild(widget, random);
    if (!child)
        return;
    QWidget* impostor = random.oneIn(2) ? new QWidget(widget) : new QPushButton(widget);
    impostor->setProperty("monkey", true);
    impostor->setObjectName(child->objectName());
    child->setObjectName(random.text());
}

} // namespace

const std::vector<WidgetAction>& damages()
{
    static const std::vector<WidgetAction> all = {
        {"delete a child",
         [](QWidget* w, Random& r, Pool&) {
             delete anyChild(w, r);
         }},
        {"delete a child soon",
         [](QWidget* w, Random& r, Pool&) {
             if (QWidget* child = anyChild(w, r))
                 child->deleteLater();
         }},
        {"take a child out",
         [](QWidget* w, Random& r, Pool&) {
             if (QWidget* child = anyChild(w, r)) {
                 child->setParent(nullptr);
                 child->deleteLater();
             }
         }},
        {"hide a child",
         [](QWidget* w, Random& r, Pool&) {
             if (QWidget* child = anyChild(w, r))
                 child->setVisible(r.oneIn(2));
         }},
        {"replace layout",
         [](QWidget* w, Random& r, Pool&) {
             replaceLayout(w, r);
         }},
        {"delete a child's layout",
         [](QWidget* w, Random& r, Pool&) {
             deleteLayoutOfChild(w, r);
         }},
        {"set effect",
         [](QWidget* w, Random& r, Pool&) {
             setEffect(w, r);
         }},
        {"set a child's effect",
         [](QWidget* w, Random& r, Pool&) {
             if (QWidget* child = anyChild(w, r))
                 setEffect(child, r);
         }},
        {"delete parent",
         [](QWidget* w, Random& r, Pool&) {
             deleteParent(w, r);
         }},
        {"add impostor",
         [](QWidget* w, Random& r, Pool&) {
             addImpostor(w, r);
         }},
    };
    return all;
}

} // namespace Monkey
