// SPDX-License-Identifier: MIT
#ifndef SIMULATORPICTURE_H
#define SIMULATORPICTURE_H

class QImage;

// The simulator's window with a panel of that type, on which a value has been entered. Null when it
// does not get there.
QImage simulatorPicture(int type);

#endif
