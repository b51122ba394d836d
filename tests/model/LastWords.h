// SPDX-License-Identifier: MIT
#ifndef MODEL_LASTWORDS_H
#define MODEL_LASTWORDS_H

#include "Machine.h"

#include <QByteArray>

// What is done to a keypad, for a program that does not survive it: while one of these lives, and
// the program ends by a signal, by a sanitizer or by exit(), it prints the seed, the keypad and the
// actions up to the last one, as a row for the known sequences. One at a time.
class LastWords
{
public:
    // Once in a program; and the seed of what is done from now on.
    static void keepReady();
    static void setSeed(unsigned seed);

    explicit LastWords(KeypadName name);
    ~LastWords();

    void begin(const QByteArray &actions);
    void goOn(int done); // with the action after those that are done

private:
    Q_DISABLE_COPY(LastWords)
};

#endif
