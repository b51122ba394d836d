// SPDX-License-Identifier: MIT
#include "Syllables.h"

#include <QFile>

#include <algorithm>

namespace {

struct Spelling
{
    const char *typed;
    const char *alsoTyped;
};

const Spelling twoSpellings[] = { { "lve", "lue" }, { "nve", "nue" } };

bool isLetter(char c)
{
    return c >= 'a' && c <= 'z';
}

bool isChinese(uint character)
{
    return QChar::script(character) == QChar::Script_Han;
}

QByteArray asTyped(const QString &syllable)
{
    QString lower = syllable.toLower();
    const QByteArray letters = lower.replace(QChar(0xfc), QLatin1Char('v')).toUtf8();
    for (const Spelling &spelling : twoSpellings) {
        if (letters == spelling.alsoTyped)
            return spelling.typed;
    }
    return letters;
}

QByteArray alsoTyped(const QByteArray &syllable)
{
    for (const Spelling &spelling : twoSpellings) {
        if (syllable == spelling.typed)
            return spelling.alsoTyped;
    }
    return syllable;
}

} // namespace

QStringList standardSyllables()
{
    QStringList syllables;
    QFile file(QLatin1String(":/standard-syllables.txt"));
    file.open(QIODevice::ReadOnly);
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).simplified();
        if (!line.isEmpty() && !line.startsWith(QLatin1Char('#')))
            syllables += line.split(QLatin1Char(' '));
    }
    return syllables;
}

Syllables readSyllables(const QString &text)
{
    Syllables syllables;
    const QStringList parts = text.simplified().split(QLatin1Char(' '));
    for (const QString &part : parts) {
        const QByteArray syllable = asTyped(part);
        if (syllable.isEmpty() || !std::all_of(syllable.begin(), syllable.end(), isLetter))
            return Syllables();
        syllables += syllable;
    }
    return syllables;
}

bool fit(const Syllables &syllables, const QString &word)
{
    const auto characters = word.toUcs4();
    const auto chinese = std::count_if(characters.begin(), characters.end(), isChinese);
    return syllables.size() == chinese
        || (syllables.size() > chinese && characters.size() > chinese);
}

QList<QByteArray> wholePinyin(const Syllables &syllables)
{
    QByteArray typed, other;
    for (const QByteArray &syllable : syllables) {
        typed += syllable;
        other += alsoTyped(syllable);
    }
    QList<QByteArray> spellings;
    spellings << typed;
    if (other != typed)
        spellings << other;
    return spellings;
}

QByteArray initials(const Syllables &syllables)
{
    QByteArray letters;
    for (const QByteArray &syllable : syllables)
        letters += syllable.at(0);
    return letters;
}
