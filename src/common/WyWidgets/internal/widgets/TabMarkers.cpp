#include "WyWidgets/internal/widgets/TabMarkers.h"

#include "WyWidgets/internal/accessibility/Accessibility.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QLabel>
#include <QPropertyAnimation>
#include <QPushButton>

namespace WyWidgets {

namespace {

constexpr int kGlideDurationMs = 300;

QWidget* markerOf(const QPropertyAnimation* glide)
{
    return glide ? static_cast<QWidget*>(glide->targetObject()) : nullptr;
}

} // namespace

QPushButton* addTabButton(QWidget* strip, QButtonGroup& group, QBoxLayout* layout, const QString& text)
{
    auto* tab = new QPushButton(text, strip);
    tab->setCheckable(true);
    group.addButton(tab, group.buttons().size());
    if (layout)
        layout->addWidget(tab);
    QObject::connect(tab, &QPushButton::toggled, tab, [tab](bool selected) {
        if (selected)
            tellSelection(tab);
    });
    return tab;
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

void glideMarker(QPropertyAnimation* glide, const QRect& target)
{
    const QWidget* marker = markerOf(glide);
    if (!marker)
        return;
    glide->stop();
    glide->setStartValue(marker->geometry());
    glide->setEndValue(target);
    glide->start();
}

void placeMarker(QPropertyAnimation* glide, const QRect& target)
{
    QWidget* marker = markerOf(glide);
    if (!marker)
        return;
    glide->stop();
    marker->setGeometry(target);
}

void settleMarker(QPropertyAnimation* glide, const QRect& target)
{
    if (glide && glide->state() == QAbstractAnimation::Running)
        glide->setEndValue(target);
    else
        placeMarker(glide, target);
}

} // namespace WyWidgets
