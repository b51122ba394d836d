// SPDX-License-Identifier: MIT
#ifndef HMI_DICTIONARY_OPTIONS_H
#define HMI_DICTIONARY_OPTIONS_H

#include <QStringList>

// What the command line asks for.
struct Options
{
    enum Task { MakeDictionary, CheckDictionary, ShowText, RefuseUsage };

    Task task;
    QString text; // to be shown, or why the usage is refused
    QString checkedFile;
    QString output;
    QString machineToolWords; // empty for none
    QStringList ownWords;
    QStringList generalWords;
};

Options readOptions(const QStringList &arguments);

#endif
