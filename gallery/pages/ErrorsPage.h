#pragma once

#include "GalleryPage.h"

#include <WyWidgets/wycontrol/WyErrorWidget.h>

#include <functional>

class QLabel;
class QLineEdit;
class QVBoxLayout;

/// A form that says what is wrong with it, and the error widget with all its knobs.
class ErrorsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ErrorsPage(QWidget* parent = nullptr);

    void prepareForPicture() override;

private:
    /// One line of the form.
    struct Field
    {
        QLineEdit* edit;
        WyWidgets::WyErrorWidget* error;
        /// Empty if the text will do, else what is wrong with it.
        std::function<QString(const QString& text)> problem;
    };

    void addForm();
    void addSettings();
    QLineEdit* addField(QVBoxLayout* form, const QString& label,
                        std::function<QString(const QString&)> problem);
    void submit();

    QVector<Field> m_fields;
    QLabel* m_result = nullptr;
    WyWidgets::WyErrorWidget* m_error = nullptr;
    bool m_animates = true;
};
