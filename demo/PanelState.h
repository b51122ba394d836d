// SPDX-License-Identifier: MIT
#ifndef PANELSTATE_H
#define PANELSTATE_H

#include <QMap>
#include <QString>

class MachineScreen;

// What a panel shows that is not so from the start: enough for another one to go on from there.
struct PanelState
{
    QString page; // Latin name; empty for the first one
    QString message;
    QMap<QString, QString> texts; // by the fields' names
};

inline bool operator==(const PanelState &one, const PanelState &other)
{
    return one.page == other.page && one.message == other.message && one.texts == other.texts;
}

PanelState readState(const MachineScreen &screen);

// Leaves alone what state does not name.
void restoreState(MachineScreen *screen, const PanelState &state);

#endif
