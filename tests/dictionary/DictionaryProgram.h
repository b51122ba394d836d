// SPDX-License-Identifier: MIT
#ifndef HMI_TESTS_DICTIONARYPROGRAM_H
#define HMI_TESTS_DICTIONARYPROGRAM_H

#include "support/Text.h"

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

// How a run of hmi-dictionary ended and what it said.
struct ProgramRun
{
    int status; // -1 when it did not end by itself
    QString output;
    QString errors;
};

// A scratch directory in which hmi-dictionary runs and files are written, made and looked at.
class Workshop
{
public:
    QString path(const char *name) const;
    QStringList names() const;
    QByteArray bytes(const char *name) const;
    void write(const char *name, const QByteArray &bytes) const;

    // Run on data.db, for the latter with every row of the result, its columns joined with a blank.
    void execute(const QStringList &statements) const;
    QStringList query(const QString &statement) const;
    QStringList candidates(const QString &key) const;

    // The program with its directory and environment, to be started.
    void prepare(QProcess *process, const QStringList &arguments) const;
    ProgramRun run(const QStringList &arguments) const;

    // Writes \a list as a word list and makes data.db from it, without machine-tool words.
    ProgramRun make(const QByteArray &list) const;

private:
    QTemporaryDir m_directory;
};

ProgramRun ended(QProcess *process);

// The words that \a utf8 holds, separated by blanks.
QStringList words(const char *utf8);

// The lines of a list that carry entries, split into their columns.
QList<QStringList> listRows(const char *fileName);
QStringList standardSyllables();

#endif
