// SPDX-License-Identifier: MIT
#include "PinyinDictionary_p.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSqlDatabase>
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

bool query(QSqlTableModel *model, const QString &filter)
{
    model->setFilter(filter); // queries at once, unless the last query failed
    return model->query().isActive() || model->select();
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
    QSqlTableModel *model = new QSqlTableModel(parent, database);
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
    if (!model)
        return list;
    const QString filter = QString::fromLatin1("py == '%1'").arg(pinyin);
    if (!query(model, filter)) {
        // A file that was locked for a moment leaves the model without columns: read them again.
        model->setTable(QLatin1String(tableName));
        query(model, filter);
    }
    // What setFilter() or select() has fetched, at most 256 rows with SQLite: more are never asked
    // for, so that a key without end costs no more than a long one.
    const int rows = model->rowCount();
    for (int row = 0; row < rows; ++row)
        list.append(model->data(model->index(row, candidateColumn)).toString());
    return list;
}

} // namespace PinyinDictionary
