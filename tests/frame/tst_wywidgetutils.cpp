#include "WyWidgets/frame/WyWidgetUtils.h"

#include "support/Events.h"
#include "support/RecordingStyle.h"

#include <QLabel>
#include <QRandomGenerator>
#include <QToolTip>
#include <QtTest>

#include <cmath>
#include <type_traits>

using WyTest::RecordingStyle;
using WyWidgets::WyWidgetUtils;

namespace {

/// The application's style while it lives.
class ApplicationStyle
{
public:
    ApplicationStyle() : m_style(new RecordingStyle) { QApplication::setStyle(m_style); }
    ~ApplicationStyle() { QApplication::setStyle(QStringLiteral("fusion")); }

    RecordingStyle* operator->() const { return m_style; }

private:
    RecordingStyle* m_style; // the application deletes it
};

/// Deletes itself when a dynamic property is set.
class EndsWithItsProperty : public QWidget
{
protected:
    bool event(QEvent* event) override
    {
        if (event->type() != QEvent::DynamicPropertyChange)
            return QWidget::event(event);
        delete this;
        return true;
    }
};

} // namespace

class TestWyWidgetUtils : public QObject
{
    Q_OBJECT

private slots:
    void isNeverMade();
    void aPointOnNoScreenIsNotFound();
    void shortcutsStayAPlaceholder();
    void scaledRectsAreTruncatedTowardZero_data();
    void scaledRectsAreTruncatedTowardZero();
    void scaledRectsFollowTheModel();
    void scaledRectsStopAtTheIntegerLimits();
    void scaledRealRectsStayReal();
    void refreshStyleSetsThePropertyThenUnpolishesThenPolishes();
    void refreshStyleUsesTheApplicationsStyle();
    void refreshStyleAsksForAPaintButDoesNotPaint();
    void refreshStyleLetsASheetSelectOnTheProperty();
    void refreshStyleOfNullDoesNothing();
    void refreshStyleOfANamelessPropertyDoesNothing();
    void refreshStyleSurvivesAWidgetThatEndsWithItsProperty();
    void handleLabelsHaveTheirSizeAndName();
    void updateStyleSetsBothBorderImages();
    void updateStyleKeepsPlaceholdersInPaths();
    void updateStyleOfNullDoesNothing();
    void aNarrowTooltipStaysAsItIs();
    void aWideTooltipBreaksAtSpaces();
    void aWideWordLosesOneLetterAtEachBreak();
    void aTooltipWithoutRoomKeepsEverySecondLetter_data();
    void aTooltipWithoutRoomKeepsEverySecondLetter();
};

void TestWyWidgetUtils::isNeverMade()
{
    QVERIFY(!std::is_default_constructible_v<WyWidgetUtils>);
}

void TestWyWidgetUtils::aPointOnNoScreenIsNotFound()
{
    bool found = true;
    WyWidgetUtils::MapToGlobal(QPoint(-100000, -100000), found);
    QVERIFY(!found);
    WyWidgetUtils::MapToGlobal(QPoint(1, 1), found);
    QVERIFY(found);
}

void TestWyWidgetUtils::shortcutsStayAPlaceholder()
{
    QVERIFY(WyWidgetUtils::RegisterShortcuts(0, 0, QString()));
    QVERIFY(WyWidgetUtils::RegisterShortcuts(~quint64(0), -1, QStringLiteral("Ctrl+A")));
}

void TestWyWidgetUtils::scaledRectsAreTruncatedTowardZero_data()
{
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<double>("scale");
    QTest::addColumn<QRect>("scaled");
    QTest::newRow("identity") << QRect(3, -4, 5, 6) << 1.0 << QRect(3, -4, 5, 6);
    QTest::newRow("down to zero") << QRect(3, 3, 3, 3) << 0.3 << QRect(0, 0, 0, 0);
    QTest::newRow("never to the nearest") << QRect(1, 1, 3, 5) << 1.9 << QRect(1, 1, 5, 9);
    QTest::newRow("negative corner up") << QRect(-1, -3, 3, 5) << 1.5 << QRect(-1, -4, 4, 7);
    QTest::newRow("negative scale") << QRect(3, 5, 7, 9) << -0.5 << QRect(-1, -2, -3, -4);
    QTest::newRow("null rectangle") << QRect() << 2.0 << QRect(0, 0, 0, 0);
    QTest::newRow("zero scale") << QRect(3, 5, 7, 9) << 0.0 << QRect(0, 0, 0, 0);
}

void TestWyWidgetUtils::scaledRectsAreTruncatedTowardZero()
{
    QFETCH(QRect, rect);
    QFETCH(double, scale);
    QFETCH(QRect, scaled);
    QCOMPARE(WyWidgetUtils::ScaledRect(rect, scale), scaled);
}

void TestWyWidgetUtils::scaledRectsFollowTheModel()
{
    QRandomGenerator random(20240504);
    const auto between = [&random](int lowest, int highest) {
        return lowest + int(random.bounded(highest - lowest + 1));
    };
    for (int run = 0; run < 5000; ++run) {
        const QRect rect(between(-4000, 4000), between(-4000, 4000), between(-100, 4000),
                         between(-100, 4000));
        const double scale = between(-100, 4000) / 1000.0;
        const int left = int(std::trunc(rect.x() * scale));
        const int top = int(std::trunc(rect.y() * scale));
        const int width = int(std::trunc(rect.width() * scale));
        const int height = int(std::trunc(rect.height() * scale));
        const QRect scaled = WyWidgetUtils::ScaledRect(rect, scale);
        QCOMPARE(scaled.left(), left);
        QCOMPARE(scaled.top(), top);
        QCOMPARE(scaled.right(), left + width - 1);
        QCOMPARE(scaled.bottom(), top + height - 1);
        const QRectF real(rect.x() + 0.25, rect.y() - 0.75, rect.width() + 0.5, rect.height());
        const QRectF scaledReal = WyWidgetUtils::ScaledRectF(real, scale);
        QCOMPARE(scaledReal.x(), real.x() * scale);
        QCOMPARE(scaledReal.y(), real.y() * scale);
        QCOMPARE(scaledReal.width(), real.width() * scale);
        QCOMPARE(scaledReal.height(), real.height() * scale);
    }
}

void TestWyWidgetUtils::scaledRectsStopAtTheIntegerLimits()
{
    constexpr int lowest = std::numeric_limits<int>::min();
    constexpr int highest = std::numeric_limits<int>::max();
    const QRect large = WyWidgetUtils::ScaledRect(QRect(100, -100, 100, 100), 1e12);
    QCOMPARE(large.topLeft(), QPoint(highest, lowest));
    QCOMPARE(large.right(), highest);
    QCOMPARE(WyWidgetUtils::ScaledRect(QRect(1, 1, 5, 5), qInf()).topLeft(), QPoint(highest, highest));
    QCOMPARE(WyWidgetUtils::ScaledRect(QRect(1, 1, 5, 5), qQNaN()), QRect(0, 0, 0, 0));
}

void TestWyWidgetUtils::scaledRealRectsStayReal()
{
    QCOMPARE(WyWidgetUtils::ScaledRectF(QRectF(1, -3, 3, 5), 1.5), QRectF(1.5, -4.5, 4.5, 7.5));
}

void TestWyWidgetUtils::refreshStyleSetsThePropertyThenUnpolishesThenPolishes()
{
    ApplicationStyle style;
    QLabel label;
    label.setObjectName(QStringLiteral("name"));
    label.ensurePolished();
    label.setProperty("active", 1);
    style->calls.clear();
    WyWidgetUtils::RefreshStyle(&label, "active", 2);
    QCOMPARE(label.property("active"), QVariant(2));
    QCOMPARE(style->calls, QStringList({QStringLiteral("unpolish QLabel name active=2"),
                                        QStringLiteral("polish QLabel name active=2")}));
}

void TestWyWidgetUtils::refreshStyleUsesTheApplicationsStyle()
{
    ApplicationStyle style;
    RecordingStyle own;
    QLabel label;
    label.setStyle(&own);
    label.ensurePolished();
    own.calls.clear();
    style->calls.clear();
    WyWidgetUtils::RefreshStyle(&label, "active", true);
    QCOMPARE(style->calls.size(), 2);
    QCOMPARE(own.calls, QStringList());
}

void TestWyWidgetUtils::refreshStyleAsksForAPaintButDoesNotPaint()
{
    QLabel label;
    label.show();
    QVERIFY(QTest::qWaitForWindowExposed(&label));
    QCoreApplication::processEvents();
    WyTest::EventCounter paints(&label, QEvent::Paint);
    WyWidgetUtils::RefreshStyle(&label, "active", true);
    QCOMPARE(paints.count(), 0);
    QTRY_VERIFY(paints.count() > 0);
}

void TestWyWidgetUtils::refreshStyleLetsASheetSelectOnTheProperty()
{
    const auto restore = qScopeGuard([] { qApp->setStyleSheet(QString()); });
    qApp->setStyleSheet(
        QStringLiteral("QLabel { color: #112233; } QLabel[active=\"true\"] { color: #445566; }"));
    QLabel label;
    label.ensurePolished();
    QCOMPARE(label.palette().color(QPalette::WindowText), QColor("#112233"));
    WyWidgetUtils::RefreshStyle(&label, "active", true);
    QCOMPARE(label.palette().color(QPalette::WindowText), QColor("#445566"));
    WyWidgetUtils::RefreshStyle(&label, "active", false);
    QCOMPARE(label.palette().color(QPalette::WindowText), QColor("#112233"));
}

void TestWyWidgetUtils::refreshStyleOfNullDoesNothing()
{
    ApplicationStyle style;
    WyWidgetUtils::RefreshStyle(nullptr, "active", true);
    WyWidgetUtils::RefreshStyle(nullptr, nullptr, QVariant());
    QCOMPARE(style->calls, QStringList());
}

void TestWyWidgetUtils::refreshStyleOfANamelessPropertyDoesNothing()
{
    ApplicationStyle style;
    QLabel label;
    label.ensurePolished();
    style->calls.clear();
    WyWidgetUtils::RefreshStyle(&label, nullptr, true);
    QCOMPARE(style->calls, QStringList());
}

void TestWyWidgetUtils::refreshStyleSurvivesAWidgetThatEndsWithItsProperty()
{
    QPointer<QWidget> widget = new EndsWithItsProperty;
    WyWidgetUtils::RefreshStyle(widget, "active", true);
    QVERIFY(!widget);
}

void TestWyWidgetUtils::handleLabelsHaveTheirSizeAndName()
{
    const struct
    {
        QLabel* (*create)(QWidget*);
        QSize size;
    } handles[] = {
        {WyWidgets::CreatePoint, QSize(5, 5)},
        {WyWidgets::CreateVPoint, QSize(4, 21)},
        {WyWidgets::CreateHPoint, QSize(24, 4)},
    };
    for (const auto& [create, size] : handles) {
        QWidget parent;
        const QLabel* handle = create(&parent);
        QCOMPARE(handle->parentWidget(), &parent);
        QCOMPARE(handle->objectName(), QStringLiteral("label_point"));
        QCOMPARE(handle->minimumSize(), size);
        QCOMPARE(handle->maximumSize(), size);
        const QScopedPointer<QLabel> orphan(create(nullptr));
        QVERIFY(!orphan->parentWidget());
    }
}

void TestWyWidgetUtils::updateStyleSetsBothBorderImages()
{
    QLabel label;
    WyWidgets::updateStyle(&label, QStringLiteral(":/on.png"), QStringLiteral(":/off.png"));
    QCOMPARE(label.styleSheet(), QStringLiteral("QLabel{border-image: url(:/on.png);}"
                                                "QLabel:disabled{border-image: url(:/off.png);}"));
}

void TestWyWidgetUtils::updateStyleKeepsPlaceholdersInPaths()
{
    QLabel label;
    // A percent sign makes no valid url: what counts here is that the paths do not get mixed up.
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Could not parse stylesheet")));
    WyWidgets::updateStyle(&label, QStringLiteral("a%2.png"), QStringLiteral("b%1.png"));
    QCOMPARE(label.styleSheet(), QStringLiteral("QLabel{border-image: url(a%2.png);}"
                                                "QLabel:disabled{border-image: url(b%1.png);}"));
}

void TestWyWidgetUtils::updateStyleOfNullDoesNothing()
{
    WyWidgets::updateStyle(nullptr, QStringLiteral("a"), QStringLiteral("b"));
}

void TestWyWidgetUtils::aNarrowTooltipStaysAsItIs()
{
    const QString text = QStringLiteral("one two three");
    const int width = QFontMetrics(QToolTip::font()).horizontalAdvance(text);
    QCOMPARE(WyWidgetUtils::ToolTipWrap(text, width), text);
    QVERIFY(WyWidgetUtils::ToolTipWrap(text, width - 1) != text);
    QCOMPARE(WyWidgetUtils::ToolTipWrap(QString(), width), QString());
}

void TestWyWidgetUtils::aWideTooltipBreaksAtSpaces()
{
    const int width = QFontMetrics(QToolTip::font()).horizontalAdvance(QStringLiteral("one two th"));
    QCOMPARE(WyWidgetUtils::ToolTipWrap(QStringLiteral("one two three four five"), width),
             QStringLiteral("one two\nthree four\nfive"));
}

void TestWyWidgetUtils::aWideWordLosesOneLetterAtEachBreak()
{
    const int width = QFontMetrics(QToolTip::font()).horizontalAdvance(QStringLiteral("mmmmm"));
    // Six letters are too wide, which shows when four are taken and two more measured: cut at 5, drop one.
    QCOMPARE(WyWidgetUtils::ToolTipWrap(QString(14, QLatin1Char('m')), width),
             QStringLiteral("mmmmm\nmmmmm\nmm"));
}

void TestWyWidgetUtils::aTooltipWithoutRoomKeepsEverySecondLetter_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("zero") << 0;
    QTest::newRow("negative") << -5;
    QTest::newRow("lowest") << std::numeric_limits<int>::min();
}

void TestWyWidgetUtils::aTooltipWithoutRoomKeepsEverySecondLetter()
{
    QFETCH(int, width);
    QCOMPARE(WyWidgetUtils::ToolTipWrap(QStringLiteral("abcdefg"), width), QStringLiteral("a\nc\ne\ng"));
}

QTEST_MAIN(TestWyWidgetUtils)
#include "tst_wywidgetutils.moc"
