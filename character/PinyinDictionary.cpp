// SPDX-License-Identifier: MIT
#include "PinyinDictionary_p.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlTableModel>
#include <QVariant>

namespace PinyinDictionary {

namespace {

const char driverName[] = "QSQLITE";
const char connectionName[] = "pinyin";
const char tableName[] = "pinyin";
const int candidateColumn = 1;

// No waiting, so that a key is never held up by a process that writes the file. Not read-only,
// though nothing is written here: SQLite must be allowed to mend a file whose last writer was
// killed, and an application may add words through the connection.
const char connectOptions[] = "QSQLITE_BUSY_TIMEOUT=0";

// Asks for the columns by their places. Qt does not find each one by its name: a name may have
// quotes in it, and Qt sees no column that SQLite computes.
class Table : public QSqlTableModel
{
public:
    using QSqlTableModel::QSqlTableModel;

protected:
    QString selectStatement() const override
    {
        const QString rows = QLatin1String("SELECT * FROM ") + tableName();
        return filter().isEmpty() ? rows : rows + QLatin1String(" WHERE ") + filter();
    }
};

// Whether the last query came to its end, or as far as it was to be read.
bool hasSucceeded(const QSqlTableModel *model)
{
    const QSqlQuery query = model->query();
    return query.isActive() && !query.lastError().isValid();
}

// Asks once more after an error, which may be over by then; not again, for a key waits.
bool query(QSqlTableModel *model, const QString &filter)
{
    model->setFilter(filter); // queries at once, unless the last query failed
    return hasSucceeded(model) || (model->select() && hasSucceeded(model));
}

} // namespace

QSqlTableModel *open(QObject *parent)
{
    if (!QSqlDatabase::isDriverAvailable(QLatin1String(driverName)))
        return nullptr;
    const QString file = QCoreApplication::applicationDirPath() + QLatin1String("/data.db");
    QSqlDatabase database =
        QSqlDatabase::addDatabase(QLatin1String(driverName), QLatin1String(connectionName));
    database.setDatabaseName(file);
    database.setConnectOptions(QLatin1String(connectOptions));
    // Opening would make a missing file, and wait for the writer of a pipe.
    if (!QFileInfo(file).isFile() || !database.open())
        return nullptr;
    QSqlTableModel *model = new Table(parent, database);
    model->setTable(QLatin1String(tableName));
    model->select();
    return model;
}

void close(QSqlTableModel *model)
{
    delete model;
    QString name; // stays empty where somebody has removed the connection
    {
        // Ends what an application may have begun on the connection.
        QSqlDatabase database = QSqlDatabase::database(QLatin1String(connectionName), false);
        name = database.connectionName();
        database.rollback();
        database.close();
    }
    if (!name.isEmpty())
        QSqlDatabase::removeDatabase(name);
}

QStringList candidates(QSqlTableModel *model, const QString &pinyin)
{
    QStringList list;
    // What could be read in part would pass for the whole.
    if (!model || !query(model, QString::fromLatin1("py == '%1'").arg(pinyin)))
        return list;
    // What setFilter() or select() has fetched, at most 256 rows with SQLite: more are never asked
    // for, so that a key without end costs no more than a long one.
    const int rows = model->rowCount();
    for (int row = 0; row < rows; ++row)
        list.append(model->data(model->index(row, candidateColumn)).toString());
    return list;
}

} // namespace PinyinDictionary
