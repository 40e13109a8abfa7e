#pragma once

#include <QPushButton>

class QLabel;
struct PageEntry;

/// A large button that stands for a page: its icon, its name and the classes on it.
class PageTile : public QPushButton
{
    Q_OBJECT

public:
    explicit PageTile(const PageEntry& page, QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void showIcon();

    QLabel* m_icon;
    QString m_iconName;
};
