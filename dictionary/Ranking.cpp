// SPDX-License-Identifier: MIT
#include "Ranking.h"

#include "Interruption.h"
#include "Limits.h"

#include <QSet>

#include <algorithm>
#include <tuple>

enum MatchKind { WholePinyin, Initials, Beginning };

struct Match
{
    QByteArray key;
    MatchKind kind;
    const WordEntry *entry; // within one array, so its address tells the order of reading
};

static bool ranksBefore(const Match &a, const Match &b)
{
    return std::tie(a.key, a.kind, a.entry->list, b.entry->weight, a.entry)
        < std::tie(b.key, b.kind, b.entry->list, a.entry->weight, b.entry);
}

static void addMatch(QVector<Match> *matches, const QByteArray &key, MatchKind kind,
                     const WordEntry &entry)
{
    if (key.size() <= LongestKey)
        *matches << Match { key, kind, &entry };
}

static void addMatches(QVector<Match> *matches, const WordEntry &entry)
{
    const bool oneSyllable = entry.syllables.size() == 1;
    for (const QByteArray &pinyin : wholePinyin(entry.syllables)) {
        addMatch(matches, pinyin, WholePinyin, entry);
        for (int length = 1; oneSyllable && length < pinyin.size(); ++length)
            addMatch(matches, pinyin.left(length), Beginning, entry);
    }
    if (!oneSyllable)
        addMatch(matches, initials(entry.syllables), Initials, entry);
}

static QVector<Match> sortedMatches(const QVector<WordEntry> &entries)
{
    QVector<Match> matches;
    for (const WordEntry &entry : entries)
        addMatches(&matches, entry);
    std::sort(matches.begin(), matches.end(), ranksBefore);
    return matches;
}

RankedRows ranked(const QVector<WordEntry> &entries)
{
    RankedRows result = { QVector<DictionaryRow>(), 0 };
    QByteArray key;
    QSet<QString> candidates;
    for (const Match &match : sortedMatches(entries)) {
        stopIfInterrupted();
        if (match.key != key) {
            key = match.key;
            candidates.clear();
            ++result.keys;
        }
        const QString &word = match.entry->word;
        if (candidates.size() < MostRowsOfAKey && !candidates.contains(word)) {
            candidates << word;
            result.rows << DictionaryRow { key, word };
        }
    }
    return result;
}
