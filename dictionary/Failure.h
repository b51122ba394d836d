// SPDX-License-Identifier: MIT
#ifndef HMI_DICTIONARY_FAILURE_H
#define HMI_DICTIONARY_FAILURE_H

#include <QString>

// Thrown when the work cannot be done. The message names the file, and the line where there is one.
// Whoever holds something temporary removes it while this passes through.
struct Failure
{
    QString message;
};

#endif
