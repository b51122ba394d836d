// SPDX-License-Identifier: MIT
#ifndef HMI_DICTIONARY_DICTIONARYCHECK_H
#define HMI_DICTIONARY_DICTIONARYCHECK_H

#include <QStringList>

// What a look at a dictionary has shown.
struct CheckReport
{
    QStringList findings; // what would hurt an operator, a line each; empty when all is well
    qint64 rows = 0;
    int keys = 0;
};

// Reads the dictionary \a fileName as the keypad does: read-only, its table "pinyin" by column
// position. Throws a Failure when that is not possible to the end.
CheckReport checkDictionary(const QString &fileName);

#endif
