#pragma once

#include <QPoint>
#include <QSize>
#include <QString>

class QAbstractButton;
class QBoxLayout;
class QButtonGroup;
class QLabel;
class QPropertyAnimation;
class QPushButton;
class QRect;
class QWidget;

namespace WyWidgets {

// What the flat tab strips share: tabs are checkable buttons in an exclusive group, and markers glide to the
// clicked one. A marker is a label of fixed size; its glide is an animation of the label's geometry.

/// A checkable button, child of the strip, whose id in the group is the number of buttons before it. A null
/// layout leaves the button unplaced.
QPushButton* addTabButton(QWidget* strip, QButtonGroup& group, QBoxLayout* layout, const QString& text);

/// The tab with this id, null if there is none. Where the host has deleted tabs, later ones may have got ids
/// that are in use: of several tabs, this is the selected one.
QAbstractButton* tabWithId(const QButtonGroup& group, int id);

/// A marker of the strip, which style sheets select by its object name.
QLabel* createMarker(QWidget* strip, const QString& objectName, QSize fixedSize, QPoint position);
QPropertyAnimation* createGlide(QLabel* marker, QWidget* strip);

// How a marker gets to `target`. Either pointer may be null: no marker, nothing to do; no glide, at once.
/// From where it is, animated; a glide under way starts anew from there.
void glideMarker(QLabel* marker, QPropertyAnimation* glide, const QRect& target);
/// At once; a glide under way ends.
void placeMarker(QLabel* marker, QPropertyAnimation* glide, const QRect& target);
/// At once, unless a glide is under way: then the glide ends at the new target.
void settleMarker(QLabel* marker, QPropertyAnimation* glide, const QRect& target);

} // namespace WyWidgets
