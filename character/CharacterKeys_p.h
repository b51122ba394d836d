// SPDX-License-Identifier: MIT
#ifndef CHARACTERKEYS_P_H
#define CHARACTERKEYS_P_H

#include <QString>

// The labels by which the character keypad knows what to do: the mapper hands a key on as its
// label.

namespace CharacterKeys {

constexpr char capsLabel[] = "caps";      // while lower case is shown
constexpr char lowerCaseLabel[] = "CAPS"; // while capitals are shown
constexpr char chineseLabel[] = "CN";
constexpr char englishLabel[] = "EN";
constexpr char symbolsLabel[] = "*#";
constexpr char backLabel[] = "<<"; // from symbols
constexpr char previousPageLabel[] = "<";
constexpr char nextPageLabel[] = ">";
constexpr char delLabel[] = "Del";
constexpr char escLabel[] = "Esc";
constexpr char enterLabel[] = "Enter";
constexpr char spaceLabel[] = "Space";
constexpr char ampersandLabel[] = "&&"; // which a tool button shows as one ampersand

// The lower-case letters of the letter keys, in the order of their cells.
QString letters();

} // namespace CharacterKeys

#endif
