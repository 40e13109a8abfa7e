#pragma once

#include "GalleryPage.h"

namespace WyWidgets {
class WyClearEdit;
class WyIntValidator;
class WyPasswordEdit;
class WyShortcutEdit;
} // namespace WyWidgets

/// Line edits with a button inside, one that records shortcuts, and the strict integer validator.
class EditsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit EditsPage(QWidget* parent = nullptr);

    void prepareForPicture() override;

private:
    void addClearEdit();
    void addPasswordEdit();
    void addShortcutEdit();
    void addValidator();

    WyWidgets::WyClearEdit* m_clear;
    WyWidgets::WyPasswordEdit* m_password;
    WyWidgets::WyShortcutEdit* m_shortcut;
    WyWidgets::WyIntValidator* m_validator;
};
