// SPDX-License-Identifier: MIT
#include "DictionaryProgram.h"

#include <QDir>
#include <QFile>
#include <QProcessEnvironment>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QVariant>
#include <QtTest>

static const int patience = 60000; // milliseconds

/*! Runs the statements on one connection and returns the rows of the last one. */
static QStringList runStatements(const QString &fileName, const QStringList &statements)
{
    const QString connection = "test";
    QStringList rows;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", connection);
        database.setDatabaseName(fileName);
        if (!database.open()) {
            qFatal("%s", qPrintable(database.lastError().text()));
        }
        for (const QString &statement : statements) {
            rows.clear();
            QSqlQuery query(database);
            if (!query.exec(statement)) {
                qFatal("%s: %s", qPrintable(statement), qPrintable(query.lastError().text()));
            }
            while (query.next()) {
                QStringList columns;
                for (int i = 0; i < query.record().count(); ++i) {
                    columns << query.value(i).toString();
                }
                rows << columns.join(' ');
            }
        }
    }
    QSqlDatabase::removeDatabase(connection);
    return rows;
}

QString Workshop::path(const QString &name) const
{
    return m_directory.path() + '/' + name;
}

QStringList Workshop::names() const
{
    return QDir(m_directory.path())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                   QDir::Name);
}

QByteArray Workshop::bytes(const QString &name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void Workshop::write(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("%s", qPrintable(file.errorString()));
    }
}

void Workshop::execute(const QString &name, const QStringList &statements) const
{
    runStatements(path(name), statements);
}

QStringList Workshop::query(const QString &name, const QString &statement) const
{
    return runStatements(path(name), QStringList(statement));
}

QStringList Workshop::candidates(const QString &name, const QString &key) const
{
    return query(name, QString("SELECT word FROM pinyin WHERE py == '%1'").arg(key));
}

void Workshop::start(QProcess *process, const QStringList &arguments) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", "C.UTF-8");
    process->setProcessEnvironment(environment);
    process->setWorkingDirectory(m_directory.path());
    process->start(HMI_DICTIONARY_PROGRAM, arguments);
}

ProgramRun Workshop::run(const QStringList &arguments) const
{
    QProcess process;
    start(&process, arguments);
    return ended(&process);
}

ProgramRun Workshop::make(const QByteArray &list) const
{
    write("list.tsv", list);
    return run({ "--no-machine-tool-words", "--words", "list.tsv" });
}

ProgramRun ended(QProcess *process)
{
    const bool byItself =
        process->waitForFinished(patience) && process->exitStatus() == QProcess::NormalExit;
    return ProgramRun { byItself ? process->exitCode() : -1,
                        QString::fromUtf8(process->readAllStandardOutput()),
                        QString::fromUtf8(process->readAllStandardError()) };
}

QList<QStringList> listRows(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("%s: %s", qPrintable(fileName), qPrintable(file.errorString()));
    }
    QList<QStringList> rows;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        if (!line.startsWith('#') && line.contains('\t')) {
            rows << line.split('\t');
        }
    }
    return rows;
}

QStringList standardSyllables()
{
    QFile file(HMI_DICTIONARY_SOURCES "/standard-syllables.txt");
    QStringList syllables;
    file.open(QIODevice::ReadOnly);
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).simplified();
        if (!line.isEmpty() && !line.startsWith('#')) {
            syllables += line.split(' ');
        }
    }
    return syllables;
}
