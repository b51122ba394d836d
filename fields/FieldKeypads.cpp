// SPDX-License-Identifier: MIT
#include "FieldKeypads.h"

#include <QVariant>
#include <QWidget>

FieldKeypads::FieldKeypads(QWidget *window, QObject *parent)
    : QObject(parent)
    , m_window(window)
{
}

FieldKeypads::~FieldKeypads() = default;

void FieldKeypads::setKind(QWidget *field, Kind kind)
{
    field->setProperty("keypad", int(kind));
}

FieldKeypads::Kind FieldKeypads::kind(QWidget *field) const
{
    return Kind(field->property("keypad").toInt());
}

bool FieldKeypads::edit(QWidget *)
{
    return false;
}
