#pragma once

#include <QtUiPlugin/QDesignerCustomWidgetInterface>

/// One class as Designer offers it in the box "WyWidgets", and as QUiLoader makes it.
class FormWidget : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    using Create = QWidget* (*)(QWidget* parent);

    struct Description
    {
        /// With the namespace, "WyWidgets::WyFlatTab".
        QString className;
        const char* purpose;
        QSize size;
        Create create;
        /// Makes one that has something to show while the form is edited; null if the plain one does.
        Create createForEditing = nullptr;
        /// Initial text property, or null.
        const char* text = nullptr;
        bool isContainer = false;
    };

    FormWidget(const Description& description, QObject* parent);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QString domXml() const override;

    /// Designer calls this before it makes widgets; QUiLoader does not.
    void initialize(QDesignerFormEditorInterface* editor) override;
    bool isInitialized() const override;
    QWidget* createWidget(QWidget* parent) override;

private:
    QString plainName() const;

    const Description m_description;
    bool m_edits = false;
};
