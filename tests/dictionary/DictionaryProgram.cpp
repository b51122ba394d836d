// SPDX-License-Identifier: MIT
#include "DictionaryProgram.h"
#include "support/Emulation.h"

#include <QDir>
#include <QFile>
#include <QProcessEnvironment>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QVariant>
#include <QtTest>

namespace {

const int patience = 60000; // milliseconds

QString joinedColumns(const QSqlQuery &query)
{
    QStringList columns;
    for (int i = 0; i < query.record().count(); ++i)
        columns << query.value(i).toString();
    return columns.join(QLatin1Char(' '));
}

// Runs the statements on one connection and returns the rows of the last one.
QStringList runStatements(const QString &fileName, const QStringList &statements)
{
    const QString connection = u("test");
    QStringList rows;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u("QSQLITE"), connection);
        database.setDatabaseName(fileName);
        if (!database.open())
            qFatal("%s", qPrintable(database.lastError().text()));
        for (const QString &statement : statements) {
            rows.clear();
            QSqlQuery query(database);
            if (!query.exec(statement))
                qFatal("%s: %s", qPrintable(statement), qPrintable(query.lastError().text()));
            while (query.next())
                rows << joinedColumns(query);
        }
    }
    QSqlDatabase::removeDatabase(connection);
    return rows;
}

// The lines of a file that are neither empty nor comments.
QStringList contentLines(const char *fileName)
{
    QFile file(u(fileName));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s: %s", fileName, qPrintable(file.errorString()));
    QStringList lines;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        if (!line.isEmpty() && !line.startsWith(QLatin1Char('#')))
            lines << line;
    }
    return lines;
}

} // namespace

QString Workshop::path(const char *name) const
{
    return m_directory.filePath(u(name));
}

QStringList Workshop::names() const
{
    return QDir(m_directory.path())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                   QDir::Name);
}

QByteArray Workshop::bytes(const char *name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void Workshop::write(const char *name, const QByteArray &bytes) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s: %s", name, qPrintable(file.errorString()));
}

void Workshop::execute(const QStringList &statements) const
{
    runStatements(path("data.db"), statements);
}

QStringList Workshop::query(const QString &statement) const
{
    return runStatements(path("data.db"), QStringList(statement));
}

QStringList Workshop::candidates(const QString &key) const
{
    return query(u("SELECT word FROM pinyin WHERE py == '%1'").arg(key));
}

void Workshop::prepare(QProcess *process, const QStringList &arguments) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u("LC_ALL"), u("C.UTF-8"));
    process->setProcessEnvironment(environment);
    process->setWorkingDirectory(m_directory.path());
    const QStringList command = commandOf(u(HMI_DICTIONARY_PROGRAM)) + arguments;
    process->setProgram(command.first());
    process->setArguments(command.mid(1));
}

ProgramRun Workshop::run(const QStringList &arguments) const
{
    QProcess process;
    prepare(&process, arguments);
    process.start();
    return ended(&process);
}

ProgramRun Workshop::make(const QByteArray &list) const
{
    write("list.tsv", list);
    return run(words("--no-machine-tool-words --words list.tsv"));
}

ProgramRun ended(QProcess *process)
{
    const bool byItself =
        process->waitForFinished(patience) && process->exitStatus() == QProcess::NormalExit;
    return ProgramRun { byItself ? process->exitCode() : -1,
                        QString::fromUtf8(process->readAllStandardOutput()),
                        QString::fromUtf8(process->readAllStandardError()) };
}

QStringList words(const char *utf8)
{
    return u(utf8).split(QLatin1Char(' '));
}

QList<QStringList> listRows(const char *fileName)
{
    QList<QStringList> rows;
    const QStringList lines = contentLines(fileName);
    for (const QString &line : lines) {
        if (line.contains(QLatin1Char('\t')))
            rows << line.split(QLatin1Char('\t'));
    }
    return rows;
}

QStringList standardSyllables()
{
    return contentLines(HMI_DICTIONARY_SOURCES "/standard-syllables.txt")
        .join(QLatin1Char(' '))
        .split(QLatin1Char(' '));
}
