// SPDX-License-Identifier: MIT
#ifndef FUZZ_DATABASEINPUT_H
#define FUZZ_DATABASEINPUT_H

#include <QByteArray>

// Any bytes as what lies beside a program as its dictionary. hmi-dictionary --check looks at it,
// and an operator works with it.
namespace DatabaseInput {

// The file itself.
void readAsFile(const QByteArray &bytes);

// What stands in a sound file: a line of flags, then a row a line, pinyin and candidate with a tab
// between. A value that is no UTF-8 text is a blob, an empty one NULL.
void readAsRows(const QByteArray &lines);

} // namespace DatabaseInput

#endif
