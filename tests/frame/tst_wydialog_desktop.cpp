#include "WyWidgets/frame/WyDialog.h"

#include "WyWidgets/frame/WyDialogBar.h"

#include "support/RealInput.h"
#include "support/WindowDragging.h"

#include <QBoxLayout>
#include <QGraphicsDropShadowEffect>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using WyTest::centreOf;
using WyWidgets::WyDialog;
using WyWidgets::WyDialogBar;
namespace RealInput = WyTest::RealInput;

namespace {

constexpr QRect kOtherRect(100, 100, 300, 200);
constexpr QRect kDialogRect(480, 240, 360, 220);

} // namespace

/// A dialog with a bar beside another window, with a window manager that activates what is clicked.
class TestWyDialogDesktop : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void activationFollowsTheClickedWindow();
    void deletingTheDialogLaterFromItsSignalIsSafe();
    void theBarDragsTheDialog();
    void theCloseButtonIsClicked();
    void theBarKeepsPressesFromUnregisteredChildren();
    void theMaskCoversTheParentOnScreen();

private:
    QPoint onBar() const { return m_bar->mapToGlobal(QPoint(m_bar->width() / 2, 16)); }

    QScopedPointer<QWidget> m_other;
    QPointer<WyDialog> m_dialog;
    WyDialogBar* m_bar = nullptr;
    QPushButton* m_close = nullptr;
};

void TestWyDialogDesktop::init()
{
    QVERIFY(RealInput::isAvailable());
    m_other.reset(new QWidget);
    m_other->setGeometry(kOtherRect);
    m_dialog = new WyDialog(nullptr);
    m_dialog->setShadowActiveColor(Qt::red);
    m_dialog->setShadowDeactiveColor(Qt::blue);
    m_bar = m_dialog->GetTitleBar();
    m_close = new QPushButton(QStringLiteral("x"));
    m_close->setObjectName(QStringLiteral("dialog_close"));
    auto* barLayout = static_cast<QBoxLayout*>(m_bar->layout());
    barLayout->addStretch();
    barLayout->addWidget(m_close);
    auto* layout = new QVBoxLayout(m_dialog->createContent());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_bar);
    layout->addStretch();
    m_dialog->setGeometry(kDialogRect);

    QVERIFY(RealInput::showAndActivate(m_other.data()));
    QVERIFY(RealInput::showAndActivate(m_dialog));
    QTRY_COMPARE(m_dialog->geometry(), kDialogRect);
}

void TestWyDialogDesktop::cleanup()
{
    RealInput::release();
    delete m_dialog;
    m_other.reset();
}

void TestWyDialogDesktop::activationFollowsTheClickedWindow()
{
    QSignalSpy spy(m_dialog, &WyDialog::SignalWindowActive);
    auto* panel = m_dialog->findChild<QWidget*>(QStringLiteral("dialog_content"));
    const auto shadowColor = [&] {
        return static_cast<QGraphicsDropShadowEffect*>(panel->graphicsEffect())->color();
    };
    QCOMPARE(shadowColor(), QColor(Qt::red));

    RealInput::click(centreOf(m_other.data()));
    QTRY_VERIFY(m_other->isActiveWindow());
    QTRY_COMPARE(spy, QList<QVariantList>({{false}}));
    QCOMPARE(shadowColor(), QColor(Qt::blue));
    QCOMPARE(panel->property("active"), QVariant(false));
    QCOMPARE(m_bar->property("active"), QVariant(false));

    RealInput::click(m_dialog->mapToGlobal(QPoint(180, 180)));
    QTRY_VERIFY(m_dialog->isActiveWindow());
    QTRY_COMPARE(spy, QList<QVariantList>({{false}, {true}}));
    QCOMPARE(shadowColor(), QColor(Qt::red));
    QCOMPARE(m_bar->property("active"), QVariant(true));
}

void TestWyDialogDesktop::deletingTheDialogLaterFromItsSignalIsSafe()
{
    connect(m_dialog, &WyDialog::SignalWindowActive, m_dialog, &QObject::deleteLater);
    RealInput::click(centreOf(m_other.data()));
    QTRY_VERIFY(!m_dialog);
    QVERIFY(m_other->isVisible());
}

void TestWyDialogDesktop::theBarDragsTheDialog()
{
    WyTest::dragBy(onBar(), QPoint(80, 50));
    QTRY_COMPARE(m_dialog->geometry(), kDialogRect.translated(80, 50));
}

void TestWyDialogDesktop::theCloseButtonIsClicked()
{
    QSignalSpy clicked(m_close, &QPushButton::clicked);
    RealInput::click(centreOf(m_close));
    QTRY_COMPARE(clicked.size(), 1);
    QCOMPARE(m_dialog->geometry(), kDialogRect);
}

void TestWyDialogDesktop::theBarKeepsPressesFromUnregisteredChildren()
{
    auto* button = new QPushButton(m_bar);
    button->setGeometry(80, 2, 60, 28);
    button->show();
    QSignalSpy clicked(button, &QPushButton::clicked);
    const QPoint middle = centreOf(button);
    WyTest::dragBy(middle, QPoint(-40, 30));
    QTRY_COMPARE(m_dialog->geometry(), kDialogRect.translated(-40, 30));
    QCOMPARE(clicked.size(), 0);
    m_dialog->registHitTestVisible(button, true);
    RealInput::click(centreOf(button));
    QTRY_COMPARE(clicked.size(), 1);
}

void TestWyDialogDesktop::theMaskCoversTheParentOnScreen()
{
    m_dialog->setStyleSheet(QString());
    m_other->setStyleSheet(QStringLiteral("#label_mask_no_margin { background: #00FF00; }"));
    const auto colorOfParent = [&] {
        const QPoint middle = centreOf(m_other.data());
        const QPixmap pixel = m_other->screen()->grabWindow(0, middle.x(), middle.y(), 1, 1);
        return pixel.toImage().pixelColor(0, 0);
    };
    m_dialog->ShowMask(m_other.data(), false);
    QTRY_COMPARE(colorOfParent(), QColor(0, 255, 0));
    m_dialog->SlotHideMask();
    QTRY_VERIFY(colorOfParent() != QColor(0, 255, 0));
}

QTEST_MAIN(TestWyDialogDesktop)
#include "tst_wydialog_desktop.moc"
