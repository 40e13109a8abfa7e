//! [guide-includes]
#include "NotesWindow.h"

#include <WyWidgets/WyTipWidget.h>
#include <WyWidgets/WyToast.h>
#include <WyWidgets/WyWaitingSpinnerWidget.h>
#include <WyWidgets/WyWindowBar.h>

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QTextEdit>
#include <QTimer>

using namespace WyWidgets;
//! [guide-includes]

//! [guide-window]
NotesWindow::NotesWindow(QWidget* parent) : WyMainWindow(parent)
{
    setWindowTitle(tr("Notes"));
    createTitleBar();
    createEditor();
    setContentsMargins(1, 1, 1, 1); // room for the theme's border
    resize(640, 400);
}

void NotesWindow::createTitleBar()
{
    m_bar = new WyWindowBar(this);
    m_bar->setFixedHeight(48);
    m_bar->layout()->setContentsMargins(16, 0, 8, 0);
    setMenuWidget(m_bar);
    registTitleBar(m_bar); // drags the window, maximises it on a double-click

    m_bar->AddWidgetToLeft(new QLabel(windowTitle()));
    connect(addTool(tr("Save")), &QPushButton::clicked, this, &NotesWindow::save);
    connect(addTool(tr("Clear")), &QPushButton::clicked, this, &NotesWindow::clear);
    connect(addTool(tr("Theme")), &QPushButton::clicked, this,
            &NotesWindow::switchTheme);

    m_bar->AddSeparator();
    m_bar->InitSysButton();
    registMaxButton(m_bar->findChild<QPushButton*>("max_button"));
    for (const char* name : {"min_button", "max_button", "close_button"})
        registHitTestVisible(m_bar->findChild<QPushButton*>(name), true);
}

QPushButton* NotesWindow::addTool(const QString& text)
{
    auto* button = new QPushButton(text);
    m_bar->AddToolButton(button);
    registHitTestVisible(button, true); // or a press on it would drag the window
    return button;
}
//! [guide-window]

//! [guide-spinner]
void NotesWindow::createEditor()
{
    m_editor = new QTextEdit;
    m_editor->setPlaceholderText(tr("Write something"));
    setCentralWidget(m_editor);
    m_spinner = new WyWaitingSpinnerWidget(m_editor, true, true);
    m_spinner->setColor(QColor("#0B66C3"));
}

void NotesWindow::save()
{
    m_spinner->start(); // the editor takes no input meanwhile
    // Your work goes here.
    QTimer::singleShot(800, this, &NotesWindow::showSaved);
}
//! [guide-spinner]

//! [guide-toast]
void NotesWindow::showSaved()
{
    m_spinner->stop();
    auto* toast = new WyToast(this);
    toast->setTitle(tr("Saved"));
    toast->setText(tr("All changes are on disk."));
    toast->applyPreset(ToastPreset::SUCCESS);
    toast->show();
}
//! [guide-toast]

//! [guide-tip]
void NotesWindow::clear()
{
    m_editor->selectAll();
    m_editor->textCursor().removeSelectedText();

    auto* tip = new WyTipWidget(m_editor);
    tip->SetText(tr("The note is empty now."));
    tip->SetLinkText(tr("Undo"), QString()); // no second link
    connect(tip, &WyTipWidget::SignalClickedLeftLink, m_editor, &QTextEdit::undo);
    tip->adjustSize();
    tip->move(16, m_editor->height() - tip->height() - 16);
    tip->show();
    tip->StartShowAnimation();
}
//! [guide-tip]

//! [guide-theme]
void NotesWindow::applyTheme(const QString& name)
{
    QFile sheet(QString(":/themes/%1.qss").arg(name));
    if (!sheet.open(QFile::ReadOnly))
        return;
    qApp->setStyleSheet(QString::fromUtf8(sheet.readAll()));
    qApp->setProperty("theme", name);
}

void NotesWindow::switchTheme()
{
    applyTheme(qApp->property("theme") == "light" ? "dark" : "light");
}
//! [guide-theme]
