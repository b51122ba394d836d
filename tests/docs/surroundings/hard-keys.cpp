// SPDX-License-Identifier: MIT
#include <HMIDevice/NumericKeypad.h>

class Screen : public QWidget
{
public:
    void snippet();
};

void Screen::snippet()
{
    @SNIPPET@
}
