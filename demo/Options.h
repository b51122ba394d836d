// SPDX-License-Identifier: MIT
#ifndef OPTIONS_H
#define OPTIONS_H

#include <QSize>
#include <QString>
#include <QStringList>

// What the command line asks for.
struct Options
{
    int type;
    QSize size;            // of the free-size model, in pixels
    int rotation;          // degrees
    QString translation;   // path of a compiled translation of the library; may be empty
    QString pictureFolder; // of the scripted session; empty when an operator is to work the demo
    QString galleryFolder; // of the gallery; empty when none is to be drawn
};

// Ends the program after --help, and with exit status 2 and one line on stderr when an argument is
// wrong.
Options readOptions(const QStringList &arguments);

#endif
