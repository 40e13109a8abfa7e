#pragma once

#include "WyWidgets/WyExport.h"

#include <QPointer>
#include <QWidget>

class QTimer;

namespace WyWidgets {

class WyGifLabel;

/// A small overlay with an image sequence of 32 x 32 px for as long as something loads.
///
/// The host places and shows it, for example over its parent with AdjustParentSize(). A load that nobody
/// stops ends by itself after three minutes. The box paints a style-sheet background; its masked look is
/// selected by the object name "mask_margin". The images are those of its WyGifLabel, whose folder the host
/// sets with findChild<WyGifLabel*>()->SetGif() or "qproperty-gifPath".
class WYWIDGETS_EXPORT WyLoadBox : public QWidget
{
    Q_OBJECT

public:
    /// A box that plays nothing yet.
    explicit WyLoadBox(QWidget* parent = nullptr);

    /// Plays the images and starts the three minutes anew; does not show the box. `mask` gives the box the
    /// object name "mask_margin", which stays for later loads.
    void StartLoad(bool mask);
    /// Stops images and time limit; the box stays visible.
    void StopLoad();
    /// Makes a visible box as large as its parent; a box without one keeps its size.
    void AdjustParentSize();

private:
    void startTimeLimit();
    void endLoad();

    QPointer<WyGifLabel> m_gifLabel;
    QPointer<QTimer> m_timer;
};

} // namespace WyWidgets
