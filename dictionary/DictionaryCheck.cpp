// SPDX-License-Identifier: MIT
#include "DictionaryCheck.h"

#include "Database.h"
#include "Failure.h"
#include "Interruption.h"
#include "Limits.h"
#include "Syllables.h"
#include "WordList.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <QSqlRecord>

namespace {

const int mostExamples = 5;
const int longestExample = 40;

// What one row can do wrong.

bool isKeyUntypable(const QString &key, const QString &)
{
    for (const QChar letter : key) {
        if (letter < QLatin1Char('a') || letter > QLatin1Char('z'))
            return true;
    }
    return key.isEmpty();
}

bool isKeyTooLong(const QString &key, const QString &)
{
    return key.size() > LongestKey;
}

bool isCandidateEmpty(const QString &, const QString &candidate)
{
    return candidate.trimmed().isEmpty();
}

bool isCandidateTooLong(const QString &, const QString &candidate)
{
    return candidate.toUcs4().size() > LongestCandidate;
}

bool isCandidateUnreadable(const QString &, const QString &candidate)
{
    return !isReadable(candidate);
}

struct RowRule
{
    const char *finding;
    int limit; // that the finding speaks of, if any
    bool (*isBroken)(const QString &key, const QString &candidate);
};

const RowRule rowRules[] = {
    { "rows whose key has other than the letters a to z", 0, isKeyUntypable },
    { "rows whose key has more than %1 letters", LongestKey, isKeyTooLong },
    { "rows with an empty candidate", 0, isCandidateEmpty },
    { "rows with a candidate of more than %1 characters", LongestCandidate, isCandidateTooLong },
    { "rows with a candidate that is not readable text", 0, isCandidateUnreadable }
};

// What rows do wrong together: there are more than the limit that share the columns.

struct GroupRule
{
    const char *finding;
    int limit;
    bool sharesCandidate;
};

const GroupRule groupRules[] = { { "keys with more than the %1 rows that the keypad reads",
                                   MostRowsSeen, false },
                                 { "candidates that stand more than once under a key", 1, true } };

QString findingText(const char *finding, int limit)
{
    const QString text = QLatin1String(finding);
    return text.contains(QLatin1String("%1")) ? text.arg(limit) : text;
}

QString shortened(const QString &example)
{
    if (example.size() <= longestExample)
        return example;
    const bool cutsACharacter = example.at(longestExample).isLowSurrogate();
    return example.left(longestExample - cutsACharacter) + QChar(0x2026);
}

// Counts offenders and remembers the first of them.
class Offenders
{
public:
    void add(const QString &example)
    {
        if (++m_count <= mostExamples)
            m_examples << shortened(example);
    }

    void reportTo(QStringList *findings, const QString &finding) const
    {
        if (m_count > 0) {
            const QString more = QLatin1String(m_count > mostExamples ? ", ..." : "");
            *findings << QString::number(m_count) + QLatin1Char(' ') + finding + QLatin1String(": ")
                    + m_examples.join(QLatin1String(", ")) + more;
        }
    }

private:
    qint64 m_count = 0;
    QStringList m_examples;
};

QString quoted(const QString &identifier)
{
    return QLatin1Char('"') + QString(identifier).replace(QLatin1Char('"'), QLatin1String("\"\""))
        + QLatin1Char('"');
}

class DictionaryCheck
{
public:
    explicit DictionaryCheck(const QString &fileName)
        : m_database(fileName, Database::ReadOnly, QDir::toNativeSeparators(fileName))
    {
    }

    CheckReport run()
    {
        if (hasTable() && hasColumns()) {
            checkWholeness();
            checkJournal();
            checkRows();
            checkGroups();
            checkSyllables();
            checkIndex();
        }
        return m_report;
    }

private:
    bool hasTable();
    bool hasColumns();
    void checkWholeness();
    void checkJournal();
    void checkRows();
    void checkGroups();
    void checkSyllables();
    void checkIndex();

    Database m_database;
    CheckReport m_report;
    QString m_candidateColumn;
    QSet<QString> m_keys;
};

bool DictionaryCheck::hasTable()
{
    QSqlQuery tables =
        m_database.run(QLatin1String("SELECT name FROM sqlite_master WHERE type IN ('table', "
                                     "'view') AND lower(name) = 'pinyin'"));
    if (tables.next())
        return true;
    m_report.findings << QLatin1String("no table \"pinyin\"");
    return false;
}

bool DictionaryCheck::hasColumns()
{
    const QSqlRecord columns =
        m_database.run(QLatin1String("SELECT * FROM pinyin LIMIT 0")).record();
    if (columns.fieldName(0).toLower() != QLatin1String("py")) {
        m_report.findings << QString::fromLatin1(
                                 "the first column is \"%1\" where \"py\" is looked up")
                                 .arg(columns.fieldName(0));
        return false;
    }
    if (columns.count() < 2) {
        m_report.findings << QLatin1String("no second column for the candidates");
        return false;
    }
    m_candidateColumn = quoted(columns.fieldName(1));
    return true;
}

void DictionaryCheck::checkWholeness()
{
    QSqlQuery problems = m_database.run(QLatin1String("PRAGMA integrity_check(1)"));
    while (problems.next()) {
        const QString problem = problems.value(0).toString();
        if (problem != QLatin1String("ok"))
            m_report.findings << QLatin1String("the file is damaged: ") + problem.simplified();
    }
}

void DictionaryCheck::checkJournal()
{
    QSqlQuery mode = m_database.run(QLatin1String("PRAGMA journal_mode"));
    if (mode.next() && mode.value(0).toString() == QLatin1String("wal"))
        m_report.findings << QLatin1String("journal mode WAL: even readers leave files beside it");
}

void DictionaryCheck::checkRows()
{
    const int ruleCount = sizeof(rowRules) / sizeof(rowRules[0]);
    Offenders offenders[ruleCount];
    QSqlQuery rows =
        m_database.run(QString::fromLatin1("SELECT py, %1 FROM pinyin").arg(m_candidateColumn));
    while (rows.next()) {
        stopIfInterrupted();
        const QString key = rows.value(0).toString();
        const QString candidate = rows.value(1).toString();
        m_keys << key;
        ++m_report.rows;
        for (int i = 0; i < ruleCount; ++i) {
            if (rowRules[i].isBroken(key, candidate))
                offenders[i].add((key + QLatin1Char(' ') + candidate).simplified());
        }
    }
    m_report.keys = m_keys.size();
    for (int i = 0; i < ruleCount; ++i) {
        offenders[i].reportTo(&m_report.findings,
                              findingText(rowRules[i].finding, rowRules[i].limit));
    }
}

void DictionaryCheck::checkGroups()
{
    for (const GroupRule &rule : groupRules) {
        Offenders offenders;
        const QString columns =
            rule.sharesCandidate ? QLatin1String("py, ") + m_candidateColumn : QLatin1String("py");
        QSqlQuery groups = m_database.run(
            QString::fromLatin1("SELECT count(*), %1 FROM pinyin GROUP BY %1 HAVING count(*) > %2")
                .arg(columns)
                .arg(rule.limit));
        while (groups.next()) {
            stopIfInterrupted();
            const QString key = groups.value(1).toString();
            offenders.add(rule.sharesCandidate ? key + QLatin1Char(' ') + groups.value(2).toString()
                                               : key);
        }
        offenders.reportTo(&m_report.findings, findingText(rule.finding, rule.limit));
    }
}

void DictionaryCheck::checkSyllables()
{
    Offenders missing;
    const QStringList syllables = standardSyllables();
    for (const QString &syllable : syllables) {
        if (!m_keys.contains(syllable))
            missing.add(syllable);
    }
    missing.reportTo(&m_report.findings, QLatin1String("standard syllables without a candidate"));
}

void DictionaryCheck::checkIndex()
{
    QSqlQuery plan = m_database.run(
        QString::fromLatin1("EXPLAIN QUERY PLAN SELECT py, %1 FROM pinyin WHERE py == 'a'")
            .arg(m_candidateColumn));
    bool searches = false;
    while (plan.next())
        searches |= plan.value(3).toString().startsWith(QLatin1String("SEARCH"));
    if (!searches) {
        m_report.findings << QString::fromLatin1(
                                 "no index on \"py\": every letter typed reads all %1 rows")
                                 .arg(m_report.rows);
    }
}

// Says why \a file can be no dictionary; empty when it may be one.
QString objection(const QFileInfo &file)
{
    if (!file.exists())
        return QLatin1String("no such file");
    if (file.isDir())
        return QLatin1String("is a folder; a dictionary is a file");
    return QLatin1String(file.isFile() ? "" : "is no file that could be a dictionary");
}

} // namespace

CheckReport checkDictionary(const QString &fileName)
{
    const QString reason = objection(QFileInfo(fileName));
    if (!reason.isEmpty())
        throw Failure { QDir::toNativeSeparators(fileName) + QLatin1String(": ") + reason };
    return DictionaryCheck(fileName).run();
}
