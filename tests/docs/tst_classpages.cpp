#include "support/LibraryWidgets.h"

#include <QFile>
#include <QMetaProperty>
#include <QRegularExpression>
#include <QtTest>

namespace {

QString readPage(const QString& path)
{
    QFile page(QStringLiteral(WY_DOCS_DIR "/") + path);
    return page.open(QIODevice::ReadOnly) ? QString::fromUtf8(page.readAll()) : QString();
}

bool isOfTheLibrary(const QObject& object)
{
    return qstrncmp(object.metaObject()->className(), "WyWidgets::", 11) == 0;
}

/// Object names and dynamic properties of the object and its parts. The parts of another class of the library
/// stand on that class's page.
void collectNames(const QObject& object, QSet<QString>* names)
{
    // Qt's own parts carry names and properties with these prefixes.
    const QString name = object.objectName();
    if (!name.isEmpty() && !name.startsWith(QLatin1String("qt_")) && name != QLatin1String("_layout"))
        names->insert(name);
    const QList<QByteArray> properties = object.dynamicPropertyNames();
    for (const QByteArray& property : properties) {
        if (!property.startsWith("_q_"))
            names->insert(QString::fromLatin1(property));
    }
    for (const QObject* child : object.children()) {
        if (!isOfTheLibrary(*child))
            collectNames(*child, names);
        else if (!child->objectName().isEmpty())
            names->insert(child->objectName());
    }
}

/// Object names, dynamic properties and the class's own properties.
QSet<QString> stylableNames(const QWidget& widget)
{
    QSet<QString> names;
    collectNames(widget, &names);
    const QMetaObject* type = widget.metaObject();
    for (int i = type->propertyOffset(); i < type->propertyCount(); ++i)
        names += QString::fromLatin1(type->property(i).name());
    return names;
}

/// Whether the text has the name as code.
bool tells(const QString& text, const QString& name)
{
    const QRegularExpression code(QStringLiteral("`[^`\n]*(?<![\\w-])(qproperty-)?%1(?![\\w-])[^`\n]*`")
                                      .arg(QRegularExpression::escape(name)));
    return code.match(text).hasMatch();
}

QString untold(const QSet<QString>& names, const QString& text)
{
    QStringList missing;
    for (const QString& name : names) {
        if (!tells(text, name))
            missing += name;
    }
    missing.sort();
    return missing.join(QStringLiteral(", "));
}

} // namespace

/// Holds the pages of the classes against widgets that really exist.
class TestClassPages : public QObject
{
    Q_OBJECT

private slots:
    void everyNameIsOnThePageOfItsClass_data();
    void everyNameIsOnThePageOfItsClass();
    void everySignalIsOnThePageOfItsClass_data();
    void everySignalIsOnThePageOfItsClass();
    void theStylingGuideListsEveryName_data();
    void theStylingGuideListsEveryName();
    void theAccessibilityPageListsEveryName_data();
    void theAccessibilityPageListsEveryName();
    void onlyWholeNamesInCodeCount();
};

namespace {

void addRowPerWidget()
{
    QTest::addColumn<int>("index");
    const QVector<WyTest::LibraryWidget>& widgets = WyTest::libraryWidgets();
    for (int i = 0; i < widgets.size(); ++i)
        QTest::addRow("%d %s", i, widgets.at(i).className.constData()) << i;
}

} // namespace

void TestClassPages::everyNameIsOnThePageOfItsClass_data()
{
    addRowPerWidget();
}

void TestClassPages::everyNameIsOnThePageOfItsClass()
{
    QFETCH(int, index);
    const WyTest::LibraryWidget& entry = WyTest::libraryWidgets().at(index);
    const QScopedPointer<QWidget> widget(entry.create());
    const QString page = readPage(QStringLiteral("classes/%1.md").arg(QLatin1String(entry.className)));
    QVERIFY(!page.isEmpty());
    QCOMPARE(untold(stylableNames(*widget), page), QString());
}

void TestClassPages::everySignalIsOnThePageOfItsClass_data()
{
    addRowPerWidget();
}

void TestClassPages::everySignalIsOnThePageOfItsClass()
{
    QFETCH(int, index);
    const WyTest::LibraryWidget& entry = WyTest::libraryWidgets().at(index);
    const QScopedPointer<QWidget> widget(entry.create());
    const QString page = readPage(QStringLiteral("classes/%1.md").arg(QLatin1String(entry.className)));
    QSet<QString> names;
    const QMetaObject* type = widget->metaObject();
    for (int i = type->methodOffset(); i < type->methodCount(); ++i) {
        if (type->method(i).methodType() == QMetaMethod::Signal)
            names += QString::fromLatin1(type->method(i).name());
    }
    QCOMPARE(untold(names, page), QString());
}

void TestClassPages::theStylingGuideListsEveryName_data()
{
    addRowPerWidget();
}

void TestClassPages::theStylingGuideListsEveryName()
{
    QFETCH(int, index);
    const QScopedPointer<QWidget> widget(WyTest::libraryWidgets().at(index).create());
    QCOMPARE(untold(stylableNames(*widget), readPage(QStringLiteral("styling.md"))), QString());
}

void TestClassPages::theAccessibilityPageListsEveryName_data()
{
    addRowPerWidget();
}

void TestClassPages::theAccessibilityPageListsEveryName()
{
    QFETCH(int, index);
    const QScopedPointer<QWidget> widget(WyTest::libraryWidgets().at(index).create());
    const QString page = readPage(QStringLiteral("accessibility.md"));
    QVERIFY(!page.isEmpty());
    QList<QWidget*> parts = widget->findChildren<QWidget*>();
    parts += widget.data();
    for (const QWidget* part : qAsConst(parts)) {
        const QString quoted = QLatin1Char('"') + part->accessibleName() + QLatin1Char('"');
        QVERIFY2(part->accessibleName().isEmpty() || page.contains(quoted), qPrintable(quoted));
    }
}

void TestClassPages::onlyWholeNamesInCodeCount()
{
    const QString name = QStringLiteral("label_pos");
    QVERIFY(tells(QStringLiteral("the `#label_pos`, 16 px"), name));
    QVERIFY(tells(QStringLiteral("`WyX #label_pos:hover`"), name));
    QVERIFY(tells(QStringLiteral("`qproperty-label_pos`"), name));
    QVERIFY(!tells(QStringLiteral("the label_pos"), name));
    QVERIFY(!tells(QStringLiteral("`#label_position` and `my-label_pos`"), name));
}

QTEST_MAIN(TestClassPages)
#include "tst_classpages.moc"
