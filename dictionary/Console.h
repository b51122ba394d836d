// SPDX-License-Identifier: MIT
#ifndef HMI_DICTIONARY_CONSOLE_H
#define HMI_DICTIONARY_CONSOLE_H

#include <QString>

// What the program says: results on the standard output, all else on the standard error.
namespace Console {

void print(const QString &line);
void complain(const QString &line);

// Shows on a terminal how much of the work called \a what is done; silent elsewhere.
void showProgress(const QString &what, qint64 done, qint64 total);
void clearProgress();

} // namespace Console

#endif
