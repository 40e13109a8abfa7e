#pragma once

#include "GalleryPage.h"

#include <WyWidgets/layout/WySelectFrame.h>

class QLabel;
class QPushButton;

/// A picture of all screens, dimmed, with a selection frame over it.
class SelectionPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit SelectionPage(QWidget* parent = nullptr);

    void prepareForPicture() override;

private:
    KnobPanel* createKnobs();
    void grabScreens();
    void createFrame(WyWidgets::WySelectFrame::FrameType type);
    void applyScale();
    void showSelection();
    void saveSelection();
    QRect selectionInGrab() const;

    QPixmap m_grab;
    QLabel* m_picture = nullptr;
    WyWidgets::WySelectFrame* m_frame = nullptr;
    QLabel* m_readout = nullptr;
    QColor m_color;
    int m_ratio = 0;
    bool m_enabled = true;
    bool m_showsSize = true;
};
