// SPDX-License-Identifier: MIT
#ifndef HMI_DICTIONARY_LIMITS_H
#define HMI_DICTIONARY_LIMITS_H

enum Limits {
    LongestKey = 11,      // letters; the keypad takes no more
    MostRowsOfAKey = 200, // written for one key
    MostRowsSeen = 256,   // of one key; the keypad does not fetch beyond them
    LongestCandidate = 16 // characters; more do not fit on the candidate row
};

#endif
