#pragma once

#include "FramedWindow.h"

class QAction;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QStackedWidget;
class GalleryPage;

/// The gallery's main window: a bar with title, search field and theme switch, the navigation on the left,
/// the chosen page on the right, what it runs on below.
class GalleryWindow : public FramedWindow
{
    Q_OBJECT

public:
    explicit GalleryWindow(QWidget* parent = nullptr);

    /// Opens the page of this name (case does not matter); false if there is none.
    bool openPage(const QString& name);
    /// "light" or "dark"; false for any other name.
    bool applyTheme(const QString& name);
    GalleryPage* currentPage() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void createBar();
    void createSearch();
    void createThemeButton();
    void createNavigation();
    void createStatus();
    void openRow(int row);
    void filterNavigation(const QString& words);
    void moveRow(int step);
    void showThemeIcons();
    void toggleTheme();

    QLineEdit* m_search;
    QAction* m_searchIcon;
    QPushButton* m_themeButton;
    QListWidget* m_navigation;
    QLabel* m_nothingFound;
    QStackedWidget* m_stack;
};
