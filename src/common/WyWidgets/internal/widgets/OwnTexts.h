#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace WyWidgets {

/// What a widget says in words of the library's own, to assistive tools and in its tool tip. When the
/// language changes, it says so in the new one; words that the host has put in place stay.
class OwnTexts : public QObject
{
    Q_OBJECT

public:
    using Words = std::function<QString()>;

    /// The texts of the widget, which owns them; made on first use.
    static OwnTexts* of(QWidget* widget);

    /// These say `words` at once, too, whatever has been there.
    void setName(const Words& words);
    void setToolTip(const Words& words);
    void setNameAndToolTip(const Words& words);
    /// These leave a name or tool tip of the host's alone.
    void offerName(const Words& words);
    void offerToolTip(const Words& words);
    /// False if the host has given the widget another tool tip.
    bool isToolTipOwn() const;

    /// Qt sends the change of language to all children of a widget.
    bool event(QEvent* event) override;

private:
    explicit OwnTexts(QWidget* widget);

    bool isNameOwn() const;
    void translateName();
    void translateToolTip();

    struct Text
    {
        Words words;
        QString shown;
    };

    QWidget* m_widget;
    Text m_name;
    Text m_toolTip;
};

} // namespace WyWidgets
