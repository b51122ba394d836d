// SPDX-License-Identifier: MIT
#ifndef PLACEMENTPICTURE_H
#define PLACEMENTPICTURE_H

class QImage;

// Where the G-code keypad lies when the field itself is its target, and below that where it lies
// with a stand-in for the field. Takes look and language as they are set.
QImage placementPicture();

#endif
