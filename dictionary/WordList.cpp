// SPDX-License-Identifier: MIT
#include "WordList.h"

#include "Console.h"
#include "Failure.h"
#include "Interruption.h"
#include "Limits.h"

#include <QDir>

namespace {

const int longestLine = 4096; // bytes
const int mostComplaints = 20;

QString unreadable(const QFile &file)
{
    return QString::fromLatin1("%1: cannot be read: %2")
        .arg(QDir::toNativeSeparators(file.fileName()), file.errorString());
}

QString placeOf(const QFile &file, int lineNumber)
{
    return QString::fromLatin1("%1:%2")
        .arg(QDir::toNativeSeparators(file.fileName()))
        .arg(lineNumber);
}

// At most longestLine bytes of the next line.
QByteArray readOneLine(QFile *file)
{
    return file->readLine(longestLine + 1); // Qt counts a terminating NUL
}

QString decoded(QByteArray line, const QString &place)
{
    if (line.size() == longestLine && !line.endsWith('\n'))
        throw Failure { place + QLatin1String(": the line is too long; this is not a word list") };
    if (line.startsWith("\xef\xbb\xbf"))
        line.remove(0, 3);
    const QString text = QString::fromUtf8(line);
    if (text.toUtf8() != line || line.contains('\0'))
        throw Failure { place + QLatin1String(": not UTF-8 text; convert the file to UTF-8") };
    return text;
}

// Says why \a columns make no entry; empty when they do and \a entry is filled in.
QString fillIn(WordEntry *entry, const QStringList &columns)
{
    if (columns.size() < 3)
        return QLatin1String("fewer than three columns");
    entry->word = columns.at(0).trimmed();
    entry->syllables = readSyllables(columns.at(1));
    bool isNumber = false;
    entry->weight = columns.at(2).trimmed().toLongLong(&isNumber);
    if (entry->word.isEmpty())
        return QLatin1String("no word");
    if (!isReadable(entry->word))
        return QLatin1String("word that is not readable text");
    if (entry->word.toUcs4().size() > LongestCandidate)
        return QString::fromLatin1("word of more than %1 characters").arg(int(LongestCandidate));
    if (entry->syllables.isEmpty())
        return QLatin1String("syllables with other than letters");
    if (!fit(entry->syllables, entry->word))
        return QLatin1String("not one syllable for each Chinese character");
    if (!isNumber || entry->weight < 0)
        return QLatin1String("weight that is no whole number from 0");
    if (wholePinyin(entry->syllables).first().size() > LongestKey
        && (entry->syllables.size() < 2 || entry->syllables.size() > LongestKey)) {
        return QString::fromLatin1("no key of at most %1 letters").arg(int(LongestKey));
    }
    return QString();
}

} // namespace

bool isReadable(const QString &text)
{
    for (const QChar character : text) {
        if (character == QChar::ReplacementCharacter
            || character.category() == QChar::Other_Control) {
            return false;
        }
    }
    return true;
}

void WordList::read(const QString &fileName, ListRank list)
{
    const int before = m_entries.size();
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        throw Failure { unreadable(file) };
    readLines(file, list);
    if (file.error() != QFile::NoError)
        throw Failure { unreadable(file) };
    if (m_entries.size() == before)
        throw Failure { QDir::toNativeSeparators(fileName) + QLatin1String(": holds no entry") };
}

void WordList::readLines(QFile &file, ListRank list)
{
    int lineNumber = 0;
    int headerStart = 0;
    bool headerPossible = true;
    for (QByteArray bytes; !(bytes = readOneLine(&file)).isEmpty();) {
        stopIfInterrupted();
        const QString place = placeOf(file, ++lineNumber);
        const QString line = decoded(bytes, place);
        const QString text = line.trimmed();
        if (headerStart) {
            headerStart = text == QLatin1String("...") ? 0 : headerStart;
        } else if (headerPossible && text == QLatin1String("---")) {
            headerStart = lineNumber;
            headerPossible = false;
        } else if (!text.isEmpty() && !line.startsWith(QLatin1Char('#'))) {
            readLine(line, list, place);
            headerPossible = false;
        }
        Console::showProgress(QLatin1String("Reading words"), file.pos(), file.size());
    }
    if (headerStart) {
        throw Failure { placeOf(file, headerStart)
                        + QLatin1String(": no \"...\" ends the header") };
    }
}

void WordList::readLine(const QString &line, ListRank list, const QString &place)
{
    WordEntry entry;
    entry.list = list;
    const QString reason = fillIn(&entry, line.split(QLatin1Char('\t')));
    if (reason.isEmpty()) {
        m_entries += entry;
    } else {
        skip(place, reason);
    }
}

void WordList::skip(const QString &place, const QString &reason)
{
    ++m_skippedLines[reason];
    ++m_skippedCount;
    if (m_skippedCount <= mostComplaints) {
        Console::complain(QString::fromLatin1("%1: skipped: %2").arg(place, reason));
    } else if (m_skippedCount == mostComplaints + 1) {
        Console::complain(QLatin1String("further skipped lines are only counted"));
    }
}
