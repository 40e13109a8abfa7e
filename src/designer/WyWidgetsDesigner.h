#pragma once

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

/// What Designer and QUiLoader load: the collection of all classes that can stand on a form.
class WyWidgetsDesigner : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")

public:
    explicit WyWidgetsDesigner(QObject* parent = nullptr);

    QList<QDesignerCustomWidgetInterface*> customWidgets() const override;

private:
    QList<QDesignerCustomWidgetInterface*> m_widgets;
};
