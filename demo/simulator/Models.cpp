// SPDX-License-Identifier: MIT
#include "Models.h"

#include <HMIDevice/HMIDeviceInfo.h>

namespace {

const int lastType = 21;

} // namespace

QVector<Model> readModels()
{
    QVector<Model> models;
    for (int type = 1; type <= lastType; ++type) {
        HMIDeviceInfo::setDeviceInfo(type, QSize());
        models.append({ type, type == freeSizeType ? QSize() : HMIDeviceInfo::screenSize(),
                        HMIDeviceInfo::isTouchScreen(), HMIDeviceInfo::hasKeyboard() });
    }
    return models;
}

QString inputMeans(const Model &model)
{
    if (model.hasTouchScreen)
        return QLatin1String(model.hasHardKeys ? "touch and keys" : "touch");
    return QLatin1String(model.hasHardKeys ? "hard keys" : "not known");
}
