// SPDX-License-Identifier: MIT
#include "DatabaseInput.h"

#include "DictionaryCheck.h"
#include "Failure.h"
#include "Promise.h"
#include "character/DictionarySession.h"
#include "support/DictionaryFile.h"

#include <QDir>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

namespace {

const char connectionName[] = "author";
const int longestPinyin = 11;
const int mostRows = 256;
const int pageSize = 5;

typedef QList<QByteArray> Row;

// How a dictionary is made: a letter each in the line of flags.
struct Setting
{
    char flag;
    const char *statement;
};
const Setting settings[] = {
    { 'i', "CREATE INDEX py_index ON pinyin (py)" },
    { 'u', "CREATE UNIQUE INDEX unique_index ON pinyin (py, word)" },
    { 'n', "ALTER TABLE pinyin RENAME COLUMN py TO \"p y\"" },
    { 'q', "ALTER TABLE pinyin RENAME COLUMN word TO \"a\"\"b\"" },
    { 'c', "ALTER TABLE pinyin ADD COLUMN more DEFAULT 'x'" },
    { 'd', "DELETE FROM pinyin WHERE rowid % 2 = 0" },
    { 'v', "CREATE VIEW words AS SELECT * FROM pinyin" },
};

QVariant valueOf(const QByteArray &bytes)
{
    if (bytes.isEmpty())
        return QVariant(); // NULL
    const QString text = QString::fromUtf8(bytes);
    return text.toUtf8() == bytes ? QVariant(text) : QVariant(bytes);
}

void makeDictionary(const QByteArray &flags, const QList<Row> &rows)
{
    {
        QSqlDatabase database =
            QSqlDatabase::addDatabase(QLatin1String("QSQLITE"), QLatin1String(connectionName));
        database.setDatabaseName(DictionaryFile::path());
        promise(database.open(), "a disk", database.lastError().text());
        QSqlQuery query(database);
        query.exec(QLatin1String("PRAGMA journal_mode = OFF"));
        query.exec(QLatin1String("PRAGMA synchronous = OFF"));
        query.exec(QLatin1String("BEGIN"));
        query.exec(QLatin1String("CREATE TABLE pinyin (py, word)"));
        query.prepare(QLatin1String("INSERT INTO pinyin VALUES (?, ?)"));
        for (const Row &row : rows) {
            query.addBindValue(valueOf(row.value(0)));
            query.addBindValue(valueOf(row.value(1)));
            query.exec();
        }
        for (const Setting &setting : settings) {
            if (flags.contains(setting.flag))
                query.exec(QLatin1String(setting.statement)); // fails where rows are not unique
        }
        promise(query.exec(QLatin1String("COMMIT")), "a commit", query.lastError().text());
    }
    QSqlDatabase::removeDatabase(QLatin1String(connectionName));
}

// The candidates that a plain query finds; none where it fails.
QStringList candidatesOf(const QString &pinyin)
{
    QStringList candidates;
    {
        QSqlDatabase database =
            QSqlDatabase::addDatabase(QLatin1String("QSQLITE"), QLatin1String(connectionName));
        database.setDatabaseName(DictionaryFile::path());
        database.open();
        QSqlQuery query(database);
        query.exec(QString::fromLatin1("SELECT * FROM pinyin WHERE py == '%1'").arg(pinyin));
        for (int i = 0; i < mostRows && query.next(); ++i)
            candidates << query.value(1).toString();
    }
    QSqlDatabase::removeDatabase(QLatin1String(connectionName));
    return candidates;
}

// What an operator is to see who types \a pinyin: labels beyond the end of a list keep what they
// show, and none show anything where there is no list.
QStringList expectedLabels(const QString &pinyin)
{
    QStringList labels;
    for (int letters = 1; letters <= pinyin.size(); ++letters) {
        const QStringList candidates = candidatesOf(pinyin.left(letters));
        for (int i = 0; i < pageSize; ++i) {
            if (labels.size() <= i)
                labels << QString();
            if (candidates.isEmpty() || i < candidates.size())
                labels[i] = candidates.value(i);
        }
    }
    return labels;
}

void lookAtTheFile()
{
    const QString file = QDir::toNativeSeparators(DictionaryFile::path());
    try {
        const CheckReport report = checkDictionary(DictionaryFile::path());
        promise(report.rows >= report.keys, "no more keys than rows");
        for (const QString &finding : report.findings)
            promise(!finding.trimmed().isEmpty(), "a finding says something");
    } catch (const Failure &failure) {
        promise(failure.message.startsWith(file), "a failure names the file", failure.message);
        promise(failure.message.size() > file.size() + 2, "a failure has a reason",
                failure.message);
    }
}

// Types \a pinyin, turns pages and chooses; then English, which always works.
QStringList work(const QString &pinyin)
{
    DictionarySession session;
    session.type("CN");
    for (const QChar letter : pinyin)
        session.type(QString(letter));
    const QStringList shown = shownCandidates(candidatePanel(session.keypad()));
    session.type("> > <");
    tapCandidate(session.keypad(), 1);
    session.type("h Del");
    session.workInEnglish();
    const QString complaint = session.complaint();
    promise(complaint.isEmpty(), "an operator has nothing to complain about", complaint);
    return shown;
}

// The letters in \a text that a keypad composes.
QString typable(const QByteArray &text)
{
    QString letters;
    for (const char letter : text) {
        if (letter >= 'a' && letter <= 'z' && letters.size() < longestPinyin)
            letters += QLatin1Char(letter);
    }
    return letters.isEmpty() ? QString::fromLatin1("ni") : letters;
}

} // namespace

void DatabaseInput::readAsFile(const QByteArray &bytes)
{
    DictionaryFile file;
    file.setBytes(bytes);
    lookAtTheFile();
    work(QString::fromLatin1("ni"));
}

void DatabaseInput::readAsRows(const QByteArray &lines)
{
    DictionaryFile file;
    QList<QByteArray> texts = lines.split('\n');
    const QByteArray flags = texts.takeFirst();
    QList<Row> rows;
    for (const QByteArray &text : texts)
        rows << text.split('\t');
    makeDictionary(flags, rows);
    lookAtTheFile();
    const QString pinyin = typable(rows.value(0).value(0));
    const QStringList expected = expectedLabels(pinyin);
    const QStringList shown = work(pinyin);
    promise(shown == expected, "the right candidates", shown.join(QLatin1Char(' ')));
}
