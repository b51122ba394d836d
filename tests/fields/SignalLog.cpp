// SPDX-License-Identifier: MIT
#include "SignalLog.h"

#include "support/QtDifferences.h"
#include "support/Text.h"

#include <QDateTime>
#include <QMetaMethod>
#include <QVariant>
#include <QtTest>

namespace {

// Without the time zone, which is not the same for a date edit of every Qt.
QString textOf(const QVariant &value)
{
    return value.userType() == QMetaType::QDateTime
        ? value.toDateTime().toString(u("yyyy-MM-dd hh:mm:ss"))
        : value.toString();
}

} // namespace

void SignalLog::listen(QObject *object, const char *signatures)
{
    const QList<QByteArray> list = QByteArray(signatures).split(' ');
    for (const QByteArray &signature : list) {
        const int index = object->metaObject()->indexOfSignal(signature);
        QVERIFY2(index >= 0, signature.constData());
        listenTo(object, index);
    }
}

void SignalLog::listenToKnown(QObject *object, const char *signatures)
{
    const QList<QByteArray> list = QByteArray(signatures).split(' ');
    for (const QByteArray &signature : list) {
        const int index = object->metaObject()->indexOfSignal(signature);
        if (index >= 0)
            listenTo(object, index);
    }
}

void SignalLog::listenTo(QObject *object, int signalIndex)
{
    const QMetaMethod signal = object->metaObject()->method(signalIndex);
    Source source = { signal.name(), QList<int>() };
    for (int i = 0; i < signal.parameterCount(); ++i)
        source.types << signal.parameterType(i);
    const int slot = QObject::staticMetaObject.methodCount() + int(m_sources.size());
    m_sources << source;
    QMetaObject::connect(object, signalIndex, this, slot, Qt::DirectConnection);
}

int SignalLog::qt_metacall(QMetaObject::Call call, int id, void **arguments)
{
    const int source = QObject::qt_metacall(call, id, arguments);
    if (call != QMetaObject::InvokeMetaMethod || source < 0)
        return source;
    QStringList values;
    const QList<int> types = m_sources.at(source).types;
    for (int i = 0; i < int(types.size()); ++i)
        values << textOf(QtDifferences::variantOf(types.at(i), arguments[i + 1]));
    m_names << QString::fromLatin1(m_sources.at(source).name);
    m_heard << u("%1(%2)").arg(m_names.last(), values.join(u(",")));
    return -1;
}
