// SPDX-License-Identifier: MIT
#ifndef LABELSIZES_P_H
#define LABELSIZES_P_H

#include <QString>
#include <QVector>

class QWidget;

namespace Keypad {

class KeyButton;

// The sizes at which the keys of one keypad draw labels that do not fit. Keys in the same font that
// show one character share one size, and so do those that show a word: sizes that follow the width
// of each label look ragged. A key that has no room for its label at any size is left out.
class LabelSizes
{
public:
    LabelSizes();

    void add(KeyButton *key);
    void remove(KeyButton *key);

    // To be called when \a key has got another place, font or style.
    void forget(const KeyButton *key);

    // The largest size in pixels at which \a key and those like it show their labels whole.
    int sharedSize(const KeyButton *key);

private:
    struct Member
    {
        KeyButton *key;
        QString label; // as it was measured
        bool isShown;
        int wholeSize;
        int sharedSize; // unknown until the key has been measured and is about to be painted
    };

    int placeOf(const KeyButton *key) const;
    bool measure(Member *member);
    void share();

    QVector<Member> m_members;
    bool m_isComplete; // no member has gone since the sizes were shared
};

// Lets all keys that \a keypad has by now share their sizes.
void shareLabelSizes(QWidget *keypad);

} // namespace Keypad

#endif
