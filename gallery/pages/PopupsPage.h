#pragma once

#include "GalleryPage.h"

#include <WyWidgets/wycontrol/WyPopupBox.h>
#include <WyWidgets/wycontrol/WyPopupWidget.h>

class QLabel;
class QPushButton;

/// A box of colours that closes with the first click, and a panel of options that reports its closing.
class PopupsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit PopupsPage(QWidget* parent = nullptr);

    void prepareForPicture() override;
    void endPicture() override;

private:
    void addColorBox();
    void addOptionsPanel();
    void fillColorBox();
    void fillOptionsPanel();
    void chooseColor(const QColor& color);
    void openColorBox();
    void openOptionsPanel();

    WyWidgets::WyPopupBox* m_colorBox;
    WyWidgets::WyPopupWidget* m_options;
    QPushButton* m_colorButton;
    QPushButton* m_optionsButton;
    QLabel* m_closings;
    int m_closingCount = 0;
};
