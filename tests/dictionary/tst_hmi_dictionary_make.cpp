// SPDX-License-Identifier: MIT
#include "DictionaryProgram.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QtTest>

// The file that hmi-dictionary makes, where it puts it and what it says about it.
class tst_hmi_dictionary_make : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tableAndIndex();
    void theLookupUsesTheIndex();
    void fileIsCompact();
    void sameInputSameBytes();
    void replacesAnOldFile();
    void replacesTheFileALinkLeadsTo();
    void makesTheFileALinkLeadsTo();
    void linkThatLeadsBackFromItsTruePlace();
    void leavesNothingButTheDictionary();
    void namesAFolderThatIsLeft();
    void foldersOfOthersAreNotNamed();
    void fileIsReadableByOthers();
    void summary();
    void help();
    void version();
};

void tst_hmi_dictionary_make::tableAndIndex()
{
    Workshop workshop;
    QCOMPARE(workshop.make("八\tba\t1\n").status, 0);
    const QStringList parts =
        workshop.query(u("SELECT type, name, tbl_name FROM sqlite_master ORDER BY type"));
    QCOMPARE(parts.join(u(", ")), u("index pinyin_py pinyin, table pinyin pinyin"));
    const QStringList columns =
        workshop.query(u("SELECT cid, name, type FROM pragma_table_info('pinyin')"));
    QCOMPARE(columns.join(u(", ")), u("0 py TEXT, 1 word TEXT"));
    QCOMPARE(workshop.query(u("SELECT name FROM pragma_index_info('pinyin_py')")), words("py"));
}

void tst_hmi_dictionary_make::theLookupUsesTheIndex()
{
    Workshop workshop;
    QCOMPARE(workshop.make("八\tba\t1\n").status, 0);
    const QStringList plan =
        workshop.query(u("EXPLAIN QUERY PLAN SELECT * FROM pinyin WHERE py == 'ba'"));
    QCOMPARE(plan.size(), 1);
    QVERIFY2(plan.first().contains(u("USING INDEX pinyin_py (py=?)")), qPrintable(plan.first()));
}

void tst_hmi_dictionary_make::fileIsCompact()
{
    Workshop workshop;
    QCOMPARE(workshop.make("八\tba\t1\n").status, 0);
    QCOMPARE(workshop.query(u("PRAGMA freelist_count")), words("0"));
    QCOMPARE(workshop.query(u("PRAGMA integrity_check")), words("ok"));
    QCOMPARE(workshop.bytes("data.db").size(), 3 * 4096);
}

void tst_hmi_dictionary_make::sameInputSameBytes()
{
    Workshop one, other;
    other.write("data.db", "an older file");
    QByteArray list;
    for (int i = 0; i < 3000; ++i)
        list += QString(QChar(0x4e00 + i)).toUtf8() + "\tba\t" + QByteArray::number(i % 7) + '\n';
    QCOMPARE(one.make(list).status, 0);
    QCOMPARE(other.make(list).status, 0);
    QVERIFY(!one.bytes("data.db").isEmpty());
    QVERIFY(one.bytes("data.db") == other.bytes("data.db"));
}

void tst_hmi_dictionary_make::replacesAnOldFile()
{
    Workshop workshop;
    QCOMPARE(workshop.make("八\tba\t1\n").status, 0);
    QCOMPARE(workshop.make("九\tjiu\t1\n").status, 0);
    QCOMPARE(workshop.query(u("SELECT DISTINCT word FROM pinyin")), words("九"));
}

void tst_hmi_dictionary_make::replacesTheFileALinkLeadsTo()
{
    Workshop workshop;
    QVERIFY(QDir().mkdir(workshop.path("shared")));
    workshop.write("shared/real.db", "an older file");
    QVERIFY(QFile::link(u("shared/real.db"), workshop.path("middle.db")));
    QVERIFY(QFile::link(workshop.path("middle.db"), workshop.path("data.db")));
    const ProgramRun run = workshop.make("八\tba\t1\n");
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.status, 0);
    QCOMPARE(workshop.query(u("SELECT DISTINCT word FROM pinyin")), words("八"));
    QVERIFY(QFileInfo(workshop.path("data.db")).isSymLink());
    QVERIFY(QFileInfo(workshop.path("middle.db")).isSymLink());
    QVERIFY(!QFileInfo(workshop.path("shared/real.db")).isSymLink());
    QCOMPARE(QDir(workshop.path("shared")).entryList(QDir::Files), words("real.db"));
    QCOMPARE(workshop.names(), words("data.db list.tsv middle.db shared"));
}

void tst_hmi_dictionary_make::makesTheFileALinkLeadsTo()
{
    Workshop workshop;
    QVERIFY(QFile::link(u("real.db"), workshop.path("data.db")));
    QCOMPARE(workshop.make("八\tba\t1\n").status, 0);
    QVERIFY(QFileInfo(workshop.path("data.db")).isSymLink());
    QCOMPARE(workshop.names(), words("data.db list.tsv real.db"));
    QCOMPARE(workshop.query(u("SELECT DISTINCT word FROM pinyin")), words("八"));
}

// "current" leads to "releases/3", so that ".." leads from it to "releases".
void tst_hmi_dictionary_make::linkThatLeadsBackFromItsTruePlace()
{
    Workshop workshop;
    QVERIFY(QDir().mkpath(workshop.path("releases/3")));
    QVERIFY(QFile::link(u("releases/3"), workshop.path("current")));
    QVERIFY(QFile::link(u("../real.db"), workshop.path("current/data.db")));
    workshop.write("list.tsv", "八\tba\t1\n");
    const ProgramRun run = workshop.run(words("--words list.tsv --output current/data.db"));
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.status, 0);
    QVERIFY(QFileInfo(workshop.path("releases/real.db")).isFile());
    QVERIFY(QFileInfo(workshop.path("releases/3/data.db")).isSymLink());
    QCOMPARE(workshop.names(), words("current list.tsv releases"));
}

void tst_hmi_dictionary_make::leavesNothingButTheDictionary()
{
    Workshop workshop;
    workshop.write("list.tsv", "八\tba\t1\n");
    QCOMPARE(workshop.run(words("--words list.tsv --output other.db")).status, 0);
    QCOMPARE(workshop.names(), words("list.tsv other.db"));
}

void tst_hmi_dictionary_make::namesAFolderThatIsLeft()
{
    Workshop workshop;
    QVERIFY(QDir().mkpath(workshop.path("out/.data.db.hmi-dictionary-Ab12Cd")));
    workshop.write("list.tsv", "八\tba\t1\n");
    const ProgramRun run = workshop.run(words("--words list.tsv --output out/.data.db"));
    QCOMPARE(run.errors,
             u("hmi-dictionary: out/.data.db.hmi-dictionary-Ab12Cd: left by another run; delete "
               "this folder unless that run is still at work\n"));
    QCOMPARE(run.status, 0);
    QVERIFY(QFileInfo(workshop.path("out/.data.db.hmi-dictionary-Ab12Cd")).isDir());
}

void tst_hmi_dictionary_make::foldersOfOthersAreNotNamed()
{
    Workshop workshop;
    const QStringList folders = words("data.db.backup other.db.hmi-dictionary-Ab12Cd");
    for (const QString &folder : folders)
        QVERIFY(QDir(workshop.path("")).mkdir(folder));
    workshop.write("data.db.hmi-dictionary-file", "a file");
    QCOMPARE(workshop.make("八\tba\t1\n").errors, QString());
}

void tst_hmi_dictionary_make::fileIsReadableByOthers()
{
    Workshop workshop;
    workshop.write("plain", "x");
    QCOMPARE(workshop.make("八\tba\t1\n").status, 0);
    QCOMPARE(QFileInfo(workshop.path("data.db")).permissions(),
             QFileInfo(workshop.path("plain")).permissions());
}

void tst_hmi_dictionary_make::summary()
{
    Workshop workshop;
    const ProgramRun run = workshop.make("八\tba\t1\n九\tjiu\t1\n主轴\tzhu zhou\t1\nbad\n");
    QCOMPARE(run.output,
             u("data.db: %1 bytes\n"
               "entries read: 3\n"
               "keys: 7\n"
               "rows: 7\n"
               "skipped lines: 1\n"
               "  fewer than three columns: 1\n")
                 .arg(workshop.bytes("data.db").size()));
}

void tst_hmi_dictionary_make::help()
{
    Workshop workshop;
    const ProgramRun run = workshop.run(words("--help"));
    QCOMPARE(run.status, 0);
    QCOMPARE(run.errors, QString());
    const QStringList texts = words("--add --words --machine-tool-words --no-machine-tool-words "
                                    "--output --check link")
        << u("Exit status");
    for (const QString &text : texts)
        QVERIFY2(run.output.contains(text), qPrintable(text));
    QVERIFY(workshop.names().isEmpty());
}

void tst_hmi_dictionary_make::version()
{
    Workshop workshop;
    const ProgramRun run = workshop.run(words("--version"));
    QCOMPARE(run.status, 0);
    const QRegularExpression expected(u("^hmi-dictionary \\d+\\.\\d+\\.\\d+\n$"));
    QVERIFY2(expected.match(run.output).hasMatch(), qPrintable(run.output));
}

QTEST_GUILESS_MAIN(tst_hmi_dictionary_make)
#include "tst_hmi_dictionary_make.moc"
