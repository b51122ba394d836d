// SPDX-License-Identifier: MIT
#ifndef KINDS_H
#define KINDS_H

#include <QDialog>

#include <memory>
#include <vector>

class QLineEdit;
class QToolButton;

// One of the five keypads.
struct Kind
{
    const char *name;
    std::unique_ptr<QDialog> (*make)();
    const char *key; // inserts its label; "+" of the date and time raises the year by one
    bool hasDictionary;
};

extern const std::vector<Kind> kinds;

const int yearBefore = 2026; // a tap on "+"

// With every key enabled, as once a target is set.
std::unique_ptr<QDialog> makeEnabled(const Kind &kind);

// The key of \a kind on a keypad, or on its bare dialog, and the line that it changes.
QToolButton *keyOf(const QWidget &dialog, const Kind &kind);
QLineEdit *lineOf(const QWidget &dialog);

// Gives the key on a bare dialog the least to do that it can.
void connectBareKey(const QDialog &bare, const Kind &kind);

// Does nothing: what an operation without preparation is prepared with.
void doNothing();

#endif
