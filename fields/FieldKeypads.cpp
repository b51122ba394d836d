// SPDX-License-Identifier: MIT
#include "FieldKeypads.h"

#include "FieldAccess_p.h"
#include "FieldService_p.h"

#include <QScopedPointer>
#include <QVariant>
#include <QWidget>

FieldKeypads::FieldKeypads(QWidget *window, QObject *parent)
    : QObject(parent)
{
    Fields::FieldService::instance()->add(this, window);
}

FieldKeypads::~FieldKeypads()
{
    Fields::FieldService::instance()->remove(this);
}

void FieldKeypads::setKind(QWidget *field, Kind kind)
{
    if (field)
        Fields::setKindOf(field, kind);
}

void FieldKeypads::resetKind(QWidget *field)
{
    if (field)
        field->setProperty(Fields::kindProperty, QVariant());
}

FieldKeypads::Kind FieldKeypads::kind(QWidget *field) const
{
    if (!field)
        return NoKeypad;
    const QScopedPointer<Fields::FieldAccess> access(Fields::accessTo(field));
    return Fields::kindOf(field, access.data());
}

void FieldKeypads::setLimits(QWidget *field, const QString &text)
{
    if (field)
        field->setProperty(Fields::limitsProperty, text);
}

void FieldKeypads::setReturnPressed(QWidget *field, bool on)
{
    if (field)
        field->setProperty(Fields::returnProperty, on);
}

bool FieldKeypads::edit(QWidget *field)
{
    return field && Fields::FieldService::instance()->edit(this, field);
}
