// SPDX-License-Identifier: MIT
#ifndef DICTIONARYSESSION_H
#define DICTIONARYSESSION_H

#include "CharacterDriver.h"
#include "support/MessageLog.h"

#include <QPointer>
#include <QScopedPointer>
#include <QSqlTableModel>

// Works one new keypad as an operator does, over the registered view or, where there is none,
// unseen. Notes what an operator would complain about: a missing key, a wrong text, a message on
// the console, and keys that wait for more of the dictionary than they must.
class DictionarySession
{
public:
    DictionarySession();
    ~DictionarySession();

    CharacterKeypad &keypad() { return *m_keypad; }

    // Taps keys of labels separated by blanks.
    void type(const QString &labels);
    void type(const char *labels) { type(u(labels)); }

    // Composes, pages, chooses, edits and switches in Chinese mode, which it does not leave.
    void workInChinese();

    // Leaves for English, types a word and confirms it.
    void workInEnglish();

    // Closes the keypad and tells the first complaint; there was none when it is empty.
    QString complaint();

    // Works in both languages and closes the keypad. Asserts that there was no complaint.
    void finish();

private:
    void note(const QString &complaint);
    void noteReadings(const QString &label);

    MessageLog m_log;
    QLineEdit m_target;
    QScopedPointer<CharacterKeypad> m_keypad;
    QPointer<QSqlTableModel> m_model;
    QScopedPointer<QSignalSpy> m_readings;
    QString m_complaint;
};

#endif
