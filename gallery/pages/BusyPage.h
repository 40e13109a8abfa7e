#pragma once

#include "GalleryPage.h"

#include <WyWidgets/wycontrol/WyWaitingSpinnerWidget.h>

#include <QColor>
#include <QPointer>

class QFrame;

namespace WyWidgets {
class WyWaitingBar;
}

/// The two busy indicators over and beside the work that they wait for.
class BusyPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit BusyPage(QWidget* parent = nullptr);

    void prepareForPicture() override;

private:
    QWidget* createForm();
    KnobPanel* createSpinnerKnobs();
    void addLookKnobs(KnobPanel* knobs);
    void addShapeKnobs(KnobPanel* knobs);
    /// Whether it disables its parent is settled when a spinner is made: a new one takes over the settings.
    void replaceSpinner(bool disablesForm);
    void showModalSpinner();
    QWidget* createTransfer();
    KnobPanel* createBarKnobs();

    QFrame* m_form = nullptr;
    QPointer<WyWidgets::WyWaitingSpinnerWidget> m_spinner;
    WyWidgets::WyWaitingBar* m_bar = nullptr;
};
