// SPDX-License-Identifier: MIT
#ifndef CHARACTERDRIVER_H
#define CHARACTERDRIVER_H

#include "support/KeypadStage.h"

#include <HMIDevice/CharacterKeypad.h>
#include <HMIDevice/ChnPanel.h>
#include <HMIDevice/ClickLabel.h>
#include <HMIDevice/KeyBoardLineEdit.h>
#include <HMIDevice/NumPanel.h>

#include <QGridLayout>

// Works the character keypad, whose keys change their labels.

typedef KeypadStage<CharacterKeypad> CharacterStage;

inline ChnPanel *candidatePanel(const CharacterKeypad &keypad)
{
    return keypad.findChild<ChnPanel *>();
}

inline NumPanel *digitPanel(const CharacterKeypad &keypad)
{
    return keypad.findChild<NumPanel *>();
}

/* The key in a cell of the keypad's grid, or null. */
inline QToolButton *keyAt(const CharacterKeypad &keypad, int row, int column)
{
    QGridLayout *grid = qobject_cast<QGridLayout *>(keypad.layout());
    QLayoutItem *item = grid ? grid->itemAtPosition(row, column) : nullptr;
    return item ? qobject_cast<QToolButton *>(item->widget()) : nullptr;
}

inline QToolButton *modeKey(const CharacterKeypad &keypad)
{
    return keyAt(keypad, 5, 0);
}

inline QToolButton *languageKey(const CharacterKeypad &keypad)
{
    return keyAt(keypad, 6, 10);
}

inline QToolButton *symbolKey(const CharacterKeypad &keypad)
{
    return keyAt(keypad, 6, 0);
}

/* The letter-position keys, row by row. */
inline QList<QToolButton *> letterKeys(const CharacterKeypad &keypad)
{
    static const struct
    {
        int row, firstColumn, keys;
    } rows[] = { { 3, 0, 10 }, { 4, 1, 9 }, { 5, 3, 7 } };
    QList<QToolButton *> keys;
    for (int i = 0; i < 3; ++i) {
        for (int n = 0; n < rows[i].keys; ++n)
            keys << keyAt(keypad, rows[i].row, rows[i].firstColumn + 2 * n);
    }
    return keys;
}

/* Whether a part of a keypad can be seen as soon as the keypad itself is shown. */
inline bool isInUse(const QWidget *part)
{
    return part->isVisibleTo(part->window());
}

/*
 * Which face the keypad shows: the key left of the third letter row, the language key, the symbol
 * key, the first letter key and the panel in use. "caps CN *# q digits", for instance.
 */
inline QString face(const CharacterKeypad &keypad)
{
    const bool digits = isInUse(digitPanel(keypad));
    const bool candidates = isInUse(candidatePanel(keypad));
    QStringList words;
    const QString mode = modeKey(keypad)->text();
    words << (mode.isEmpty() ? u("blank") : mode) << languageKey(keypad)->text()
          << symbolKey(keypad)->text() << keyAt(keypad, 3, 0)->text();
    if (digits)
        words << QLatin1String("digits");
    if (candidates)
        words << QLatin1String("candidates");
    return words.join(QLatin1String(" "));
}

/* The key that an operator sees with this label, or null. */
inline QToolButton *shownKey(const CharacterKeypad &keypad, const QString &label)
{
    const QList<QToolButton *> keys = keypad.findChildren<QToolButton *>();
    for (int i = 0; i < keys.size(); ++i) {
        if (keys.at(i)->text() == label && isInUse(keys.at(i)))
            return keys.at(i);
    }
    return nullptr;
}

/*
 * Taps the keys of labels (UTF-8) separated by blanks; a key's label is what it shows then. Keys of
 * a keypad that was never shown have no place to be tapped at: they are clicked.
 */
inline void press(CharacterKeypad &keypad, const char *labels)
{
    const QStringList list = u(labels).split(QLatin1Char(' '));
    for (int i = 0; i < list.size(); ++i) {
        if (list.at(i).isEmpty())
            continue;
        QToolButton *button = shownKey(keypad, list.at(i));
        QVERIFY2(button, qPrintable(QString::fromLatin1("no key \"%1\"").arg(list.at(i))));
        if (button->isVisible())
            QTest::mouseClick(button, Qt::LeftButton);
        else
            button->click();
    }
}

/* Hands the keypad a content as if a key had this label; false when there is no such slot. */
inline bool sendContent(CharacterKeypad &keypad, const QString &content)
{
    return QMetaObject::invokeMethod(&keypad, "sendContent", Qt::DirectConnection,
                                     Q_ARG(QString, content));
}

inline QString shownPinyin(const CharacterKeypad &keypad)
{
    return candidatePanel(keypad)->getPinyinLabel()->text();
}

/* What the five candidate labels show. */
inline QStringList shownCandidates(const ChnPanel *panel)
{
    QStringList texts;
    for (short i = 0; i < 5; ++i)
        texts << const_cast<ChnPanel *>(panel)->getClickLabel(i)->text();
    return texts;
}

/* The same without empty ones, separated by blanks. */
inline QString candidateLine(const CharacterKeypad &keypad)
{
    QStringList texts = shownCandidates(candidatePanel(keypad));
    texts.removeAll(QString());
    return texts.join(QLatin1String(" "));
}

inline void tapCandidate(const CharacterKeypad &keypad, short index)
{
    QTest::mouseClick(candidatePanel(keypad)->getClickLabel(index), Qt::LeftButton);
}

#endif
