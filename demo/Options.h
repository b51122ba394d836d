// SPDX-License-Identifier: MIT
#ifndef OPTIONS_H
#define OPTIONS_H

#include "PanelSetup.h"

#include <QString>
#include <QStringList>

// What the command line asks for.
struct Options
{
    PanelSetup panel;
    bool screenAlone;      // without the simulator around it
    QString pictureFolder; // of the scripted session; empty when an operator is to work the demo
    QString galleryFolder; // of the gallery; empty when none is to be drawn
};

// Ends the program after --help, and with exit status 2 and one line on stderr when an argument is
// wrong.
Options readOptions(const QStringList &arguments);

#endif
