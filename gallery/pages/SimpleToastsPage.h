#pragma once

#include "GalleryPage.h"

#include <WyWidgets/wycontrol/WySimpleToast.h>

#include <QPointer>
#include <QVector>

class QLabel;

/// Toasts of five styles in a column at one of eight places.
class SimpleToastsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit SimpleToastsPage(QWidget* parent = nullptr);

    void prepareForPicture() override;
    void endPicture() override;

private:
    void addStyles();
    void addOwnLook();
    void addPlaceKnobs(KnobPanel* knobs);
    WyWidgets::WySimpleToast* createToast();
    void show(WyWidgets::WySimpleToast* toast);
    void showStyled(int style);
    void dressOwn(WyWidgets::WySimpleToast* toast) const;
    void drawStyles();
    void drawOwn();

    QVector<QLabel*> m_stylePreviews;
    QLabel* m_ownPreview;
    QString m_text;
    int m_style = WyWidgets::WySimpleToast::TOASTR_SUCCESS;
    unsigned int m_opacity = 200;
    QColor m_plateColor;
    QColor m_textColor;
    int m_place = WyWidgets::WySimpleToast::TOASTR_TOP_CENTER;
    bool m_onDesktop = false;
    unsigned int m_stayMs = 2000;
    unsigned int m_fadeInMs = 150;
    unsigned int m_fadeOutMs = 500;
    QVector<QPointer<WyWidgets::WySimpleToast>> m_pictured;
};
