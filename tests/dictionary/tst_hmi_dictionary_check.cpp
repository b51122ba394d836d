// SPDX-License-Identifier: MIT
#include "DictionaryProgram.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QtTest>

// What hmi-dictionary --check finds in dictionaries that are good but for one thing.
class tst_hmi_dictionary_check : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void goodDictionaries_data();
    void goodDictionaries();
    void findings_data();
    void findings();
    void summary();
    void allFindingsAtOnce();
    void examplesAreFew();
    void examplesAreShort_data();
    void examplesAreShort();
    void notADictionary_data();
    void notADictionary();
    void notAFile_data();
    void notAFile();
    void truncated();
    void indexThatDisagreesWithTheTable();
    void lockedByAWriterIsSaidAtOnce();
    void changesNothing();
};

namespace {

const qint64 sqliteWait = 5000; // milliseconds, when nobody says otherwise

// The statements that \a utf8 holds.
QStringList sql(const char *utf8)
{
    return u(utf8).split(u("; "));
}

// A dictionary with a candidate for every standard syllable, and \a statements run on it.
void makeDictionary(const Workshop &workshop, const QStringList &statements)
{
    QStringList all = sql("BEGIN; CREATE TABLE pinyin (py TEXT, word TEXT)");
    const QStringList syllables = standardSyllables();
    for (const QString &syllable : syllables)
        all << u("INSERT INTO pinyin VALUES ('%1', '字')").arg(syllable);
    all << u("CREATE INDEX pinyin_py ON pinyin (py)");
    workshop.execute(all + statements + sql("COMMIT"));
}

ProgramRun check(const Workshop &workshop)
{
    return workshop.run(words("--check data.db"));
}

QStringList rowsOfOneKey(int count)
{
    return QStringList(
        u("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %1) "
          "INSERT INTO pinyin SELECT 'zzz', 'x' || i FROM n")
            .arg(count));
}

} // namespace

void tst_hmi_dictionary_check::goodDictionaries_data()
{
    QTest::addColumn<QStringList>("statements");

    QTest::newRow("plain") << QStringList();
    QTest::newRow("key of 11 letters") << sql("INSERT INTO pinyin VALUES ('abcdefghijk', '字')");
    QTest::newRow("256 rows for one key") << rowsOfOneKey(256);
    QTest::newRow("candidate of 16 characters beyond the basic plane")
        << sql("INSERT INTO pinyin VALUES ('x', replace(hex(zeroblob(8)), '0', '𠀀'))");
    QTest::newRow("further columns") << sql("ALTER TABLE pinyin ADD COLUMN weight INTEGER");
    QTest::newRow("second column of another name")
        << sql("ALTER TABLE pinyin RENAME COLUMN word TO \"the \"\"word\"\"\"");
    QTest::newRow("names in capitals") << sql("ALTER TABLE pinyin RENAME TO p; "
                                              "ALTER TABLE p RENAME TO PINYIN; "
                                              "ALTER TABLE PINYIN RENAME COLUMN py TO PY");
    QTest::newRow("view on an indexed table")
        << sql("ALTER TABLE pinyin RENAME TO words; "
               "CREATE VIEW pinyin AS SELECT py, word FROM words");
}

void tst_hmi_dictionary_check::goodDictionaries()
{
    QFETCH(QStringList, statements);
    Workshop workshop;
    makeDictionary(workshop, statements);
    const ProgramRun run = check(workshop);
    QVERIFY2(run.output.endsWith(u("\nfindings: 0\n")), qPrintable(run.output));
    QCOMPARE(run.output.count(QLatin1Char('\n')), 2);
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.status, 0);
}

void tst_hmi_dictionary_check::findings_data()
{
    QTest::addColumn<QStringList>("statements");
    QTest::addColumn<QString>("finding");

    QTest::newRow("no table") << sql("ALTER TABLE pinyin RENAME TO words")
                              << u("no table \"pinyin\"");
    QTest::newRow("one column") << sql("DROP TABLE pinyin; "
                                       "CREATE TABLE pinyin (py TEXT)")
                                << u("no second column for the candidates");
    QTest::newRow("no column py") << sql("ALTER TABLE pinyin RENAME COLUMN py TO pinyin")
                                  << u("the first column is \"pinyin\" where \"py\" is looked up");
    QTest::newRow("columns the wrong way round")
        << sql("DROP TABLE pinyin; "
               "CREATE TABLE pinyin (word TEXT, py TEXT)")
        << u("the first column is \"word\" where \"py\" is looked up");
    QTest::newRow("write-ahead log") // which cannot be chosen inside a transaction
        << sql("COMMIT; "
               "PRAGMA journal_mode = WAL; "
               "BEGIN")
        << u("journal mode WAL: even readers leave files beside it");
    QTest::newRow("no index") << sql("DROP INDEX pinyin_py")
                              << u("no index on \"py\": every letter typed reads all 410 rows\n");
    QTest::newRow("index on the other column")
        << sql("DROP INDEX pinyin_py; "
               "CREATE INDEX other ON pinyin (word, py)")
        << u("no index on \"py\": every letter typed reads all 410 rows\n");
    QTest::newRow("index of another collation")
        << sql("DROP INDEX pinyin_py; "
               "CREATE INDEX other ON pinyin (py COLLATE NOCASE)")
        << u("no index on \"py\": every letter typed reads all 410 rows\n");
    QTest::newRow("capital in a key")
        << sql("INSERT INTO pinyin VALUES ('Ba', '八')")
        << u("1 rows whose key has other than the letters a to z: Ba 八");
    QTest::newRow("tone in a key")
        << sql("INSERT INTO pinyin VALUES ('ba1', '八')")
        << u("1 rows whose key has other than the letters a to z: ba1 八");
    QTest::newRow("ü in a key") << sql("INSERT INTO pinyin VALUES ('nü', '女')")
                                << u("1 rows whose key has other than the letters a to z: nü 女");
    QTest::newRow("character before a in a key")
        << sql("INSERT INTO pinyin VALUES ('b`', '八')")
        << u("1 rows whose key has other than the letters a to z: b` 八");
    QTest::newRow("character behind z in a key")
        << sql("INSERT INTO pinyin VALUES ('b{', '八')")
        << u("1 rows whose key has other than the letters a to z: b{ 八");
    QTest::newRow("blank in a key")
        << sql("INSERT INTO pinyin VALUES ('zhu zhou', '主轴')")
        << u("1 rows whose key has other than the letters a to z: zhu zhou 主轴");
    QTest::newRow("empty key") << sql("INSERT INTO pinyin VALUES ('', '八')")
                               << u("1 rows whose key has other than the letters a to z: 八");
    QTest::newRow("NULL as key") << sql("INSERT INTO pinyin VALUES (NULL, '八')")
                                 << u("1 rows whose key has other than the letters a to z: 八");
    QTest::newRow("12 letters") << sql("INSERT INTO pinyin VALUES ('abcdefghijkl', '字')")
                                << u("1 rows whose key has more than 11 letters: abcdefghijkl 字");
    QTest::newRow("257 rows for one key")
        << rowsOfOneKey(257) << u("1 keys with more than the 256 rows that the keypad reads: zzz");
    QTest::newRow("the same row twice")
        << sql("INSERT INTO pinyin VALUES ('ba', '字')")
        << u("1 candidates that stand more than once under a key: ba 字");
    QTest::newRow("empty candidate")
        << sql("INSERT INTO pinyin VALUES ('ba', '')") << u("1 rows with an empty candidate: ba");
    QTest::newRow("blank candidate")
        << sql("INSERT INTO pinyin VALUES ('ba', '  ')") << u("1 rows with an empty candidate: ba");
    QTest::newRow("NULL candidate")
        << sql("INSERT INTO pinyin VALUES ('ba', NULL)") << u("1 rows with an empty candidate: ba");
    QTest::newRow("17 characters")
        << sql("INSERT INTO pinyin VALUES ('ba', 'abcdefghijklmnopq')")
        << u("1 rows with a candidate of more than 16 characters: ba abcdefghijklmnopq");
    QTest::newRow("invalid UTF-8") << sql("INSERT INTO pinyin VALUES ('ba', CAST(x'b0cb' AS TEXT))")
                                   << u("1 rows with a candidate that is not readable text: ba ");
    QTest::newRow("line break") << sql("INSERT INTO pinyin VALUES ('ba', 'a' || char(10) || 'b')")
                                << u("1 rows with a candidate that is not readable text: ba a b");
    QTest::newRow("syllable without a candidate")
        << sql("DELETE FROM pinyin WHERE py IN ('nve', 'zhu')")
        << u("2 standard syllables without a candidate: nve, zhu");
}

void tst_hmi_dictionary_check::findings()
{
    QFETCH(QStringList, statements);
    QFETCH(QString, finding);
    Workshop workshop;
    makeDictionary(workshop, statements);
    const ProgramRun run = check(workshop);
    QVERIFY2(run.output.startsWith(finding), qPrintable(run.output));
    QVERIFY2(run.output.endsWith(u("\nfindings: 1\n")), qPrintable(run.output));
    QCOMPARE(run.status, 1);
}

void tst_hmi_dictionary_check::summary()
{
    Workshop workshop;
    makeDictionary(workshop, rowsOfOneKey(3));
    QCOMPARE(check(workshop).output, u("data.db: keys: 411, rows: 413\nfindings: 0\n"));
}

void tst_hmi_dictionary_check::allFindingsAtOnce()
{
    Workshop workshop;
    makeDictionary(workshop,
                   sql("DROP INDEX pinyin_py; "
                       "DELETE FROM pinyin WHERE py = 'a'; "
                       "INSERT INTO pinyin VALUES ('BA', '字'); "
                       "INSERT INTO pinyin VALUES ('ba', '')"));
    const ProgramRun run = check(workshop);
    QVERIFY2(run.output.endsWith(u("\nfindings: 4\n")), qPrintable(run.output));
    QCOMPARE(run.output.count(QLatin1Char('\n')), 6);
}

void tst_hmi_dictionary_check::examplesAreFew()
{
    Workshop workshop;
    makeDictionary(workshop, sql("UPDATE pinyin SET py = upper(py)"));
    const ProgramRun run = check(workshop);
    QVERIFY2(run.output.startsWith(u("410 rows whose key has other than the letters a to z: "
                                     "A 字, AI 字, AN 字, ANG 字, AO 字, ...\n")),
             qPrintable(run.output));
}

void tst_hmi_dictionary_check::examplesAreShort_data()
{
    QTest::addColumn<QString>("candidate");
    QTest::addColumn<QString>("shown"); // behind the key "b" and a blank

    const QString digits = u("12345678901234567890123456789012345678");
    const QString rareCharacters = u("𠀀").repeated(19);
    QTest::newRow("40 characters") << digits << digits;
    QTest::newRow("41 characters") << digits + u("9") << digits + u("…");
    QTest::newRow("a megabyte") << digits + QString(1000000, QLatin1Char('0')) << digits + u("…");
    QTest::newRow("no half of a character")
        << u("1") + rareCharacters << u("1") + rareCharacters.left(36) + u("…");
}

void tst_hmi_dictionary_check::examplesAreShort()
{
    QFETCH(QString, candidate);
    QFETCH(QString, shown);
    Workshop workshop;
    makeDictionary(workshop,
                   QStringList(u("INSERT INTO pinyin VALUES ('b', '%1')").arg(candidate)));
    const QString output = check(workshop).output;
    QCOMPARE(output.section(QLatin1Char('\n'), 0, 0),
             u("1 rows with a candidate of more than 16 characters: b %1").arg(shown));
}

void tst_hmi_dictionary_check::notADictionary_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("message");

    QTest::newRow("text") << QByteArray("八\tba\t1\n").repeated(100) << u("file is not a database");
    QTest::newRow("zeros") << QByteArray(8192, '\0') << u("file is not a database");
    QTest::newRow("empty") << QByteArray() << u("no table \"pinyin\"");
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

void tst_hmi_dictionary_check::notAFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("message");

    QTest::newRow("missing") << u("data.db") << u("no such file");
    QTest::newRow("folder") << u("folder") << u("is a folder; a dictionary is a file");
    QTest::newRow("link to a folder") << u("link") << u("is a folder; a dictionary is a file");
    QTest::newRow("device") << u("/dev/null") << u("is no file that could be a dictionary");
}

void tst_hmi_dictionary_check::notAFile()
{
    QFETCH(QString, name);
    QFETCH(QString, message);
    Workshop workshop;
    QVERIFY(QDir().mkdir(workshop.path("folder")));
    QVERIFY(QFile::link(u("folder"), workshop.path("link")));
    const ProgramRun run = workshop.run(words("--check") + QStringList(name));
    QCOMPARE(run.errors, u("hmi-dictionary: %1: %2\n").arg(name, message));
    QCOMPARE(run.output, QString());
    QCOMPARE(run.status, 1);
    QCOMPARE(workshop.names(), words("folder link"));
}

void tst_hmi_dictionary_check::truncated()
{
    Workshop workshop;
    makeDictionary(workshop, rowsOfOneKey(200));
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
    QVERIFY2(run.output.contains(u("the file is damaged: ")), qPrintable(run.output));
    QCOMPARE(run.status, 1);
}

// SQLite's own wait is never shorter than five seconds, however fast the machine; without it one
// of three answers comes earlier, however slow.
void tst_hmi_dictionary_check::lockedByAWriterIsSaidAtOnce()
{
    Workshop workshop;
    makeDictionary(workshop, QStringList());
    qint64 quickest = sqliteWait;
    {
        QSqlDatabase writer = QSqlDatabase::addDatabase(u("QSQLITE"), u("writer"));
        writer.setDatabaseName(workshop.path("data.db"));
        QVERIFY(writer.open());
        QVERIFY(QSqlQuery(writer).exec(u("BEGIN EXCLUSIVE")));
        for (int attempt = 0; attempt < 3 && quickest >= sqliteWait; ++attempt) {
            QElapsedTimer timer;
            timer.start();
            const ProgramRun run = check(workshop);
            quickest = qMin(quickest, timer.elapsed());
            QCOMPARE(run.errors, u("hmi-dictionary: data.db: database is locked\n"));
            QCOMPARE(run.status, 1);
        }
    }
    QSqlDatabase::removeDatabase(u("writer"));
    QVERIFY(quickest < sqliteWait);
}

void tst_hmi_dictionary_check::changesNothing()
{
    Workshop workshop;
    makeDictionary(workshop, sql("DROP INDEX pinyin_py"));
    const QByteArray before = workshop.bytes("data.db");
    QCOMPARE(check(workshop).status, 1);
    QVERIFY(workshop.bytes("data.db") == before);
    QCOMPARE(workshop.names(), words("data.db"));
}

QTEST_GUILESS_MAIN(tst_hmi_dictionary_check)
#include "tst_hmi_dictionary_check.moc"
