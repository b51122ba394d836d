// SPDX-License-Identifier: MIT
#include "GCodeStandIn.h"

#include <HMIDevice/HMIDeviceInfo.h>

#include <QGraphicsView>
#include <QVariant>

GCodeStandIn::GCodeStandIn(QWidget *field)
    : m_field(field)
{
    const QWidget *viewport = HMIDeviceInfo::graphicsView()->viewport();
    setGeometry(QRect(field->mapTo(viewport, QPoint(0, 0)), field->size()));
}

QString GCodeStandIn::text() const
{
    return m_field->property("text").toString();
}

void GCodeStandIn::setText(const QString &text)
{
    m_field->setProperty("text", text);
}
