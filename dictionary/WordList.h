// SPDX-License-Identifier: MIT
#ifndef HMI_DICTIONARY_WORDLIST_H
#define HMI_DICTIONARY_WORDLIST_H

#include "Syllables.h"

#include <QFile>
#include <QMap>
#include <QVector>

// Which list a word comes from; those of an earlier one rank above those of a later one.
enum ListRank { OwnList, MachineToolList, GeneralList };

struct WordEntry
{
    QString word;
    Syllables syllables;
    qint64 weight;
    ListRank list;
};

// Whether \a text has neither control characters nor what stands for an unreadable one.
bool isReadable(const QString &text);

// All entries read so far, in the order of their lines, and how many lines were skipped and why.
//
// A list is UTF-8 text with an entry a line: word, syllables separated by blanks, and weight,
// with a tab between them. Further columns, empty lines, lines that begin with "#" and a leading
// header from "---" to "..." mean nothing.
class WordList
{
public:
    // Adds the entries of \a fileName. A line that is no entry is named, counted and skipped.
    // Throws a Failure when the file cannot be read, is not UTF-8 or has no entry at all.
    void read(const QString &fileName, ListRank list);

    const QVector<WordEntry> &entries() const { return m_entries; }
    int skippedCount() const { return m_skippedCount; }

    // The reasons for which lines were skipped, each with their number.
    const QMap<QString, int> &skippedLines() const { return m_skippedLines; }

private:
    void readLines(QFile &file, ListRank list);
    void readLine(const QString &line, ListRank list, const QString &place);
    void skip(const QString &place, const QString &reason);

    QVector<WordEntry> m_entries;
    QMap<QString, int> m_skippedLines;
    int m_skippedCount = 0;
};

#endif
