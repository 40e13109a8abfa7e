#pragma once

#include "GalleryPage.h"

namespace WyWidgets {
class WyFlatTab;
class WyFlatVTab;
class WyHandleSlider;
} // namespace WyWidgets

/// The seek bar, and the flat tab strips, each with the pages that it switches.
class SliderTabsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit SliderTabsPage(QWidget* parent = nullptr);

    void prepareForPicture() override;
    void endPicture() override;

private:
    void hover(bool on);
    void addSlider();
    void addHorizontalTabs();
    void addVerticalTabs();

    WyWidgets::WyHandleSlider* m_slider;
    WyWidgets::WyFlatTab* m_tabs;
    WyWidgets::WyFlatVTab* m_list;
};
