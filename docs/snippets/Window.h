#pragma once

#include <QStringList>
#include <QVector>
#include <QWidget>

class QPushButton;

/// The window that the snippets of the documentation work in, with a column as its
/// layout.
///
/// Each snippet is the part of a member function between two lines "//! [name]".
/// The name is that of the class it shows, with a word after it where a class has
/// several. tools/update_snippets.py puts the snippets into the pages; a test runs
/// them all.
class Window : public QWidget
{
    Q_OBJECT

public:
    explicit Window(QWidget* parent = nullptr);

    /// Each function returns what the snippet made.
    struct Snippet
    {
        const char* name;
        QObject* (Window::*run)();
    };
    static const QVector<Snippet>& snippets();

    /// The names of the slots below that were called, in order.
    QStringList calls() const { return m_calls; }

    // Windows.cpp
    QObject* mainWindow();
    QObject* windowBar();
    QObject* dialog();
    QObject* dialogBar();
    QObject* shadowWidget();
    QObject* transWidget();
    QObject* moveableFrame();
    QObject* widgetUtils();
    QObject* widgetUtilsMore();
    QObject* widgetUtilsStyle();

    // Styling.cpp
    QObject* stylingAnimation();
    QObject* stylingOwn();
    QObject* stylingState();

    // Toasts.cpp
    QObject* toast();
    QObject* toastMore();
    QObject* toastSettings();
    QObject* toastIcon();
    QObject* toastColors();
    QObject* toastSize();
    QObject* toastWidget();
    QObject* simpleToast();
    QObject* simpleToastMore();

    // Popups.cpp
    QObject* arrowWidget();
    QObject* tipWidget();
    QObject* bubbleWidget();
    QObject* bubbleTip();
    QObject* bubbleButton();
    QObject* popupWidget();
    QObject* popupBox();
    QObject* errorWidget();
    QObject* errorWidgetMore();
    QObject* menu();

    // Busy.cpp
    QObject* waitingSpinner();
    QObject* waitingSpinnerMore();
    QObject* waitingBar();
    QObject* gifLabel();
    QObject* loadBox();
    QObject* gifButton();

    // Buttons.cpp
    QObject* animationButton();
    QObject* animationButtonMore();
    QObject* hoverButton();
    QObject* imageButton();
    QObject* shadowButton();
    QObject* dotButton();
    QObject* checkBox();
    QObject* dotCheckBox();

    // Texts.cpp
    QObject* label();
    QObject* elidedLabel();
    QObject* dotLabel();
    QObject* clearEdit();
    QObject* passwordEdit();
    QObject* shortcutEdit();
    QObject* intValidator();

    // Choices.cpp
    QObject* handleSlider();
    QObject* flatTab();
    QObject* flatVTab();
    QObject* flowLayout();
    QObject* selectFrame();
    QObject* selectFrameMore();

public slots:
    void applyColumns() { m_calls += QStringLiteral("applyColumns"); }
    void compose() { m_calls += QStringLiteral("compose"); }
    void explain() { m_calls += QStringLiteral("explain"); }
    void openPage(int) { m_calls += QStringLiteral("openPage"); }
    void save() { m_calls += QStringLiteral("save"); }
    void search() { m_calls += QStringLiteral("search"); }
    void seek(qint64) { m_calls += QStringLiteral("seek"); }
    void showArchive() { m_calls += QStringLiteral("showArchive"); }
    void showNews() { m_calls += QStringLiteral("showNews"); }
    void stopExplaining() { m_calls += QStringLiteral("stopExplaining"); }
    void undo() { m_calls += QStringLiteral("undo"); }
    void upload() { m_calls += QStringLiteral("upload"); }

signals:
    void uploaded();

private:
    /// A visible button for a snippet to stand beside.
    QPushButton* addButton(const QString& text);

    QStringList m_calls;
};
