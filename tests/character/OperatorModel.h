// SPDX-License-Identifier: MIT
#ifndef OPERATORMODEL_H
#define OPERATORMODEL_H

#include "CharacterDriver.h"
#include "support/EditLineModel.h"

#include <QMap>

// What there is to tap on a character keypad: each kind once, or so many of it.
enum TapKind {
    LetterKey, // 26
    DigitKey,  // 10
    Candidate, // 5
    PagingKey, // 2
    ModeKey,
    DelKey,
    SymbolKey,
    CommaKey,
    SpaceKey,
    PeriodKey,
    LanguageKey,
    EscKey,
    EnterKey
};

struct Tap
{
    TapKind kind;
    int index; // among its kind
};

// What an operator has to see of a character keypad after each tap, worked out apart from any
// keypad. It has the dictionary of everydayWords().
class OperatorModel
{
public:
    OperatorModel();

    void tap(const Tap &tap);

    // Everything in one line, to be compared and read.
    QString seen() const;

    EditLineModel line;
    FaceIndex face;
    QString pinyin;
    QStringList candidates;
    QMap<QString, QStringList> words;

private:
    void tapLetter(int index);
    void tapCandidate(int index);
    void tapModeKey();
    void tapSymbolKey();
    void tapLanguageKey();
    void tapDel();
    void compose(const QString &newPinyin);
    void turnPage(int step);
    void forget();
    void type(const QString &text);

    bool m_cameFromChinese;
    QStringList m_shown;
    int m_page, m_pages;
    QString m_written;
    int m_accepted, m_rejected;
};

// The same of a keypad whose target holds \a written.
QString seen(const CharacterKeypad &keypad, const QString &written, int accepted, int rejected);

#endif
