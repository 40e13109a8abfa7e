#pragma once

#include <QString>
#include <QVector>

class GalleryPage;

/// A page as the navigation knows it: made when it is first opened.
struct PageEntry
{
    QString name;
    GalleryPage* (*create)();
};

/// All pages in the order of the navigation.
QVector<PageEntry> allPages();
