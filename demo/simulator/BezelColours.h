// SPDX-License-Identifier: MIT
#ifndef BEZELCOLOURS_H
#define BEZELCOLOURS_H

#include <QRgb>

// What the bezel is painted with.
namespace BezelColours {

struct Key
{
    QRgb top, bottom, edge, label;
};

const Key plain = { 0xff4a535c, 0xff343b42, 0xff20262b, 0xfff0f3f5 };
const Key marked = { 0xff8a6a1e, 0xff6b4f10, 0xff2b2108, 0xfffff3d2 };

const QRgb shadow = 0xff14181b;
const QRgb light = 0xff6a747d; // the upper edge of the housing
const QRgb housingTop = 0xff3c444b;
const QRgb housingBottom = 0xff2a3036;
const QRgb housingEdge = 0xff15191c;
const QRgb lettering = 0xffaeb8c0;
const QRgb legend = 0xffd9b65a;

} // namespace BezelColours

#endif
