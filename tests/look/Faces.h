// SPDX-License-Identifier: MIT
#ifndef FACES_H
#define FACES_H

#include "support/AnyKeypad.h"

// Every face that a keypad has, on every panel.

// The columns "type" and "size": the screens of all panels, as they stand and turned, in the panel
// type with a scheme of colours and in another.
void addPanelRows();

// The same, with the smallest screens on which everything can be read.
void addScreenRows();

// A keypad of the current kind, shown over all of a panel: that of the current row, or the given
// one.
class FaceStage : public AnyStage
{
public:
    FaceStage();
    FaceStage(DeviceType type, const QSize &size);

    // Shows the next face of the keypad; false after the last one.
    bool showNextFace();

    // Shows \a text on the line for limits, or as pinyin and candidates, where the keypad has
    // these.
    void fillLabels(const QString &text);

    // What can be seen of the keypad: keys that have a label, and labels that have a text.
    QList<QToolButton *> shownKeys();
    QList<QLabel *> shownLabels();

private:
    int m_face;
};

#endif
