// SPDX-License-Identifier: MIT
#ifndef HMI_DICTIONARY_RANKING_H
#define HMI_DICTIONARY_RANKING_H

#include "WordList.h"

// One row of the dictionary: a candidate under a key.
struct RankedRow
{
    QByteArray key;
    QString candidate;
};

// The rows in the order in which they are to be written, and under how many keys they stand.
struct RankedRows
{
    QVector<RankedRow> rows;
    int keys;
};

// Puts every word under its keys: the whole pinyin, the initials where it has several syllables,
// and where it has only one, each beginning of that, so that every letter typed shows something.
//
// Keys come in alphabetical order. Under a key whole pinyin comes before initials and these before
// beginnings, within each the lists in the order of their ranks, then by falling weight, and equal
// weights in the order of reading. A key has no candidate twice and at most MostRowsOfAKey of them.
//
// Where a key is the beginning of what an operator has still to type, beginnings come first: under
// "zh", "ch" and "sh", which are initials of one syllable before they are those of two words, and
// before interjections without a vowel, such as 嗯 under "n".
RankedRows ranked(const QVector<WordEntry> &entries);

#endif
