// SPDX-License-Identifier: MIT
#include "Floors.h"

#include <QDialog>
#include <QGridLayout>
#include <QLineEdit>
#include <QSqlDatabase>
#include <QToolButton>
#include <QVariant>

namespace {

const QLatin1String connectionName("floor");
const int keysPerRow = 10;
const int mostRows = 256; // what the keypad's model reports at most

} // namespace

QDialog *createBareKeypad(int keys)
{
    QDialog *dialog = new QDialog;
    QGridLayout *grid = new QGridLayout(dialog);
    grid->addWidget(new QLineEdit(dialog), 0, 0, 1, keysPerRow);
    for (int i = 0; i < keys; ++i) {
        QToolButton *key = new QToolButton(dialog);
        key->setText(QString::number(i));
        key->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        grid->addWidget(key, 1 + i / keysPerRow, i % keysPerRow);
    }
    return dialog;
}

PreparedQuery::PreparedQuery(const QString &file)
{
    QSqlDatabase database = QSqlDatabase::addDatabase(QLatin1String("QSQLITE"), connectionName);
    database.setDatabaseName(file);
    database.setConnectOptions(QLatin1String("QSQLITE_OPEN_READONLY"));
    database.open();
    m_query = QSqlQuery(database);
    m_query.setForwardOnly(true);
    m_query.prepare(QLatin1String("SELECT word FROM pinyin WHERE py = ?"));
}

PreparedQuery::~PreparedQuery()
{
    m_query = QSqlQuery();
    QSqlDatabase::removeDatabase(connectionName);
}

bool PreparedQuery::isUsable() const
{
    return QSqlDatabase::database(connectionName, false).isOpen();
}

QStringList PreparedQuery::candidates(const QString &pinyin)
{
    QStringList list;
    m_query.addBindValue(pinyin);
    m_query.exec();
    while (list.size() < mostRows && m_query.next())
        list.append(m_query.value(0).toString());
    m_query.finish();
    return list;
}
