// SPDX-License-Identifier: MIT
#include "DictionaryProgram.h"

#include <QtTest>

// Under which keys hmi-dictionary puts a word, and in which order.
class tst_hmi_dictionary_ranking : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keysOfAWord_data();
    void keysOfAWord();
    void noFurtherKeys();

    void order_data();
    void order();
    void initialsOfTwoLettersLeaveRoomForWords();
    void atMost200RowsAKey();
    void rowsOfAKeyStandTogetherInRankingOrder();

    void weightsCompareAcrossLists_data();
    void weightsCompareAcrossLists();
    void orderOfTheLists_data();
    void orderOfTheLists();
    void addedWordsLeaveTheOthersThere();
};

namespace {

// \a count different characters with this reading, the heaviest being U+4E00 + count.
QByteArray manyCharacters(int count, const QByteArray &reading)
{
    QByteArray list;
    for (int weight = 1; weight <= count; ++weight) {
        list += QString(QChar(0x4e00 + weight)).toUtf8() + '\t' + reading + '\t'
            + QByteArray::number(weight) + '\n';
    }
    return list;
}

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

} // namespace

void tst_hmi_dictionary_ranking::keysOfAWord_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<QStringList>("keys"); // all of them, in alphabetical order

    QTest::newRow("one syllable: whole and every beginning")
        << QByteArray("铸\tzhu\t1") << words("z zh zhu");
    QTest::newRow("one letter") << QByteArray("啊\ta\t1") << words("a");
    QTest::newRow("no vowel") << QByteArray("嗯\tng\t1") << words("n ng");
    QTest::newRow("two syllables: whole and initials, no beginnings")
        << QByteArray("主轴\tzhu zhou\t1") << words("zhuzhou zz");
    QTest::newRow("exactly 11 letters")
        << QByteArray("装床\tzhuang chuan\t1") << words("zc zhuangchuan");
    QTest::newRow("12 letters: initials only")
        << QByteArray("双床\tshuang chuang\t1") << words("sc");
    QTest::newRow("four syllables")
        << QByteArray("数控机床\tshu kong ji chuang\t1") << words("skjc");
    QTest::newRow("11 syllables: initials of 11 letters")
        << QByteArray("一二三四五六七八九十百\tyi er san si wu liu qi ba jiu shi bai\t1")
        << words("yesswlqbjsb");
    QTest::newRow("syllable without consonant") << QByteArray("西安\txi an\t1") << words("xa xian");
    QTest::newRow("ü typed v") << QByteArray("绿\tlü\t1") << words("l lv");
    QTest::newRow("v stays v") << QByteArray("女\tnv\t1") << words("n nv");
    QTest::newRow("capitals") << QByteArray("铝\tLV\t1") << words("l lv");
    QTest::newRow("lue is a spelling of lve")
        << QByteArray("略\tlue\t1") << words("l lu lue lv lve");
    QTest::newRow("lve is also typed lue")
        << QByteArray("侵略\tqin lve\t1") << words("qinlue qinlve ql");
    QTest::newRow("nue is a spelling of nve")
        << QByteArray("虐\tnue\t1") << words("n nu nue nv nve");
    QTest::newRow("lu e is two syllables") << QByteArray("鹿鹅\tlu e\t1") << words("le lue");
}

void tst_hmi_dictionary_ranking::keysOfAWord()
{
    QFETCH(QByteArray, entry);
    QFETCH(QStringList, keys);
    Workshop workshop;
    const ProgramRun run = workshop.make(entry + '\n');
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.status, 0);
    QCOMPARE(workshop.query(u("SELECT DISTINCT py FROM pinyin ORDER BY py")), keys);
}

void tst_hmi_dictionary_ranking::noFurtherKeys()
{
    Workshop workshop;
    QCOMPARE(workshop.make("主轴\tzhu zhou\t1\n").status, 0);
    QCOMPARE(workshop.query(u("SELECT py, word FROM pinyin")),
             (QStringList() << u("zhuzhou 主轴") << u("zz 主轴")));
}

void tst_hmi_dictionary_ranking::order_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<QStringList>("candidates");

    QTest::newRow("kind of match, then weight") << u("de")
                                                << QByteArray("登\tdeng\t900\n"
                                                              "等\tdeng\t950\n"
                                                              "大鹅\tda e\t500\n"
                                                              "定额\tding e\t600\n"
                                                              "地\tde\t1\n"
                                                              "的\tde\t7\n")
                                                << words("的 地 定额 大鹅 等 登");
    QTest::newRow("equal weights in the order of reading")
        << u("ba") << QByteArray("丙\tba\t5\n甲\tba\t5\n乙\tba\t5\n丁\tba\t6\n")
        << words("丁 丙 甲 乙");
    QTest::newRow("the same entry twice")
        << u("de") << QByteArray("地\tde\t3\n地\tde\t8\n得\tde\t5\n") << words("地 得");
    QTest::newRow("two readings with the same beginning")
        << u("d") << QByteArray("地\tde\t8\n得\tde\t5\n得\tdei\t9\n") << words("得 地");
    QTest::newRow("zh is an initial")
        << u("zh") << QByteArray("最后\tzui hou\t9\n这\tzhe\t1\n中\tzhong\t2\n")
        << words("中 这 最后");
    QTest::newRow("ch is an initial")
        << u("ch") << QByteArray("才会\tcai hui\t9\n吃\tchi\t1\n") << words("吃 才会");
    QTest::newRow("sh is an initial")
        << u("sh") << QByteArray("时候\tshi hou\t9\n是\tshi\t1\n") << words("是 时候");
    QTest::newRow("zhe is none: whole, initials, beginnings")
        << u("zhe") << QByteArray("真\tzhen\t9\n组合额\tzu he e\t5\n这\tzhe\t1\n")
        << words("这 组合额 真");
    QTest::newRow("zho is none: initials before beginnings")
        << u("zho") << QByteArray("中\tzhong\t9\n组合哦\tzu he o\t1\n") << words("组合哦 中");
    QTest::newRow("dd is none: initials alone")
        << u("dd") << QByteArray("等\tdeng\t9\n等到\tdeng dao\t1\n") << words("等到");
    QTest::newRow("an interjection of one letter is a beginning like others")
        << u("n") << QByteArray("嗯\tn\t5\n唔\tng\t3\n你\tni\t9\n年\tnian\t4\n")
        << words("你 嗯 年 唔");
    QTest::newRow("an interjection of two letters follows words")
        << u("ng") << QByteArray("嗯\tng\t9\n能够\tneng gou\t1\n") << words("能够 嗯");
    QTest::newRow("a vowel alone is a whole pinyin")
        << u("a") << QByteArray("爱\tai\t9\n啊\ta\t1\n") << words("啊 爱");
    QTest::newRow("ü is a vowel") << u("lv") << QByteArray("略\tlve\t9\n绿\tlv\t1\n")
                                  << words("绿 略");
}

void tst_hmi_dictionary_ranking::order()
{
    QFETCH(QString, key);
    QFETCH(QByteArray, list);
    QFETCH(QStringList, candidates);
    Workshop workshop;
    QCOMPARE(workshop.make(list).status, 0);
    QCOMPARE(workshop.candidates(key), candidates);
}

void tst_hmi_dictionary_ranking::initialsOfTwoLettersLeaveRoomForWords()
{
    Workshop workshop;
    QCOMPARE(
        workshop.make(manyCharacters(300, "zhi") + "最后\tzui hou\t2\n综合\tzong he\t1\n").status,
        0);
    const QStringList candidates = workshop.candidates(u("zh"));
    QCOMPARE(candidates.size(), 102);
    QCOMPARE(candidates.at(99), QString(QChar(0x4e00 + 201)));
    QCOMPARE(candidates.mid(100), words("最后 综合"));
}

void tst_hmi_dictionary_ranking::atMost200RowsAKey()
{
    Workshop workshop;
    QCOMPARE(workshop.make(manyCharacters(300, "ba")).status, 0);
    const QStringList keys = words("b ba");
    for (const QString &key : keys) {
        const QStringList candidates = workshop.candidates(key);
        QCOMPARE(candidates.size(), 200);
        QCOMPARE(candidates.first(), QString(QChar(0x4e00 + 300)));
        QCOMPARE(candidates.last(), QString(QChar(0x4e00 + 101)));
    }
}

void tst_hmi_dictionary_ranking::rowsOfAKeyStandTogetherInRankingOrder()
{
    Workshop workshop;
    QCOMPARE(workshop.make("八\tba\t3\n白\tbai\t9\n吧\tba\t5\n").status, 0);
    const QStringList rows = workshop.query(u("SELECT py, word FROM pinyin ORDER BY rowid"));
    QCOMPARE(rows.join(u(", ")), u("b 白, b 吧, b 八, ba 吧, ba 八, ba 白, bai 白"));
}

void tst_hmi_dictionary_ranking::weightsCompareAcrossLists_data()
{
    QTest::addColumn<QStringList>("lists");

    QTest::newRow("general words") << words("--words one.tsv --words two.tsv");
    QTest::newRow("added words") << words("--words other.tsv --add one.tsv --add two.tsv");
}

void tst_hmi_dictionary_ranking::weightsCompareAcrossLists()
{
    QFETCH(QStringList, lists);
    Workshop workshop;
    workshop.write("one.tsv", "甲\tba\t1\n乙\tba\t9\n");
    workshop.write("two.tsv", "丙\tba\t5\n");
    workshop.write("other.tsv", "九\tjiu\t1\n");
    QCOMPARE(workshop.run(words("--no-machine-tool-words") + lists).status, 0);
    QCOMPARE(workshop.candidates(u("ba")), words("乙 丙 甲"));
}

void tst_hmi_dictionary_ranking::orderOfTheLists_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QStringList>("candidates");

    QTest::newRow("whole pinyin") << u("daoju") << words("刀距 刀具 道具");
    QTest::newRow("initials") << u("dj") << words("刀距 刀具 道具");
    QTest::newRow("no list passes another kind of match") << u("de") << words("的 定额 等");
    QTest::newRow("nor where the key is an initial") << u("ch") << words("吃 淬火 才会");
    QTest::newRow("a word of two lists stands in the place of the first")
        << u("zhuzhou") << words("主轴 株洲");
}

void tst_hmi_dictionary_ranking::orderOfTheLists()
{
    QFETCH(QString, key);
    QFETCH(QStringList, candidates);
    Workshop workshop;
    workshop.write("own.tsv", "刀距\tdao ju\t1\n主轴\tzhu zhou\t1\n");
    workshop.write("tools.tsv", "刀具\tdao ju\t5\n定额\tding e\t999\n淬火\tcui huo\t5\n");
    workshop.write("general.tsv",
                   "道具\tdao ju\t1877\n的\tde\t1\n等\tdeng\t5\n吃\tchi\t1\n"
                   "才会\tcai hui\t9\n株洲\tzhu zhou\t9\n主轴\tzhu zhou\t3\n");
    QCOMPARE(workshop.run(words("--words general.tsv --machine-tool-words tools.tsv --add own.tsv"))
                 .status,
             0);
    QCOMPARE(workshop.candidates(key), candidates);
}

void tst_hmi_dictionary_ranking::addedWordsLeaveTheOthersThere()
{
    const QString allRows = u("SELECT py, word FROM pinyin");
    const QStringList added = u("j 九,ji 九,jiu 九,xz X轴,xzhou X轴").split(QLatin1Char(','));
    Workshop workshop;
    workshop.write("general.tsv", "八\tba\t3\n主轴\tzhu zhou\t1\n");
    workshop.write("own.tsv", "X轴\tx zhou\t1\n");
    workshop.write("more.tsv", "九\tjiu\t1\n");
    const QStringList general = words("--words general.tsv --no-machine-tool-words");
    QCOMPARE(workshop.run(general).status, 0);
    const QStringList before = workshop.query(allRows);
    QCOMPARE(workshop.run(general + words("--add own.tsv --add more.tsv")).status, 0);
    const QStringList after = workshop.query(allRows);
    QCOMPARE(sorted(after), sorted(before + added));
}

QTEST_GUILESS_MAIN(tst_hmi_dictionary_ranking)
#include "tst_hmi_dictionary_ranking.moc"
