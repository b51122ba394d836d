// SPDX-License-Identifier: MIT
#include "DictionaryProgram.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QtTest>

/*! What hmi-dictionary --check finds in dictionaries that are good but for one thing. */
class tst_hmi_dictionary_check : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void goodDictionaries_data();
    void goodDictionaries();
    void findings_data();
    void findings();
    void allFindingsAtOnce();
    void missingIndexComesWithTheQueryTime();
    void examplesAreFewAndShort();
    void notADictionary_data();
    void notADictionary();
    void missingFile();
    void truncated();
    void indexThatDisagreesWithTheTable();
    void lockedByAWriter();
    void changesNothing();
};

/*! A dictionary with a candidate for every standard syllable, and \a statements run on it. */
static void makeDictionary(const Workshop &workshop, const QStringList &statements)
{
    QStringList all { "BEGIN", "CREATE TABLE pinyin (py TEXT, word TEXT)" };
    for (const QString &syllable : standardSyllables()) {
        all << QString("INSERT INTO pinyin VALUES ('%1', '字')").arg(syllable);
    }
    all << "CREATE INDEX pinyin_py ON pinyin (py)";
    workshop.execute("data.db", all + statements + QStringList("COMMIT"));
}

static ProgramRun check(const Workshop &workshop)
{
    return workshop.run({ "--check", "data.db" });
}

static QString rowsOf(const QString &key, int count)
{
    return QString("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %2) "
                   "INSERT INTO pinyin SELECT '%1', 'x' || i FROM n")
        .arg(key)
        .arg(count);
}

void tst_hmi_dictionary_check::goodDictionaries_data()
{
    QTest::addColumn<QStringList>("statements");

    QTest::newRow("plain") << QStringList();
    QTest::newRow("key of 11 letters")
        << QStringList("INSERT INTO pinyin VALUES ('abcdefghijk', '字')");
    QTest::newRow("256 rows for one key") << QStringList(rowsOf("zzz", 256));
    QTest::newRow("candidate of 16 characters beyond the basic plane")
        << QStringList("INSERT INTO pinyin VALUES ('x', replace(hex(zeroblob(8)), '0', '𠀀'))");
    QTest::newRow("further columns") << QStringList("ALTER TABLE pinyin ADD COLUMN weight INTEGER");
    QTest::newRow("second column of another name")
        << QStringList("ALTER TABLE pinyin RENAME COLUMN word TO \"the \"\"word\"\"\"");
    QTest::newRow("names in capitals")
        << QStringList { "ALTER TABLE pinyin RENAME TO p", "ALTER TABLE p RENAME TO PINYIN",
                         "ALTER TABLE PINYIN RENAME COLUMN py TO PY" };
    QTest::newRow("view on an indexed table")
        << QStringList { "ALTER TABLE pinyin RENAME TO words",
                         "CREATE VIEW pinyin AS SELECT py, word FROM words" };
}

void tst_hmi_dictionary_check::goodDictionaries()
{
    QFETCH(QStringList, statements);
    Workshop workshop;
    makeDictionary(workshop, statements);
    const ProgramRun run = check(workshop);
    QVERIFY2(run.output.endsWith("\nfindings: 0\n"), qPrintable(run.output));
    QCOMPARE(run.output.count('\n'), 2);
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.status, 0);
}

void tst_hmi_dictionary_check::findings_data()
{
    QTest::addColumn<QStringList>("statements");
    QTest::addColumn<QString>("finding");

    QTest::newRow("no table") << QStringList("ALTER TABLE pinyin RENAME TO words")
                              << "no table \"pinyin\"";
    QTest::newRow("one column") << QStringList { "DROP TABLE pinyin",
                                                 "CREATE TABLE pinyin (py TEXT)" }
                                << "no second column for the candidates";
    QTest::newRow("no column py") << QStringList("ALTER TABLE pinyin RENAME COLUMN py TO pinyin")
                                  << "the first column is \"pinyin\" where \"py\" is looked up";
    QTest::newRow("columns the wrong way round")
        << QStringList { "DROP TABLE pinyin", "CREATE TABLE pinyin (word TEXT, py TEXT)" }
        << "the first column is \"word\" where \"py\" is looked up";
    QTest::newRow("write-ahead log") // which cannot be chosen inside a transaction
        << QStringList { "COMMIT", "PRAGMA journal_mode = WAL", "BEGIN" }
        << "journal mode WAL: even readers leave files beside it";
    QTest::newRow("no index") << QStringList("DROP INDEX pinyin_py") << "no index on \"py\"";
    QTest::newRow("index on the other column")
        << QStringList { "DROP INDEX pinyin_py", "CREATE INDEX other ON pinyin (word, py)" }
        << "no index on \"py\"";
    QTest::newRow("index of another collation")
        << QStringList { "DROP INDEX pinyin_py",
                         "CREATE INDEX other ON pinyin (py COLLATE NOCASE)" }
        << "no index on \"py\"";
    QTest::newRow("capital in a key")
        << QStringList("INSERT INTO pinyin VALUES ('Ba', '八')")
        << "1 rows whose key has other than the letters a to z: Ba 八";
    QTest::newRow("tone in a key") << QStringList("INSERT INTO pinyin VALUES ('ba1', '八')")
                                   << "1 rows whose key has other than the letters a to z: ba1 八";
    QTest::newRow("ü in a key") << QStringList("INSERT INTO pinyin VALUES ('nü', '女')")
                                << "1 rows whose key has other than the letters a to z: nü 女";
    QTest::newRow("blank in a key")
        << QStringList("INSERT INTO pinyin VALUES ('zhu zhou', '主轴')")
        << "1 rows whose key has other than the letters a to z: zhu zhou 主轴";
    QTest::newRow("empty key") << QStringList("INSERT INTO pinyin VALUES ('', '八')")
                               << "1 rows whose key has other than the letters a to z: 八";
    QTest::newRow("NULL as key") << QStringList("INSERT INTO pinyin VALUES (NULL, '八')")
                                 << "1 rows whose key has other than the letters a to z: 八";
    QTest::newRow("12 letters") << QStringList("INSERT INTO pinyin VALUES ('abcdefghijkl', '字')")
                                << "1 rows whose key has more than 11 letters: abcdefghijkl 字";
    QTest::newRow("257 rows for one key")
        << QStringList(rowsOf("zzz", 257))
        << "1 keys with more than the 256 rows that the keypad reads: zzz";
    QTest::newRow("the same row twice")
        << QStringList("INSERT INTO pinyin VALUES ('ba', '字')")
        << "1 candidates that stand more than once under a key: ba 字";
    QTest::newRow("empty candidate") << QStringList("INSERT INTO pinyin VALUES ('ba', '')")
                                     << "1 rows with an empty candidate: ba";
    QTest::newRow("blank candidate") << QStringList("INSERT INTO pinyin VALUES ('ba', '  ')")
                                     << "1 rows with an empty candidate: ba";
    QTest::newRow("NULL candidate") << QStringList("INSERT INTO pinyin VALUES ('ba', NULL)")
                                    << "1 rows with an empty candidate: ba";
    QTest::newRow("17 characters")
        << QStringList("INSERT INTO pinyin VALUES ('ba', 'abcdefghijklmnopq')")
        << "1 rows with a candidate of more than 16 characters: ba abcdefghijklmnopq";
    QTest::newRow("invalid UTF-8")
        << QStringList("INSERT INTO pinyin VALUES ('ba', CAST(x'b0cb' AS TEXT))")
        << "1 rows with a candidate that is not readable text: ba ";
    QTest::newRow("line break") << QStringList(
        "INSERT INTO pinyin VALUES ('ba', 'a' || char(10) || 'b')")
                                << "1 rows with a candidate that is not readable text: ba a b";
    QTest::newRow("syllable without a candidate")
        << QStringList("DELETE FROM pinyin WHERE py IN ('nve', 'zhu')")
        << "2 standard syllables without a candidate: nve, zhu";
}

void tst_hmi_dictionary_check::findings()
{
    QFETCH(QStringList, statements);
    QFETCH(QString, finding);
    Workshop workshop;
    makeDictionary(workshop, statements);
    const ProgramRun run = check(workshop);
    QVERIFY2(run.output.startsWith(finding), qPrintable(run.output));
    QVERIFY2(run.output.endsWith("\nfindings: 1\n"), qPrintable(run.output));
    QCOMPARE(run.status, 1);
}

void tst_hmi_dictionary_check::allFindingsAtOnce()
{
    Workshop workshop;
    makeDictionary(workshop,
                   { "DROP INDEX pinyin_py", "DELETE FROM pinyin WHERE py = 'a'",
                     "INSERT INTO pinyin VALUES ('BA', '字')",
                     "INSERT INTO pinyin VALUES ('ba', '')" });
    const ProgramRun run = check(workshop);
    QVERIFY2(run.output.endsWith("\nfindings: 4\n"), qPrintable(run.output));
    QCOMPARE(run.output.count('\n'), 6);
}

void tst_hmi_dictionary_check::missingIndexComesWithTheQueryTime()
{
    Workshop workshop;
    makeDictionary(workshop, QStringList("DROP INDEX pinyin_py"));
    const QRegularExpression time("no index on \"py\": .* up to (\\d+\\.\\d+) ms");
    const QRegularExpressionMatch match = time.match(check(workshop).output);
    QVERIFY(match.hasMatch());
    QVERIFY(match.captured(1).toDouble() > 0);
}

void tst_hmi_dictionary_check::examplesAreFewAndShort()
{
    Workshop workshop;
    makeDictionary(workshop,
                   { "UPDATE pinyin SET py = upper(py)",
                     "INSERT INTO pinyin VALUES ('ba', hex(zeroblob(500000)))" });
    const ProgramRun run = check(workshop);
    QVERIFY2(run.output.startsWith("410 rows whose key has other than the letters a to z: "
                                   "A 字, AI 字, AN 字, ANG 字, AO 字, ...\n"),
             qPrintable(run.output));
    QVERIFY(run.output.size() < 1000);
}

void tst_hmi_dictionary_check::notADictionary_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("message");

    QTest::newRow("text") << QByteArray("八\tba\t1\n").repeated(100) << "file is not a database";
    QTest::newRow("zeros") << QByteArray(8192, '\0') << "file is not a database";
    QTest::newRow("empty") << QByteArray() << "no table \"pinyin\"";
}

void tst_hmi_dictionary_check::notADictionary()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, message);
    Workshop workshop;
    workshop.write("data.db", bytes);
    const ProgramRun run = check(workshop);
    QVERIFY2((run.errors + run.output).contains(message), qPrintable(run.errors + run.output));
    QCOMPARE(run.status, 1);
    QCOMPARE(workshop.bytes("data.db"), bytes);
}

void tst_hmi_dictionary_check::missingFile()
{
    Workshop workshop;
    const ProgramRun run = check(workshop);
    QCOMPARE(run.errors, QString("hmi-dictionary: data.db: no such file\n"));
    QCOMPARE(run.status, 1);
    QVERIFY(workshop.names().isEmpty());
}

void tst_hmi_dictionary_check::truncated()
{
    Workshop workshop;
    makeDictionary(workshop, QStringList(rowsOf("zzz", 200)));
    const QByteArray whole = workshop.bytes("data.db");
    QVERIFY(whole.size() > 3 * 4096);
    for (int size = 4096; size < whole.size(); size += 4096) {
        workshop.write("data.db", whole.left(size));
        QCOMPARE(check(workshop).status, 1);
    }
}

void tst_hmi_dictionary_check::indexThatDisagreesWithTheTable()
{
    Workshop workshop;
    makeDictionary(workshop, QStringList());
    QByteArray bytes = workshop.bytes("data.db");
    const int place = bytes.lastIndexOf("zhuo"); // in the index, which comes after the table
    QVERIFY(place > 0);
    bytes.replace(place, 4, "zzzz");
    workshop.write("data.db", bytes);
    const ProgramRun run = check(workshop);
    QVERIFY2(run.output.contains("the file is damaged: "), qPrintable(run.output));
    QCOMPARE(run.status, 1);
}

void tst_hmi_dictionary_check::lockedByAWriter()
{
    Workshop workshop;
    makeDictionary(workshop, QStringList());
    ProgramRun run;
    {
        QSqlDatabase writer = QSqlDatabase::addDatabase("QSQLITE", "writer");
        writer.setDatabaseName(workshop.path("data.db"));
        QVERIFY(writer.open());
        QVERIFY(QSqlQuery(writer).exec("BEGIN EXCLUSIVE"));
        run = check(workshop);
    }
    QSqlDatabase::removeDatabase("writer");
    QCOMPARE(run.errors, QString("hmi-dictionary: data.db: database is locked\n"));
    QCOMPARE(run.status, 1);
}

void tst_hmi_dictionary_check::changesNothing()
{
    Workshop workshop;
    makeDictionary(workshop, QStringList("DROP INDEX pinyin_py"));
    const QByteArray before = workshop.bytes("data.db");
    QCOMPARE(check(workshop).status, 1);
    QVERIFY(workshop.bytes("data.db") == before);
    QCOMPARE(workshop.names(), QStringList("data.db"));
}

QTEST_GUILESS_MAIN(tst_hmi_dictionary_check)
#include "tst_hmi_dictionary_check.moc"
