// SPDX-License-Identifier: MIT
#ifndef HMI_DICTIONARY_DATABASE_H
#define HMI_DICTIONARY_DATABASE_H

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>

// An open SQLite file, closed again with this object. Everything throws a Failure on error, at
// once when another program holds the file.
class Database
{
public:
    enum Access { ReadOnly, ReadWrite };

    // \a shownName is what messages call the file.
    Database(const QString &fileName, Access access, const QString &shownName);
    ~Database();
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    QSqlQuery run(const QString &statement) const;
    QSqlQuery prepared(const QString &statement) const;
    void execute(QSqlQuery *query) const;

private:
    QString m_shownName;
    QSqlDatabase m_database;
};

#endif
