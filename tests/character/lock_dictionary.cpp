// SPDX-License-Identifier: MIT
#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QStringList>

#include <cstdio>

// Locks the SQLite file that is named as the argument for writing, says so with a line on standard
// output, and keeps the lock until standard input ends.
int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    QSqlDatabase database = QSqlDatabase::addDatabase(QLatin1String("QSQLITE"));
    database.setDatabaseName(application.arguments().last());
    if (!database.open() || !QSqlQuery(database).exec(QLatin1String("BEGIN EXCLUSIVE")))
        return 1;
    std::puts("locked");
    std::fflush(stdout);
    while (std::getchar() != EOF) { }
    return 0;
}
