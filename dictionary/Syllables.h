// SPDX-License-Identifier: MIT
#ifndef HMI_DICTIONARY_SYLLABLES_H
#define HMI_DICTIONARY_SYLLABLES_H

#include <QList>
#include <QString>
#include <QStringList>

typedef QList<QByteArray> Syllables;

// The syllables of standard Chinese, in the order of the shipped list.
QStringList standardSyllables();

// Reads "zhu zhou" as its syllables, in the letters that are typed for them: lower case, ü as v.
// "lue" and "nue", which many lists write for lüe and nüe, become "lve" and "nve".
// Returns an empty list when \a text holds anything else than letters.
Syllables readSyllables(const QString &text);

// Whether \a syllables can be those of \a word: a Chinese character has one. Of other characters
// any number is possible: the X of X轴 may be spelled, read out or not be typed at all.
bool fit(const Syllables &syllables, const QString &word);

// The syllables as one key; a second one when people also type u for ü in it (lve, lue).
QList<QByteArray> wholePinyin(const Syllables &syllables);

// The first letter of every syllable.
QByteArray initials(const Syllables &syllables);

#endif
