// SPDX-License-Identifier: MIT
#include "CharacterDriver.h"
#include "DictionaryFile.h"
#include "support/MessageLog.h"

#include <QDateTime>
#include <QFileInfo>
#include <QSqlTableModel>

namespace {

const char firstNi[] = "你 尼 泥 拟 逆";
const char secondNi[] = "倪 妮 腻 匿 溺";
const char thirdNi[] = "呢 睨";

/* A keypad in Chinese mode with a text of "ab" and the cursor between. */
class ChineseStage : public CharacterStage
{
public:
    ChineseStage()
    {
        keypad.show();
        press(keypad, "CN");
        QApplication::processEvents(); // the candidate panel finds its place
        keypad.setText(u("ab"));
        line()->setCursorPosition(1);
    }

    KeyBoardLineEdit *line() { return editLine(&keypad); }

    /* Taps keys; "1" to "5" stand for the candidates. */
    void type(const QString &taps)
    {
        const QStringList list = taps.split(QLatin1Char(' '));
        for (int i = 0; i < list.size(); ++i) {
            const short candidate = list.at(i).toShort();
            if (candidate > 0)
                tapCandidate(keypad, short(candidate - 1));
            else
                press(keypad, qPrintable(list.at(i)));
        }
    }

    /* Pinyin, candidates and text in one line: "ni: 你 尼 | ab". */
    QString shown()
    {
        return shownPinyin(keypad) + u(": ") + candidateLine(keypad) + u(" | ") + line()->text();
    }
};

/* All candidates of the pinyin that is composed, page by page. */
QStringList allCandidates(CharacterKeypad &keypad)
{
    QStringList all;
    QStringList page = shownCandidates(candidatePanel(keypad));
    QStringList previous;
    while (page != previous) {
        all << page;
        previous = page;
        press(keypad, ">");
        page = shownCandidates(candidatePanel(keypad));
    }
    all.removeAll(QString());
    return all;
}

} // namespace

class tst_Pinyin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
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
    void pagingHoldsWhileTheFileChanges();
    void rowsComeInFileOrder_data();
    void rowsComeInFileOrder();
    void anyTableOfTwoColumnsWillDo_data();
    void anyTableOfTwoColumnsWillDo();
    void candidatesAreInsertedAsTheyStand_data();
    void candidatesAreInsertedAsTheyStand();
    void atMostTheFirstFetchIsOffered();
    void theFileIsNeverWritten();
    void aWordLearnedThroughTheConnectionIsOffered();
    void aMissingFileStaysMissing();

private:
    QScopedPointer<DictionaryFile> m_dictionary;
};

void tst_Pinyin::init()
{
    m_dictionary.reset(new DictionaryFile);
    m_dictionary->create(everydayWords);
}

void tst_Pinyin::cleanup()
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
    for (size_t i = 0; i < sizeof(rows) / sizeof(rows[0]); ++i) {
        QTest::newRow(rows[i].name)
            << u(rows[i].taps) << u(rows[i].pinyin) << u(rows[i].candidates) << u(rows[i].text);
    }
}

void tst_Pinyin::keysCompose()
{
    QFETCH(QString, taps);
    QFETCH(QString, pinyin);
    QFETCH(QString, candidates);
    QFETCH(QString, text);
    ChineseStage stage;
    stage.type(taps);
    QCOMPARE(shownPinyin(stage.keypad), pinyin);
    QCOMPARE(candidateLine(stage.keypad), candidates);
    QCOMPARE(stage.line()->text(), text);
    QCOMPARE(face(stage.keypad), u("blank EN *# q candidates"));
}

void tst_Pinyin::confirmingLosesThePinyin()
{
    ChineseStage stage;
    stage.type(u("n i > Enter"));
    QCOMPARE(stage.target.text(), u("ab"));
    QCOMPARE(stage.keypad.result(), int(QDialog::Accepted));
    QCOMPARE(stage.shown(), u(":  | ab"));

    stage.type(u("n i"));
    stage.keypad.setText(u("cd"));
    QTest::keyClick(&stage.keypad, Qt::Key_Enter);
    QCOMPARE(stage.target.text(), u("cd"));
    QCOMPARE(stage.shown(), u(":  | cd"));
}

void tst_Pinyin::confirmingWithoutATargetLosesThePinyin()
{
    CharacterKeypad keypad(nullptr, Qt::WindowFlags());
    QSignalSpy finished(&keypad, SIGNAL(finished(int)));
    press(keypad, "CN Space n i Enter");
    QCOMPARE(finished.count(), 0);
    QCOMPARE(shownPinyin(keypad), QString());
    QCOMPARE(candidateLine(keypad), QString());
    QCOMPARE(editLine(&keypad)->text(), u(" "));
}

void tst_Pinyin::cancellingLosesThePinyin()
{
    ChineseStage stage;
    QSignalSpy rejected(&stage.keypad, SIGNAL(rejected()));
    stage.type(u("n i > Esc"));
    QCOMPARE(rejected.count(), 1);
    QCOMPARE(stage.target.text(), QString());
    QCOMPARE(stage.shown(), u(":  | ab"));
}

void tst_Pinyin::leavingTheModeLosesThePinyin_data()
{
    QTest::addColumn<QString>("wayOut");
    QTest::addColumn<QString>("wayBack");

    QTest::newRow("English") << "EN"
                             << "CN";
    QTest::newRow("symbols") << "*#"
                             << "<<";
}

void tst_Pinyin::leavingTheModeLosesThePinyin()
{
    QFETCH(QString, wayOut);
    QFETCH(QString, wayBack);
    ChineseStage stage;
    stage.type(u("n i >"));
    stage.type(wayOut);
    QCOMPARE(stage.shown(), u(":  | ab"));
    stage.type(wayBack);
    QCOMPARE(stage.shown(), u(":  | ab"));
    stage.type(u("> < 1"));
    QCOMPARE(stage.shown(), u(":  | ab"));
    stage.type(u("h a o 1"));
    QCOMPARE(stage.shown(), u(":  | a好b"));
}

void tst_Pinyin::aSelectionIsReplacedByACandidate()
{
    ChineseStage stage;
    stage.keypad.setText(u("replaced"));
    stage.type(u("n i Del"));
    QCOMPARE(stage.line()->selectedText(), u("replaced"));
    stage.type(u("i 2"));
    QCOMPARE(stage.line()->text(), u("尼"));
    QCOMPARE(stage.line()->cursorPosition(), 1);

    stage.keypad.setMaxLength(3);
    stage.type(u("s k j c 1"));
    QCOMPARE(stage.shown(), u(":  | 尼数控"));
}

void tst_Pinyin::theLabelHoldsThePinyin()
{
    ChineseStage stage;
    candidatePanel(stage.keypad)->getPinyinLabel()->setText(u("zhuzho"));
    stage.type(u("u"));
    QCOMPARE(stage.shown(), u("zhuzhou: 主轴 | ab"));
}

/* Only the letter keys send letters, but contents that come from elsewhere are appended whole. */
void tst_Pinyin::aRunOfLettersIsAppendedAtOnce()
{
    ChineseStage stage;
    QVERIFY(sendContent(stage.keypad, u("op")));
    QCOMPARE(shownPinyin(stage.keypad), u("op"));
    QVERIFY(sendContent(stage.keypad, u("po")));
    QCOMPARE(stage.shown(), u(":  | apob"));
    stage.type(u("n i"));
    QVERIFY(sendContent(stage.keypad, u("N")));
    QCOMPARE(stage.shown(), u(":  | apoNb"));
}

void tst_Pinyin::pagingHoldsWhileTheFileChanges()
{
    ChineseStage stage;
    stage.type(u("n i"));
    m_dictionary->execute("DELETE FROM pinyin WHERE py = 'ni'");
    stage.type(u(">"));
    QCOMPARE(candidateLine(stage.keypad), u(secondNi));
    stage.type(u("Del i"));
    QCOMPARE(candidateLine(stage.keypad), QString());
}

void tst_Pinyin::rowsComeInFileOrder_data()
{
    QTest::addColumn<bool>("indexed");
    QTest::newRow("no index") << false;
    QTest::newRow("index on py") << true;
}

void tst_Pinyin::rowsComeInFileOrder()
{
    QFETCH(bool, indexed);
    static const DictionaryRow rows[] = { { "shi", "是" },  { "ma", "吗" },  { "shi", "时" },
                                          { "shi", "不" },  { "NI", "X" },   { "ma", "妈" },
                                          { "shi ", "空" }, { "shi", "一" }, { "Shi", "大" },
                                          { "shii", "长" }, { "shi", "是" }, { "sh", "短" },
                                          { "shi", "zhe" } };
    m_dictionary->create(rows);
    if (indexed)
        m_dictionary->execute("CREATE INDEX py_index ON pinyin (py)");
    ChineseStage stage;
    stage.type(u("s h i"));
    QCOMPARE(allCandidates(stage.keypad).join(u(" ")), u("是 时 不 一 是 zhe"));
    stage.type(u("Del Del Del m a"));
    QCOMPARE(candidateLine(stage.keypad), u("吗 妈"));
}

void tst_Pinyin::anyTableOfTwoColumnsWillDo_data()
{
    QTest::addColumn<QStringList>("statements");

    const QStringList none;
    QTest::newRow("extra columns")
        << (QStringList(none) << u("CREATE TABLE pinyin (py, word, weight, note)")
                              << u("INSERT INTO pinyin VALUES ('ni', '你', 9, 'x')")
                              << u("INSERT INTO pinyin VALUES ('ni', '尼', 99, NULL)"));
    QTest::newRow("reserved names")
        << (QStringList(none) << u("CREATE TABLE pinyin (py, \"order by\", \"select\")")
                              << u("INSERT INTO pinyin VALUES ('ni', '你', 1)")
                              << u("INSERT INTO pinyin VALUES ('ni', '尼', 0)"));
    QTest::newRow("Chinese name") << (QStringList(none)
                                      << u("CREATE TABLE pinyin (py, \"汉字\")")
                                      << u("INSERT INTO pinyin VALUES ('ni', '你')")
                                      << u("INSERT INTO pinyin VALUES ('ni', '尼')"));
    QTest::newRow("primary key")
        << (QStringList(none) << u(
                "CREATE TABLE pinyin (py TEXT, word TEXT, id INTEGER PRIMARY KEY)")
                              << u("INSERT INTO pinyin VALUES ('ni', '你', 1)")
                              << u("INSERT INTO pinyin VALUES ('ni', '尼', 2)"));
    QTest::newRow("view") << (QStringList(none)
                              << u("CREATE TABLE words (hanzi, py)")
                              << u("INSERT INTO words VALUES ('你', 'ni')")
                              << u("INSERT INTO words VALUES ('尼', 'ni')")
                              << u("CREATE VIEW pinyin AS SELECT py, hanzi FROM words"));
    QTest::newRow("other tables beside it")
        << (QStringList(none) << u("CREATE TABLE a (py, word)")
                              << u("INSERT INTO a VALUES ('ni', 'wrong')")
                              << u("CREATE TABLE pinyin (py, word)")
                              << u("INSERT INTO pinyin VALUES ('ni', '你')")
                              << u("INSERT INTO pinyin VALUES ('ni', '尼')"));
}

void tst_Pinyin::anyTableOfTwoColumnsWillDo()
{
    QFETCH(QStringList, statements);
    m_dictionary->remove();
    m_dictionary->execute(statements);
    ChineseStage stage;
    stage.type(u("n i"));
    QCOMPARE(candidateLine(stage.keypad), u("你 尼"));
    stage.type(u("2"));
    QCOMPARE(stage.line()->text(), u("a尼b"));
}

void tst_Pinyin::candidatesAreInsertedAsTheyStand_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("inserted");

    QTest::newRow("several words") << u("你 好,吗") << u("你 好,吗");
    QTest::newRow("markup") << u("<b>你</b>&amp;") << u("<b>你</b>&amp;");
    QTest::newRow("ampersands") << "&&"
                                << "&&";
    QTest::newRow("quotes") << "'\"'"
                            << "'\"'";
    QTest::newRow("number") << "42"
                            << "42";
    QTest::newRow("capital") << "N"
                             << "N";
    QTest::newRow("beyond the basic plane") << u("𠮷") << u("𠮷");
}

void tst_Pinyin::candidatesAreInsertedAsTheyStand()
{
    QFETCH(QString, word);
    QFETCH(QString, inserted);
    m_dictionary->execute(QStringList(DictionaryFile::insertion("x", word)));
    ChineseStage stage;
    stage.type(u("x"));
    QCOMPARE(candidateLine(stage.keypad), word);
    stage.type(u("1"));
    QCOMPARE(stage.shown(), u(":  | a") + inserted + u("b"));
}

void tst_Pinyin::atMostTheFirstFetchIsOffered()
{
    QStringList statements;
    for (int i = 0; i < 300; ++i)
        statements << DictionaryFile::insertion("yi", QString::number(i));
    m_dictionary->execute(statements);
    int reported = 0;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u("QSQLITE"), u("a model's own"));
        database.setDatabaseName(DictionaryFile::path());
        QVERIFY(database.open());
        QSqlTableModel model(nullptr, database);
        model.setTable(u("pinyin"));
        model.setFilter(u("py = 'yi'"));
        QVERIFY(model.select());
        reported = model.rowCount();
        QVERIFY(model.canFetchMore());
    }
    QSqlDatabase::removeDatabase(u("a model's own"));
    QVERIFY(reported > 100 && reported < 300);

    ChineseStage stage;
    stage.type(u("y i"));
    const QStringList offered = allCandidates(stage.keypad);
    QCOMPARE(int(offered.size()), reported);
    for (int i = 0; i < offered.size(); ++i)
        QCOMPARE(offered.at(i), QString::number(i));
}

void tst_Pinyin::theFileIsNeverWritten()
{
    QFile file(DictionaryFile::path());
    QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
    const QByteArray before = DictionaryFile::bytes();
    const QDateTime modified = QFileInfo(DictionaryFile::path()).lastModified();
    {
        ChineseStage stage;
        stage.type(u("n i > > < 1 z h u Del Del Del *# << EN CN h a o 2 n i"));
        QCOMPARE(DictionaryFile::entries(), QStringList(u("data.db")));
    }
    QCOMPARE(DictionaryFile::bytes(), before);
    QCOMPARE(QFileInfo(DictionaryFile::path()).lastModified(), modified);
    QCOMPARE(DictionaryFile::entries(), QStringList(u("data.db")));
}

void tst_Pinyin::aWordLearnedThroughTheConnectionIsOffered()
{
    ChineseStage stage;
    stage.type(u("q q"));
    QCOMPARE(allCandidates(stage.keypad), QStringList());
    QSqlQuery query(QSqlDatabase::database(u("pinyin")));
    QVERIFY(query.exec(DictionaryFile::insertion("qq", u("轻切"))));
    stage.type(u("Del q"));
    QCOMPARE(allCandidates(stage.keypad), QStringList(u("轻切")));
}

void tst_Pinyin::aMissingFileStaysMissing()
{
    m_dictionary->remove();
    MessageLog log;
    {
        ChineseStage stage;
        stage.type(u("n i > Del Del Del Space"));
        QCOMPARE(stage.shown(), u(":  |  b"));
        QVERIFY(!stage.keypad.findChild<QSqlTableModel *>());
        QCOMPARE(DictionaryFile::entries(), QStringList());
    }
    QCOMPARE(DictionaryFile::entries(), QStringList());
    QCOMPARE(log.messages(), QStringList());
}

QTEST_MAIN(tst_Pinyin)
#include "tst_Pinyin.moc"
