#include "WyWidgets/wycontrol/WyClearEdit.h"

#include "support/Contract.h"

#include <QtTest>

using WyWidgets::WyClearEdit;

namespace {

constexpr QSize kSizePx(200, 30);
const QString kLongText = QStringLiteral("more text than fits into the edit, so that it scrolls to its end");

QList<QPushButton*> clearButtons(const QWidget& edit)
{
    return edit.findChildren<QPushButton*>(QStringLiteral("edit_button_clear"), Qt::FindDirectChildrenOnly);
}

QPushButton* clearButton(const QWidget& edit)
{
    return clearButtons(edit).value(0);
}

int cursorX(QLineEdit& edit)
{
    edit.grab(); // painting scrolls
    return edit.inputMethodQuery(Qt::ImCursorRectangle).toRect().center().x();
}

} // namespace

class TestWyClearEdit : public QObject
{
    Q_OBJECT

private slots:
    void registersNothing();
    void isAnEditOfItsParent();
    void hasOneHiddenButton();
    void laysTheButtonOutAtTheRightEnd();
    void theButtonStandsVerticallyCentred();
    void theButtonShowsWithText_data();
    void theButtonShowsWithText();
    void blankTextHidesTheButtonAgain();
    void clickingClears();
    void clearingCanBeUndone();
    void theButtonTakesNoFocus();
    void textKeepsClearOfTheButton();
    void textKeepsClearOfTheButtonRightToLeft();
    void theFreeRoomFollowsTheDirection();
    void theHostsMarginsStay();
    void theHostMayTakeTheFreeRoomBack();
    void theButtonTellsWhatItDoes();
    void wordsOfTheHostsStay();
    void buildingTwiceAddsNothing();
    void connectingTwiceConnectsOnce();
    void survivesItsButton();
    void survivesItsLayout();
    void leavesAForeignLayoutAlone();
    void keepsItsPlaceInARowOfTheHost();
    void mayBeDeletedByTheButton();
};

void TestWyClearEdit::registersNothing()
{
    WY_COMPARE_CONTRACT(WyClearEdit, {}, {}, {});
    QCOMPARE(WyClearEdit::staticMetaObject.superClass(), &QLineEdit::staticMetaObject);
}

void TestWyClearEdit::isAnEditOfItsParent()
{
    QWidget parent;
    auto* edit = new WyClearEdit(&parent);
    QCOMPARE(edit->parentWidget(), &parent);
    QVERIFY(edit->text().isEmpty());
}

void TestWyClearEdit::hasOneHiddenButton()
{
    const WyClearEdit edit;
    QCOMPARE(clearButtons(edit).size(), 1);
    const QPushButton* button = clearButton(edit);
    QVERIFY(button->isHidden());
    QCOMPARE(button->minimumSize(), QSize(20, 20));
    QCOMPARE(button->maximumSize(), QSize(20, 20));
    QCOMPARE(button->focusPolicy(), Qt::NoFocus);
    QVERIFY(button->testAttribute(Qt::WA_LayoutUsesWidgetRect));
    QCOMPARE(button->cursor().shape(), Qt::PointingHandCursor);
    QVERIFY(!button->isCheckable());
}

void TestWyClearEdit::laysTheButtonOutAtTheRightEnd()
{
    const WyClearEdit edit;
    auto* layout = qobject_cast<QHBoxLayout*>(edit.layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 6, 0));
    QCOMPARE(layout->count(), 2);
    QVERIFY(layout->itemAt(0)->spacerItem());
    QCOMPARE(layout->itemAt(1)->widget(), clearButton(edit));
}

void TestWyClearEdit::theButtonStandsVerticallyCentred()
{
    WyClearEdit edit;
    edit.resize(200, 40);
    edit.setText(QStringLiteral("a"));
    edit.show();
    QCOMPARE(clearButton(edit)->geometry(), QRect(200 - 6 - 20, 10, 20, 20));
}

void TestWyClearEdit::theButtonShowsWithText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("shows");
    QTest::newRow("letter") << QStringLiteral("a") << true;
    QTest::newRow("spaces") << QStringLiteral("   ") << false;
    QTest::newRow("other white space") << QStringLiteral("\t\u00A0\u3000") << false;
    QTest::newRow("spaces around a letter") << QStringLiteral("  a ") << true;
    QTest::newRow("zero") << QStringLiteral("0") << true;
    QTest::newRow("empty") << QString() << false;
}

void TestWyClearEdit::theButtonShowsWithText()
{
    QFETCH(QString, text);
    QFETCH(bool, shows);
    WyClearEdit edit;
    edit.show();
    edit.setText(text);
    QCOMPARE(clearButton(edit)->isVisible(), shows);
    WyClearEdit typed;
    typed.show();
    typed.insert(text); // as the user's typing does
    QCOMPARE(clearButton(typed)->isVisible(), shows);
}

void TestWyClearEdit::blankTextHidesTheButtonAgain()
{
    WyClearEdit edit;
    edit.show();
    edit.setText(QStringLiteral("a"));
    QVERIFY(clearButton(edit)->isVisible());
    edit.setText(QStringLiteral(" "));
    QVERIFY(!clearButton(edit)->isVisible());
}

void TestWyClearEdit::clickingClears()
{
    WyClearEdit edit;
    edit.show();
    QTest::keyClicks(&edit, QStringLiteral("text"));
    QSignalSpy textChanged(&edit, &QLineEdit::textChanged);
    QTest::mouseClick(clearButton(edit), Qt::LeftButton);
    QCOMPARE(edit.text(), QString());
    QCOMPARE(textChanged.count(), 1);
    QVERIFY(!clearButton(edit)->isVisible());
}

void TestWyClearEdit::clearingCanBeUndone()
{
    WyClearEdit edit;
    edit.show();
    QTest::keyClicks(&edit, QStringLiteral("text"));
    clearButton(edit)->click();
    QVERIFY(edit.isUndoAvailable());
    edit.undo();
    QCOMPARE(edit.text(), QStringLiteral("text"));
    QVERIFY(clearButton(edit)->isVisible());
}

void TestWyClearEdit::theButtonTakesNoFocus()
{
    WyClearEdit edit;
    edit.show();
    edit.setText(QStringLiteral("text"));
    edit.activateWindow();
    edit.setFocus();
    QTRY_VERIFY(edit.hasFocus());
    QTest::mouseClick(clearButton(edit), Qt::LeftButton);
    QVERIFY(edit.hasFocus());
}

void TestWyClearEdit::textKeepsClearOfTheButton()
{
    WyClearEdit edit;
    edit.resize(kSizePx);
    edit.show();
    edit.setText(kLongText);
    const int end = cursorX(edit);
    QVERIFY(end > 100);
    QVERIFY(end <= clearButton(edit)->x());
    QCOMPARE(edit.textMargins(), QMargins(0, 0, 20 + 6, 0));
}

void TestWyClearEdit::textKeepsClearOfTheButtonRightToLeft()
{
    WyClearEdit edit;
    edit.setLayoutDirection(Qt::RightToLeft);
    edit.resize(kSizePx);
    edit.show();
    edit.setText(QStringLiteral("שלום ").repeated(20));
    const QRect button = clearButton(edit)->geometry();
    QCOMPARE(button.x(), 0);
    QVERIFY(cursorX(edit) < 100);
    QVERIFY(cursorX(edit) > button.right());
    QCOMPARE(edit.textMargins(), QMargins(20, 0, 0, 0));
}

void TestWyClearEdit::theFreeRoomFollowsTheDirection()
{
    QWidget parent;
    parent.setLayoutDirection(Qt::RightToLeft);
    WyClearEdit edit(&parent);
    QCOMPARE(edit.textMargins(), QMargins(20, 0, 0, 0));
    parent.setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(edit.textMargins(), QMargins(0, 0, 26, 0));
    edit.setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(edit.textMargins(), QMargins(20, 0, 0, 0));
}

void TestWyClearEdit::theHostsMarginsStay()
{
    WyClearEdit edit;
    edit.setTextMargins(edit.textMargins() + QMargins(1, 2, 3, 4));
    edit.setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(edit.textMargins(), QMargins(21, 2, 3, 4));
    edit.setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(edit.textMargins(), QMargins(1, 2, 29, 4));
}

void TestWyClearEdit::theHostMayTakeTheFreeRoomBack()
{
    WyClearEdit edit;
    edit.setTextMargins(1, 2, 3, 4);
    edit.setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(edit.textMargins(), QMargins(21, 2, 0, 4));
    edit.setTextMargins(1, 2, 3, 4);
    edit.setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(edit.textMargins(), QMargins(0, 2, 29, 4));
}

void TestWyClearEdit::theButtonTellsWhatItDoes()
{
    const WyClearEdit edit;
    QCOMPARE(clearButton(edit)->accessibleName(), QStringLiteral("Clear"));
    QCOMPARE(clearButton(edit)->toolTip(), QStringLiteral("Clear"));
}

void TestWyClearEdit::wordsOfTheHostsStay()
{
    WyClearEdit edit;
    clearButton(edit)->setAccessibleName(QStringLiteral("Clear the search"));
    clearButton(edit)->setToolTip(QStringLiteral("Forget what was searched"));
    edit.InitView();
    QCOMPARE(clearButton(edit)->accessibleName(), QStringLiteral("Clear the search"));
    QCOMPARE(clearButton(edit)->toolTip(), QStringLiteral("Forget what was searched"));
}

void TestWyClearEdit::buildingTwiceAddsNothing()
{
    WyClearEdit edit;
    edit.show();
    edit.setText(QStringLiteral("text"));
    const QObjectList children = edit.children();
    edit.InitView();
    QCOMPARE(edit.children(), children);
    QCOMPARE(edit.layout()->count(), 2);
    QCOMPARE(edit.textMargins(), QMargins(0, 0, 26, 0));
    QVERIFY(clearButton(edit)->isVisible());
}

void TestWyClearEdit::connectingTwiceConnectsOnce()
{
    struct Edit : WyClearEdit
    {
        using QObject::receivers;
    } edit;
    struct Button : QPushButton
    {
        using QObject::receivers;
    };
    const auto clickReceivers = [&edit] {
        return (clearButton(edit)->*&Button::receivers)(SIGNAL(clicked(bool)));
    };
    const int textReceivers = edit.receivers(SIGNAL(textChanged(QString)));
    QCOMPARE(clickReceivers(), 1);
    edit.InitConnect();
    edit.InitConnect();
    QCOMPARE(edit.receivers(SIGNAL(textChanged(QString))), textReceivers);
    QCOMPARE(clickReceivers(), 1);
}

void TestWyClearEdit::survivesItsButton()
{
    WyClearEdit edit;
    edit.show();
    delete clearButton(edit);
    edit.setText(QStringLiteral("text"));
    edit.InitConnect();
    edit.InitView();
    edit.InitConnect();
    QCOMPARE(clearButtons(edit).size(), 1);
    QTRY_VERIFY(clearButton(edit)->isVisible());
    clearButton(edit)->click();
    QCOMPARE(edit.text(), QString());
    QCOMPARE(edit.textMargins(), QMargins(0, 0, 26, 0));
}

void TestWyClearEdit::survivesItsLayout()
{
    WyClearEdit edit;
    edit.show();
    delete edit.layout();
    edit.setText(QStringLiteral("text"));
    QVERIFY(clearButton(edit)->isVisible());
    edit.InitView();
    QCOMPARE(clearButtons(edit).size(), 1);
    QCOMPARE(edit.layout()->itemAt(1)->widget(), clearButton(edit));
}

void TestWyClearEdit::leavesAForeignLayoutAlone()
{
    WyClearEdit edit;
    delete clearButton(edit);
    delete edit.layout();
    auto* grid = new QGridLayout(&edit);
    edit.InitView();
    edit.InitConnect();
    QCOMPARE(edit.layout(), grid);
    QCOMPARE(grid->count(), 0);
    edit.setText(QStringLiteral("text"));
    QVERIFY(clearButtons(edit).isEmpty());
}

void TestWyClearEdit::keepsItsPlaceInARowOfTheHost()
{
    WyClearEdit edit;
    delete edit.layout();
    auto* row = new QHBoxLayout(&edit);
    edit.InitView();
    row->addWidget(new QLabel);
    edit.InitView();
    QCOMPARE(row->indexOf(clearButton(edit)), 0);
    QCOMPARE(row->count(), 2);
}

void TestWyClearEdit::mayBeDeletedByTheButton()
{
    auto* edit = new WyClearEdit;
    const QPointer<WyClearEdit> guard(edit);
    edit->show();
    edit->setText(QStringLiteral("text"));
    connect(clearButton(*edit), &QPushButton::clicked, [edit] { delete edit; });
    QTest::mouseClick(clearButton(*edit), Qt::LeftButton);
    QVERIFY(!guard);
}

QTEST_MAIN(TestWyClearEdit)
#include "tst_wyclearedit.moc"
