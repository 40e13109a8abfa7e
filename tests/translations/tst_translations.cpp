#include "support/LibraryWidgets.h"

#include "WyWidgets/frame/WyWindowBar.h"
#include "WyWidgets/wycontrol/WyAnimationButton.h"
#include "WyWidgets/wycontrol/WyPasswordEdit.h"
#include "WyWidgets/wycontrol/WySimpleToast.h"
#include "WyWidgets/wycontrol/WyToast.h"

#include <QCoreApplication>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTranslator>
#include <QXmlStreamReader>
#include <QtTest>

using namespace WyWidgets;

namespace {

/// Installed for as long as it lives.
template <typename Translator>
class Installed : public Translator
{
public:
    Installed() { QCoreApplication::installTranslator(this); }
    ~Installed() override { QCoreApplication::removeTranslator(this); }
};

/// Marks all that goes through it, from whatever class of the library.
class Marker : public QTranslator
{
public:
    bool isEmpty() const override { return false; }

    QString translate(const char* context, const char* source, const char*, int) const override
    {
        const bool ofTheLibrary = QByteArray(context).startsWith("WyWidgets::");
        return ofTheLibrary ? QLatin1Char('<') + QString::fromUtf8(source) + QLatin1Char('>') : QString();
    }
};

bool isMarked(const QString& text)
{
    return text.startsWith(QLatin1Char('<')) && text.endsWith(QLatin1Char('>'));
}

/// What the widget says, with the places where it says it.
QMap<QByteArray, QString> textsOf(const QWidget& widget)
{
    QMap<QByteArray, QString> texts;
    for (const char* property : {"text", "toolTip", "statusTip", "whatsThis", "accessibleName",
                                 "accessibleDescription", "windowTitle", "placeholderText", "title"}) {
        const QString text = widget.property(property).toString();
        if (!text.isEmpty())
            texts.insert(QByteArray(widget.metaObject()->className()) + '.' + property, text);
    }
    return texts;
}

/// The widget and all its parts.
QList<QWidget*> partsOf(QWidget* widget)
{
    return widget->findChildren<QWidget*>() << widget;
}

/// The application tells its windows later that the language has changed.
void letTheLanguageArrive()
{
    QCoreApplication::sendPostedEvents();
}

struct Message
{
    QByteArray context;
    QByteArray source;
};

QVector<Message> messagesOf(const QString& path)
{
    QVector<Message> messages;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return messages;
    QXmlStreamReader xml(&file);
    QByteArray context;
    while (!xml.atEnd()) {
        xml.readNextStartElement();
        if (xml.isStartElement() && xml.name() == QLatin1String("name"))
            context = xml.readElementText().toUtf8();
        else if (xml.isStartElement() && xml.name() == QLatin1String("source"))
            messages.append({context, xml.readElementText().toUtf8()});
    }
    return messages;
}

class German : public QTranslator
{
public:
    German()
    {
        loaded = load(QLocale(QLocale::German), QStringLiteral("WyWidgets"), QStringLiteral("_"),
                      QStringLiteral(WY_TRANSLATIONS));
    }

    bool loaded;
};

} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT

private slots:
    void whatTheLibrarySaysCanBeTranslated();
    void whatItSaysLaterCanBeTranslatedToo();
    void whatIsOnScreenFollowsTheLanguage();
    void statesThatHaveChangedFollowTheLanguageToo();
    void theHostsOwnWordsStay();
    void theCountdownFollowsTheLanguageWithItsNextNumber();
    void germanHostsHearGerman();
    void germanIsComplete();
    void otherLanguagesStayEnglish();
};

/// The only text without a mark is the one that the list of widgets gives.
void TestTranslations::whatTheLibrarySaysCanBeTranslated()
{
    const Installed<Marker> marker;
    int marked = 0;
    for (const WyTest::LibraryWidget& entry : WyTest::libraryWidgets()) {
        const QScopedPointer<QWidget> widget(entry.create());
        for (const QWidget* part : partsOf(widget.data())) {
            const auto texts = textsOf(*part);
            for (auto text = texts.begin(); text != texts.end(); ++text) {
                const bool ofTheHost = entry.className == "WyCheckBox";
                QVERIFY2(isMarked(*text) || ofTheHost,
                         entry.className + " " + text.key() + ": " + text->toUtf8());
                marked += isMarked(*text);
            }
        }
    }
    QVERIFY(marked > 15);
}

void TestTranslations::whatItSaysLaterCanBeTranslatedToo()
{
    const Installed<Marker> marker;
    WyPasswordEdit edit;
    auto* passwordSwitch = edit.findChild<QPushButton*>(QStringLiteral("edit_psw_switch"));
    passwordSwitch->click();
    QCOMPARE(passwordSwitch->toolTip(), QStringLiteral("<Hide password>"));
    WySimpleToast toast;
    for (const auto style :
         {WySimpleToast::TOASTR_MESSAGE, WySimpleToast::TOASTR_SUCCESS, WySimpleToast::TOASTR_WARNING,
          WySimpleToast::TOASTR_INFO, WySimpleToast::TOASTR_ERROR}) {
        // The picture is the host's and is not there.
        toast.setStyle(style);
        const QString name = toast.findChild<QWidget*>(QStringLiteral("iconLabel"))->accessibleName();
        QVERIFY2(isMarked(name), qPrintable(name));
    }
    WyToast rich;
    for (const auto preset :
         {ToastPreset::SUCCESS, ToastPreset::WARNING, ToastPreset::ERROR, ToastPreset::INFORMATION}) {
        rich.applyPreset(preset);
        const QString name = rich.findChild<QWidget*>(QStringLiteral("toast-icon-widget"))->accessibleName();
        QVERIFY2(isMarked(name), qPrintable(name));
    }
}

void TestTranslations::whatIsOnScreenFollowsTheLanguage()
{
    int followed = 0;
    for (const WyTest::LibraryWidget& entry : WyTest::libraryWidgets()) {
        if (entry.className == "WyCheckBox") // its text is the host's
            continue;
        const QScopedPointer<QWidget> widget(entry.create());
        const QList<QWidget*> parts = partsOf(widget.data());
        QVector<QMap<QByteArray, QString>> english;
        for (const QWidget* part : parts)
            english += textsOf(*part);
        {
            const Installed<Marker> marker;
            letTheLanguageArrive();
            for (int i = 0; i < parts.size(); ++i) {
                const auto texts = textsOf(*parts.at(i));
                QCOMPARE(texts.keys(), english.at(i).keys());
                for (auto text = texts.begin(); text != texts.end(); ++text) {
                    QCOMPARE(*text, QLatin1Char('<') + english.at(i).value(text.key()) + QLatin1Char('>'));
                    ++followed;
                }
            }
        }
        letTheLanguageArrive();
        for (int i = 0; i < parts.size(); ++i)
            QCOMPARE(textsOf(*parts.at(i)), english.at(i));
    }
    QVERIFY(followed > 15);
}

void TestTranslations::statesThatHaveChangedFollowTheLanguageToo()
{
    WyPasswordEdit edit;
    auto* passwordSwitch = edit.findChild<QPushButton*>(QStringLiteral("edit_psw_switch"));
    passwordSwitch->click();
    WySimpleToast toast;
    toast.setStyle(WySimpleToast::TOASTR_SUCCESS);
    toast.setStyle(WySimpleToast::TOASTR_WARNING);
    WyToast rich;
    rich.applyPreset(ToastPreset::SUCCESS);
    rich.applyPreset(ToastPreset::ERROR);

    const Installed<Marker> marker;
    letTheLanguageArrive();
    QCOMPARE(passwordSwitch->toolTip(), QStringLiteral("<Hide password>"));
    QCOMPARE(passwordSwitch->accessibleName(), QStringLiteral("<Show password>"));
    QCOMPARE(toast.findChild<QWidget*>(QStringLiteral("iconLabel"))->accessibleName(),
             QStringLiteral("<Warning>"));
    auto* icon = rich.findChild<QWidget*>(QStringLiteral("toast-icon-widget"));
    QCOMPARE(icon->accessibleName(), QStringLiteral("<Error>"));
    // A picture of the host's has no name.
    rich.setIcon(QPixmap());
    const Installed<German> german;
    letTheLanguageArrive();
    QCOMPARE(icon->accessibleName(), QString());
}

void TestTranslations::theHostsOwnWordsStay()
{
    WyWindowBar bar;
    bar.InitSysButton();
    auto* close = bar.findChild<QPushButton*>(QStringLiteral("close_button"));
    close->setToolTip(QStringLiteral("Leave"));
    auto* minimize = bar.findChild<QPushButton*>(QStringLiteral("min_button"));
    minimize->setAccessibleName(QString());

    const Installed<Marker> marker;
    letTheLanguageArrive();
    QCOMPARE(close->toolTip(), QStringLiteral("Leave"));
    QCOMPARE(close->accessibleName(), QStringLiteral("<Close>"));
    QCOMPARE(minimize->toolTip(), QStringLiteral("<Minimize>"));
    QCOMPARE(minimize->accessibleName(), QString());
}

void TestTranslations::theCountdownFollowsTheLanguageWithItsNextNumber()
{
    WyAnimationButton button;
    button.SetAnimationSecond(QStringLiteral("Send"), 9);
    button.StartAnimation();
    QCOMPARE(button.text(), QStringLiteral("9 s"));
    const Installed<Marker> marker;
    button.SlotTimeOut();
    QCOMPARE(button.text(), QStringLiteral("<9 s>"));
}

void TestTranslations::germanHostsHearGerman()
{
    const Installed<German> german;
    QVERIFY(german.loaded);
    WyWindowBar bar;
    bar.InitSysButton();
    const auto* close = bar.findChild<QPushButton*>(QStringLiteral("close_button"));
    QCOMPARE(close->accessibleName(), QStringLiteral("Schließen"));
    QCOMPARE(close->toolTip(), QStringLiteral("Schließen"));
}

void TestTranslations::germanIsComplete()
{
    const German german;
    QVERIFY(german.loaded);
    const QVector<Message> messages = messagesOf(QStringLiteral(WY_TEMPLATE));
    QVERIFY(messages.size() > 20);
    for (const Message& message : messages) {
        QVERIFY2(!german.translate(message.context, message.source, nullptr, -1).isEmpty(),
                 message.context + ": " + message.source);
    }
}

void TestTranslations::otherLanguagesStayEnglish()
{
    QTranslator translator;
    QVERIFY(!translator.load(QLocale(QLocale::Icelandic), QStringLiteral("WyWidgets"), QStringLiteral("_"),
                             QStringLiteral(WY_TRANSLATIONS)));
    WyWindowBar bar;
    bar.InitSysButton();
    const auto* close = bar.findChild<QPushButton*>(QStringLiteral("close_button"));
    QCOMPARE(close->accessibleName(), QStringLiteral("Close"));
}

QTEST_MAIN(TestTranslations)
#include "tst_translations.moc"
