// SPDX-License-Identifier: MIT
#ifndef HMI_TESTS_DICTIONARYPROGRAM_H
#define HMI_TESTS_DICTIONARYPROGRAM_H

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

/*! How a run of hmi-dictionary ended and what it said. */
struct ProgramRun
{
    int status; // -1 when it did not end by itself
    QString output;
    QString errors;
};

/*! A scratch directory in which hmi-dictionary runs and files are written, made and looked at. */
class Workshop
{
public:
    QString path(const QString &name) const;
    QStringList names() const;
    QByteArray bytes(const QString &name) const;

    void write(const QString &name, const QByteArray &bytes) const;
    void execute(const QString &name, const QStringList &statements) const;

    /*! Every row of \a statement's result, its columns joined with a blank. */
    QStringList query(const QString &name, const QString &statement) const;
    QStringList candidates(const QString &name, const QString &key) const;

    void start(QProcess *process, const QStringList &arguments) const;
    ProgramRun run(const QStringList &arguments) const;

    /*! Writes \a list as a word list and makes data.db from it, without machine-tool words. */
    ProgramRun make(const QByteArray &list) const;

private:
    QTemporaryDir m_directory;
};

ProgramRun ended(QProcess *process);

/*! The lines of a list that carry entries, split into their columns. */
QList<QStringList> listRows(const QString &fileName);
QStringList standardSyllables();

#endif
