// SPDX-License-Identifier: MIT
#include "KeypadWatch.h"

#include "TouchField.h"

#include <QDialog>
#include <QKeySequence>
#include <QMetaProperty>
#include <QVariant>

namespace {

const char textProperty[] = "text";

const struct
{
    const char *signal, *slot;
} connections[] = { { SIGNAL(accepted()), SLOT(tellAccepted()) },
                    { SIGNAL(rejected()), SLOT(tellRejected()) },
                    { SIGNAL(finished(int)), SLOT(tellFinished(int)) },
                    { SIGNAL(signal_kTypeKeyPressed(int)), SLOT(tellHardKey(int)) } };

// Without the digit that SIGNAL() puts in front.
bool hasSignal(const QObject *object, const char *signal)
{
    return object->metaObject()->indexOfSignal(signal + 1) >= 0;
}

QString findReason(const QObject &target)
{
    const QMetaObject *type = target.metaObject();
    const int index = type->indexOfProperty(textProperty);
    if (index < 0)
        return QLatin1String("it has no \"text\" property");
    if (!type->property(index).isWritable())
        return QLatin1String("its \"text\" property is read-only");
    return QString::fromLatin1("it holds \"%1\"").arg(target.property(textProperty).toString());
}

} // namespace

void KeypadWatch::watch(const QDialog *keypad)
{
    for (const auto &entry : connections) {
        if (hasSignal(keypad, entry.signal))
            connect(keypad, entry.signal, this, entry.slot, Qt::UniqueConnection);
    }
}

void KeypadWatch::tellResult(const QDialog *keypad, int result)
{
    tell(keypad,
         QString::fromLatin1("exec() = %1")
             .arg(QLatin1String(result == QDialog::Accepted ? "Accepted" : "Rejected")));
}

bool KeypadWatch::tellWritten(const TouchField &field, const QObject &target, const QString &text)
{
    if (target.property(textProperty).toString() == text) {
        tellText(field);
        return true;
    }
    Q_EMIT told(QString::fromLatin1("warning: %1 did not take \"%2\": %3")
                    .arg(field.objectName(), text, findReason(target)));
    return false;
}

void KeypadWatch::tellText(const TouchField &field)
{
    Q_EMIT told(QString::fromLatin1("%1 = %2").arg(field.objectName(), field.displayText()));
}

void KeypadWatch::tellAccepted()
{
    tell(sender(), QLatin1String("accepted()"));
}

void KeypadWatch::tellRejected()
{
    tell(sender(), QLatin1String("rejected()"));
}

void KeypadWatch::tellFinished(int result)
{
    tell(sender(), QString::fromLatin1("finished(%1)").arg(result));
}

void KeypadWatch::tellHardKey(int key)
{
    tell(sender(),
         QString::fromLatin1("signal_kTypeKeyPressed(%1)").arg(QKeySequence(key).toString()));
}

void KeypadWatch::tell(const QObject *keypad, const QString &what)
{
    Q_EMIT told(
        QString::fromLatin1("%1: %2").arg(QLatin1String(keypad->metaObject()->className()), what));
}
