// SPDX-License-Identifier: MIT
#ifndef SIGHT_H
#define SIGHT_H

#include <QString>

class MachineScreen;
struct Step;

// What the operator looks at.
namespace Sight {

// Whether step only looks.
bool isLook(const Step &step);

// What is not as step expects it to be; empty when everything is.
QString look(const Step &step, const MachineScreen *screen);

} // namespace Sight

#endif
