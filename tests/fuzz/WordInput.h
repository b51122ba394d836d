// SPDX-License-Identifier: MIT
#ifndef FUZZ_WORDINPUT_H
#define FUZZ_WORDINPUT_H

#include <QByteArray>

// Any bytes as what hmi-dictionary makes dictionaries of.
namespace WordInput {

// Syllables and, behind a tab, a word.
void readAsSyllables(const QByteArray &text);

// A word list, from which a dictionary is made and looked at as --check does.
void readAsList(const QByteArray &list);

} // namespace WordInput

#endif
