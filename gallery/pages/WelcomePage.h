#pragma once

#include "GalleryPage.h"

/// What the gallery is, how to find one's way, and what the themes make of Qt's own controls.
class WelcomePage : public GalleryPage
{
    Q_OBJECT

public:
    explicit WelcomePage(QWidget* parent = nullptr);

private:
    void addTiles();
    void addFirstSteps();
    void addPlainControls();
};
