// Every operation of every class on an object whose insides the host has taken away.

#include "robustness/Subject.h"

namespace {

/// Some operations run into what they miss only with certain arguments.
constexpr int kCallsEach = 4;

void deleteChildren(QWidget* widget)
{
    const auto children = widget->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QPointer<QWidget> child : children) {
        // What Qt's own classes put into themselves is Qt's.
        if (child && !child->objectName().startsWith(QLatin1String("qt_")))
            delete child;
    }
}

void deleteGrandchildren(QWidget* widget)
{
    for (const QPointer<QWidget> child :
         widget->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (child)
            deleteChildren(child);
    }
}

void deleteLayout(QWidget* widget)
{
    if (!qobject_cast<QMainWindow*>(widget))
        delete widget->layout();
}

void replaceLayout(QWidget* widget)
{
    deleteLayout(widget);
    if (!widget->layout())
        new QGridLayout(widget);
}

void moveOut(QWidget* widget)
{
    QWidget* parent = widget->parentWidget();
    widget->setParent(nullptr);
    delete parent;
}

void deleteTimers(QWidget* widget)
{
    qDeleteAll(widget->findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly));
}

void hideAll(QWidget* widget)
{
    for (QWidget* child : widget->findChildren<QWidget*>())
        child->hide();
}

struct Damage
{
    const char* name;
    void (*inflict)(QWidget*);
};

constexpr Damage damages[] = {
    {"no children", deleteChildren},
    {"no grandchildren", deleteGrandchildren},
    {"no layout", deleteLayout},
    {"another layout", replaceLayout},
    {"no effect",
     [](QWidget* widget) {
         widget->setGraphicsEffect(nullptr);
     }},
    {"another effect",
     [](QWidget* widget) {
         widget->setGraphicsEffect(new QGraphicsOpacityEffect);
     }},
    {"no timers", deleteTimers},
    {"no parent", moveOut},
    {"hidden children", hideAll},
    {"nothing at all",
     [](QWidget* widget) {
         deleteLayout(widget);
         deleteChildren(widget);
         widget->setGraphicsEffect(nullptr);
         moveOut(widget);
     }},
};

} // namespace

class TestHalfDead : public QObject
{
    Q_OBJECT

private slots:
    void operationsDoTheirBest_data();
    void operationsDoTheirBest();
};

void TestHalfDead::operationsDoTheirBest_data()
{
    QTest::addColumn<int>("classIndex");
    QTest::addColumn<int>("damageIndex");
    const auto& classes = Monkey::catalogue();
    for (std::size_t c = 0; c < classes.size(); ++c) {
        for (std::size_t d = 0; d < std::size(damages); ++d)
            QTest::addRow("%s, %s", classes[c].name, damages[d].name) << int(c) << int(d);
    }
}

void TestHalfDead::operationsDoTheirBest()
{
    QFETCH(int, classIndex);
    QFETCH(int, damageIndex);
    const Monkey::ClassEntry& entry = Monkey::catalogue()[classIndex];
    Monkey::Random random(classIndex);
    random.beOrdinary();
    const int windowsBefore = WyTest::strayWindows();
    for (const Monkey::Operation& operation : entry.operations) {
        WyTest::Subject subject(entry, random);
        if (random.oneIn(2))
            subject.object->show();
        damages[damageIndex].inflict(subject.object);
        for (int call = 0; call < kCallsEach && subject.object; ++call)
            operation.call(subject.object, random);
        if (subject.object)
            subject.object->setVisible(!subject.object->isVisible());
        subject.paint();
        WyTest::Subject::deliver();
    }
    QCOMPARE(WyTest::strayWindows(), windowsBefore);
    QCOMPARE(WyWidgets::WyToast::getCount(), 0);
}

QTEST_MAIN(TestHalfDead)
#include "tst_halfdead.moc"
