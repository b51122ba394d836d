// SPDX-License-Identifier: MIT
#include "PinyinDictionary_p.h"

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlTableModel>
#include <QVariant>

namespace PinyinDictionary {

namespace {

const char connectionName[] = "pinyin";
const int candidateColumn = 1;

// Read-only, so that a missing file stays missing; no waiting, so that a key is never held up by a
// process that writes the file.
const char connectOptions[] = "QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=0";

} // namespace

QSqlTableModel *open(QObject *parent)
{
    QSqlDatabase database =
        QSqlDatabase::addDatabase(QLatin1String("QSQLITE"), QLatin1String(connectionName));
    database.setDatabaseName(QCoreApplication::applicationDirPath() + QLatin1String("/data.db"));
    database.setConnectOptions(QLatin1String(connectOptions));
    if (!database.open())
        return nullptr;
    QSqlTableModel *model = new QSqlTableModel(parent, database);
    model->setTable(QLatin1String("pinyin"));
    model->select();
    return model;
}

void close(QSqlTableModel *model)
{
    // Fetching a connection tries to open it and warns when it cannot: only ask for one that was.
    const bool opened = model != nullptr;
    delete model;
    QString name;
    {
        QSqlDatabase database = QSqlDatabase::database(QLatin1String(connectionName), opened);
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
    model->setFilter(QString::fromLatin1("py == '%1'").arg(pinyin));
    const int rows = model->rowCount();
    for (int row = 0; row < rows; ++row)
        list.append(model->data(model->index(row, candidateColumn)).toString());
    return list;
}

} // namespace PinyinDictionary
