//! [guide-header]
#pragma once

#include <WyWidgets/WyMainWindow.h>

class QPushButton;
class QTextEdit;

namespace WyWidgets {
class WyWaitingSpinnerWidget;
class WyWindowBar;
} // namespace WyWidgets

class NotesWindow : public WyWidgets::WyMainWindow
{
    Q_OBJECT

public:
    explicit NotesWindow(QWidget* parent = nullptr);

    static void applyTheme(const QString& name);

public slots:
    void save();
    void clear();
    void switchTheme();

private:
    QPushButton* addTool(const QString& text);
    void createTitleBar();
    void createEditor();
    void showSaved();

    WyWidgets::WyWindowBar* m_bar = nullptr;
    QTextEdit* m_editor = nullptr;
    WyWidgets::WyWaitingSpinnerWidget* m_spinner = nullptr;
};
//! [guide-header]
