#pragma once

#include "GalleryPage.h"

class DemoDialog;
class DemoWindow;
class QLabel;

/// Frameless windows: a main window with its bar, and a dialog with bar, shadow and mask.
class WindowsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit WindowsPage(QWidget* parent = nullptr);

    void prepareForPicture() override;
    void endPicture() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void addMainWindow();
    void addDialog();
    void openWindow();
    void openDialog();
    /// Pictures of the window and the dialog as the knobs make them, drawn anew when the event loop is
    /// reached.
    void updatePreviews();
    void drawPreviews();

    DemoWindow* m_window;
    DemoDialog* m_dialog;
    QLabel* m_windowPreview;
    QLabel* m_activePreview;
    QLabel* m_inactivePreview;
    int m_mask = 2;
    bool m_previewsAreStale = false;
};
