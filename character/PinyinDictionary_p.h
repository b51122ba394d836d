// SPDX-License-Identifier: MIT
#ifndef PINYINDICTIONARY_P_H
#define PINYINDICTIONARY_P_H

#include <QStringList>

class QObject;
class QSqlTableModel;

// The dictionary file beside the application. It comes from outside and may be anything: whatever
// is wrong with it, there are no candidates and nobody is told.

namespace PinyinDictionary {

// Opens the file; the model is a child of \a parent, or null when there is nothing to open.
QSqlTableModel *open(QObject *parent);

// Deletes \a model, which may be null, and removes its database connection.
void close(QSqlTableModel *model);

// What \a model, which may be null, has for \a pinyin (lower-case letters only), best first.
QStringList candidates(QSqlTableModel *model, const QString &pinyin);

} // namespace PinyinDictionary

#endif
