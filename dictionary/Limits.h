// SPDX-License-Identifier: MIT
#ifndef HMI_DICTIONARY_LIMITS_H
#define HMI_DICTIONARY_LIMITS_H

// What the keypad can use of a dictionary, and what is therefore written.
enum Limits {
    // The keypad composes a pinyin of at most 11 letters and ignores further ones.
    LongestKey = 11,

    // The keypad reads a key through a QSqlTableModel, which shows the first 256 rows of a query
    // unless it is asked to fetch more; the keypad never asks.
    MostRowsSeen = 256,

    // Fewer than are seen: 40 pages of five candidates, and nobody turns so many.
    MostRowsOfAKey = 200,

    // The first half of these under "zh", "ch" and "sh", which begin more characters than all rows
    // of a key could hold: words that have these initials follow them.
    MostRowsBeforeInitials = 100,

    // Five candidates stand side by side on the panel; longer ones would not fit.
    LongestCandidate = 16
};

#endif
