#include "ui_AllWidgets.h"

#include <QBuffer>
#include <QFileInfo>
#include <QMetaProperty>
#include <QPluginLoader>
#include <QUiLoader>
#include <QtTest>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

/// The plugin as Designer loads it.
class TestDesignerPlugin : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void offersTheClassesOfTheCompiledForm();
    void describesEachClass();
    void eachClassHasAnIconOfItsOwn();
    void containersTakeOtherWidgets();
    void makesEachClass();
    void theUiLoaderMakesEachClassFromItsFormElement();
    void aSpinnerWaitsForItsStart();
    void whileTheFormIsEditedASpinnerTurns();
    void whileTheFormIsEditedEachClassIsStillMade();
    void ownPropertiesAreEditable();
    void propertiesOfAFormReachTheWidget();

private:
    QStringList classNames() const;
    QDesignerCustomWidgetInterface* descriptionOf(const QString& className) const;

    QList<QDesignerCustomWidgetInterface*> m_widgets;
};

void TestDesignerPlugin::initTestCase()
{
    QPluginLoader loader(QStringLiteral(WY_DESIGNER_PLUGIN));
    auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader.instance());
    QVERIFY2(collection, qPrintable(loader.errorString()));
    m_widgets = collection->customWidgets();
    QVERIFY(!m_widgets.isEmpty());
}

QStringList TestDesignerPlugin::classNames() const
{
    QStringList names;
    for (const QDesignerCustomWidgetInterface* widget : m_widgets)
        names += widget->name();
    return names;
}

QDesignerCustomWidgetInterface* TestDesignerPlugin::descriptionOf(const QString& className) const
{
    const int index = classNames().indexOf(QStringLiteral("WyWidgets::") + className);
    return m_widgets.value(index);
}

/// The form names the classes, and the code that uic writes for it compiles.
void TestDesignerPlugin::offersTheClassesOfTheCompiledForm()
{
    QWidget window;
    Ui::AllWidgets form;
    form.setupUi(&window);
    QStringList onForm;
    const auto children = window.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget* child : children)
        onForm += QString::fromLatin1(child->metaObject()->className());
    onForm.sort();
    QStringList offered = classNames();
    offered.sort();
    QCOMPARE(offered, onForm);
}

void TestDesignerPlugin::describesEachClass()
{
    QSet<QString> purposes;
    for (const QDesignerCustomWidgetInterface* widget : m_widgets) {
        QCOMPARE(widget->group(), QStringLiteral("WyWidgets"));
        QVERIFY(!widget->toolTip().isEmpty());
        purposes += widget->toolTip();
        QVERIFY2(QFileInfo::exists(QStringLiteral(WY_HEADER_ROOT "/") + widget->includeFile()),
                 qPrintable(widget->includeFile()));
    }
    QCOMPARE(purposes.size(), m_widgets.size());
}

void TestDesignerPlugin::eachClassHasAnIconOfItsOwn()
{
    QVector<QImage> icons;
    for (const QDesignerCustomWidgetInterface* widget : m_widgets) {
        const QImage icon = widget->icon().pixmap(22, 22).toImage();
        QVERIFY(!icon.isNull());
        QVERIFY2(!icons.contains(icon), qPrintable(widget->name()));
        icons += icon;
    }
}

void TestDesignerPlugin::containersTakeOtherWidgets()
{
    QStringList containers;
    for (const QDesignerCustomWidgetInterface* widget : m_widgets) {
        if (widget->isContainer())
            containers += widget->name();
    }
    QCOMPARE(containers, QStringList({QStringLiteral("WyWidgets::WyShadowWidget"),
                                      QStringLiteral("WyWidgets::WyTransWidget")}));
}

void TestDesignerPlugin::makesEachClass()
{
    for (QDesignerCustomWidgetInterface* description : m_widgets) {
        QWidget parent;
        QWidget* widget = description->createWidget(&parent);
        QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), description->name());
        QCOMPARE(widget->parentWidget(), &parent);
    }
}

void TestDesignerPlugin::theUiLoaderMakesEachClassFromItsFormElement()
{
    QUiLoader loader;
    loader.addPluginPath(QFileInfo(QStringLiteral(WY_DESIGNER_PLUGIN)).absolutePath());
    for (const QDesignerCustomWidgetInterface* description : m_widgets) {
        QVERIFY2(loader.availableWidgets().contains(description->name()), qPrintable(description->name()));
        QByteArray xml = description->domXml().toUtf8();
        QBuffer buffer(&xml);
        QScopedPointer<QWidget> widget(loader.load(&buffer));
        QVERIFY2(widget, qPrintable(description->name() + QLatin1Char(' ') + loader.errorString()));
        QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), description->name());
        QVERIFY(!widget->objectName().isEmpty());
    }
}

void TestDesignerPlugin::aSpinnerWaitsForItsStart()
{
    QWidget parent;
    const QWidget* spinner = descriptionOf(QStringLiteral("WyWaitingSpinnerWidget"))->createWidget(&parent);
    parent.show();
    QVERIFY(spinner->isHidden());
}

void TestDesignerPlugin::whileTheFormIsEditedASpinnerTurns()
{
    QWidget parent;
    parent.show();
    QDesignerCustomWidgetInterface* description = descriptionOf(QStringLiteral("WyWaitingSpinnerWidget"));
    QVERIFY(!description->isInitialized());
    description->initialize(nullptr);
    QVERIFY(description->isInitialized());
    QVERIFY(description->createWidget(&parent)->isVisible());
}

/// The classes with something to show only on a form that is being edited stay the classes they are.
void TestDesignerPlugin::whileTheFormIsEditedEachClassIsStillMade()
{
    for (QDesignerCustomWidgetInterface* description : m_widgets)
        description->initialize(nullptr);
    makesEachClass();
}

/// Designer shows what is writable and designable.
void TestDesignerPlugin::ownPropertiesAreEditable()
{
    QByteArrayList found;
    for (QDesignerCustomWidgetInterface* description : m_widgets) {
        const QScopedPointer<QWidget> widget(description->createWidget(nullptr));
        const QMetaObject* metaObject = widget->metaObject();
        for (int i = metaObject->propertyOffset(); i < metaObject->propertyCount(); ++i) {
            const QMetaProperty property = metaObject->property(i);
            const QByteArray name = metaObject->className() + QByteArray(".") + property.name();
            QVERIFY2(property.isWritable() && property.isDesignable(widget.data()), name);
            found += name.mid(int(sizeof("WyWidgets::")) - 1);
        }
    }
    const QByteArrayList stated = {
        "WyGifButton.gifPath",       "WyGifButton.gifStep",      "WyGifLabel.gifPath",
        "WyGifLabel.gifStep",        "WyImageButton.iconSize",   "WyImageButton.iconNormal",
        "WyImageButton.iconDisable", "WyImageButton.leftMargin", "WyShadowWidget.shadowColor"};
    QCOMPARE(found, stated);
}

void TestDesignerPlugin::propertiesOfAFormReachTheWidget()
{
    QByteArray xml = "<ui version=\"4.0\"><widget class=\"WyWidgets::WyShadowWidget\" name=\"plate\">"
                     "<property name=\"shadowColor\"><color alpha=\"96\"><red>1</red><green>2</green>"
                     "<blue>3</blue></color></property></widget></ui>";
    QBuffer buffer(&xml);
    QUiLoader loader;
    loader.addPluginPath(QFileInfo(QStringLiteral(WY_DESIGNER_PLUGIN)).absolutePath());
    const QScopedPointer<QWidget> plate(loader.load(&buffer));
    QVERIFY2(plate, qPrintable(loader.errorString()));
    QCOMPARE(plate->property("shadowColor").value<QColor>(), QColor(1, 2, 3, 96));
}

QTEST_MAIN(TestDesignerPlugin)
#include "tst_designerplugin.moc"
