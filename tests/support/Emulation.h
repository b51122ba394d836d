// SPDX-License-Identifier: MIT
#ifndef TEST_EMULATION_H
#define TEST_EMULATION_H

#include <QFile>
#include <QStringList>

// What to run for a program of this build: the program, behind the emulator where it is built for
// another processor than this machine's. CTest names the emulator; on the board itself there is
// none.
inline QStringList commandOf(const QString &program)
{
    const QString emulator = QFile::decodeName(qgetenv("HMI_EMULATOR"));
    return (emulator.isEmpty() ? QStringList() : emulator.split(QLatin1Char(';'))) << program;
}

#endif
