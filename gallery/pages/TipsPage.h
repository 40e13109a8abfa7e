#pragma once

#include "GalleryPage.h"

#include <WyWidgets/wycontrol/WyBubbleWidget.h>

#include <QPointer>

class QLabel;
class QPushButton;

namespace WyWidgets {
class WyArrowWidget;
class WyBubbleButton;
class WyTipWidget;
} // namespace WyWidgets

/// Panels that explain something where it is: with an arrow, in a line, or in a bubble.
class TipsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit TipsPage(QWidget* parent = nullptr);

    void prepareForPicture() override;
    void endPicture() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QWidget* createArrowStage();
    KnobPanel* createArrowKnobs();
    void placeArrow();
    QWidget* createTipStage();
    KnobPanel* createTipKnobs();
    void showTip();
    QWidget* createBubbleStage();
    KnobPanel* createBubbleKnobs();
    void createBubble(bool shadow);
    void showBubble();
    QWidget* createBubbleButtons();

    QWidget* m_arrowStage = nullptr;
    QWidget* m_target = nullptr;
    WyWidgets::WyArrowWidget* m_arrow = nullptr;
    int m_arrowBase = 15;
    int m_arrowDepth = 10;

    QWidget* m_tipStage = nullptr;
    QPointer<WyWidgets::WyTipWidget> m_tip;
    QString m_tipText;
    QString m_leftLink;
    QString m_rightLink;
    QLabel* m_tipReadout = nullptr;

    QPushButton* m_anchor = nullptr;
    QPointer<WyWidgets::WyBubbleWidget> m_bubble;
    WyWidgets::WyBubbleWidget::Derection m_bubbleSide = WyWidgets::WyBubbleWidget::Left;
    int m_bubbleStart = 48;
    int m_bubbleBase = 16;
    int m_bubbleDepth = 8;
    WyWidgets::WyBubbleButton* m_bubbleButton = nullptr;
};
