#pragma once

#include "GalleryPage.h"

class QFrame;

namespace WyWidgets {
class WyGifButton;
class WyGifLabel;
class WyLoadBox;
} // namespace WyWidgets

/// What shows that work is under way by images and inside a button.
class BusyImagesPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit BusyImagesPage(QWidget* parent = nullptr);

    void prepareForPicture() override;
    void endPicture() override;

private:
    void addGifButton();
    void addGifLabel();
    void addLoadBox();
    void startLoad(bool mask);
    void stopLoad();

    WyWidgets::WyGifButton* m_button;
    WyWidgets::WyGifLabel* m_label;
    QFrame* m_panel;
    WyWidgets::WyLoadBox* m_box;
};
