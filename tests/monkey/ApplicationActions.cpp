#include "monkey/Actions.h"
#include "monkey/Random.h"

#include <QApplication>
#include <QFile>
#include <QStyleFactory>
#include <QToolTip>
#include <QTranslator>

#include <memory>

namespace Monkey {

namespace {

/// A language with letters from right to left, longer texts, and nothing for some of them.
class Babble : public QTranslator
{
public:
    using QTranslator::QTranslator;

    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* source, const char*, int) const override
    {
        const QString text = QString::fromUtf8(source);
        return text.size() % 5 == 0 ? QString() : text + QChar(0x05d0) + QStringLiteral(" <i>%1") + text;
    }
};

void setTheme(Random& random)
{
    const char* const files[] = {":/themes/light.qss", ":/themes/dark.qss"};
    QFile file(QString::fromLatin1(files[random.below(2)]));
    if (file.open(QIODevice::ReadOnly))
        qApp->setStyleSheet(QString::fromUtf8(file.readAll()));
}

void setLanguage(Random& random)
{
    static std::unique_ptr<Babble> babble;
    babble.reset();
    if (random.oneIn(2))
        return;
    babble = std::make_unique<Babble>();
    QCoreApplication::installTranslator(babble.get());
}

void setStyle(Random& random)
{
    const QStringList keys = QStyleFactory::keys();
    QApplication::setStyle(keys.at(random.below(keys.size())));
}

std::vector<ApplicationAction> lookActions()
{
    return {
        {"theme", setTheme},
        {"theme off",
         [](Random&) {
             qApp->setStyleSheet(QString());
         }},
        {"theme off again",
         [](Random&) {
             qApp->setStyleSheet(QString());
         }},
        {"theme off once more",
         [](Random&) {
             qApp->setStyleSheet(QString());
         }},
        {"style", setStyle},
        {"font",
         [](Random& random) {
             QApplication::setFont(random.oneIn(2) ? QFont() : random.font());
         }},
        {"tool-tip font",
         [](Random& random) {
             QToolTip::setFont(random.font());
         }},
        {"palette",
         [](Random& random) {
             QApplication::setPalette(QPalette(random.color(), random.color()));
         }},
        {"direction",
         [](Random& random) {
             QApplication::setLayoutDirection(random.oneIn(2) ? Qt::RightToLeft : Qt::LeftToRight);
         }},
        {"language", setLanguage},
    };
}

} // namespace

const std::vector<ApplicationAction>& applicationActions()
{
    static const std::vector<ApplicationAction> actions = [] {
        std::vector<ApplicationAction> all = lookActions();
        const std::vector<ApplicationAction> more = screenActions();
        all.insert(all.end(), more.begin(), more.end());
        return all;
    }();
    return actions;
}

void restoreApplication()
{
    restoreScreens();
    qApp->setStyleSheet(QString());
    QApplication::setFont(QFont());
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

} // namespace Monkey
