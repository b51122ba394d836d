// SPDX-License-Identifier: MIT
#include "DictionaryProgram.h"

#include <QFile>
#include <QSet>
#include <QtTest>

// The words that are shipped, and the dictionary that people get from them and the general list.
class tst_hmi_dictionary_words : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void machineToolListIsWellFormed();
    void readingsOfMachineToolWords_data();
    void readingsOfMachineToolWords();
    void charactersHaveReadingsKnownToTheGeneralList();

    void everydayPinyin_data();
    void everydayPinyin();
    void shortKeys_data();
    void shortKeys();
    void wordsByInitialsFollow_data();
    void wordsByInitialsFollow();
    void ownWordsJoinTheGeneralOnes();
    void machineToolWordsComeFirst_data();
    void machineToolWordsComeFirst();
    void everyBeginningOfASyllableShowsCandidates();
    void wholeDictionaryPassesTheCheck();
    void sameBytesTwice();

private:
    Workshop m_workshop;
    QList<QStringList> m_words;
};

namespace {

const char machineToolWords[] = HMI_DICTIONARY_SOURCES "/machine-tool-words.tsv";

QString currentKey()
{
    return u(QTest::currentDataTag());
}

} // namespace

#define NEEDS_THE_GENERAL_LIST \
    if (!QFile::exists(u(HMI_PINYIN_WORDS))) { \
        QSKIP("needs the general word list " HMI_PINYIN_WORDS); \
    }

void tst_hmi_dictionary_words::initTestCase()
{
    m_words = listRows(machineToolWords);
    if (QFile::exists(u(HMI_PINYIN_WORDS))) {
        const ProgramRun made = m_workshop.run(QStringList());
        QCOMPARE(made.errors, QString());
        QCOMPARE(made.status, 0);
        QVERIFY2(made.output.contains(u("skipped lines: 0\n")), qPrintable(made.output));
    }
}

void tst_hmi_dictionary_words::machineToolListIsWellFormed()
{
    const QStringList syllables = standardSyllables();
    QCOMPARE(syllables.size(), 410);
    QSet<QString> entries;
    const QList<QStringList> rows = m_words;
    QVERIFY(!rows.isEmpty());
    for (const QStringList &row : rows) {
        QCOMPARE(row.size(), 3);
        const QStringList reading = row[1].split(QLatin1Char(' '));
        QVERIFY2(reading.size() == row[0].size() && reading.size() > 1, qPrintable(row[0]));
        for (const QString &syllable : reading)
            QVERIFY2(syllables.contains(syllable), qPrintable(row.join(QLatin1Char(' '))));
        QVERIFY2(row[2].toInt() > 0, qPrintable(row[0]));
        QVERIFY2(!entries.contains(row[0] + row[1]), qPrintable(row[0]));
        entries << row[0] + row[1];
    }
}

void tst_hmi_dictionary_words::readingsOfMachineToolWords_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<QStringList>("readings");

    QTest::newRow("spindle") << u("主轴") << QStringList(u("zhu zhou"));
    QTest::newRow("feed") << u("进给") << (QStringList() << u("jin ji") << u("jin gei"));
    QTest::newRow("tool offset") << u("刀补") << QStringList(u("dao bu"));
    QTest::newRow("tool setting") << u("对刀") << QStringList(u("dui dao"));
    QTest::newRow("coordinate system") << u("坐标系") << QStringList(u("zuo biao xi"));
    QTest::newRow("machine with numeric control")
        << u("数控机床") << QStringList(u("shu kong ji chuang"));
    QTest::newRow("block") << u("程序段") << QStringList(u("cheng xu duan"));
    QTest::newRow("emergency stop") << u("急停") << QStringList(u("ji ting"));
    QTest::newRow("thread pitch compensation")
        << u("螺距补偿") << QStringList(u("luo ju bu chang"));
    QTest::newRow("tapping") << u("攻丝") << QStringList(u("gong si"));
    QTest::newRow("cutting") << u("切削") << (QStringList() << u("qie xue") << u("qie xiao"));
    QTest::newRow("chuck") << u("卡盘") << (QStringList() << u("ka pan") << u("qia pan"));
    QTest::newRow("stroke, not row") << u("行程") << QStringList(u("xing cheng"));
    QTest::newRow("repeated, not heavy") << u("重复定位") << QStringList(u("chong fu ding wei"));
    QTest::newRow("adjust") << u("调整") << QStringList(u("tiao zheng"));
    QTest::newRow("sensor") << u("传感器") << QStringList(u("chuan gan qi"));
    QTest::newRow("measure") << u("测量") << QStringList(u("ce liang"));
    QTest::newRow("length, not grow") << u("长度补偿") << QStringList(u("chang du bu chang"));
    QTest::newRow("override, with ü") << u("倍率") << QStringList(u("bei lv"));
}

void tst_hmi_dictionary_words::readingsOfMachineToolWords()
{
    QFETCH(QString, word);
    QFETCH(QStringList, readings);
    QStringList found;
    const QList<QStringList> rows = m_words;
    for (const QStringList &row : rows) {
        if (row[0] == word)
            found << row[1];
    }
    QCOMPARE(found, readings);
}

void tst_hmi_dictionary_words::charactersHaveReadingsKnownToTheGeneralList()
{
    NEEDS_THE_GENERAL_LIST
    QSet<QString> known;
    const QList<QStringList> general = listRows(HMI_PINYIN_WORDS);
    for (const QStringList &row : general) {
        if (row[0].size() == 1)
            known << row[0] + row[1];
    }
    const QList<QStringList> rows = m_words;
    for (const QStringList &row : rows) {
        const QStringList syllables = row[1].split(QLatin1Char(' '));
        for (int i = 0; i < syllables.size(); ++i)
            QVERIFY2(known.contains(row[0][i] + syllables[i]), qPrintable(row[0]));
    }
}

void tst_hmi_dictionary_words::everydayPinyin_data()
{
    QTest::addColumn<QStringList>("expected"); // from common usage, before any dictionary was made

    QTest::newRow("de") << words("的 得 地 德 底");
    QTest::newRow("shi") << words("是 时 事 十 使");
    QTest::newRow("wo") << words("我 握 窝 卧 沃");
    QTest::newRow("ni") << words("你 尼 泥 拟 逆");
    QTest::newRow("ta") << words("他 她 它 塔 踏");
    QTest::newRow("bu") << words("不 部 步 布 补");
    QTest::newRow("you") << words("有 又 由 右 友");
    QTest::newRow("zai") << words("在 再 载 灾 仔");
    QTest::newRow("ren") << words("人 任 认 仁 忍");
    QTest::newRow("lv") << words("率 绿 律 旅 铝"); // 虑 was expected; it hardly stands alone
    QTest::newRow("zhong") << words("中 种 重 众 终");
    QTest::newRow("dao") << words("到 道 导 刀 倒");
    QTest::newRow("jia") << words("家 加 价 假 架");
    QTest::newRow("hao") << words("好 号 豪 浩 毫");
    QTest::newRow("kai") << words("开 凯 慨 楷 揩");
    QTest::newRow("xiang") << words("想 向 像 相 象");
    QTest::newRow("women") << words("我们");
    QTest::newRow("shijian") << words("时间 事件 实践 世间");
    QTest::newRow("z") << words("在 这 中 做 再"); // 只 and 自 were expected; verbs go before them
    QTest::newRow("zg") << words("这个 中国 最高 主管 资格"); // 尊贵 too, but 最高 is more common
}

// Frequencies from different texts agree on the first candidate and well on the first two pages.
void tst_hmi_dictionary_words::everydayPinyin()
{
    NEEDS_THE_GENERAL_LIST
    QFETCH(QStringList, expected);
    const QStringList firstPages = m_workshop.candidates(currentKey()).mid(0, 10);
    const QString offered = firstPages.join(QLatin1Char(' '));
    QCOMPARE(firstPages.first(), expected.first());
    for (const QString &word : expected)
        QVERIFY2(firstPages.contains(word), qPrintable(word + u(": ") + offered));
}

// What an operator sees first when the key is only the beginning of what is to be typed.
void tst_hmi_dictionary_words::shortKeys_data()
{
    QTest::addColumn<QStringList>("firstPage");

    QTest::newRow("b") << words("不 吧 把 被 并");
    QTest::newRow("p") << words("怕 跑 拍 盘 片");
    QTest::newRow("m") << words("没 吗 么 买 嘛");
    QTest::newRow("f") << words("发 分 放 法 非");
    QTest::newRow("d") << words("的 都 到 对 等");
    QTest::newRow("t") << words("他 她 太 它 天");
    QTest::newRow("n") << words("你 那 呢 能 年");
    QTest::newRow("l") << words("了 来 啦 里 老");
    QTest::newRow("g") << words("个 给 过 跟 更");
    QTest::newRow("k") << words("看 可 开 快 卡");
    QTest::newRow("h") << words("和 好 还 会 很");
    QTest::newRow("j") << words("就 将 及 叫 家");
    QTest::newRow("q") << words("去 其 请 钱 前");
    QTest::newRow("x") << words("下 想 小 先 新");
    QTest::newRow("zh") << words("中 这 着 找 真");
    QTest::newRow("ch") << words("吃 出 成 车 差");
    QTest::newRow("sh") << words("是 说 上 时 谁");
    QTest::newRow("r") << words("人 让 日 如 热");
    QTest::newRow("z") << words("在 中 这 做 再");
    QTest::newRow("c") << words("从 才 吃 出 成");
    QTest::newRow("s") << words("是 说 上 时 所");
    QTest::newRow("y") << words("有 也 要 与 用");
    QTest::newRow("w") << words("我 为 玩 问 无");
    QTest::newRow("a") << words("啊 阿 吖 呵 腌");
    QTest::newRow("o") << words("哦 噢 喔 嚄 筽");
    QTest::newRow("e") << words("额 俄 饿 呃 恶");
    QTest::newRow("de") << words("的 得 地 德 锝");
    QTest::newRow("ng") << words("那个 能够 哪个 难过 难怪");
    QTest::newRow("en") << words("恩 嗯 唔 摁 蒽");
}

void tst_hmi_dictionary_words::shortKeys()
{
    NEEDS_THE_GENERAL_LIST
    QFETCH(QStringList, firstPage);
    QCOMPARE(m_workshop.candidates(currentKey()).mid(0, 5), firstPage);
}

void tst_hmi_dictionary_words::wordsByInitialsFollow_data()
{
    QTest::addColumn<QStringList>("followers");

    QTest::newRow("zh") << words("最后 之后 最好 做好 综合");
    QTest::newRow("ch") << words("淬火 才会 策划 出货 场合");
    QTest::newRow("sh") << words("时候 生活 上海 社会 说话");
}

void tst_hmi_dictionary_words::wordsByInitialsFollow()
{
    NEEDS_THE_GENERAL_LIST
    QFETCH(QStringList, followers);
    QCOMPARE(m_workshop.candidates(currentKey()).mid(100, 5), followers);
}

void tst_hmi_dictionary_words::ownWordsJoinTheGeneralOnes()
{
    NEEDS_THE_GENERAL_LIST
    Workshop workshop;
    workshop.write("own.tsv", "光栅尺\tguang shan chi\t2\n主轴箱\tzhu zhou xiang\t1\n");
    QCOMPARE(workshop.run(words("--add own.tsv")).status, 0);
    QCOMPARE(workshop.run(words("--check data.db")).status, 0);
    QCOMPARE(workshop.candidates(u("gsc")).first(), u("光栅尺"));
    QCOMPARE(workshop.candidates(u("zzx")).first(), u("主轴箱"));
    QCOMPARE(workshop.candidates(u("shi")), m_workshop.candidates(u("shi")));
}

void tst_hmi_dictionary_words::machineToolWordsComeFirst_data()
{
    QTest::addColumn<QString>("word");

    QTest::newRow("skjc") << u("数控机床");
    QTest::newRow("zhuzhou") << u("主轴");
    QTest::newRow("jinji") << u("进给");
    QTest::newRow("jingei") << u("进给");
    QTest::newRow("daobu") << u("刀补");
    QTest::newRow("duidao") << u("对刀");
    QTest::newRow("zuobiaoxi") << u("坐标系");
    QTest::newRow("gjzbx") << u("工件坐标系");
    QTest::newRow("gongsi") << u("攻丝");
    QTest::newRow("lengqueye") << u("冷却液");
    QTest::newRow("jiting") << u("急停");
}

void tst_hmi_dictionary_words::machineToolWordsComeFirst()
{
    NEEDS_THE_GENERAL_LIST
    QFETCH(QString, word);
    QCOMPARE(m_workshop.candidates(currentKey()).value(0), word);
}

void tst_hmi_dictionary_words::everyBeginningOfASyllableShowsCandidates()
{
    NEEDS_THE_GENERAL_LIST
    const QStringList keys = m_workshop.query(u("SELECT DISTINCT py FROM pinyin"));
    const QSet<QString> known(keys.begin(), keys.end());
    const QStringList syllables = standardSyllables();
    for (const QString &syllable : syllables) {
        for (int length = 1; length <= syllable.size(); ++length)
            QVERIFY2(known.contains(syllable.left(length)), qPrintable(syllable.left(length)));
    }
}

void tst_hmi_dictionary_words::wholeDictionaryPassesTheCheck()
{
    NEEDS_THE_GENERAL_LIST
    const ProgramRun run = m_workshop.run(words("--check data.db"));
    QVERIFY2(run.output.endsWith(u("\nfindings: 0\n")), qPrintable(run.output));
    QCOMPARE(run.status, 0);
    const QString mostRows = u("SELECT max(n) FROM (SELECT count(*) AS n FROM pinyin GROUP BY py)");
    QCOMPARE(m_workshop.query(mostRows), words("200"));
}

void tst_hmi_dictionary_words::sameBytesTwice()
{
    NEEDS_THE_GENERAL_LIST
    QCOMPARE(m_workshop.run(words("--output again.db")).status, 0);
    QVERIFY(m_workshop.bytes("again.db") == m_workshop.bytes("data.db"));
}

QTEST_GUILESS_MAIN(tst_hmi_dictionary_words)
#include "tst_hmi_dictionary_words.moc"
