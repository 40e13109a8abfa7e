#pragma once

#include <QVBoxLayout>
#include <QtTest>

namespace WyTest {

/// A popup holds one empty panel for the host's contents, which fills it.
inline void comparePopupPanel(const QWidget& popup)
{
    auto* layout = qobject_cast<QVBoxLayout*>(popup.layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(layout->count(), 1);
    QWidget* panel = layout->itemAt(0)->widget();
    QCOMPARE(panel->objectName(), QStringLiteral("widget_content"));
    QCOMPARE(QByteArray(panel->metaObject()->className()), QByteArray("QWidget"));
    QCOMPARE(panel->parent(), &popup);
    QVERIFY(panel->children().isEmpty());
    QCOMPARE(layout->stretch(0), 0);
    QCOMPARE(layout->itemAt(0)->alignment(), Qt::Alignment());
}

} // namespace WyTest
