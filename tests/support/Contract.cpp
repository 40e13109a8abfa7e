#include "support/Contract.h"

#include <QMetaMethod>
#include <QMetaProperty>

namespace WyTest {

namespace {

QByteArray signatureOf(const QMetaMethod& method)
{
    const QList<QByteArray> types = method.parameterTypes();
    const QList<QByteArray> names = method.parameterNames();
    QByteArrayList parameters;
    for (int i = 0; i < types.size(); ++i)
        parameters += names.at(i).isEmpty() ? types.at(i) : types.at(i) + ' ' + names.at(i);
    return method.name() + '(' + parameters.join(", ") + ')';
}

} // namespace

Contract contractOf(const QMetaObject& metaObject)
{
    Contract contract;
    for (int i = metaObject.methodOffset(); i < metaObject.methodCount(); ++i) {
        const QMetaMethod method = metaObject.method(i);
        (method.methodType() == QMetaMethod::Signal ? contract.signalNames : contract.slotNames) +=
            signatureOf(method);
    }
    for (int i = metaObject.propertyOffset(); i < metaObject.propertyCount(); ++i) {
        const QMetaProperty property = metaObject.property(i);
        contract.properties += QByteArray(property.typeName()) + ' ' + property.name();
    }
    return contract;
}

} // namespace WyTest
