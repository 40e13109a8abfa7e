#pragma once

#include <QHBoxLayout>
#include <QLabel>
#include <QtTest>

namespace WyTest {

/// A one-line message is as large as its contents: an icon, hidden at first, and the label with the text.
inline void compareMessageRow(const QWidget& message, const QLabel* text)
{
    auto* layout = qobject_cast<QHBoxLayout*>(message.layout());
    QVERIFY(layout);
    QCOMPARE(layout->objectName(), QStringLiteral("main_layout"));
    QCOMPARE(layout->contentsMargins(), QMargins(8, 8, 8, 8));
    QCOMPARE(layout->spacing(), 8);
    QCOMPARE(layout->sizeConstraint(), QLayout::SetFixedSize);
    QCOMPARE(layout->count(), 2);

    auto* icon = qobject_cast<QLabel*>(layout->itemAt(0)->widget());
    QVERIFY(icon);
    QCOMPARE(icon->objectName(), QStringLiteral("label_icon"));
    QCOMPARE(icon->minimumSize(), QSize(16, 16));
    QCOMPARE(icon->maximumSize(), QSize(16, 16));
    QVERIFY(icon->isHidden());

    QVERIFY(text);
    QCOMPARE(layout->itemAt(1)->widget(), text);
}

} // namespace WyTest
