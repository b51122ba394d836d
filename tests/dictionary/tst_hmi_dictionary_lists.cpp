// SPDX-License-Identifier: MIT
#include "DictionaryProgram.h"

#include <QtTest>

// What hmi-dictionary reads as an entry of a word list, and what it names and skips.
class tst_hmi_dictionary_lists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void acceptedForms_data();
    void acceptedForms();
    void syllablesThatFit_data();
    void syllablesThatFit();
    void malformedLinesAreNamedAndSkipped_data();
    void malformedLinesAreNamedAndSkipped();
    void onlyTheFirstMalformedLinesAreNamed();
};

void tst_hmi_dictionary_lists::acceptedForms_data()
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

void tst_hmi_dictionary_lists::acceptedForms()
{
    QFETCH(QByteArray, list);
    Workshop workshop;
    const ProgramRun run = workshop.make(list);
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.status, 0);
    QCOMPARE(workshop.query(u("SELECT py, word FROM pinyin")).join(u(", ")), u("b 八, ba 八"));
}

void tst_hmi_dictionary_lists::syllablesThatFit_data()
{
    QTest::addColumn<QByteArray>("entry");

    QTest::newRow("one for each character") << QByteArray("主轴箱\tzhu zhou xiang\t1");
    QTest::newRow("character beyond the basic plane") << QByteArray("𠀀\the\t1");
    QTest::newRow("zero as a character") << QByteArray("二〇\ter ling\t1");
    QTest::newRow("letter that is not typed") << QByteArray("X轴\tzhou\t1");
    QTest::newRow("letter that is typed") << QByteArray("X轴\tx zhou\t1");
    QTest::newRow("letter that is read out") << QByteArray("X轴\tai ke si zhou\t1");
    QTest::newRow("digits") << QByteArray("G54坐标系\tzuo biao xi\t1");
    QTest::newRow("punctuation") << QByteArray("米／分\tmi fen\t1");
    QTest::newRow("no Chinese character") << QByteArray("mm/min\thao mi mei fen\t1");
}

void tst_hmi_dictionary_lists::syllablesThatFit()
{
    QFETCH(QByteArray, entry);
    Workshop workshop;
    const ProgramRun run = workshop.make(entry + '\n');
    QCOMPARE(run.errors, QString());
    const QString word = u(entry.left(entry.indexOf('\t')).constData());
    QCOMPARE(workshop.query(u("SELECT DISTINCT word FROM pinyin")), QStringList(word));
}

void tst_hmi_dictionary_lists::malformedLinesAreNamedAndSkipped_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("reason");

    const QString columns = u("fewer than three columns");
    const QString letters = u("syllables with other than letters");
    const QString number = u("weight that is no whole number from 0");
    const QString fit = u("not one syllable for each Chinese character");
    QTest::newRow("one column") << QByteArray("九") << columns;
    QTest::newRow("two columns") << QByteArray("九\tjiu") << columns;
    QTest::newRow("blanks for tabs") << QByteArray("九 jiu 1") << columns;
    QTest::newRow("no word") << QByteArray("\tjiu\t1") << u("no word");
    QTest::newRow("control character in a word")
        << QByteArray("九\x07\tjiu\t1") << u("word that is not readable text");
    QTest::newRow("sign for an unreadable character")
        << QByteArray("\xef\xbf\xbd\tjiu\t1") << u("word that is not readable text");
    QTest::newRow("no syllables") << QByteArray("九\t\t1") << letters;
    QTest::newRow("tone number") << QByteArray("九\tjiu3\t1") << letters;
    QTest::newRow("tone mark") << QByteArray("九\tjiǔ\t1") << letters;
    QTest::newRow("character before a") << QByteArray("九\tji`u\t1") << letters;
    QTest::newRow("character behind z") << QByteArray("九\tjiu{\t1") << letters;
    QTest::newRow("apostrophe") << QByteArray("西安\txi'an\t1") << letters;
    QTest::newRow("no weight") << QByteArray("九\tjiu\t") << number;
    QTest::newRow("words for weight") << QByteArray("九\tjiu\tmuch") << number;
    QTest::newRow("negative weight") << QByteArray("九\tjiu\t-1") << number;
    QTest::newRow("17 characters") << QByteArray("一二三四五六七八九十一二三四五六七\tyi er\t1")
                                   << u("word of more than 16 characters");
    QTest::newRow("too few syllables") << QByteArray("主轴\tzhuzhou\t1") << fit;
    QTest::newRow("too many syllables") << QByteArray("主\tzhu zhou\t1") << fit;
    QTest::newRow("too few beside a letter") << QByteArray("X主轴\tzhou\t1") << fit;
    QTest::newRow("too many for a character beyond the basic plane")
        << QByteArray("𠀀\the he\t1") << fit;
    QTest::newRow("12 syllables") << QByteArray(
        "一二三四五六七八九十百千\tyi er san si wu liu qi ba jiu shi bai qian\t1")
                                  << u("no key of at most 11 letters");
    QTest::newRow("one syllable of 12 letters")
        << QByteArray("九\tjiujiujiujiu\t1") << u("no key of at most 11 letters");
}

void tst_hmi_dictionary_lists::malformedLinesAreNamedAndSkipped()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, reason);
    Workshop workshop;
    const ProgramRun run = workshop.make("# a list\n八\tba\t1\n" + line + '\n');
    QCOMPARE(run.status, 0);
    QCOMPARE(run.errors, u("hmi-dictionary: list.tsv:3: skipped: %1\n").arg(reason));
    QVERIFY2(run.output.contains(u("skipped lines: 1\n  %1: 1\n").arg(reason)),
             qPrintable(run.output));
    QCOMPARE(workshop.query(u("SELECT DISTINCT word FROM pinyin")), words("八"));
}

void tst_hmi_dictionary_lists::onlyTheFirstMalformedLinesAreNamed()
{
    Workshop workshop;
    const ProgramRun run = workshop.make("八\tba\t1\n" + QByteArray("bad\n").repeated(50));
    QCOMPARE(run.errors.count(u("\n")), 21);
    QVERIFY(run.errors.endsWith(u("further skipped lines are only counted\n")));
    QVERIFY2(run.output.contains(u("skipped lines: 50\n")), qPrintable(run.output));
}

QTEST_GUILESS_MAIN(tst_hmi_dictionary_lists)
#include "tst_hmi_dictionary_lists.moc"
