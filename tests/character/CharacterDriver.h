// SPDX-License-Identifier: MIT
#ifndef CHARACTERDRIVER_H
#define CHARACTERDRIVER_H

#include "support/KeypadStage.h"

#include <HMIDevice/CharacterKeypad.h>
#include <HMIDevice/ChnPanel.h>
#include <HMIDevice/ClickLabel.h>
#include <HMIDevice/NumPanel.h>

// Works the character keypad, whose keys change their labels.

typedef KeypadStage<CharacterKeypad> CharacterStage;

ChnPanel *candidatePanel(const CharacterKeypad &keypad);
NumPanel *digitPanel(const CharacterKeypad &keypad);

// The key in a cell of the keypad's grid, or null.
QToolButton *keyAt(const CharacterKeypad &keypad, int row, int column);

// Keys that are known by their place, as their labels change.
QToolButton *modeKey(const CharacterKeypad &keypad);
QToolButton *languageKey(const CharacterKeypad &keypad);
QToolButton *symbolKey(const CharacterKeypad &keypad);
QList<QToolButton *> letterKeys(const CharacterKeypad &keypad); // row by row

// Every key and candidate label whose clicks are content.
QList<QWidget *> clickableWidgets(const CharacterKeypad &keypad);
QString labelOf(const QWidget *clickable);

// The four faces of the keypad, and what shownFace() tells of each.
enum FaceIndex { English, Capitals, Symbols, Chinese };
struct Face
{
    const char *name;
    const char *taps;    // the way to it from a new keypad
    const char *letters; // what the letter keys show
    const char *shown;
};
extern const Face faces[4];

// For data functions of tests that run once for each face: the column "face", an index.
void addFaceRows();

// Mode key, language key, symbol key, first letter key and the panel in use.
QString shownFace(const CharacterKeypad &keypad);

// The key that an operator sees with this label, or null.
QToolButton *shownKey(const CharacterKeypad &keypad, const QString &label);

// Taps a key. One of a keypad that was never shown has no place to be tapped at: it is clicked.
void tapKey(QToolButton *key);

// Taps the keys of labels separated by blanks; a key's label is what it shows then. Asserts that
// there are such keys.
void press(const CharacterKeypad &keypad, const QString &labels);
void press(const CharacterKeypad &keypad, const char *labels);

// Hands the keypad a content as if a key had this label; false when there is no such slot.
bool sendContent(CharacterKeypad &keypad, const QString &content);

QString shownPinyin(const CharacterKeypad &keypad);

// What the five candidate labels show.
QStringList shownCandidates(const ChnPanel *panel);

// The same without empty ones, separated by blanks.
QString candidateLine(const CharacterKeypad &keypad);

void tapCandidate(const CharacterKeypad &keypad, int index);

#endif
