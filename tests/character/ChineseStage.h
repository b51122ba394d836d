// SPDX-License-Identifier: MIT
#ifndef CHINESESTAGE_H
#define CHINESESTAGE_H

#include "CharacterDriver.h"

#include <QApplication>

// A keypad in Chinese mode with a text of "ab" and the cursor between.
class ChineseStage : public CharacterStage
{
public:
    ChineseStage()
    {
        keypad.show();
        tapKey(languageKey(keypad));
        QApplication::processEvents(); // the candidate panel finds its place
        keypad.setText(u("ab"));
        line()->setCursorPosition(1);
    }

    // Taps keys; "1" to "5" stand for the candidates. Asserts that there are such keys.
    void type(const QString &taps)
    {
        const QStringList list = taps.split(QLatin1Char(' '));
        for (const QString &label : list) {
            const int candidate = label.toInt();
            if (candidate > 0)
                tapCandidate(keypad, candidate - 1);
            else
                CHECKED(press(keypad, label));
        }
    }
    void type(const char *taps) { type(u(taps)); }

    // Pinyin, candidates and text in one line: "ni: 你 尼 | ab".
    QString shown()
    {
        return shownPinyin(keypad) + u(": ") + candidateLine(keypad) + u(" | ") + line()->text();
    }
};

#endif
