#pragma once

#include "WyWidgets/WyExport.h"

#include <QColor>
#include <QFrame>
#include <QPointer>
#include <QPropertyAnimation>
#include <QVector>

class QLabel;
class QTimer;

namespace WyWidgets {

/// A light notification: an icon and a line of text on a rounded plate that fades in, stays, fades out and is
/// deleted.
///
/// Create it with new, set it up, call show() and forget it. Toasts stand in one column, the oldest first, on
/// the area of their parent widget or, without one, of the whole desktop. The toast that goes after a
/// fade-out is always the oldest of the column. If another one has faded (the pointer held the oldest back),
/// that one stays in the column, hidden and holding a slot, until later fade-outs reach it.
///
/// A click hides the toast at once; its slot is free when its fade-out ends. A host may delete a toast: the
/// others close the gap. The styles show the pictures ":/message.png", ":/check.png", ":/warning.png",
/// ":/info.png" and ":/shield.png"; the host compiles them into its resources, its own or the ones of
/// resources/simpletoast.qrc. A style sheet may select the labels "iconLabel" and "textLabel".
class WYWIDGETS_EXPORT WySimpleToast : public QFrame
{
    Q_OBJECT
    /// The window opacity, 0 to 1, that the fades drive.
    Q_PROPERTY(float popupOpacity READ getPopupOpacity WRITE setPopupOpacity)

public:
    /// Plate colour and picture.
    enum TOASTR_STYLE : int {
        TOASTR_MESSAGE, ///< black, ":/message.png"
        TOASTR_SUCCESS, ///< green, ":/check.png"
        TOASTR_WARNING, ///< orange, ":/warning.png"
        TOASTR_INFO,    ///< blue, ":/info.png"
        TOASTR_ERROR,   ///< red, ":/shield.png"
    };

    /// Where in its area the column stands. The right places are measured from x = 0, wherever the area
    /// begins.
    enum TOASTR_ORIENTATION : int {
        TOASTR_TOP_RIGHT,         ///< down from the top, at the right
        TOASTR_TOP_LEFT,          ///< down from the top, at the left
        TOASTR_TOP_CENTER,        ///< down from the top, in the middle
        TOASTR_TOP_FULL_WIDTH,    ///< down from the top, as wide as the area
        TOASTR_BOTTOM_RIGHT,      ///< up from the bottom, at the right
        TOASTR_BOTTOM_LEFT,       ///< up from the bottom, at the left
        TOASTR_BOTTOM_CENTER,     ///< up from the bottom, in the middle
        TOASTR_BOTTOM_FULL_WIDTH, ///< up from the bottom, as wide as the area
    };

    /// A grey toast without text and picture, on the area of the parent or of the whole desktop.
    explicit WySimpleToast(QWidget* parent = nullptr);
    ~WySimpleToast() override;

    /// Also the accessible name (rich text without its tags), and the tooltip if the plate has no room for it
    /// (wrapped if it is wider than 600 px), unless the host has set its own.
    void setText(QString text);
    /// Plate colour, with the opacity set last, and picture; an unknown style changes neither.
    void setStyle(TOASTR_STYLE style);
    /// Any picture; it is scaled to 50 x 50 px.
    void setIcon(QPixmap pixmap);
    /// A colour name as QColor takes it; an unknown name changes nothing. The colour brings its own alpha,
    /// which holds until setOpacity(), setStyle() or a leaving pointer sets it anew.
    void setBackgroundColor(QString color);
    /// Alpha of the plate while the pointer is outside, 0 to 255 (the default is 200); more counts as 255.
    void setOpacity(unsigned int opacity);
    /// A colour as style sheets take it; the default is "#FFFFFF".
    void setTextColor(QString color);
    /// Where the column stands; takes effect at the next show() or when the column closes a gap.
    void setOrientation(TOASTR_ORIENTATION orientation);
    /// Milliseconds from the start of the fade-in to the start of the fade-out, 2000 by default, for every
    /// toast that is shown from now on.
    void setDuration(unsigned int duration);
    /// Fade-in time of this toast in milliseconds, 150 by default.
    void setShowDuration(unsigned int duration);
    /// Fade-out time of this toast in milliseconds, 500 by default.
    void setHideDuration(unsigned int duration);

    /// The window opacity, 0 to 1, that the fades drive.
    void setPopupOpacity(float opacity);
    float getPopupOpacity() const;

    /// Places the toast in the slot of the newest; an unknown orientation leaves it where it is.
    void stateOrientation();
    /// Places the toast in the slot of column entry `index`, counted from 0. At the bottom edge that is 10 px
    /// below the slot in which stateOrientation() has put it, and the area's top edge counts once more.
    void shiftOrientation(int index);

public Q_SLOTS:
    /// Appends the toast to the column and starts fading it in. A toast of the column becomes its newest.
    void show();
    /// Starts fading the toast out.
    void hideAnimation();
    /// If the toast is fully transparent: hides it and deletes the oldest toast, which may be this one.
    void hide();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    static bool takeOut(WySimpleToast* toast);
    static void closeGaps();

    void setupUi();
    void prepareFade(unsigned int duration, double from, double to);
    bool isToShow() const;
    void showStyle(QColor color, const QString& picture, QString (*accessibleName)());
    QRect stackingArea() const;
    bool isAtTop() const;
    void place(const QRect& area, int y);
    void offerClippedText();

    static constexpr int kDefaultOpacity = 200;

    static int COUNT_TOASTR;
    static QVector<WySimpleToast*> vectorToastr;
    static unsigned int TIMEOUT;

    QPointer<QLabel> m_iconLabel;
    QPointer<QLabel> m_textLabel;
    QPointer<QTimer> m_timer;
    unsigned int m_showDuration = 150;
    unsigned int m_hideDuration = 500;
    TOASTR_ORIENTATION m_orientation = TOASTR_TOP_RIGHT;
    QPropertyAnimation m_animation;
    float m_popupOpacity = 1.0F;
    QColor m_backgroundColor = Qt::gray;
    QString m_textColor = QStringLiteral("#FFFFFF");
    unsigned int m_opacity = kDefaultOpacity;
    QColor m_successColor{117, 182, 117, kDefaultOpacity};
    QColor m_errorColor{203, 94, 89, kDefaultOpacity};
    QColor m_warningColor{249, 171, 53, kDefaultOpacity};
    QColor m_infoColor{88, 173, 196, kDefaultOpacity};
    QColor m_messageColor{0, 0, 0, kDefaultOpacity};
};

} // namespace WyWidgets
