// SPDX-License-Identifier: MIT
#include "Console.h"
#include "DatabaseInput.h"
#include "WordInput.h"

#include <cstdint>

// What others put before hmi-dictionary and the character keypad: word lists, and whatever lies
// beside a program as its dictionary. The first byte of an input tells what the rest is.

// hmi-dictionary says nothing here.
void Console::print(const QString &)
{
}
void Console::complain(const QString &)
{
}
void Console::showProgress(const QString &, qint64, qint64)
{
}
void Console::clearProgress()
{
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    const QByteArray content = bytes.mid(1);
    switch (bytes.isEmpty() ? 0 : bytes.at(0)) {
    case 's':
        WordInput::readAsSyllables(content);
        break;
    case 'l':
        WordInput::readAsLists('g' + content);
        break;
    case 'm':
        WordInput::readAsLists(content);
        break;
    case 'r':
        DatabaseInput::readAsRows(content);
        break;
    case 'f':
        DatabaseInput::readAsFile(content);
        break;
    default:
        break;
    }
    return 0;
}
