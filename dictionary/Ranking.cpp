// SPDX-License-Identifier: MIT
#include "Ranking.h"

#include "Interruption.h"
#include "Limits.h"

#include <QSet>

#include <algorithm>
#include <cstring>
#include <tuple>

namespace {

enum MatchKind { WholePinyin, BeginningWithAnInitial, Initials, Beginning };

struct Match
{
    QByteArray key;
    MatchKind kind;
    const WordEntry *entry; // within one array, so its address tells the order of reading
};

// A key of one letter needs no mention: words that are found by initials have two at least.
bool isInitialOfTwoLetters(const QByteArray &key)
{
    return key == "zh" || key == "ch" || key == "sh";
}

bool isVowel(char letter)
{
    return std::strchr("aeiouv", letter);
}

MatchKind kindOfBeginning(const QByteArray &key)
{
    return isInitialOfTwoLetters(key) ? BeginningWithAnInitial : Beginning;
}

// Without a vowel a key is the whole pinyin of interjections only, and who types it types on.
MatchKind kindOfWhole(const QByteArray &key)
{
    return std::any_of(key.begin(), key.end(), isVowel) ? WholePinyin : kindOfBeginning(key);
}

bool ranksBefore(const Match &a, const Match &b)
{
    return std::tie(a.key, a.kind, a.entry->list, b.entry->weight, a.entry)
        < std::tie(b.key, b.kind, b.entry->list, a.entry->weight, b.entry);
}

void addMatch(QVector<Match> *matches, const QByteArray &key, MatchKind kind,
              const WordEntry &entry)
{
    if (key.size() <= LongestKey)
        *matches << Match { key, kind, &entry };
}

void addMatches(QVector<Match> *matches, const WordEntry &entry)
{
    const bool oneSyllable = entry.syllables.size() == 1;
    for (const QByteArray &pinyin : wholePinyin(entry.syllables)) {
        addMatch(matches, pinyin, kindOfWhole(pinyin), entry);
        for (int length = 1; oneSyllable && length < pinyin.size(); ++length) {
            const QByteArray beginning = pinyin.left(length);
            addMatch(matches, beginning, kindOfBeginning(beginning), entry);
        }
    }
    if (!oneSyllable)
        addMatch(matches, initials(entry.syllables), Initials, entry);
}

QVector<Match> sortedMatches(const QVector<WordEntry> &entries)
{
    QVector<Match> matches;
    for (const WordEntry &entry : entries)
        addMatches(&matches, entry);
    std::sort(matches.begin(), matches.end(), ranksBefore);
    return matches;
}

int mostRowsUpTo(MatchKind kind)
{
    return kind == BeginningWithAnInitial ? MostRowsBeforeInitials : MostRowsOfAKey;
}

} // namespace

RankedRows ranked(const QVector<WordEntry> &entries)
{
    RankedRows result = { QVector<RankedRow>(), 0 };
    QByteArray key;
    QSet<QString> candidates;
    const QVector<Match> matches = sortedMatches(entries);
    for (const Match &match : matches) {
        stopIfInterrupted();
        if (match.key != key) {
            key = match.key;
            candidates.clear();
            ++result.keys;
        }
        const QString &word = match.entry->word;
        if (candidates.size() < mostRowsUpTo(match.kind) && !candidates.contains(word)) {
            candidates << word;
            result.rows << RankedRow { key, word };
        }
    }
    return result;
}
