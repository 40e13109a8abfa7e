#pragma once

#include "GalleryPage.h"

namespace WyWidgets {
class WyFlatTab;
class WyFlatVTab;
} // namespace WyWidgets

/// The flat tab strips, each with the pages that it switches.
class TabsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit TabsPage(QWidget* parent = nullptr);

    void prepareForPicture() override;

private:
    void addHorizontalTabs();
    void addVerticalTabs();

    WyWidgets::WyFlatTab* m_tabs;
    WyWidgets::WyFlatVTab* m_list;
};
