// SPDX-License-Identifier: MIT
#ifndef MODELS_H
#define MODELS_H

#include <QSize>
#include <QString>
#include <QVector>

const int freeSizeType = 10;
const int handingOnType =
    13; // hands hard keys on to the application, and has one scheme of colours

// A panel model, as HMIDeviceInfo knows it.
struct Model
{
    int type;
    QSize size; // not rotated; empty for the free-size one
    bool hasTouchScreen;
    bool hasHardKeys;
};

// All of them, by their numbers. Leaves HMIDeviceInfo with the last one.
QVector<Model> readModels();

QString inputMeans(const Model &model);

#endif
