// SPDX-License-Identifier: MIT
#include "LabelMapping_p.h"

#include <QSignalMapper>

void mapKey(QSignalMapper *mapper, QObject *key, const QString &label)
{
    QObject::disconnect(key, SIGNAL(destroyed()), mapper, nullptr);
    mapper->setMapping(key, label);
}
