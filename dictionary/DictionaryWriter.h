// SPDX-License-Identifier: MIT
#ifndef HMI_DICTIONARY_DICTIONARYWRITER_H
#define HMI_DICTIONARY_DICTIONARYWRITER_H

#include "Ranking.h"

// Writes \a rows as the dictionary file \a fileName, or as the file to which that leads where it is
// a symbolic link. The same rows give the same bytes.
//
// The file is built in a folder beside its final place and takes it as a whole: until then, and for
// good when a Failure is thrown, an older file stays as it was and nothing else is left. A folder
// that a killed run has left is named.
void writeDictionary(const QString &fileName, const QVector<RankedRow> &rows);

#endif
