// SPDX-License-Identifier: MIT
#ifndef CASES_H
#define CASES_H

class Bench;

// What is compared. A bench runs what a case is made of, and measures a part of that.
namespace Cases {

// A new keypad of every kind, and all five, beside bare dialogs; for the character keypad also
// beside a bare opening and selecting of its dictionary.
void construct(Bench &bench);

// Showing until all is painted: a keypad that was never shown, and one that was.
void show(Bench &bench);

// A tap on a key, from the window's event until all is painted again.
void tap(Bench &bench);

// What a key does, without any painting.
void press(Bench &bench);

// A pinyin letter beside the query on a prepared statement.
void compose(Bench &bench);

const int fewRows = 10000;
const int manyRows = 2000000;

// A pinyin letter with many rows in the dictionary beside one with few.
void composeAmongMany(Bench &bench);

} // namespace Cases

#endif
