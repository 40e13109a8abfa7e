#pragma once

#include "GalleryPage.h"

/// What the gallery is and how to find one's way.
class WelcomePage : public GalleryPage
{
    Q_OBJECT

public:
    explicit WelcomePage(QWidget* parent = nullptr);
};
