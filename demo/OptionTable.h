// SPDX-License-Identifier: MIT
#ifndef OPTIONTABLE_H
#define OPTIONTABLE_H

#include <QMap>
#include <QString>
#include <QStringList>

// Reads arguments by the table in options.txt, as scripts/demo does before there is a program.
// Returns the values by the options' names, that of a flag empty, with those that stand for what is
// not given. Ends the program after --help, and with a complaint when an argument is wrong.
QMap<QString, QString> readArguments(const QStringList &arguments);

// Ends the program with exit status 2 and one line on stderr.
[[noreturn]] void complain(const QString &complaint);

#endif
