#pragma once

#include "GalleryPage.h"

#include <QPixmap>

class QLabel;

/// Screens and what they show, the wrapping of tooltips, style helpers, shadows and dividers.
class UtilitiesPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit UtilitiesPage(QWidget* parent = nullptr);

    void prepareForPicture() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addScreens();
    void addToolTip();
    void addStyles();
    void addShadow();
    void addDividers();
    void grabScreens();
    void showPlace(QPoint position);
    void wrapToolTip();

    QPixmap m_grab;
    QLabel* m_picture = nullptr;
    QLabel* m_place = nullptr;
    QLabel* m_toolTip = nullptr;
    QLabel* m_lineCount = nullptr;
    QString m_toolTipText;
    int m_toolTipWidth = 260;
};
