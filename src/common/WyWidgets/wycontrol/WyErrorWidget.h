#pragma once

#include "WyWidgets/WyExport.h"

#include <QPointer>
#include <QWidget>

class QLabel;
class QParallelAnimationGroup;
class QTimer;

namespace WyWidgets {

/// An inline error message for a form: it can fade in and hides itself after five seconds.
///
/// Its size is always that of its contents. Style the bar itself (it paints a style-sheet background), the
/// text "err_widget_label" and the icon "label_icon", a hidden slot of 16 x 16 px before the text. The host
/// owns and places the widget; an opacity effect on it serves the fade.
class WYWIDGETS_EXPORT WyErrorWidget : public QWidget
{
    Q_OBJECT

public:
    /// A bar without text. Like any child it appears with its parent: hide() it until there is an error.
    explicit WyErrorWidget(QWidget* parent = nullptr);
    ~WyErrorWidget() override;

    /// Sets the text, plain or rich, and fits the label to the maximum width if one is set.
    void SetErrText(const QString& text);
    /// The widest the label may get, in pixels: shorter texts shrink it, longer ones wrap from the next
    /// SetErrText() or AdjustLabel() on. 0, the default, and less switch that fitting off, and as a maximum
    /// leave the label no width.
    void SetWidgetMaxWidth(int width);
    /// Centres the text in a label of exactly this width in pixels.
    void SetWidgetFixedWidth(int width);
    /// Whether the text wraps; AdjustLabel() decides anew while there is a maximum width.
    void SetErrLabelWrap(bool wrap);

    /// Shows the widget: with `animate` it fades in and hides five seconds later, counted from the last call;
    /// without, it shows at once and stays.
    void ShowAnimation(bool animate);
    /// Gives the widget a new opacity effect, at full opacity, and the animations that drive it. The
    /// constructor has done so; call it to get the fade back after replacing the widget's graphics effect.
    void InitAnimation();
    /// Fits the label to the maximum width: unwrapped while the text fits on one line, else wrapped and
    /// exactly that wide. Does nothing while the maximum is 0 or less.
    void AdjustLabel();

private:
    void createLabels();

    QPointer<QLabel> m_errLabel;
    QPointer<QParallelAnimationGroup> m_showAnimation;
    QPointer<QTimer> m_timer;
    int m_maxWidth = 0;
};

} // namespace WyWidgets
