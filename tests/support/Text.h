// SPDX-License-Identifier: MIT
#ifndef TEST_TEXT_H
#define TEST_TEXT_H

#include <QString>

// The text of a literal, the source files being UTF-8.
inline QString u(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

#endif
