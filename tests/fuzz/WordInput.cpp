// SPDX-License-Identifier: MIT
#include "WordInput.h"

#include "DictionaryCheck.h"
#include "DictionaryWriter.h"
#include "Failure.h"
#include "Limits.h"
#include "Promise.h"
#include "Ranking.h"
#include "WordList.h"
#include "support/DictionaryFile.h"

#include <QDir>
#include <QHash>
#include <QPair>
#include <QSet>

#include <algorithm>

namespace {

const char endOfList = '\f';

bool isTypable(const QByteArray &key)
{
    const auto isLetter = [](char letter) {
        return letter >= 'a' && letter <= 'z';
    };
    return !key.isEmpty() && std::all_of(key.begin(), key.end(), isLetter);
}

void lookAt(const Syllables &syllables)
{
    const QList<QByteArray> keys = wholePinyin(syllables);
    promise(keys.size() == 1 || keys.size() == 2, "one or two spellings");
    for (const QByteArray &key : keys)
        promise(isTypable(key), "a pinyin has the letters a to z", QString::fromLatin1(key));
    const QByteArray letters = initials(syllables);
    promise(letters.size() == syllables.size() && isTypable(letters),
            "an initial of each syllable");
}

void lookAt(const QVector<WordEntry> &entries)
{
    for (const WordEntry &entry : entries) {
        lookAt(entry.syllables);
        promise(entry.weight >= 0, "weights from 0");
        promise(!entry.word.trimmed().isEmpty(), "an entry has a word");
        promise(entry.word.toUcs4().size() <= LongestCandidate, "words fit the panel", entry.word);
        promise(fit(entry.syllables, entry.word), "a syllable a character", entry.word);
    }
}

void lookAt(const RankedRows &ranking)
{
    QByteArray key;
    QSet<QString> candidates;
    int keys = 0;
    for (const RankedRow &row : ranking.rows) {
        if (row.key != key) {
            promise(key < row.key, "keys in alphabetical order");
            promise(isTypable(row.key) && row.key.size() <= LongestKey, "keys can be typed");
            key = row.key;
            candidates.clear();
            ++keys;
        }
        promise(!candidates.contains(row.candidate), "no candidate twice", row.candidate);
        candidates << row.candidate;
        promise(candidates.size() <= MostRowsOfAKey, "no more rows than are written");
    }
    promise(keys == ranking.keys, "the keys are counted");
}

bool hasVowel(const QByteArray &key)
{
    return std::any_of(key.begin(), key.end(),
                       [](char letter) { return QByteArray("aeiouv").contains(letter); });
}

// By key and word, the foremost list that has the word with that pinyin; but for keys that are more
// likely the beginning of others.
QHash<QPair<QByteArray, QString>, ListRank> foremostLists(const QVector<WordEntry> &entries)
{
    QHash<QPair<QByteArray, QString>, ListRank> lists;
    for (const WordEntry &entry : entries) {
        for (const QByteArray &key : wholePinyin(entry.syllables)) {
            const QPair<QByteArray, QString> place(key, entry.word);
            if (hasVowel(key))
                lists[place] = qMin(lists.value(place, entry.list), entry.list);
        }
    }
    return lists;
}

void lookAtOrder(const RankedRows &ranking, const QVector<WordEntry> &entries)
{
    const QHash<QPair<QByteArray, QString>, ListRank> lists = foremostLists(entries);
    QByteArray key;
    ListRank last = OwnList;
    for (const RankedRow &row : ranking.rows) {
        if (row.key != key)
            last = OwnList;
        key = row.key;
        const ListRank list = lists.value(qMakePair(row.key, row.candidate), last);
        promise(last <= list, "words of an earlier list come first", row.candidate);
        last = list;
    }
}

void makeDictionaryOf(const RankedRows &ranking)
{
    writeDictionary(DictionaryFile::path(), ranking.rows);
    const CheckReport report = checkDictionary(DictionaryFile::path());
    promise(report.rows == ranking.rows.size() && report.keys == ranking.keys, "all is written");
    for (const QString &finding : report.findings)
        promise(finding.contains(QLatin1String("standard syllables without a candidate")),
                "a dictionary passes the check of the program that made it", finding);
}

ListRank rankOf(char kind)
{
    if (kind == 'o' || kind == 'O')
        return OwnList;
    return kind == 'm' || kind == 'M' ? MachineToolList : GeneralList;
}

// False where there is no word list in \a lines, which a failure has to tell.
bool read(WordList *words, const QByteArray &lines, ListRank rank)
{
    const QString name = DictionaryFile::directory() + QLatin1String("/words.tsv");
    QFile file(name);
    promise(file.open(QIODevice::WriteOnly) && file.write(lines) == lines.size(), "a disk");
    file.close();
    try {
        words->read(name, rank);
    } catch (const Failure &failure) {
        promise(failure.message.startsWith(QDir::toNativeSeparators(name)),
                "a failure names the file", failure.message);
        return false;
    }
    return true;
}

} // namespace

void WordInput::readAsSyllables(const QByteArray &text)
{
    const QStringList columns = QString::fromUtf8(text).split(QLatin1Char('\t'));
    const Syllables syllables = readSyllables(columns.first());
    if (!syllables.isEmpty())
        lookAt(syllables);
    fit(syllables, columns.last());
}

void WordInput::readAsLists(const QByteArray &lists)
{
    DictionaryFile dictionary;
    WordList words;
    QByteArray lines;
    for (const QByteArray &list : lists.split(endOfList)) {
        const char kind = list.isEmpty() ? 'g' : list.at(0);
        lines = (kind >= 'A' && kind <= 'Z' ? lines : QByteArray()) + list.mid(1);
        if (!read(&words, lines, rankOf(kind)))
            return;
    }
    lookAt(words.entries());
    const RankedRows ranking = ranked(words.entries());
    lookAt(ranking);
    lookAtOrder(ranking, words.entries());
    makeDictionaryOf(ranking);
}
