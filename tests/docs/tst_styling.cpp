#include "RingLabel.h"
#include "Window.h"

#include "WyWidgets/frame/WyDialog.h"
#include "WyWidgets/frame/WyDialogBar.h"
#include "WyWidgets/frame/WyShadowWidget.h"
#include "WyWidgets/wycontrol/WyBubbleTip.h"
#include "WyWidgets/wycontrol/WyImageButton.h"
#include "WyWidgets/wycontrol/WyTipWidget.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPropertyAnimation>
#include <QRegularExpression>
#include <QtTest>

using namespace WyWidgets;

namespace {

/// All style rules of the guide, in order.
QString rulesOfTheGuide()
{
    QFile page(QStringLiteral(WY_DOCS_DIR "/styling.md"));
    if (!page.open(QIODevice::ReadOnly))
        return QString();
    const QRegularExpression block(QStringLiteral("```css\n(.*?)```"),
                                   QRegularExpression::DotMatchesEverythingOption);
    QString rules;
    auto blocks = block.globalMatch(QString::fromUtf8(page.readAll()));
    while (blocks.hasNext())
        rules += blocks.next().captured(1);
    return rules;
}

QColor textColor(const QWidget* widget)
{
    return widget->palette().color(QPalette::WindowText);
}

} // namespace

/// What the styling guide shows has the effect that it tells. All its rules apply at once.
class TestStyling : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void rulesSelectClassesAndParts();
    void rulesFollowTheActivation();
    void rulesSetProperties();
    void aLaterSetterWins();
    void rulesSetPropertiesOfOwnClasses();
    void aStateOfTheHostIsFollowed();
    void propertiesCanBeAnimated();
};

void TestStyling::initTestCase()
{
    const QString rules = rulesOfTheGuide();
    QVERIFY(rules.contains(QLatin1String("qproperty-shadowColor")));
    qApp->setStyleSheet(rules + QStringLiteral("QLineEdit[problem=\"true\"] { color: #BA2626; }"));
}

void TestStyling::rulesSelectClassesAndParts()
{
    WyTipWidget tip;
    tip.show();
    QCOMPARE(textColor(tip.findChild<QLabel*>(QStringLiteral("label_text"))),
             QColor(QStringLiteral("#56616D")));
}

void TestStyling::rulesFollowTheActivation()
{
    WyDialogBar bar;
    bar.show();
    const auto* title = bar.findChild<QLabel*>(QStringLiteral("dialog_title"));
    bar.SlotWindowActive(true);
    QCOMPARE(textColor(title), QColor(QStringLiteral("#1D2733")));
    bar.SlotWindowActive(false);
    QCOMPARE(textColor(title), QColor(QStringLiteral("#8B949E")));
}

void TestStyling::rulesSetProperties()
{
    WyShadowWidget card;
    card.ensurePolished();
    QCOMPARE(card.shadowColor(), QColor(0, 0, 0, 0x60));
    WyBubbleTip bubble;
    bubble.ensurePolished();
    QCOMPARE(bubble.bubbleColor(), QColor(0x25, 0x2B, 0x33));
    WyDialog dialog;
    dialog.ensurePolished();
    QCOMPARE(dialog.shadowActiveColor(), QColor(0, 0, 0, 0x60));
    QCOMPARE(dialog.shadowDeactiveColor(), QColor(0, 0, 0, 0x30));
    WyImageButton button;
    button.ensurePolished();
    QCOMPARE(button.property("iconNormal").toString(), QStringLiteral(":/download.png"));
    QCOMPARE(button.property("iconDisable").toString(), QStringLiteral(":/download-disabled.png"));
}

void TestStyling::aLaterSetterWins()
{
    WyShadowWidget card;
    card.ensurePolished();
    card.setShadowColor(Qt::red);
    card.show();
    QCOMPARE(card.shadowColor(), QColor(Qt::red));
}

void TestStyling::rulesSetPropertiesOfOwnClasses()
{
    Window window;
    auto* label = static_cast<RingLabel*>(window.stylingOwn());
    window.show();
    QCOMPARE(label->ringColor(), QColor(QStringLiteral("#07BE8B")));
    QCOMPARE(textColor(label), QColor(QStringLiteral("#0B66C3")));
    QCOMPARE(label->grab().toImage().pixelColor(1, 1), label->ringColor());

    RingLabel failed;
    failed.setText(QStringLiteral("Failed"));
    failed.ensurePolished();
    QCOMPARE(failed.ringColor(), QColor(QStringLiteral("#BA2626")));
}

void TestStyling::aStateOfTheHostIsFollowed()
{
    Window window;
    auto* address = static_cast<QLineEdit*>(window.stylingState());
    window.show();
    const QColor wrong(QStringLiteral("#BA2626"));
    address->setText(QStringLiteral("nobody"));
    QCOMPARE(address->palette().color(QPalette::Text), wrong);
    address->setText(QStringLiteral("nobody@example.invalid"));
    QVERIFY(address->palette().color(QPalette::Text) != wrong);
}

void TestStyling::propertiesCanBeAnimated()
{
    Window window;
    auto* card = static_cast<WyShadowWidget*>(window.stylingAnimation());
    window.show();
    auto* glow = card->findChild<QPropertyAnimation*>();
    glow->setCurrentTime(glow->duration());
    QCOMPARE(card->shadowColor(), QColor(11, 102, 195, 200));
}

QTEST_MAIN(TestStyling)
#include "tst_styling.moc"
