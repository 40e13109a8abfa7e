#pragma once

#include "FramedWindow.h"

#include "WyWidgets/frame/WyDialog.h"

class QLabel;

/// A small main window with everything that its bar can hold.
class DemoWindow : public FramedWindow
{
    Q_OBJECT

public:
    explicit DemoWindow(QWidget* parent = nullptr);

    void setTitle(const QString& title);

private:
    void fillBar();

    QLabel* m_title;
};

/// A question with a title bar and a close button.
class DemoDialog : public WyWidgets::WyDialog
{
    Q_OBJECT

public:
    explicit DemoDialog(QWidget* parent = nullptr);

private:
    void fillTitleBar();
    QWidget* createAnswers();

    QPushButton* m_keep;
};
