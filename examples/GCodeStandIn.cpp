// SPDX-License-Identifier: MIT
#include "GCodeStandIn.h"

#include <HMIDevice/HMIDeviceInfo.h>

#include <QGraphicsView>
#include <QVariant>

namespace {

QRect placeOf(const QWidget *field)
{
    QWidget *viewport = HMIDeviceInfo::graphicsView()->viewport();
    return QRect(field->mapTo(viewport, QPoint(0, 0)), field->size());
}

} // namespace

GCodeStandIn::GCodeStandIn(QWidget *field)
    : m_field(field)
{
    setGeometry(placeOf(field));
}

GCodeStandIn::GCodeStandIn(QWidget *field, const QRect &place)
    : m_field(field)
{
    setGeometry(place);
}

QString GCodeStandIn::text() const
{
    return m_field->property("text").toString();
}

void GCodeStandIn::setText(const QString &text)
{
    m_field->setProperty("text", text);
}
