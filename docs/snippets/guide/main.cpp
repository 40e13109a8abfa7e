//! [guide-main]
#include "NotesWindow.h"

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    NotesWindow::applyTheme("light");
    NotesWindow window;
    window.show();
    return QApplication::exec();
}
//! [guide-main]
