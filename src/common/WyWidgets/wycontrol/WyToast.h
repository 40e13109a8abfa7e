#pragma once

#include "WyWidgets/WyExport.h"

#include <QColor>
#include <QDialog>
#include <QFont>
#include <QImage>
#include <QMargins>
#include <QPixmap>
#include <QPointer>

#include <array>
#include <deque>
#include <memory>

class QGraphicsOpacityEffect;
class QLabel;
class QPropertyAnimation;
class QPushButton;
class QScreen;
class QTimer;

namespace WyWidgets {

struct ToastGeometry;
class ToastWindowFilter;

/// Where on the screen the toasts stack: downwards from the top edge and from the centre, upwards from the
/// bottom edge. CENTER ignores the offsets, the MIDDLE positions the horizontal one.
enum class ToastPosition {
    BOTTOM_LEFT,   ///< bottom left corner, the newest toast on top
    BOTTOM_MIDDLE, ///< middle of the bottom edge, the newest toast on top
    BOTTOM_RIGHT,  ///< bottom right corner, the newest toast on top
    TOP_LEFT,      ///< top left corner, the newest toast at the bottom
    TOP_MIDDLE,    ///< middle of the top edge, the newest toast at the bottom
    TOP_RIGHT,     ///< top right corner, the newest toast at the bottom
    CENTER         ///< the first toast in the middle of the screen, the others below it
};

/// Icon and colours in one step, see WyToast::applyPreset().
enum class ToastPreset {
    SUCCESS,         ///< green tick on the light body
    WARNING,         ///< yellow warning sign on the light body
    ERROR,           ///< red error sign on the light body
    INFORMATION,     ///< blue information sign on the light body
    SUCCESS_DARK,    ///< green tick on the dark body
    WARNING_DARK,    ///< yellow warning sign on the dark body
    ERROR_DARK,      ///< red error sign on the dark body
    INFORMATION_DARK ///< blue information sign on the dark body
};

/// The pictures that come with the library.
enum class ToastIcon {
    SUCCESS,     ///< a tick
    WARNING,     ///< a warning sign
    ERROR,       ///< an error sign
    INFORMATION, ///< an information sign
    CLOSE        ///< the cross of the close button
};

/// Where in the body's height the close button is.
enum class ToastButtonAlignment {
    TOP,    ///< at the top
    MIDDLE, ///< in the middle
    BOTTOM  ///< at the bottom
};

/// A notification that slides and fades in, stacks with the other toasts in one place of the screen and fades
/// out after a while.
///
/// Create it with new, set it up and call show(): it deletes itself some time after closed(). Up to
/// getMaximumOnScreen() toasts are on screen; more wait in a queue, and get their turn in the order of their
/// show() calls. Once on screen, a toast can no longer be changed (the setFixedSize() family excepted).
/// It does not take the focus. The close button and Escape fade it out; a window system that closes it ends
/// it at once. Deleting a toast or its parent at any time is fine.
///
/// Style sheets may select "toast-drop-shadow-layer-1" (outermost) to "toast-drop-shadow-layer-5",
/// "toast-close-button" and "toast-icon-widget"; their looks come from css/toast.css in the folder
/// getCurrentDirectory(), beside the icons. Lengths are device-independent pixels, times milliseconds.
class WYWIDGETS_EXPORT WyToast : public QDialog
{
    Q_OBJECT

public:
    /// The parent window decides about the screen, see setFixedScreen(); it may be null.
    explicit WyToast(QWidget* parent = nullptr);
    ~WyToast() override;

    // What all toasts share. Toasts that are on screen glide to their new places. No value is checked.

    /// How many toasts may be on screen; default 3. Raising it shows waiting toasts at once; lowering it
    /// hides none.
    static int getMaximumOnScreen() { return s_maximumOnScreen; }
    static void setMaximumOnScreen(int maximum);
    /// The gap between stacked toasts; default 10.
    static int getSpacing() { return s_spacing; }
    static void setSpacing(int spacing);
    /// The distance from the left or right and from the top or bottom edge of the screen; default (20, 45).
    static QPoint getOffset();
    static void setOffset(int x, int y);
    /// The horizontal distance; default 20.
    static int getOffsetX() { return s_offsetX; }
    static void setOffsetX(int offsetX);
    /// The vertical distance; default 45.
    static int getOffsetY() { return s_offsetY; }
    static void setOffsetY(int offsetY);
    /// On: toasts go to the primary screen. Off (default): to the screen of the parent window, or to the
    /// primary screen if that window is on several screens or there is none.
    static bool isAlwaysOnMainScreen() { return s_alwaysOnMainScreen; }
    static void setAlwaysOnMainScreen(bool on);
    /// Null (default) or the screen that toasts go to whatever the other settings say. A screen that is
    /// unplugged is forgotten.
    static QScreen* getFixedScreen() { return s_fixedScreen; }
    static void setFixedScreen(QScreen* screen);
    /// The place of all toasts; default BOTTOM_RIGHT. Unknown values put all toasts into the top left corner
    /// of the desktop.
    static ToastPosition getPosition() { return s_position; }
    static void setPosition(ToastPosition position);
    /// Toasts on screen and in the queue.
    static int getCount();
    /// Toasts on screen.
    static int getVisibleCount();
    /// Toasts in the queue.
    static int getQueuedCount();
    /// Restores the defaults, takes all toasts off the screen without fade or closed(), and forgets the
    /// queue: toasts that were waiting live on, unused.
    static void reset();
    /// Takes the front toast out of the queue and shows it; if there is no room, it goes to the back.
    static void showNextInQueue();

    // One toast. Setters do nothing once it is on screen.

    /// How long the toast stays, in ms; default 5000. With 0 (or less) it stays until hide().
    int getDuration() const { return m_duration; }
    void setDuration(int duration) { store(m_duration, duration); }
    /// Whether a bar at the bottom shows the time that is left; default true.
    bool isShowDurationBar() const { return m_showDurationBar; }
    void setShowDurationBar(bool show) { store(m_showDurationBar, show); }
    /// The bold first line; empty by default, which leaves it out. Here and in the text, tags make rich text.
    QString getTitle() const { return m_title; }
    void setTitle(const QString& title);
    /// The message below the title. Measured as a single line of plain text, unless a maximum or minimum size
    /// makes it wrap.
    QString getText() const { return m_text; }
    void setText(const QString& text);
    /// A picture shown as a silhouette in the icon colour; the information sign by default. Use pictures that
    /// are large enough for dense screens.
    QPixmap getIcon() const { return m_icon; }
    void setIcon(const QPixmap& icon);
    void setIcon(ToastIcon icon);
    /// Whether the icon is shown; default false.
    bool isShowIcon() const { return m_showIcon; }
    void setShowIcon(bool show) { store(m_showIcon, show); }
    /// The room for the icon; default 18 x 18. Smaller pictures are not enlarged.
    QSize getIconSize() const { return m_iconSize; }
    void setIconSize(const QSize& size);
    /// Whether a line stands beside the icon; default true. It is seen only beside an icon.
    bool isShowIconSeparator() const { return m_showIconSeparator; }
    void setShowIconSeparator(bool show);
    /// The thickness of that line; default 2.
    int getIconSeparatorWidth() const { return m_iconSeparatorWidth; }
    void setIconSeparatorWidth(int width);
    /// A picture shown as a silhouette in the close button's icon colour; a cross by default.
    QPixmap getCloseButtonIcon() const { return m_closeButtonIcon; }
    void setCloseButtonIcon(const QPixmap& icon);
    void setCloseButtonIcon(ToastIcon icon);
    /// Whether there is a close button; default true.
    bool isShowCloseButton() const { return m_showCloseButton; }
    void setShowCloseButton(bool show) { store(m_showCloseButton, show); }
    /// The size of the close button's picture; default 10 x 10.
    QSize getCloseButtonIconSize() const { return m_closeButtonIconSize; }
    void setCloseButtonIconSize(const QSize& size);
    /// The size of the close button; default 24 x 24.
    QSize getCloseButtonSize() const { return m_closeButtonSize; }
    void setCloseButtonSize(const QSize& size);
    /// The width of the close button; default 24.
    int getCloseButtonWidth() const { return m_closeButtonSize.width(); }
    void setCloseButtonWidth(int width);
    /// The height of the close button; default 24.
    int getCloseButtonHeight() const { return m_closeButtonSize.height(); }
    void setCloseButtonHeight(int height);
    /// Where the close button is; default TOP.
    ToastButtonAlignment getCloseButtonAlignment() const { return m_closeButtonAlignment; }
    void setCloseButtonAlignment(ToastButtonAlignment alignment) { store(m_closeButtonAlignment, alignment); }
    /// How long the fade-in takes, in ms; default 250. The next waiting toast follows this long after
    /// closed().
    int getFadeInDuration() const { return m_fadeInDuration; }
    void setFadeInDuration(int duration) { store(m_fadeInDuration, duration); }
    /// How long the fade-out takes, in ms; default 250.
    int getFadeOutDuration() const { return m_fadeOutDuration; }
    void setFadeOutDuration(int duration) { store(m_fadeOutDuration, duration); }
    /// On (default): the toast stays while the pointer is over it, and then for its whole duration once more.
    bool isResetDurationOnHover() const { return m_resetDurationOnHover; }
    void setResetDurationOnHover(bool reset) { store(m_resetDurationOnHover, reset); }
    /// Whether the toast stays above other windows; default true.
    bool isStayOnTop() const { return m_stayOnTop; }
    void setStayOnTop(bool stay);
    /// The rounding of the body's corners; default 0.
    int getBorderRadius() const { return m_borderRadius; }
    void setBorderRadius(int radius) { store(m_borderRadius, radius); }

    /// The body's colour; default "#E7F4F9".
    QColor getBackgroundColor() const { return m_backgroundColor; }
    void setBackgroundColor(const QColor& color) { store(m_backgroundColor, color); }
    /// Default black.
    QColor getTitleColor() const { return m_titleColor; }
    void setTitleColor(const QColor& color) { store(m_titleColor, color); }
    /// Default "#5C5C5C".
    QColor getTextColor() const { return m_textColor; }
    void setTextColor(const QColor& color) { store(m_textColor, color); }
    /// Default "#5C5C5C".
    QColor getIconColor() const { return m_iconColor; }
    void setIconColor(const QColor& color);
    /// Default "#D9D9D9".
    QColor getIconSeparatorColor() const { return m_iconSeparatorColor; }
    void setIconSeparatorColor(const QColor& color) { store(m_iconSeparatorColor, color); }
    /// Default black.
    QColor getCloseButtonIconColor() const { return m_closeButtonIconColor; }
    void setCloseButtonIconColor(const QColor& color);
    /// Default "#5C5C5C".
    QColor getDurationBarColor() const { return m_durationBarColor; }
    void setDurationBarColor(const QColor& color) { store(m_durationBarColor, color); }
    /// Default Arial, 9 pt, bold. What a style sheet of the application says about the fonts of labels goes
    /// before this and getTextFont().
    QFont getTitleFont() const { return m_titleFont; }
    void setTitleFont(const QFont& font);
    /// Default Arial, 9 pt.
    QFont getTextFont() const { return m_textFont; }
    void setTextFont(const QFont& font);

    /// Around everything in the body; default 20, 18, 10, 18 (left, top, right, bottom).
    QMargins getMargins() const { return m_margins; }
    void setMargins(const QMargins& margins) { store(m_margins, margins); }
    void setMarginLeft(int margin) { storeSide(m_margins, &QMargins::setLeft, margin); }
    void setMarginTop(int margin) { storeSide(m_margins, &QMargins::setTop, margin); }
    void setMarginRight(int margin) { storeSide(m_margins, &QMargins::setRight, margin); }
    void setMarginBottom(int margin) { storeSide(m_margins, &QMargins::setBottom, margin); }
    /// Around the icon alone; default 0, 0, 15, 0.
    QMargins getIconMargins() const { return m_iconMargins; }
    void setIconMargins(const QMargins& margins) { store(m_iconMargins, margins); }
    void setIconMarginLeft(int margin) { storeSide(m_iconMargins, &QMargins::setLeft, margin); }
    void setIconMarginTop(int margin) { storeSide(m_iconMargins, &QMargins::setTop, margin); }
    void setIconMarginRight(int margin) { storeSide(m_iconMargins, &QMargins::setRight, margin); }
    void setIconMarginBottom(int margin) { storeSide(m_iconMargins, &QMargins::setBottom, margin); }
    /// Around the icon and its separator; default 0, 0, 15, 0.
    QMargins getIconSectionMargins() const { return m_iconSectionMargins; }
    void setIconSectionMargins(const QMargins& margins) { store(m_iconSectionMargins, margins); }
    void setIconSectionMarginLeft(int margin) { storeSide(m_iconSectionMargins, &QMargins::setLeft, margin); }
    void setIconSectionMarginTop(int margin) { storeSide(m_iconSectionMargins, &QMargins::setTop, margin); }
    void setIconSectionMarginRight(int margin)
    {
        storeSide(m_iconSectionMargins, &QMargins::setRight, margin);
    }
    void setIconSectionMarginBottom(int margin)
    {
        storeSide(m_iconSectionMargins, &QMargins::setBottom, margin);
    }
    /// Around title and text; default 0, 0, 15, 0.
    QMargins getTextSectionMargins() const { return m_textSectionMargins; }
    void setTextSectionMargins(const QMargins& margins) { store(m_textSectionMargins, margins); }
    void setTextSectionMarginLeft(int margin) { storeSide(m_textSectionMargins, &QMargins::setLeft, margin); }
    void setTextSectionMarginTop(int margin) { storeSide(m_textSectionMargins, &QMargins::setTop, margin); }
    void setTextSectionMarginRight(int margin)
    {
        storeSide(m_textSectionMargins, &QMargins::setRight, margin);
    }
    void setTextSectionMarginBottom(int margin)
    {
        storeSide(m_textSectionMargins, &QMargins::setBottom, margin);
    }
    /// Around the close button; default 0, -8, 0, -8, so that it may reach into the body's margins.
    QMargins getCloseButtonMargins() const { return m_closeButtonMargins; }
    void setCloseButtonMargins(const QMargins& margins) { store(m_closeButtonMargins, margins); }
    void setCloseButtonMarginLeft(int margin) { storeSide(m_closeButtonMargins, &QMargins::setLeft, margin); }
    void setCloseButtonMarginTop(int margin) { storeSide(m_closeButtonMargins, &QMargins::setTop, margin); }
    void setCloseButtonMarginRight(int margin)
    {
        storeSide(m_closeButtonMargins, &QMargins::setRight, margin);
    }
    void setCloseButtonMarginBottom(int margin)
    {
        storeSide(m_closeButtonMargins, &QMargins::setBottom, margin);
    }
    /// Between title and text; default 8.
    int getTextSectionSpacing() const { return m_textSectionSpacing; }
    void setTextSectionSpacing(int spacing) { store(m_textSectionSpacing, spacing); }

    /// Sets the icon, its colour, the duration bar's colour, the separator (2 px wide) and the light or dark
    /// colours, and shows icon, separator and duration bar. Unknown presets only do the latter.
    void applyPreset(ToastPreset preset);

    /// Bounds the body when show() lays it out, as the minimum and maximum size do, and leaves the size
    /// policy alone. Works on a toast that is on screen, too.
    void setFixedSize(const QSize& size);
    void setFixedSize(int width, int height);
    /// The same for the width alone.
    void setFixedWidth(int width);
    /// The same for the height alone.
    void setFixedHeight(int height);

    /// The picture of that icon; a null pixmap for unknown values or if its file cannot be read.
    static QPixmap getIconFromEnum(ToastIcon icon);
    /// The absolute path of the folder that holds css/toast.css and icons/.
    static QString getCurrentDirectory();
    /// The image with all pixels in this colour, each with the alpha it had.
    static QImage recolorImage(const QImage& image, const QColor& color);

Q_SIGNALS:
    /// The toast has faded out. It deletes itself after its fade-in duration.
    void closed();

public Q_SLOTS:
    /// Puts the toast on screen, or at the end of the queue if there is no room. A toast shows once: called
    /// again while it waits it does nothing more.
    void show();
    /// Fades the toast out.
    void hide();

private Q_SLOTS:
    void hide_();
    void fadeOut();
    void updateDurationBar();
    void deleteAndShowNextInQueue();

protected:
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    friend class ToastWindowFilter;

    template <typename Value>
    void store(Value& setting, const Value& value)
    {
        if (!m_used)
            setting = value;
    }
    void storeSide(QMargins& margins, void (QMargins::*setSide)(int), int margin)
    {
        if (!m_used)
            (margins.*setSide)(margin);
    }

    void createBody();
    void createOpacityEffect();
    void createContents();
    void createDurationBar();
    void applyDefaults();
    void createTimers();
    void loadStyleSheet();
    void updateStylesheet();
    void setupUI();
    void place(const ToastGeometry& geometry);
    QSize bodySize() const;
    void setAccessibleTexts();
    void startDuration();
    void restDurationBarWhileMinimized();
    void slideIn(const QPoint& target);
    void animatePosition(const QPoint& target, int duration);
    QPropertyAnimation* fade(qreal from, qreal to, int duration);
    void start(QPropertyAnimation* animation);
    QPoint calculatePosition() const;
    WyToast* getPredecessorToast() const;
    void updatePositionX();
    void updatePositionY();
    void updatePositionXY();

    static void updateCurrentlyShowingPositionX();
    static void updateCurrentlyShowingPositionY();
    static void updateCurrentlyShowingPositionXY();
    static void passSlotOn();

    static int s_maximumOnScreen;
    static int s_spacing;
    static int s_offsetX;
    static int s_offsetY;
    static ToastPosition s_position;
    static bool s_alwaysOnMainScreen;
    static QScreen* s_fixedScreen;
    static std::deque<WyToast*> s_currentlyShown;
    static std::deque<WyToast*> s_queue;
    static int s_resetCount;

    static constexpr int sc_updatePositionDuration = 200;
    static constexpr int sc_durationBarUpdateInterval = 5;
    static constexpr int sc_dropShadowSize = 5;
    static constexpr QColor sc_successAccentColor{0x3E, 0x91, 0x41};
    static constexpr QColor sc_warningAccentColor{0xE8, 0xB8, 0x49};
    static constexpr QColor sc_errorAccentColor{0xBA, 0x26, 0x26};
    static constexpr QColor sc_informationAccentColor{0x00, 0x7F, 0xFF};
    static constexpr QColor sc_defaultAccentColor{0x5C, 0x5C, 0x5C};
    static constexpr QColor sc_defaultBackgroundColor{0xE7, 0xF4, 0xF9};
    static constexpr QColor sc_defaultTitleColor{0x00, 0x00, 0x00};
    static constexpr QColor sc_defaultTextColor{0x5C, 0x5C, 0x5C};
    static constexpr QColor sc_defaultIconSeparatorColor{0xD9, 0xD9, 0xD9};
    static constexpr QColor sc_defaultCloseButtonIconColor{0x00, 0x00, 0x00};
    static constexpr QColor sc_defaultBackgroundColorDark{0x29, 0x29, 0x29};
    static constexpr QColor sc_defaultTitleColorDark{0xFF, 0xFF, 0xFF};
    static constexpr QColor sc_defaultTextColorDark{0xD0, 0xD0, 0xD0};
    static constexpr QColor sc_defaultIconSeparatorColorDark{0x58, 0x58, 0x58};
    static constexpr QColor sc_defaultCloseButtonIconColorDark{0xC9, 0xC9, 0xC9};

    QPointer<QWidget> m_parent;
    int m_duration = 5000;
    bool m_showDurationBar = true;
    QString m_title;
    QString m_text;
    QPixmap m_icon;
    bool m_showIcon = false;
    QSize m_iconSize{18, 18};
    bool m_showIconSeparator = true;
    int m_iconSeparatorWidth = 2;
    QPixmap m_closeButtonIcon;
    bool m_showCloseButton = true;
    QSize m_closeButtonIconSize{10, 10};
    QSize m_closeButtonSize{24, 24};
    ToastButtonAlignment m_closeButtonAlignment = ToastButtonAlignment::TOP;
    int m_fadeInDuration = 250;
    int m_fadeOutDuration = 250;
    bool m_resetDurationOnHover = true;
    bool m_stayOnTop = true;
    int m_borderRadius = 0;
    QColor m_backgroundColor = sc_defaultBackgroundColor;
    QColor m_titleColor = sc_defaultTitleColor;
    QColor m_textColor = sc_defaultTextColor;
    QColor m_iconColor = sc_defaultAccentColor;
    QColor m_iconSeparatorColor = sc_defaultIconSeparatorColor;
    QColor m_closeButtonIconColor = sc_defaultCloseButtonIconColor;
    QColor m_durationBarColor = sc_defaultAccentColor;
    QFont m_titleFont{QStringLiteral("Arial"), 9, QFont::Bold};
    QFont m_textFont{QStringLiteral("Arial"), 9};
    QMargins m_margins{20, 18, 10, 18};
    QMargins m_iconMargins{0, 0, 15, 0};
    QMargins m_iconSectionMargins{0, 0, 15, 0};
    QMargins m_textSectionMargins{0, 0, 15, 0};
    QMargins m_closeButtonMargins{0, -8, 0, -8};
    int m_textSectionSpacing = 8;

    // The host may delete or replace any of these.
    QPointer<QLabel> m_notification;
    std::array<QPointer<QWidget>, 5> m_dropShadowLayers;
    QPointer<QGraphicsOpacityEffect> m_opacityEffect;
    QPointer<QPushButton> m_closeButton;
    QPointer<QLabel> m_titleLabel;
    QPointer<QLabel> m_textLabel;
    QPointer<QPushButton> m_iconWidget;
    QPointer<QWidget> m_iconSeparator;
    QPointer<QWidget> m_durationBarContainer;
    QPointer<QWidget> m_durationBar;
    QPointer<QWidget> m_durationBarChunk;
    QPointer<QTimer> m_durationTimer;
    QPointer<QTimer> m_durationBarTimer;
    std::unique_ptr<QPropertyAnimation> m_horizontalMove;
    std::unique_ptr<QObject> m_windowFilter;

    /// The cache keys of the icons that the buttons got from here.
    qint64 m_shownIconKey = 0;
    qint64 m_shownCloseButtonIconKey = 0;
    int m_durationElapsed = 0;
    bool m_fadingOut = false;
    bool m_used = false;
    /// Set between closed() and the moment the next toast follows.
    bool m_owesItsSlot = false;
    /// The number of resets so far when this toast came on screen: after another one it owes nobody a slot.
    int m_resetsBefore;
};

} // namespace WyWidgets
