#include "WyWidgets/wycontrol/WyIntValidator.h"

#include "support/Contract.h"

#include <QtTest>

#include <limits>
#include <random>

using WyWidgets::WyIntValidator;

Q_DECLARE_METATYPE(QValidator::State)

namespace {

constexpr int kLowest = std::numeric_limits<int>::min();
constexpr int kHighest = std::numeric_limits<int>::max();

QValidator::State validated(const QIntValidator& validator, QString input)
{
    int pos = input.size();
    return validator.validate(input, pos);
}

QString fixed(const QIntValidator& validator, QString input)
{
    validator.fixup(input);
    return input;
}

/// The number that a text of digits with a sign stands for; 0 for anything else and for what no int holds.
qint64 numberOf(const QString& text)
{
    bool isNumber = false;
    const qint64 number = QLocale::c().toLongLong(text.trimmed(), &isNumber);
    const bool hasGroups = text.contains(QLatin1Char(','));
    return isNumber && !hasGroups && number >= kLowest && number <= kHighest ? number : 0;
}

} // namespace

class TestWyIntValidator : public QObject
{
    Q_OBJECT

private slots:
    void registersNothing();
    void isConstructedAsQIntValidatorIs();
    void validates_data();
    void validates();
    void fixes_data();
    void fixes();
    void refusesWhateverIsOutOfRange();
    void leavesInputAndPositionAlone();
    void aRangeThatIsEmptyRefusesEveryNumber();
    void rejectsKeysInAnEdit();
};

void TestWyIntValidator::registersNothing()
{
    WY_COMPARE_CONTRACT(WyIntValidator, {}, {}, {});
    QCOMPARE(WyIntValidator::staticMetaObject.superClass(), &QIntValidator::staticMetaObject);
}

void TestWyIntValidator::isConstructedAsQIntValidatorIs()
{
    QObject parent;
    auto* plain = new WyIntValidator(&parent);
    QCOMPARE(plain->parent(), &parent);
    QCOMPARE(plain->bottom(), QIntValidator().bottom());
    QCOMPARE(plain->top(), QIntValidator().top());
    auto* ranged = new WyIntValidator(-3, 8, &parent);
    QCOMPARE(ranged->parent(), &parent);
    QCOMPARE(ranged->bottom(), -3);
    QCOMPARE(ranged->top(), 8);
}

void TestWyIntValidator::validates_data()
{
    QTest::addColumn<int>("bottom");
    QTest::addColumn<int>("top");
    QTest::addColumn<QString>("input");
    QTest::addColumn<QValidator::State>("state");
    QTest::newRow("empty") << 10 << 100 << QString() << QValidator::Intermediate;
    QTest::newRow("in range") << 10 << 100 << QStringLiteral("50") << QValidator::Acceptable;
    QTest::newRow("bottom") << 10 << 100 << QStringLiteral("10") << QValidator::Acceptable;
    QTest::newRow("top") << 10 << 100 << QStringLiteral("100") << QValidator::Acceptable;
    QTest::newRow("prefix below the bottom") << 10 << 100 << QStringLiteral("5") << QValidator::Invalid;
    QTest::newRow("above the top") << 10 << 100 << QStringLiteral("150") << QValidator::Invalid;
    QTest::newRow("no number, 0 out of range") << 10 << 100 << QStringLiteral("abc") << QValidator::Invalid;
    QTest::newRow("no number, 0 in range") << -10 << 10 << QStringLiteral("abc") << QValidator::Invalid;
    QTest::newRow("sign, 0 in range") << -10 << 10 << QStringLiteral("-") << QValidator::Intermediate;
    QTest::newRow("sign, 0 out of range") << 10 << 100 << QStringLiteral("-") << QValidator::Invalid;
    QTest::newRow("negative in range") << -10 << 10 << QStringLiteral("-7") << QValidator::Acceptable;
    QTest::newRow("negative out of range") << -10 << 10 << QStringLiteral("-11") << QValidator::Invalid;
    QTest::newRow("beyond int counts as 0")
        << -10 << 10 << QStringLiteral("99999999999") << QValidator::Invalid;
    QTest::newRow("base 10 only") << 0 << 100 << QStringLiteral("0x10") << QValidator::Invalid;
    QTest::newRow("no octal") << 9 << 9 << QStringLiteral("011") << QValidator::Invalid;
    QTest::newRow("least int") << kLowest << kHighest << QString::number(kLowest) << QValidator::Acceptable;
    QTest::newRow("greatest int") << kLowest << kHighest << QString::number(kHighest)
                                  << QValidator::Acceptable;
}

void TestWyIntValidator::validates()
{
    QFETCH(int, bottom);
    QFETCH(int, top);
    QFETCH(QString, input);
    QFETCH(QValidator::State, state);
    QCOMPARE(validated(WyIntValidator(bottom, top), input), state);
}

void TestWyIntValidator::fixes_data()
{
    QTest::addColumn<int>("bottom");
    QTest::addColumn<QString>("input");
    QTest::addColumn<QString>("result");
    QTest::newRow("below the bottom") << 10 << QStringLiteral("5") << QStringLiteral("10");
    QTest::newRow("in range") << 10 << QStringLiteral("50") << QStringLiteral("50");
    QTest::newRow("above the top stays") << 10 << QStringLiteral("150") << QStringLiteral("150");
    QTest::newRow("no number counts as 0") << 10 << QStringLiteral("abc") << QStringLiteral("10");
    QTest::newRow("empty counts as 0") << 10 << QString() << QStringLiteral("10");
    QTest::newRow("no number, 0 in range") << -10 << QStringLiteral("-") << QStringLiteral("-");
    QTest::newRow("negative bottom") << -10 << QStringLiteral("-11") << QStringLiteral("-10");
    QTest::newRow("beyond int counts as 0")
        << -10 << QStringLiteral("-99999999999") << QStringLiteral("-99999999999");
}

void TestWyIntValidator::fixes()
{
    QFETCH(int, bottom);
    QFETCH(QString, input);
    QFETCH(QString, result);
    QCOMPARE(fixed(WyIntValidator(bottom, 100), input), result);
}

void TestWyIntValidator::refusesWhateverIsOutOfRange()
{
    std::mt19937 random(7);
    const QString alphabet = QStringLiteral("0123456789-+ a.");
    for (int round = 0; round < 5000; ++round) {
        const int bottom = int(random() % 400) - 200;
        const int top = bottom + int(random() % 300);
        QString input;
        for (unsigned i = random() % 5; i > 0; --i)
            input += alphabet.at(int(random() % unsigned(alphabet.size())));
        const WyIntValidator validator(bottom, top);
        const QIntValidator base(bottom, top);
        const qint64 number = numberOf(input);
        QValidator::State expected = QValidator::Intermediate;
        if (!input.isEmpty())
            expected = number < bottom || number > top ? QValidator::Invalid : validated(base, input);
        QVERIFY2(validated(validator, input) == expected, qPrintable(input));
        const QString result = number < bottom ? QString::number(bottom) : input;
        QVERIFY2(fixed(validator, input) == result, qPrintable(input));
    }
}

void TestWyIntValidator::leavesInputAndPositionAlone()
{
    const WyIntValidator validator(10, 100);
    for (const QString& text :
         {QString(), QStringLiteral("5"), QStringLiteral("50"), QStringLiteral("abc")}) {
        QString input = text;
        int pos = 1;
        validator.validate(input, pos);
        QCOMPARE(input, text);
        QCOMPARE(pos, 1);
    }
}

void TestWyIntValidator::aRangeThatIsEmptyRefusesEveryNumber()
{
    const WyIntValidator validator(10, 5);
    QCOMPARE(validated(validator, QStringLiteral("7")), QValidator::Invalid);
    QCOMPARE(validated(validator, QString()), QValidator::Intermediate);
    QCOMPARE(fixed(validator, QStringLiteral("7")), QStringLiteral("10"));
}

void TestWyIntValidator::rejectsKeysInAnEdit()
{
    QLineEdit edit;
    WyIntValidator validator(10, 100);
    edit.setValidator(&validator);
    QTest::keyClicks(&edit, QStringLiteral("50"));
    QCOMPARE(edit.text(), QString()); // 5 is refused, and so is 0
    edit.setText(QStringLiteral("50"));
    QTest::keyClicks(&edit, QStringLiteral("0"));
    QCOMPARE(edit.text(), QStringLiteral("50"));
    QVERIFY(edit.hasAcceptableInput());
}

QTEST_MAIN(TestWyIntValidator)
#include "tst_wyintvalidator.moc"
