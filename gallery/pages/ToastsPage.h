#pragma once

#include "GalleryPage.h"
#include "pages/ToastKnobs.h"

#include <WyWidgets/wycontrol/WyToast.h>

#include <QPointer>
#include <QVector>

#include <functional>

class QLabel;
class QLineEdit;
class QTimer;

/// Queued notifications with every setting of one toast and of all, and the small text toast.
class ToastsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ToastsPage(QWidget* parent = nullptr);
    ~ToastsPage() override;

    void prepareForPicture() override;
    void endPicture() override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    using Toast = WyWidgets::WyToast;
    enum ParentKind { ThisWindow, NoParent, AcrossScreens };

    void addPresets();
    QWidget* createPresetButtons();
    void addPlaces();
    QWidget* createPositionButtons();
    void addScreenKnobs(KnobPanel* knobs);
    void addSharedKnob(KnobPanel* knobs, const QString& label, int minimum, int maximum, int (*get)(),
                       void (*set)(int));
    void addTextAndTime();
    void addIcons();
    void addColors();
    void addRoom();
    void addTextToast();
    /// A label that shows the toast as the knobs make it.
    QLabel* createPreview();

    Toast* createToast();
    void showToast();
    void showPreset(WyWidgets::ToastPreset preset);
    void showBurst();
    void applyPreset(WyWidgets::ToastPreset preset);
    void drawPreviews();
    void deleteToasts();
    void updateCounts();
    QWidget* parentOfToasts();

    ToastKnobs m_knobs;
    QVector<std::function<void()>> m_sharedRefreshers;
    /// All toasts that have not deleted themselves.
    QVector<QPointer<Toast>> m_toasts;
    QPointer<QWidget> m_bridge;
    QLineEdit* m_title = nullptr;
    QLineEdit* m_text = nullptr;
    QVector<QLabel*> m_previews;
    bool m_previewsAreStale = false;
    QTimer* m_countTimer;
    QLabel* m_visibleCount = nullptr;
    QLabel* m_queuedCount = nullptr;
    QLabel* m_closedCount = nullptr;
    int m_parentKind = ThisWindow;
    int m_closings = 0;
};
