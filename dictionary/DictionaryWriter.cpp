// SPDX-License-Identifier: MIT
#include "DictionaryWriter.h"

#include "Console.h"
#include "Database.h"
#include "Failure.h"
#include "Interruption.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace {

const char folderSuffix[] = ".hmi-dictionary-";
const int mostLinks = 40; // as many as Linux follows

// A file that is thrown away when anything fails needs no journal, and the settings that decide
// its bytes are not left to how SQLite was built.
const char *const settings[] = { "PRAGMA page_size = 4096", "PRAGMA encoding = 'UTF-8'",
                                 "PRAGMA auto_vacuum = NONE", "PRAGMA journal_mode = OFF",
                                 "PRAGMA temp_store = MEMORY" };

void insertRows(const Database &database, const QVector<RankedRow> &rows)
{
    QSqlQuery insert =
        database.prepared(QLatin1String("INSERT INTO pinyin (py, word) VALUES (?, ?)"));
    for (int i = 0; i < rows.size(); ++i) {
        stopIfInterrupted();
        insert.bindValue(0, QString::fromLatin1(rows.at(i).key));
        insert.bindValue(1, rows.at(i).candidate);
        database.execute(&insert);
        Console::showProgress(QLatin1String("Writing rows"), i, rows.size());
    }
}

void build(const Database &database, const QVector<RankedRow> &rows)
{
    for (const char *setting : settings)
        database.run(QLatin1String(setting));
    database.run(QLatin1String("BEGIN"));
    database.run(QLatin1String("CREATE TABLE pinyin (py TEXT NOT NULL, word TEXT NOT NULL)"));
    insertRows(database, rows);
    database.run(QLatin1String("CREATE INDEX pinyin_py ON pinyin (py)"));
    database.run(QLatin1String("COMMIT"));
    stopIfInterrupted();
    database.run(QLatin1String("VACUUM"));
    stopIfInterrupted();
}

Failure unwritable(const QString &fileName, const QString &reason)
{
    return Failure { QString::fromLatin1("%1: cannot be written: %2")
                         .arg(QDir::toNativeSeparators(fileName), reason) };
}

QString reasonOf(int errorNumber)
{
    return QString::fromLocal8Bit(std::strerror(errorNumber));
}

// The file \a fileName, or to which that leads as a symbolic link; it need not exist.
QFileInfo replaceableFile(const QString &fileName)
{
    QFileInfo file(fileName);
    for (int links = 0; file.isSymLink(); ++links) {
        if (links == mostLinks)
            throw unwritable(fileName, reasonOf(ELOOP));
        // A link's ".." starts from the folder where the link truly is.
        file.setFile(QDir(QDir(file.path()).canonicalPath()), file.fileName());
        file.setFile(file.symLinkTarget());
    }
    if (file.exists() && !file.isFile()) {
        throw Failure { QDir::toNativeSeparators(fileName)
                        + QLatin1String(": is no file that could be replaced") };
    }
    return file;
}

void nameFoldersLeftBeside(const QFileInfo &target, const QString &folderStart)
{
    const QFileInfoList folders =
        target.dir().entryInfoList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot);
    for (const QFileInfo &folder : folders) {
        if (folder.fileName().startsWith(folderStart)) {
            Console::complain(QDir::toNativeSeparators(QDir::cleanPath(folder.filePath()))
                              + QLatin1String(": left by another run; delete this folder unless "
                                              "that run is still at work"));
        }
    }
}

void moveInto(const QString &from, const QString &fileName)
{
    // QFile::rename() refuses to replace a file
    if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(fileName).constData()))
        throw unwritable(fileName, reasonOf(errno));
}

} // namespace

void writeDictionary(const QString &fileName, const QVector<RankedRow> &rows)
{
    const QFileInfo target = replaceableFile(fileName);
    const QString folderStart = target.fileName() + QLatin1String(folderSuffix);
    nameFoldersLeftBeside(target, folderStart);
    QTemporaryDir folder(target.absoluteDir().filePath(folderStart + QLatin1String("XXXXXX")));
    if (!folder.isValid())
        throw unwritable(fileName, folder.errorString());
    const QString made = folder.filePath(QLatin1String("data.db"));
    build(Database(made, Database::ReadWrite, QDir::toNativeSeparators(fileName)), rows);
    moveInto(made, target.absoluteFilePath());
}
