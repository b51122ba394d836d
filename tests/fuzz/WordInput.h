// SPDX-License-Identifier: MIT
#ifndef FUZZ_WORDINPUT_H
#define FUZZ_WORDINPUT_H

#include <QByteArray>

// Any bytes as what hmi-dictionary makes dictionaries of.
namespace WordInput {

// Syllables and, behind a tab, a word.
void readAsSyllables(const QByteArray &text);

// Word lists with form feeds between, from which a dictionary is made and looked at as --check
// does. The first letter of a list is its kind: own words, machine-tool words or general ones. A
// capital repeats all lines of the list before.
void readAsLists(const QByteArray &lists);

} // namespace WordInput

#endif
