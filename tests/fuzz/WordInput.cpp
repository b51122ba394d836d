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
#include <QSet>

#include <algorithm>

namespace {

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

void makeDictionaryOf(const RankedRows &ranking)
{
    writeDictionary(DictionaryFile::path(), ranking.rows);
    const CheckReport report = checkDictionary(DictionaryFile::path());
    promise(report.rows == ranking.rows.size() && report.keys == ranking.keys, "all is written");
    for (const QString &finding : report.findings)
        promise(finding.contains(QLatin1String("standard syllables without a candidate")),
                "a dictionary passes the check of the program that made it", finding);
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

void WordInput::readAsList(const QByteArray &list)
{
    DictionaryFile dictionary;
    const QString file = DictionaryFile::directory() + QLatin1String("/words.tsv");
    QFile words(file);
    promise(words.open(QIODevice::WriteOnly) && words.write(list) == list.size(), "a disk");
    words.close();
    WordList entries;
    try {
        entries.read(file, GeneralList);
    } catch (const Failure &failure) {
        promise(failure.message.startsWith(QDir::toNativeSeparators(file)),
                "a failure names the file", failure.message);
        return;
    }
    lookAt(entries.entries());
    const RankedRows ranking = ranked(entries.entries());
    lookAt(ranking);
    makeDictionaryOf(ranking);
}
