// SPDX-License-Identifier: MIT
#ifndef SCRIPT_H
#define SCRIPT_H

#include <QVector>

enum class Action {
    OpenPage,  // the soft key named by subject
    TapField,  // the field named by subject
    TapPart,   // the date-time keypad's spin box number subject, from 0
    TapKeys,   // the keypad's keys with the labels in subject, separated by blanks
    PressKeys, // the hard keys named in subject, separated by blanks
    SeeEntry,  // the keypad's edit line shows subject
    SeeMask,   // the keypad's edit line does not show the subject that it holds
    SeeKeys,   // the keypad shows keys or candidates with the labels in subject
    MissKeys,  // the keypad shows no keys or candidates with the labels in subject
    SeeDimmed, // the keypad's keys with the labels in subject cannot be tapped
    SeeCover,  // the keypad lies exactly over the field named by subject
    SeeField,  // no keypad is open, and the field named by subject holds value
    SeeMessage // the screen's message contains subject
};

// One thing that the operator does or looks at. Texts are UTF-8.
struct Step
{
    Action action;
    const char *subject;
    const char *value;
    const char *picture; // what has happened, for the picture's name; null leaves no picture
};

// The operator's steps for the panel model that is set; Chinese only withDictionary.
QVector<Step> sessionSteps(bool withDictionary);

#endif
