// SPDX-License-Identifier: MIT
#include "DictionaryWriter.h"

#include "Console.h"
#include "Database.h"
#include "Failure.h"
#include "Interruption.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cerrno>
#include <cstdio>
#include <cstring>

// A file that is thrown away when anything fails needs no journal, and the settings that decide
// its bytes are not left to how SQLite was built.
static const char *const settings[] = { "PRAGMA page_size = 4096", "PRAGMA encoding = 'UTF-8'",
                                        "PRAGMA auto_vacuum = NONE", "PRAGMA journal_mode = OFF",
                                        "PRAGMA temp_store = MEMORY" };

static void insertRows(const Database &database, const QVector<DictionaryRow> &rows)
{
    QSqlQuery insert =
        database.prepared(QStringLiteral("INSERT INTO pinyin (py, word) VALUES (?, ?)"));
    for (int i = 0; i < rows.size(); ++i) {
        stopIfInterrupted();
        insert.bindValue(0, QString::fromLatin1(rows.at(i).key));
        insert.bindValue(1, rows.at(i).candidate);
        database.execute(&insert);
        Console::showProgress(QStringLiteral("Writing rows"), i, rows.size());
    }
}

static void build(const Database &database, const QVector<DictionaryRow> &rows)
{
    for (const char *setting : settings)
        database.run(QLatin1String(setting));
    database.run(QStringLiteral("BEGIN"));
    database.run(QStringLiteral("CREATE TABLE pinyin (py TEXT NOT NULL, word TEXT NOT NULL)"));
    insertRows(database, rows);
    database.run(QStringLiteral("CREATE INDEX pinyin_py ON pinyin (py)"));
    database.run(QStringLiteral("COMMIT"));
    stopIfInterrupted();
    database.run(QStringLiteral("VACUUM"));
    stopIfInterrupted();
}

static void refuseToReplace(const QFileInfo &target)
{
    if (target.exists() && !target.isFile()) {
        throw Failure { QDir::toNativeSeparators(target.filePath())
                        + QStringLiteral(": is no file that could be replaced") };
    }
}

static Failure unwritable(const QString &fileName, const QString &reason)
{
    return Failure {
        QStringLiteral("%1: cannot be written: %2").arg(QDir::toNativeSeparators(fileName), reason)
    };
}

static void moveInto(const QString &from, const QString &fileName)
{
    // QFile::rename() refuses to replace a file
    if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(fileName).constData()))
        throw unwritable(fileName, QString::fromLocal8Bit(std::strerror(errno)));
}

void writeDictionary(const QString &fileName, const QVector<DictionaryRow> &rows)
{
    const QFileInfo target(fileName);
    refuseToReplace(target);
    QTemporaryDir workshop(target.absoluteFilePath() + QStringLiteral(".XXXXXX"));
    if (!workshop.isValid())
        throw unwritable(fileName, workshop.errorString());
    const QString made = workshop.path() + QStringLiteral("/data.db");
    build(Database(made, Database::ReadWrite, QDir::toNativeSeparators(fileName)), rows);
    moveInto(made, target.absoluteFilePath());
}
