#pragma once

#include "GalleryPage.h"

class QPushButton;

namespace WyWidgets {
class WyCheckBox;
class WyDotButton;
class WyDotCheckBox;
class WyDotLabel;
class WyElidedLabel;
class WyLabel;
class WyMenu;
} // namespace WyWidgets

/// Labels that are clicked or cut, dots that mark something new, a check box that wraps, and the menu.
class LabelsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit LabelsPage(QWidget* parent = nullptr);

    void prepareForPicture() override;
    void endPicture() override;

private:
    void addLabel();
    void addMenu();
    void addDots();
    void addCheckBox();
    void addElidedLabel();
    void showMenu();

    WyWidgets::WyLabel* m_label;
    WyWidgets::WyElidedLabel* m_elided;
    WyWidgets::WyDotButton* m_dotButton;
    WyWidgets::WyDotCheckBox* m_dotCheck;
    WyWidgets::WyDotLabel* m_dotLabel;
    WyWidgets::WyCheckBox* m_check;
    QPushButton* m_menuButton;
    WyWidgets::WyMenu* m_menu;
};
