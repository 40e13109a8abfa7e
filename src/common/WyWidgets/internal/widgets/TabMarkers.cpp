#include "WyWidgets/internal/widgets/TabMarkers.h"

#include "WyWidgets/internal/accessibility/Accessibility.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QLabel>
#include <QPointer>
#include <QPropertyAnimation>
#include <QPushButton>

namespace WyWidgets {

namespace {

constexpr int kGlideDurationMs = 300;

} // namespace

QPushButton* addTabButton(QWidget* strip, QButtonGroup& group, QBoxLayout* layout, const QString& text)
{
    auto* tab = new QPushButton(text, strip);
    tab->setCheckable(true);
    tab->setAutoDefault(false); // else Return anywhere in a dialog would click a tab
    group.addButton(tab, group.buttons().size());
    if (layout)
        layout->addWidget(tab);
    QObject::connect(tab, &QPushButton::toggled, tab, [tab](bool selected) {
        if (selected)
            tellSelection(tab);
    });
    return tab;
}

QAbstractButton* tabWithId(const QButtonGroup& group, int id)
{
    QAbstractButton* selected = group.checkedButton();
    return selected && group.id(selected) == id ? selected : group.button(id);
}

QLabel* createMarker(QWidget* strip, const QString& objectName, QSize fixedSize, QPoint position)
{
    auto* marker = new QLabel(strip);
    marker->setObjectName(objectName);
    marker->setFixedSize(fixedSize);
    marker->move(position);
    return marker;
}

QPropertyAnimation* createGlide(QLabel* marker, QWidget* strip)
{
    auto* glide = new QPropertyAnimation(marker, "geometry", strip);
    glide->setDuration(kGlideDurationMs);
    glide->setEasingCurve(QEasingCurve::OutCirc);
    return glide;
}

// Handlers of the host may delete marker and glide when the glide stops.

void glideMarker(QLabel* label, QPropertyAnimation* animation, const QRect& target)
{
    const QPointer<QLabel> marker(label);
    const QPointer<QPropertyAnimation> glide(animation);
    if (glide)
        glide->stop();
    if (!marker || !glide) {
        placeMarker(marker, nullptr, target);
        return;
    }
    glide->setStartValue(marker->geometry());
    glide->setEndValue(target);
    glide->start();
}

void placeMarker(QLabel* label, QPropertyAnimation* glide, const QRect& target)
{
    const QPointer<QLabel> marker(label);
    if (glide)
        glide->stop();
    if (marker)
        marker->setGeometry(target);
}

void settleMarker(QLabel* marker, QPropertyAnimation* glide, const QRect& target)
{
    if (glide && glide->state() == QAbstractAnimation::Running)
        glide->setEndValue(target);
    else
        placeMarker(marker, glide, target);
}

} // namespace WyWidgets
