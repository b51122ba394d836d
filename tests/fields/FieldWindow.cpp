// SPDX-License-Identifier: MIT
#include "FieldWindow.h"

#include "Operator.h"
#include "support/KeypadDriver.h"

FieldWindow::FieldWindow(QWidget *fieldToWork, const char *signatures)
    : field(fieldToWork)
    , keypads(this)
    , m_layout(this)
{
    setGeometry(100, 80, 640, 480);
    m_layout.addWidget(field);
    m_layout.addWidget(&otherField);
    otherField.setFocus();
    log.listenToKnown(field, signatures);
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
