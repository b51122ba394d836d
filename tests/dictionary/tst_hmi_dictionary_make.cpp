// SPDX-License-Identifier: MIT
#include "DictionaryProgram.h"

#include <QtTest>

/*! What hmi-dictionary makes of word lists: keys, ranking, file and summary. */
class tst_hmi_dictionary_make : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keysOfAWord_data();
    void keysOfAWord();
    void noFurtherKeys();
    void ranksByKindOfMatchThenWeight();
    void equalWeightsKeepTheOrderOfReading();
    void weightsCompareAcrossLists();
    void machineToolWordsRankAboveHeavierOnes();
    void machineToolWordsNeverPassAnotherKindOfMatch();
    void noCandidateTwiceUnderAKey();
    void atMost200RowsAKey();
    void rowsOfAKeyStandTogetherInRankingOrder();

    void acceptedForms_data();
    void acceptedForms();
    void malformedLinesAreNamedAndSkipped_data();
    void malformedLinesAreNamedAndSkipped();
    void onlyTheFirstMalformedLinesAreNamed();

    void tableAndIndex();
    void theLookupUsesTheIndex();
    void fileIsCompact();
    void sameInputSameBytes();
    void replacesAnOldFile();
    void leavesNothingButTheDictionary();
    void fileIsReadableByOthers();
    void summary();
    void noProgressWithoutATerminal();
    void help();
    void version();
};

void tst_hmi_dictionary_make::keysOfAWord_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<QStringList>("keys"); // all of them, in alphabetical order

    QTest::newRow("one syllable: whole and every beginning")
        << QByteArray("铸\tzhu\t1") << QStringList { "z", "zh", "zhu" };
    QTest::newRow("one letter") << QByteArray("啊\ta\t1") << QStringList { "a" };
    QTest::newRow("two syllables: whole and initials, no beginnings")
        << QByteArray("主轴\tzhu zhou\t1") << QStringList { "zhuzhou", "zz" };
    QTest::newRow("exactly 11 letters")
        << QByteArray("装床\tzhuang chuan\t1") << QStringList { "zc", "zhuangchuan" };
    QTest::newRow("12 letters: initials only")
        << QByteArray("双床\tshuang chuang\t1") << QStringList { "sc" };
    QTest::newRow("数控机床") << QByteArray("数控机床\tshu kong ji chuang\t1")
                              << QStringList { "skjc" };
    QTest::newRow("11 syllables: initials of 11 letters")
        << QByteArray("一二三四五六七八九十百\tyi er san si wu liu qi ba jiu shi bai\t1")
        << QStringList { "yesswlqbjsb" };
    QTest::newRow("syllable without consonant")
        << QByteArray("西安\txi an\t1") << QStringList { "xa", "xian" };
    QTest::newRow("ü typed v") << QByteArray("绿\tlü\t1") << QStringList { "l", "lv" };
    QTest::newRow("v stays v") << QByteArray("女\tnv\t1") << QStringList { "n", "nv" };
    QTest::newRow("capitals") << QByteArray("铝\tLV\t1") << QStringList { "l", "lv" };
    QTest::newRow("lue is a spelling of lve")
        << QByteArray("略\tlue\t1") << QStringList { "l", "lu", "lue", "lv", "lve" };
    QTest::newRow("lve is also typed lue")
        << QByteArray("侵略\tqin lve\t1") << QStringList { "qinlue", "qinlve", "ql" };
    QTest::newRow("lu e is two syllables")
        << QByteArray("鹿鹅\tlu e\t1") << QStringList { "le", "lue" };
}

void tst_hmi_dictionary_make::keysOfAWord()
{
    QFETCH(QByteArray, entry);
    QFETCH(QStringList, keys);
    Workshop workshop;
    const ProgramRun run = workshop.make(entry + '\n');
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.status, 0);
    QCOMPARE(workshop.query("data.db", "SELECT DISTINCT py FROM pinyin ORDER BY py"), keys);
}

void tst_hmi_dictionary_make::noFurtherKeys()
{
    Workshop workshop;
    QCOMPARE(workshop.make("主轴\tzhu zhou\t1\n").status, 0);
    QCOMPARE(workshop.query("data.db", "SELECT py, word FROM pinyin"),
             (QStringList { "zhuzhou 主轴", "zz 主轴" }));
}

void tst_hmi_dictionary_make::ranksByKindOfMatchThenWeight()
{
    Workshop workshop;
    QCOMPARE(workshop
                 .make("登\tdeng\t900\n" // "de" is a beginning of it
                       "等\tdeng\t950\n"
                       "大鹅\tda e\t500\n" // "de" are its initials
                       "定额\tding e\t600\n"
                       "地\tde\t1\n" // "de" is its whole pinyin
                       "的\tde\t7\n")
                 .status,
             0);
    QCOMPARE(workshop.candidates("data.db", "de"),
             (QStringList { "的", "地", "定额", "大鹅", "等", "登" }));
}

void tst_hmi_dictionary_make::equalWeightsKeepTheOrderOfReading()
{
    Workshop workshop;
    QCOMPARE(workshop.make("丙\tba\t5\n甲\tba\t5\n乙\tba\t5\n丁\tba\t6\n").status, 0);
    QCOMPARE(workshop.candidates("data.db", "ba"), (QStringList { "丁", "丙", "甲", "乙" }));
}

void tst_hmi_dictionary_make::weightsCompareAcrossLists()
{
    Workshop workshop;
    workshop.write("one.tsv", "甲\tba\t1\n乙\tba\t9\n");
    workshop.write("two.tsv", "丙\tba\t5\n");
    QCOMPARE(workshop.run({ "--no-machine-tool-words", "--words", "one.tsv", "--words", "two.tsv" })
                 .status,
             0);
    QCOMPARE(workshop.candidates("data.db", "ba"), (QStringList { "乙", "丙", "甲" }));
}

void tst_hmi_dictionary_make::machineToolWordsRankAboveHeavierOnes()
{
    Workshop workshop;
    workshop.write("own.tsv", "刀具\tdao ju\t1\n");
    workshop.write("general.tsv", "道具\tdao ju\t1877\n");
    QCOMPARE(workshop.run({ "--machine-tool-words", "own.tsv", "--words", "general.tsv" }).status,
             0);
    QCOMPARE(workshop.candidates("data.db", "daoju"), (QStringList { "刀具", "道具" }));
    QCOMPARE(workshop.candidates("data.db", "dj"), (QStringList { "刀具", "道具" }));
}

void tst_hmi_dictionary_make::machineToolWordsNeverPassAnotherKindOfMatch()
{
    Workshop workshop;
    workshop.write("own.tsv", "定额\tding e\t999\n");
    workshop.write("general.tsv", "的\tde\t1\n等\tdeng\t5\n");
    QCOMPARE(workshop.run({ "--machine-tool-words", "own.tsv", "--words", "general.tsv" }).status,
             0);
    QCOMPARE(workshop.candidates("data.db", "de"), (QStringList { "的", "定额", "等" }));
}

void tst_hmi_dictionary_make::noCandidateTwiceUnderAKey()
{
    Workshop workshop;
    QCOMPARE(workshop
                 .make("地\tde\t3\n地\tde\t8\n得\tde\t5\n" // the same entry twice
                       "得\tdei\t9\n"                      // another reading begins with "de"
                       )
                 .status,
             0);
    QCOMPARE(workshop.candidates("data.db", "de"), (QStringList { "地", "得" }));
    QCOMPARE(workshop.candidates("data.db", "d"), (QStringList { "得", "地" }));
}

void tst_hmi_dictionary_make::atMost200RowsAKey()
{
    QByteArray list;
    for (int weight = 1; weight <= 300; ++weight) {
        list +=
            QString(QChar(0x4e00 + weight)).toUtf8() + "\tba\t" + QByteArray::number(weight) + '\n';
    }
    Workshop workshop;
    QCOMPARE(workshop.make(list).status, 0);
    const QStringList candidates = workshop.candidates("data.db", "ba");
    QCOMPARE(candidates.size(), 200);
    QCOMPARE(candidates.first(), QString(QChar(0x4e00 + 300)));
    QCOMPARE(candidates.last(), QString(QChar(0x4e00 + 101)));
}

void tst_hmi_dictionary_make::rowsOfAKeyStandTogetherInRankingOrder()
{
    Workshop workshop;
    QCOMPARE(workshop.make("八\tba\t3\n白\tbai\t9\n吧\tba\t5\n").status, 0);
    QCOMPARE(workshop.query("data.db", "SELECT py, word FROM pinyin ORDER BY rowid"),
             (QStringList { "b 白", "b 吧", "b 八", "ba 吧", "ba 八", "ba 白", "bai 白" }));
}

void tst_hmi_dictionary_make::acceptedForms_data()
{
    QTest::addColumn<QByteArray>("list");

    QTest::newRow("plain") << QByteArray("八\tba\t1\n");
    QTest::newRow("no line end at the end") << QByteArray("八\tba\t1");
    QTest::newRow("line ends with carriage return") << QByteArray("八\tba\t1\r\n");
    QTest::newRow("byte order mark") << QByteArray("\xef\xbb\xbf八\tba\t1\n");
    QTest::newRow("comments and empty lines") << QByteArray("# 九\tjiu\t1\n\n  \n八\tba\t1\n");
    QTest::newRow("header") << QByteArray("# list\n---\nname: x\tba\t1\n...\n\n八\tba\t1\n");
    QTest::newRow("further columns") << QByteArray("八\tba\t1\tx\n");
    QTest::newRow("blanks around columns") << QByteArray(" 八 \t ba \t 1 \n");
    QTest::newRow("line of 4096 bytes") << "八\tba\t1\t" + QByteArray(4096 - 10, 'x') + '\n';
    QTest::newRow("weight 0") << QByteArray("八\tba\t0\n");
}

void tst_hmi_dictionary_make::acceptedForms()
{
    QFETCH(QByteArray, list);
    Workshop workshop;
    const ProgramRun run = workshop.make(list);
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.status, 0);
    QCOMPARE(workshop.query("data.db", "SELECT py, word FROM pinyin"),
             (QStringList { "b 八", "ba 八" }));
}

void tst_hmi_dictionary_make::malformedLinesAreNamedAndSkipped_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("reason");

    const QString columns = "fewer than three columns";
    const QString letters = "syllables with other than letters";
    const QString number = "weight that is no whole number from 0";
    QTest::newRow("one column") << QByteArray("九") << columns;
    QTest::newRow("two columns") << QByteArray("九\tjiu") << columns;
    QTest::newRow("blanks for tabs") << QByteArray("九 jiu 1") << columns;
    QTest::newRow("no word") << QByteArray("\tjiu\t1") << "no word";
    QTest::newRow("no syllables") << QByteArray("九\t\t1") << letters;
    QTest::newRow("tone number") << QByteArray("九\tjiu3\t1") << letters;
    QTest::newRow("tone mark") << QByteArray("九\tjiǔ\t1") << letters;
    QTest::newRow("apostrophe") << QByteArray("西安\txi'an\t1") << letters;
    QTest::newRow("no weight") << QByteArray("九\tjiu\t") << number;
    QTest::newRow("words for weight") << QByteArray("九\tjiu\tmuch") << number;
    QTest::newRow("negative weight") << QByteArray("九\tjiu\t-1") << number;
    QTest::newRow("17 characters") << QByteArray("一二三四五六七八九十一二三四五六七\tyi er\t1")
                                   << "word of more than 16 characters";
    QTest::newRow("12 syllables") << QByteArray(
        "一二三四五六七八九十百千\tyi er san si wu liu qi ba jiu shi bai qian\t1")
                                  << "no key of at most 11 letters";
    QTest::newRow("one syllable of 12 letters")
        << QByteArray("九\tjiujiujiujiu\t1") << "no key of at most 11 letters";
}

void tst_hmi_dictionary_make::malformedLinesAreNamedAndSkipped()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, reason);
    Workshop workshop;
    const ProgramRun run = workshop.make("# a list\n八\tba\t1\n" + line + '\n');
    QCOMPARE(run.status, 0);
    QCOMPARE(run.errors, "hmi-dictionary: list.tsv:3: skipped: " + reason + '\n');
    QVERIFY2(run.output.contains("skipped lines: 1\n  " + reason + ": 1\n"),
             qPrintable(run.output));
    QCOMPARE(workshop.query("data.db", "SELECT DISTINCT word FROM pinyin"), QStringList("八"));
}

void tst_hmi_dictionary_make::onlyTheFirstMalformedLinesAreNamed()
{
    Workshop workshop;
    const ProgramRun run = workshop.make("八\tba\t1\n" + QByteArray("bad\n").repeated(50));
    QCOMPARE(run.errors.count('\n'), 21);
    QVERIFY(run.errors.endsWith("further skipped lines are only counted\n"));
    QVERIFY2(run.output.contains("skipped lines: 50\n"), qPrintable(run.output));
}

void tst_hmi_dictionary_make::tableAndIndex()
{
    Workshop workshop;
    QCOMPARE(workshop.make("八\tba\t1\n").status, 0);
    QCOMPARE(
        workshop.query("data.db", "SELECT type, name, tbl_name FROM sqlite_master ORDER BY type"),
        (QStringList { "index pinyin_py pinyin", "table pinyin pinyin" }));
    QCOMPARE(workshop.query("data.db", "SELECT cid, name, type FROM pragma_table_info('pinyin')"),
             (QStringList { "0 py TEXT", "1 word TEXT" }));
    QCOMPARE(workshop.query("data.db", "SELECT name FROM pragma_index_info('pinyin_py')"),
             QStringList("py"));
}

void tst_hmi_dictionary_make::theLookupUsesTheIndex()
{
    Workshop workshop;
    QCOMPARE(workshop.make("八\tba\t1\n").status, 0);
    const QStringList plan =
        workshop.query("data.db", "EXPLAIN QUERY PLAN SELECT * FROM pinyin WHERE py == 'ba'");
    QCOMPARE(plan.size(), 1);
    QVERIFY2(plan.first().contains("USING INDEX pinyin_py (py=?)"), qPrintable(plan.first()));
}

void tst_hmi_dictionary_make::fileIsCompact()
{
    Workshop workshop;
    QCOMPARE(workshop.make("八\tba\t1\n").status, 0);
    QCOMPARE(workshop.query("data.db", "PRAGMA freelist_count"), QStringList("0"));
    QCOMPARE(workshop.query("data.db", "PRAGMA integrity_check"), QStringList("ok"));
    QCOMPARE(workshop.bytes("data.db").size(), 3 * 4096);
}

void tst_hmi_dictionary_make::sameInputSameBytes()
{
    Workshop one, other;
    other.write("data.db", "an older file");
    QByteArray list;
    for (int i = 0; i < 3000; ++i) {
        list +=
            QString(QChar(0x4e00 + i)).toUtf8() + "\tba ba\t" + QByteArray::number(i % 7) + '\n';
    }
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
    QCOMPARE(workshop.query("data.db", "SELECT DISTINCT word FROM pinyin"), QStringList("九"));
}

void tst_hmi_dictionary_make::leavesNothingButTheDictionary()
{
    Workshop workshop;
    workshop.write("list.tsv", "八\tba\t1\n");
    QCOMPARE(workshop.run({ "--words", "list.tsv", "--output", "other.db" }).status, 0);
    QCOMPARE(workshop.names(), (QStringList { "list.tsv", "other.db" }));
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
             QString("data.db: %1 bytes\n"
                     "entries read: 3\n"
                     "keys: 7\n"
                     "rows: 7\n"
                     "skipped lines: 1\n"
                     "  fewer than three columns: 1\n")
                 .arg(workshop.bytes("data.db").size()));
}

void tst_hmi_dictionary_make::noProgressWithoutATerminal()
{
    Workshop workshop;
    const ProgramRun run = workshop.make("八\tba\t1\n");
    QCOMPARE(run.errors, QString());
    QVERIFY(!run.output.contains('%'));
}

void tst_hmi_dictionary_make::help()
{
    Workshop workshop;
    const ProgramRun run = workshop.run({ "--help" });
    QCOMPARE(run.status, 0);
    QCOMPARE(run.errors, QString());
    for (const char *option : { "--words", "--machine-tool-words", "--no-machine-tool-words",
                                "--output", "--check", "Exit status" }) {
        QVERIFY2(run.output.contains(option), option);
    }
    QVERIFY(workshop.names().isEmpty());
}

void tst_hmi_dictionary_make::version()
{
    Workshop workshop;
    const ProgramRun run = workshop.run({ "--version" });
    QCOMPARE(run.status, 0);
    QVERIFY2(
        QRegularExpression("^hmi-dictionary \\d+\\.\\d+\\.\\d+\n$").match(run.output).hasMatch(),
        qPrintable(run.output));
}

QTEST_GUILESS_MAIN(tst_hmi_dictionary_make)
#include "tst_hmi_dictionary_make.moc"
