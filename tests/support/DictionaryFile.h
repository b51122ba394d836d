// SPDX-License-Identifier: MIT
#ifndef DICTIONARYFILE_H
#define DICTIONARYFILE_H

#include <QByteArray>
#include <QList>
#include <QStringList>

struct DictionaryRow
{
    const char *pinyin;
    const char *word; // UTF-8
};

// Everyday syllables: "ni" has three pages, "hao" exactly one, "zhu" one and a single candidate.
QList<DictionaryRow> everydayWords();

// What a writer leaves behind that is killed in the middle of its work: a file that has been
// changed in part, and the journal that tells what was there.
struct Ruins
{
    QByteArray file, journal;
};

// The pinyin dictionary beside the test program, where a keypad looks for it. At first there is
// none, and none is left when this goes. What writes it asserts that it can.
class DictionaryFile
{
public:
    DictionaryFile() { remove(); }
    ~DictionaryFile() { remove(); }

    static QString directory();
    static QString path();

    // What there is in the directory; names of things that begin as the dictionary does.
    static QStringList entries();

    static QByteArray bytes();

    static QString insertion(const char *pinyin, QString word);

    void remove();
    void setBytes(const QByteArray &bytes);

    // Makes a dictionary of \a rows, in their order.
    void create(const QList<DictionaryRow> &rows);

    // What would be left of the dictionary, which stays as it is.
    static Ruins ruinsOfAWriter();

    // Writes \a bytes over the dictionary as it lies, which a keypad may have open.
    void overwrite(const QByteArray &bytes);

    void setJournal(const QByteArray &bytes);

    // Executes \a statements in the dictionary, one after the other, in one transaction.
    void execute(const QStringList &statements);

private:
    Q_DISABLE_COPY(DictionaryFile)
};

#endif
