#pragma once

#include <QStringList>
#include <QVector>

class GalleryPage;

/// A page as the navigation knows it: made when it is first opened.
struct PageEntry
{
    QString name;
    GalleryPage* (*create)();
    /// What the search finds the page by besides its name: the classes on it.
    QStringList classes = {};
    /// The theme's icon.
    QString icon = {};

    /// Whether every word is part of the name or of a class name.
    bool matches(const QString& words) const;
};

/// All pages in the order of the navigation.
QVector<PageEntry> allPages();
