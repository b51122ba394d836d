// SPDX-License-Identifier: MIT
#include "FieldWindow.h"

#include "Operator.h"
#include "support/KeypadDriver.h"

#include <QMetaMethod>

void SignalLog::hear(QObject *sender, const char *signatures)
{
    const QMetaMethod note = staticMetaObject.method(staticMetaObject.indexOfSlot("note()"));
    const QStringList list = labelList(signatures);
    for (const QString &signature : list) {
        const QMetaObject *type = sender->metaObject();
        const int index = type->indexOfSignal(signature.toLatin1().constData());
        if (index >= 0)
            connect(sender, type->method(index), this, note);
    }
}

void SignalLog::note()
{
    const QMetaMethod method = sender()->metaObject()->method(senderSignalIndex());
    const QString signature = QString::fromLatin1(QtDifferences::methodSignature(method));
    m_heard.append(signature.section(QLatin1Char('('), 0, 0));
}

FieldWindow::FieldWindow(QWidget *fieldToWork, const char *signatures)
    : field(fieldToWork)
    , keypads(this)
    , m_layout(this)
{
    setGeometry(100, 80, 640, 480);
    m_layout.addWidget(field);
    m_layout.addWidget(&otherField);
    otherField.setFocus();
    log.hear(field, signatures);
    Operator::show(this);
}

void typeKeys(const char *names)
{
    const QStringList list = labelList(names);
    for (const QString &name : list)
        CHECKED(Operator::pressHardKey(name.toLatin1().constData()));
}

const QStringList &programLocales()
{
    static const QStringList names = labelList("C de_DE zh_CN");
    return names;
}
