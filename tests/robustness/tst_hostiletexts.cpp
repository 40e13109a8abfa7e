// Every text setter of every class with texts that break code which takes text for granted.

#include "robustness/Subject.h"
#include "support/HostileTexts.h"

namespace {

/// Paths that are no paths are told by Qt, or end up in style sheets that are none; a window for a very long
/// text has more pixels than can be painted.
const QRegularExpression announced("^(Could not parse (application )?stylesheet|Could not create pixmap|"
                                   "QPainter::|QWidget::paintEngine|This plugin does not support|"
                                   "Broken filename passed)");

QStringList unexpectedWarnings;

void noteWarning(QtMsgType, const QMessageLogContext&, const QString& message)
{
    if (!announced.match(message).hasMatch())
        unexpectedWarnings += message;
}

} // namespace

class TestHostileTexts : public QObject
{
    Q_OBJECT

private slots:
    void everyTextSetterTakesThem_data();
    void everyTextSetterTakesThem();
};

void TestHostileTexts::everyTextSetterTakesThem_data()
{
    QTest::addColumn<int>("classIndex");
    QTest::addColumn<QString>("text");
    const auto& classes = Monkey::catalogue();
    for (std::size_t c = 0; c < classes.size(); ++c) {
        const auto& operations = classes[c].operations;
        if (std::none_of(operations.begin(), operations.end(), [](const auto& o) { return o.takesText; }))
            continue;
        for (const WyTest::HostileText& hostile : WyTest::hostileTexts())
            QTest::addRow("%s, %s", classes[c].name, hostile.name) << int(c) << hostile.text;
    }
}

void TestHostileTexts::everyTextSetterTakesThem()
{
    QFETCH(int, classIndex);
    QFETCH(QString, text);
    const Monkey::ClassEntry& entry = Monkey::catalogue()[classIndex];
    Monkey::Random random(classIndex);
    random.beOrdinary();
    random.fixText(text);
    const int windowsBefore = WyTest::strayWindows();
    unexpectedWarnings.clear();
    const QtMessageHandler former = qInstallMessageHandler(noteWarning);
    for (const bool visible : {false, true}) {
        WyTest::Subject subject(entry, random);
        subject.object->setVisible(visible);
        for (const Monkey::Operation& operation : entry.operations) {
            if (operation.takesText && subject.object)
                operation.call(subject.object, random);
        }
        if (subject.object)
            subject.object->sizeHint();
        subject.paint();
        WyTest::Subject::deliver();
    }
    qInstallMessageHandler(former);
    QVERIFY2(unexpectedWarnings.isEmpty(), qPrintable(unexpectedWarnings.join(QLatin1Char(10))));
    QCOMPARE(WyTest::strayWindows(), windowsBefore);
}

QTEST_MAIN(TestHostileTexts)
#include "tst_hostiletexts.moc"
