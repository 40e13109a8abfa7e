#pragma once

#include <QMainWindow>

class QLineEdit;
class QListWidget;
class QPushButton;
class QStackedWidget;
class GalleryPage;

/// The gallery's main window: navigation with a search field on the left, the chosen page on the right.
class GalleryWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit GalleryWindow(QWidget* parent = nullptr);

    /// Opens the page of this name (case does not matter); false if there is none.
    bool openPage(const QString& name);
    /// "light" or "dark"; false for any other name.
    bool applyTheme(const QString& name);
    GalleryPage* currentPage() const;

private:
    void createNavigation();
    void createThemeButton();
    void openRow(int row);
    void filterNavigation(const QString& words);
    void toggleTheme();

    QLineEdit* m_search;
    QListWidget* m_navigation;
    QStackedWidget* m_stack;
    QPushButton* m_themeButton;
    QString m_theme;
};
