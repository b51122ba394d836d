// SPDX-License-Identifier: MIT
#include "Database.h"

#include "Failure.h"

#include <QSqlError>

namespace {

const char connectionName[] = "dictionary";

// SQLite would wait five seconds for a file that another program writes.
const char withoutWaiting[] = "QSQLITE_BUSY_TIMEOUT=0";
const char readOnly[] = ";QSQLITE_OPEN_READONLY";

Failure failed(const QString &shownName, const QSqlError &error)
{
    const QString text = error.databaseText().isEmpty() ? error.text() : error.databaseText();
    return Failure { shownName + QLatin1String(": ") + text };
}

} // namespace

Database::Database(const QString &fileName, Access access, const QString &shownName)
    : m_shownName(shownName)
    , m_database(QSqlDatabase::addDatabase(QLatin1String("QSQLITE"), QLatin1String(connectionName)))
{
    m_database.setDatabaseName(fileName);
    m_database.setConnectOptions(QLatin1String(withoutWaiting)
                                 + QLatin1String(access == ReadOnly ? readOnly : ""));
    if (!m_database.open()) {
        const Failure failure = failed(m_shownName, m_database.lastError());
        m_database = QSqlDatabase();
        QSqlDatabase::removeDatabase(QLatin1String(connectionName));
        throw failure;
    }
}

Database::~Database()
{
    m_database.close();
    m_database = QSqlDatabase();
    QSqlDatabase::removeDatabase(QLatin1String(connectionName));
}

QSqlQuery Database::run(const QString &statement) const
{
    QSqlQuery query = prepared(statement);
    execute(&query);
    return query;
}

QSqlQuery Database::prepared(const QString &statement) const
{
    QSqlQuery query(m_database);
    query.setForwardOnly(true);
    if (!query.prepare(statement))
        throw failed(m_shownName, query.lastError());
    return query;
}

void Database::execute(QSqlQuery *query) const
{
    if (!query->exec())
        throw failed(m_shownName, query->lastError());
}
