// SPDX-License-Identifier: MIT
#ifndef FITTEDDISPLAY_P_H
#define FITTEDDISPLAY_P_H

#include "KeyBoardLineEdit.h"

namespace Keypad {

// An edit line that only shows its text. It looks as any other; only a text that would be cut is
// drawn smaller.
class FittedDisplay : public KeyBoardLineEdit
{
public:
    explicit FittedDisplay(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace Keypad

#endif
