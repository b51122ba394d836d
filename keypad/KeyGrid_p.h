// SPDX-License-Identifier: MIT
#ifndef KEYGRID_P_H
#define KEYGRID_P_H

class QDialog;
class QGridLayout;
class QObject;
class QString;
class QToolButton;

// A keypad's face as a table: one row a key, in the order in which the keys are created. A key is
// known by its row, never by its label, which an application may change.

namespace Keypad {

enum KeyAction : unsigned char {
    InsertLabel,
    InsertSpace,
    ToggleSign,
    MoveLeft,
    MoveRight,
    Backspace,
    Cancel,
    Confirm,
    SwitchCase, // the last three show another key set, in a keypad that has several
    SwitchLanguage,
    SwitchSymbols
};

// A label of up to twelve bytes, UTF-8 or a codec literal. It holds them itself: a table of
// pointers would be written by the loader in every process.
class KeyLabel
{
public:
    template <int size>
    constexpr KeyLabel(const char (&text)[size])
        : m_bytes { byte(text, 0),  byte(text, 1),  byte(text, 2), byte(text, 3), byte(text, 4),
                    byte(text, 5),  byte(text, 6),  byte(text, 7), byte(text, 8), byte(text, 9),
                    byte(text, 10), byte(text, 11), '\0' }
    {
        static_assert(size <= sizeof(m_bytes), "a short label");
    }

    constexpr operator const char *() const { return m_bytes; }

private:
    template <int size>
    static constexpr char byte(const char (&text)[size], int place)
    {
        return place < size ? text[place] : '\0';
    }

    char m_bytes[13];
};

struct KeyCell
{
    KeyLabel label;
    signed char row, column; // cell in the grid, from 0
    signed char columnSpan;  // at least 1
    KeyAction action;
};

// Names \a key by what it does, or else by \a label, the one that it has at first: its object name,
// the same in every keypad, and an accessible name where its label is but a sign.
void nameKey(QToolButton *key, KeyAction action, const QString &label);

// A keypad's cells and, in the same order, its keys.
struct KeyTable
{
    template <int count>
    KeyTable(const KeyCell (&cells)[count], QToolButton *(&keys)[count])
        : cells(cells)
        , keys(keys)
        , keyCount(count)
    {
    }

    const KeyCell *cells;
    QToolButton **keys;
    int keyCount;
};

// Makes the keys of \a table, owned by \a keypad, in \a grid.
void addKeys(QDialog *keypad, QGridLayout *grid, const KeyTable &table);

// The position of \a key in \a table, or -1.
int placeOf(const QObject *key, const KeyTable &table);

} // namespace Keypad

#endif
