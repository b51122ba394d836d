// SPDX-License-Identifier: MIT
#ifndef FLOORS_H
#define FLOORS_H

#include <QSqlQuery>
#include <QStringList>

class QDialog;

// A dialog with a bare Qt edit line and bare Qt tool buttons in a grid, never shown.
QDialog *createBareKeypad(int keys);

// The pinyin query on a prepared statement, on a connection of its own to the same file.
class PreparedQuery
{
public:
    explicit PreparedQuery(const QString &file);
    ~PreparedQuery();

    bool isUsable() const;
    QStringList candidates(const QString &pinyin);

private:
    QSqlQuery m_query;
};

#endif
