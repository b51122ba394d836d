// SPDX-License-Identifier: MIT
#ifndef CHARACTERKEYS_P_H
#define CHARACTERKEYS_P_H

#include <QString>

// The labels by which the character keypad knows what to do: the mapper hands a key on as its
// label.

namespace CharacterKeys {

const char capsLabel[] = "caps";      // while lower case is shown
const char lowerCaseLabel[] = "CAPS"; // while capitals are shown
const char chineseLabel[] = "CN";
const char englishLabel[] = "EN";
const char symbolsLabel[] = "*#";
const char backLabel[] = "<<"; // from symbols
const char previousPageLabel[] = "<";
const char nextPageLabel[] = ">";
const char delLabel[] = "Del";
const char escLabel[] = "Esc";
const char enterLabel[] = "Enter";
const char spaceLabel[] = "Space";
const char ampersandLabel[] = "&&"; // which a tool button shows as one ampersand

// The lower-case letters of the letter keys, in the order of their cells.
QString letters();

} // namespace CharacterKeys

#endif
