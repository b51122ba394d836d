// SPDX-License-Identifier: MIT
#ifndef NUMBERSAMPLES_H
#define NUMBERSAMPLES_H

class QWidget;

// Fields as programs have them for numbers and short texts. The caller owns them.
namespace NumberSamples {

typedef QWidget *(*Factory)();

QWidget *speed();
QWidget *offset();
QWidget *address();
QWidget *bits();
QWidget *coolant();
QWidget *runningCoolant();
QWidget *angle();
QWidget *pieces();
QWidget *quietPieces();
QWidget *feed();
QWidget *finePosition();
QWidget *wholeFeed();
QWidget *length();
QWidget *tool();
QWidget *radius();
QWidget *distance();
QWidget *name();
QWidget *password();
QWidget *partNumber();

} // namespace NumberSamples

#endif
