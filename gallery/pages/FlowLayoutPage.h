#pragma once

#include "GalleryPage.h"

#include <WyWidgets/layout/WyFlowLayout.h>

class QLabel;
class QLineEdit;

/// A tag editor: hundreds of tags that wrap as the window is resized.
class FlowLayoutPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit FlowLayoutPage(QWidget* parent = nullptr);

private:
    QWidget* createEditor();
    KnobPanel* createKnobs();
    void addTag(const QString& text);
    void addTags(int count);
    void removeAll();
    /// Moves the tags to a layout with the knobs' spacings: a flow layout takes them when it is made.
    void rebuildLayout();
    void showCount();

    QWidget* m_tags = nullptr;
    WyWidgets::WyFlowLayout* m_layout = nullptr;
    QLineEdit* m_newTag = nullptr;
    QLabel* m_count = nullptr;
    int m_margin = 6;
    int m_hSpacing = 6;
    int m_vSpacing = 6;
};
