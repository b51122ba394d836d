// SPDX-License-Identifier: MIT
#include "ChineseStage.h"
#include "support/DictionaryFile.h"

#include <QScopedPointer>

// What the keys make of a composition. What is read of the dictionary is in tst_Dictionary.

namespace {

const char firstNi[] = "你 尼 泥 拟 逆";
const char secondNi[] = "倪 妮 腻 匿 溺";
const char thirdNi[] = "呢 睨";

} // namespace

class tst_Pinyin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void keysCompose_data();
    void keysCompose();
    void confirmingLosesThePinyin();
    void confirmingWithoutATargetLosesThePinyin();
    void cancellingLosesThePinyin();
    void leavingTheModeLosesThePinyin_data();
    void leavingTheModeLosesThePinyin();
    void aSelectionIsReplacedByACandidate();
    void theLabelHoldsThePinyin();
    void aRunOfLettersIsAppendedAtOnce();

private:
    QScopedPointer<DictionaryFile> m_dictionary;
};

void tst_Pinyin::initTestCase()
{
    m_dictionary.reset(new DictionaryFile);
    CHECKED(m_dictionary->create(everydayWords()));
}

void tst_Pinyin::cleanupTestCase()
{
    m_dictionary.reset();
}

void tst_Pinyin::keysCompose_data()
{
    QTest::addColumn<QString>("taps");
    QTest::addColumn<QString>("pinyin");
    QTest::addColumn<QString>("candidates");
    QTest::addColumn<QString>("text"); // was "ab", the cursor between

    static const struct
    {
        const char *name, *taps, *pinyin, *candidates, *text;
    } rows[] = { { "idle", "", "", "", "ab" },
                 { "a letter", "n", "n", "嗯 那", "ab" },
                 { "two letters", "n i", "ni", firstNi, "ab" },
                 { "no such pinyin", "n i i", "nii", "", "ab" },
                 { "no such pinyin, one letter", "q", "q", "", "ab" },
                 { "initials", "s k j c", "skjc", "数控机床", "ab" },
                 { "a pinyin of its own, not a beginning", "z h", "zh", "", "ab" },
                 { "exactly one page", "h a o", "hao", "好 号 毫 豪 耗", "ab" },
                 { "exactly one page, next", "h a o >", "hao", "好 号 毫 豪 耗", "ab" },
                 { "second page", "n i >", "ni", secondNi, "ab" },
                 { "third page", "n i > >", "ni", thirdNi, "ab" },
                 { "after the last page", "n i > > >", "ni", thirdNi, "ab" },
                 { "back a page", "n i > > <", "ni", secondNi, "ab" },
                 { "before the first page", "n i <", "ni", firstNi, "ab" },
                 { "beyond both ends", "n i > > > < < < >", "ni", secondNi, "ab" },
                 { "paging with nothing composed", "> <", "", "", "ab" },
                 { "paging without candidates", "q > <", "q", "", "ab" },
                 { "Space", "n i Space", "ni", firstNi, "a b" },
                 { "Space on a later page", "n i > Space", "ni", secondNi, "a b" },
                 { "Space, then paging", "n i Space > Space >", "ni", thirdNi, "a  b" },
                 { "Space with nothing composed", "Space", "", "", "a b" },
                 { "Del with letters left", "n i Del", "n", "嗯 那 泥 拟 逆", "ab" },
                 { "Del of the last letter", "n i Del Del", "", "", "ab" },
                 { "third Del", "n i Del Del Del", "", "", "b" },
                 { "Del with nothing composed", "Del", "", "", "b" },
                 { "Del back to a known pinyin", "n i i Del", "ni", firstNi, "ab" },
                 { "Del to an unknown pinyin", "z h u Del", "zh", "", "ab" },
                 { "Del, then a letter", "n i Del i", "ni", firstNi, "ab" },
                 { "first candidate", "n i 1", "", "", "a你b" },
                 { "fifth candidate", "n i 5", "", "", "a逆b" },
                 { "candidate of a later page", "n i > > 2", "", "", "a睨b" },
                 { "two words", "z h u z h o u 1 n i > 1", "", "", "a主轴倪b" },
                 { "empty label", "n i > > 3", "ni", thirdNi, "ab" },
                 { "empty label, idle", "1", "", "", "ab" },
                 { "comma", "n i ,", "", "", "a,b" },
                 { "period", "n i .", "", "", "a.b" },
                 { "after a candidate there is no paging", "n i 1 >", "", "", "a你b" },
                 { "a shorter list leaves old candidates", "n i n", "nin", "您 尼 泥 拟 逆", "ab" },
                 { "an old candidate can be chosen", "n i n 3", "", "", "a泥b" },
                 { "old candidates do not page", "n i n > <", "nin", "您 尼 泥 拟 逆", "ab" },
                 { "an unknown pinyin ends old candidates", "n i n i", "nini", "", "ab" },
                 { "a shorter list after a later page", "n i > n", "nin", "您 妮 腻 匿 溺", "ab" },
                 { "one candidate alone", "z h u z h o u", "zhuzhou", "主轴", "ab" },
                 { "v for the vowel with dots", "l v", "lv", "绿 率", "ab" },
                 { "ten letters", "s h u a n g z h u a", "shuangzhua", "", "ab" },
                 { "eleven letters", "s h u a n g z h u a n", "shuangzhuan", "双转", "ab" },
                 { "a twelfth letter", "s h u a n g z h u a n g", "shuangzhuan", "双转", "ab" },
                 { "a thirteenth letter", "s h u a n g z h u a n g q", "shuangzhuan", "双转",
                   "ab" },
                 { "twelve letters, Del", "s h u a n g z h u a n g Del", "shuangzhua", "", "ab" },
                 { "after Del there is room again", "s h u a n g z h u a n g Del n", "shuangzhuan",
                   "双转", "ab" } };
    for (const auto &row : rows)
        QTest::newRow(row.name) << u(row.taps) << u(row.pinyin) << u(row.candidates) << u(row.text);
}

void tst_Pinyin::keysCompose()
{
    QFETCH(QString, taps);
    QFETCH(QString, pinyin);
    QFETCH(QString, candidates);
    QFETCH(QString, text);
    ChineseStage stage;
    CHECKED(stage.type(taps));
    QCOMPARE(shownPinyin(stage.keypad), pinyin);
    QCOMPARE(candidateLine(stage.keypad), candidates);
    QCOMPARE(stage.line()->text(), text);
    QCOMPARE(shownFace(stage.keypad), u(faces[Chinese].shown));
}

void tst_Pinyin::confirmingLosesThePinyin()
{
    ChineseStage stage;
    CHECKED(stage.type("n i > Enter"));
    QCOMPARE(stage.target.text(), u("ab"));
    QCOMPARE(stage.keypad.result(), int(QDialog::Accepted));
    QCOMPARE(stage.shown(), u(":  | ab"));

    CHECKED(stage.type("n i"));
    stage.keypad.setText(u("cd"));
    QTest::keyClick(&stage.keypad, Qt::Key_Enter);
    QCOMPARE(stage.target.text(), u("cd"));
    QCOMPARE(stage.shown(), u(":  | cd"));
}

void tst_Pinyin::confirmingWithoutATargetLosesThePinyin()
{
    CharacterKeypad keypad(nullptr, Qt::WindowFlags());
    QSignalSpy finished(&keypad, SIGNAL(finished(int)));
    CHECKED(press(keypad, "CN Space n i Enter"));
    QCOMPARE(finished.count(), 0);
    QCOMPARE(shownPinyin(keypad), QString());
    QCOMPARE(candidateLine(keypad), QString());
    QCOMPARE(editLine(&keypad)->text(), u(" "));
}

void tst_Pinyin::cancellingLosesThePinyin()
{
    ChineseStage stage;
    QSignalSpy rejected(&stage.keypad, SIGNAL(rejected()));
    CHECKED(stage.type("n i > Esc"));
    QCOMPARE(rejected.count(), 1);
    QCOMPARE(stage.target.text(), QString());
    QCOMPARE(stage.shown(), u(":  | ab"));
}

void tst_Pinyin::leavingTheModeLosesThePinyin_data()
{
    QTest::addColumn<QString>("wayOut");
    QTest::addColumn<QString>("wayBack");

    QTest::newRow("English") << u("EN") << u("CN");
    QTest::newRow("symbols") << u("*#") << u("<<");
}

void tst_Pinyin::leavingTheModeLosesThePinyin()
{
    QFETCH(QString, wayOut);
    QFETCH(QString, wayBack);
    ChineseStage stage;
    CHECKED(stage.type("n i >"));
    CHECKED(stage.type(wayOut));
    QCOMPARE(stage.shown(), u(":  | ab"));
    CHECKED(stage.type(wayBack));
    QCOMPARE(stage.shown(), u(":  | ab"));
    CHECKED(stage.type("> < 1"));
    QCOMPARE(stage.shown(), u(":  | ab"));
    CHECKED(stage.type("h a o 1"));
    QCOMPARE(stage.shown(), u(":  | a好b"));
}

void tst_Pinyin::aSelectionIsReplacedByACandidate()
{
    ChineseStage stage;
    stage.keypad.setText(u("replaced"));
    CHECKED(stage.type("n i Del"));
    QCOMPARE(stage.line()->selectedText(), u("replaced"));
    CHECKED(stage.type("i 2"));
    QCOMPARE(stage.line()->text(), u("尼"));
    QCOMPARE(stage.line()->cursorPosition(), 1);

    stage.keypad.setMaxLength(3);
    CHECKED(stage.type("s k j c 1"));
    QCOMPARE(stage.shown(), u(":  | 尼数控"));
    stage.line()->setSelection(0, 2);
    CHECKED(stage.type("s k j c 1"));
    QCOMPARE(stage.shown(), u(":  | 数控控"));
    stage.keypad.setMaxLength(7);
    stage.line()->setSelection(0, 2);
    CHECKED(stage.type("s k j c 1"));
    QCOMPARE(stage.shown(), u(":  | 数控机床控"));
}

void tst_Pinyin::theLabelHoldsThePinyin()
{
    ChineseStage stage;
    candidatePanel(stage.keypad)->getPinyinLabel()->setText(u("zhuzho"));
    CHECKED(stage.type("u"));
    QCOMPARE(stage.shown(), u("zhuzhou: 主轴 | ab"));
}

// Only the letter keys send letters, but contents that come from elsewhere are appended whole.
void tst_Pinyin::aRunOfLettersIsAppendedAtOnce()
{
    ChineseStage stage;
    QVERIFY(sendContent(stage.keypad, u("op")));
    QCOMPARE(shownPinyin(stage.keypad), u("op"));
    QVERIFY(sendContent(stage.keypad, u("po")));
    QCOMPARE(stage.shown(), u(":  | apob"));
    CHECKED(stage.type("n i"));
    QVERIFY(sendContent(stage.keypad, u("N")));
    QCOMPARE(stage.shown(), u(":  | apoNb"));
}

QTEST_MAIN(tst_Pinyin)
#include "tst_Pinyin.moc"
