#pragma once

#include <QByteArrayList>
#include <QMetaObject>

namespace WyTest {

/// What a class itself (not its bases) registers with the meta-object system, in registration order.
struct Contract
{
    /// "SignalPosChanged(qint64 nValue)": signature with parameter names where they were given.
    QByteArrayList signalNames;
    QByteArrayList slotNames;
    /// "QColor shadowColor"
    QByteArrayList properties;
};

Contract contractOf(const QMetaObject& metaObject);

} // namespace WyTest

/// Fails the running test unless the class registers exactly these signals, slots and properties, in this
/// order. Other invokable methods count as slots.
#define WY_COMPARE_CONTRACT(Class, ...)                                                                      \
    do {                                                                                                     \
        const WyTest::Contract wyExpected = {__VA_ARGS__};                                                   \
        const WyTest::Contract wyActual = WyTest::contractOf(Class::staticMetaObject);                       \
        QCOMPARE(QByteArray(Class::staticMetaObject.className()), QByteArray("WyWidgets::" #Class));         \
        QCOMPARE(wyActual.signalNames, wyExpected.signalNames);                                              \
        QCOMPARE(wyActual.slotNames, wyExpected.slotNames);                                                  \
        QCOMPARE(wyActual.properties, wyExpected.properties);                                                \
    } while (false)
