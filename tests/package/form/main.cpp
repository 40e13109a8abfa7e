// A host that shows forms and knows the library only by its Designer plugin: form PLUGIN-FOLDER.
#include <QApplication>
#include <QTextStream>
#include <QUiLoader>
#include <QWidget>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QUiLoader loader;
    loader.addPluginPath(application.arguments().at(1));
    const QWidget* tab = loader.createWidget(QStringLiteral("WyWidgets::WyFlatTab"));
    const QStringList classes = loader.availableWidgets().filter(QStringLiteral("WyWidgets::"));
    QTextStream(stdout) << classes.size() << " classes for forms\n";
    return tab && tab->inherits("WyWidgets::WyFlatTab") ? 0 : 1;
}
