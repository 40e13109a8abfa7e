#pragma once

#include "GalleryPage.h"

namespace WyWidgets {
class WyAnimationButton;
class WyHoverButton;
class WyImageButton;
class WyShadowButton;
} // namespace WyWidgets

/// The push buttons: counting down, hovered, with an icon of their own, with a shadow.
class ButtonsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ButtonsPage(QWidget* parent = nullptr);

    void prepareForPicture() override;
    void endPicture() override;

private:
    void addCountdown();
    void addDots();
    void addHoverButton();
    void addImageButton();
    void addShadowButton();

    WyWidgets::WyAnimationButton* m_countdown;
    WyWidgets::WyAnimationButton* m_dots;
    WyWidgets::WyHoverButton* m_hover;
    WyWidgets::WyImageButton* m_image;
    WyWidgets::WyShadowButton* m_shadow;
};
