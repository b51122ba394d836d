// SPDX-License-Identifier: MIT
#include "ChineseStage.h"
#include "support/DictionaryFile.h"
#include "support/MessageLog.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QScopedPointer>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSqlTableModel>

// What is read of the dictionary, and how often.

namespace {

const int mostRows = 256; // what a model fetches at first

// Counts what a model tells of its contents. What a single query makes it tell differs between
// versions of Qt.
class Readings
{
public:
    explicit Readings(QSqlTableModel *model)
        : m_resets(model, SIGNAL(modelReset()))
        , m_insertions(model, SIGNAL(rowsInserted(QModelIndex, int, int)))
        , m_removals(model, SIGNAL(rowsRemoved(QModelIndex, int, int)))
    {
    }

    int count() const { return int(m_resets.count() + m_insertions.count() + m_removals.count()); }

private:
    QSignalSpy m_resets, m_insertions, m_removals;
};

QString filterOf(const QString &pinyin)
{
    return QString::fromLatin1("py == '%1'").arg(pinyin);
}

// What a bare model tells that asks for one pinyin after the other, each once.
int bareReadings(const QStringList &pinyins)
{
    QSqlTableModel model(nullptr, QSqlDatabase::database(u("pinyin")));
    model.setTable(u("pinyin"));
    model.select();
    const Readings readings(&model);
    for (const QString &pinyin : pinyins)
        model.setFilter(filterOf(pinyin));
    return readings.count();
}

// All candidates of the pinyin that is composed, page by page; none when there is no way to page.
QStringList allCandidates(const CharacterKeypad &keypad)
{
    QToolButton *next = candidatePanel(keypad)->getToolButton(1);
    QStringList all;
    QStringList page = shownCandidates(candidatePanel(keypad));
    QStringList previous;
    while (page != previous) {
        all << page;
        previous = page;
        tapKey(next);
        page = shownCandidates(candidatePanel(keypad));
    }
    all.removeAll(QString());
    return all;
}

} // namespace

class tst_Dictionary : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theTableIsReadWhenTheKeypadIsBuilt();
    void eachLetterAsksOnce_data();
    void eachLetterAsksOnce();
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

void tst_Dictionary::init()
{
    m_dictionary.reset(new DictionaryFile);
    CHECKED(m_dictionary->create(everydayWords()));
}

void tst_Dictionary::cleanup()
{
    m_dictionary.reset();
}

void tst_Dictionary::theTableIsReadWhenTheKeypadIsBuilt()
{
    CharacterKeypad keypad(nullptr, Qt::WindowFlags());
    const QSqlTableModel *model = keypad.findChild<QSqlTableModel *>();
    QVERIFY(model);
    QCOMPARE(model->filter(), QString());
    QCOMPARE(model->rowCount(), int(everydayWords().size()));
}

void tst_Dictionary::eachLetterAsksOnce_data()
{
    QTest::addColumn<QString>("taps");
    QTest::addColumn<QString>("asked"); // the pinyins

    static const struct
    {
        const char *name, *taps, *asked;
    } rows[] = { { "letters", "n i n", "n ni nin" },
                 { "no such pinyin", "q", "q" },
                 { "Del with letters left", "n i Del", "n ni n" },
                 { "Del of the last letter", "n Del", "n" },
                 { "Del with nothing composed", "n Del Del", "n" },
                 { "a twelfth letter", "s h u a n g z h u a n g",
                   "s sh shu shua shuan shuang shuangz shuangzh shuangzhu shuangzhua"
                   " shuangzhuan" },
                 { "paging", "n i > > <", "n ni" },
                 { "Space", "n i Space", "n ni" },
                 { "a candidate", "n i 1", "n ni" },
                 { "an empty label", "n 5", "n" },
                 { "comma", "n i ,", "n ni" },
                 { "Enter", "n Enter", "n" },
                 { "Esc", "n Esc", "n" },
                 { "English and back", "n EN n CN a", "n a" },
                 { "symbols and back", "n *# + << a", "n a" } };
    for (const auto &row : rows)
        QTest::newRow(row.name) << u(row.taps) << u(row.asked);
}

void tst_Dictionary::eachLetterAsksOnce()
{
    QFETCH(QString, taps);
    QFETCH(QString, asked);
    ChineseStage stage;
    QSqlTableModel *model = stage.keypad.findChild<QSqlTableModel *>();
    QVERIFY(model);
    const Readings readings(model);
    QStringList seen;
    const QStringList labels = taps.split(QLatin1Char(' '));
    for (const QString &label : labels) {
        const QString filter = model->filter();
        const int before = readings.count();
        CHECKED(stage.type(label));
        if (model->filter() != filter || readings.count() != before)
            seen << model->filter();
    }
    const QStringList pinyins = asked.split(QLatin1Char(' '));
    QStringList filters;
    for (const QString &pinyin : pinyins)
        filters << filterOf(pinyin);
    QCOMPARE(seen, filters);
    QCOMPARE(readings.count(), bareReadings(pinyins));
}

void tst_Dictionary::pagingHoldsWhileTheFileChanges()
{
    ChineseStage stage;
    CHECKED(stage.type("n i"));
    CHECKED(m_dictionary->execute(QStringList(u("DELETE FROM pinyin WHERE py = 'ni'"))));
    CHECKED(stage.type(">"));
    QCOMPARE(candidateLine(stage.keypad), u("倪 妮 腻 匿 溺"));
    CHECKED(stage.type("Del i"));
    QCOMPARE(candidateLine(stage.keypad), QString());
}

void tst_Dictionary::rowsComeInFileOrder_data()
{
    QTest::addColumn<bool>("indexed");
    QTest::newRow("no index") << false;
    QTest::newRow("index on py") << true;
}

void tst_Dictionary::rowsComeInFileOrder()
{
    QFETCH(bool, indexed);
    static const struct
    {
        const char *pinyin, *word;
    } rows[] = { { "shi", "是" }, { "ma", "吗" },   { "shi", "时" },  { "shi", "不" },
                 { "NI", "X" },   { "ma", "妈" },   { "shi ", "空" }, { "shi", "一" },
                 { "Shi", "大" }, { "shii", "长" }, { "shi", "是" },  { "sh", "短" },
                 { "shi", "zhe" } };
    QStringList statements;
    for (const auto &row : rows)
        statements << DictionaryFile::insertion(row.pinyin, u(row.word));
    if (indexed)
        statements << u("CREATE INDEX py_index ON pinyin (py)");
    CHECKED(m_dictionary->execute(statements));
    ChineseStage stage;
    CHECKED(stage.type("s h i"));
    QCOMPARE(allCandidates(stage.keypad).join(u(" ")), u("是 时 不 一 是 zhe"));
    CHECKED(stage.type("Del Del Del m a"));
    QCOMPARE(candidateLine(stage.keypad), u("吗 妈"));
}

void tst_Dictionary::anyTableOfTwoColumnsWillDo_data()
{
    QTest::addColumn<QString>("statements"); // separated by ";"

    static const struct
    {
        const char *name, *statements;
    } rows[] = { { "extra columns",
                   "CREATE TABLE pinyin (py, word, weight, note);"
                   "INSERT INTO pinyin VALUES ('ni', '你', 9, 'x');"
                   "INSERT INTO pinyin VALUES ('ni', '尼', 99, NULL)" },
                 { "reserved names",
                   "CREATE TABLE pinyin (py, \"order by\", \"select\");"
                   "INSERT INTO pinyin VALUES ('ni', '你', 1);"
                   "INSERT INTO pinyin VALUES ('ni', '尼', 0)" },
                 { "Chinese name",
                   "CREATE TABLE pinyin (py, \"汉字\");"
                   "INSERT INTO pinyin VALUES ('ni', '你');"
                   "INSERT INTO pinyin VALUES ('ni', '尼')" },
                 { "primary key",
                   "CREATE TABLE pinyin (py TEXT, word TEXT, id INTEGER PRIMARY KEY);"
                   "INSERT INTO pinyin VALUES ('ni', '你', 1);"
                   "INSERT INTO pinyin VALUES ('ni', '尼', 2)" },
                 { "view",
                   "CREATE TABLE words (hanzi, py);"
                   "INSERT INTO words VALUES ('你', 'ni');"
                   "INSERT INTO words VALUES ('尼', 'ni');"
                   "CREATE VIEW pinyin AS SELECT py, hanzi FROM words" },
                 { "other tables beside it",
                   "CREATE TABLE a (py, word);"
                   "INSERT INTO a VALUES ('ni', 'wrong');"
                   "CREATE TABLE pinyin (py, word);"
                   "INSERT INTO pinyin VALUES ('ni', '你');"
                   "INSERT INTO pinyin VALUES ('ni', '尼')" } };
    for (const auto &row : rows)
        QTest::newRow(row.name) << u(row.statements);
}

void tst_Dictionary::anyTableOfTwoColumnsWillDo()
{
    QFETCH(QString, statements);
    m_dictionary->remove();
    CHECKED(m_dictionary->execute(statements.split(QLatin1Char(';'))));
    ChineseStage stage;
    CHECKED(stage.type("n i"));
    QCOMPARE(candidateLine(stage.keypad), u("你 尼"));
    CHECKED(stage.type("2"));
    QCOMPARE(stage.line()->text(), u("a尼b"));
}

void tst_Dictionary::candidatesAreInsertedAsTheyStand_data()
{
    QTest::addColumn<QString>("word");

    QTest::newRow("several words") << u("你 好,吗");
    QTest::newRow("markup") << u("<b>你</b>&amp;");
    QTest::newRow("ampersands") << u("&&");
    QTest::newRow("quotes") << u("'\"'");
    QTest::newRow("number") << u("42");
    QTest::newRow("capital") << u("N");
    QTest::newRow("beyond the basic plane") << u("𠮷");
}

void tst_Dictionary::candidatesAreInsertedAsTheyStand()
{
    QFETCH(QString, word);
    CHECKED(m_dictionary->execute(QStringList(DictionaryFile::insertion("x", word))));
    ChineseStage stage;
    CHECKED(stage.type("x"));
    QCOMPARE(candidateLine(stage.keypad), word);
    CHECKED(stage.type("1"));
    QCOMPARE(stage.shown(), u(":  | a") + word + u("b"));
}

void tst_Dictionary::atMostTheFirstFetchIsOffered()
{
    QStringList statements;
    QStringList numbers;
    for (int i = 0; i < mostRows + 44; ++i) {
        const QString number = QString::number(i);
        statements << DictionaryFile::insertion("yi", number);
        numbers << number;
    }
    CHECKED(m_dictionary->execute(statements));
    ChineseStage stage;
    CHECKED(stage.type("y i"));
    QCOMPARE(allCandidates(stage.keypad), QStringList(numbers.mid(0, mostRows)));
}

void tst_Dictionary::theFileIsNeverWritten()
{
    QFile file(DictionaryFile::path());
    QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
    const QByteArray before = DictionaryFile::bytes();
    const QDateTime modified = QFileInfo(DictionaryFile::path()).lastModified();
    {
        ChineseStage stage;
        CHECKED(stage.type("n i > > < 1 z h u Del Del Del *# << EN CN h a o 2 n i"));
        QCOMPARE(DictionaryFile::entries(), QStringList(u("data.db")));
    }
    QCOMPARE(DictionaryFile::bytes(), before);
    QCOMPARE(QFileInfo(DictionaryFile::path()).lastModified(), modified);
    QCOMPARE(DictionaryFile::entries(), QStringList(u("data.db")));
}

void tst_Dictionary::aWordLearnedThroughTheConnectionIsOffered()
{
    ChineseStage stage;
    CHECKED(stage.type("q q"));
    QCOMPARE(allCandidates(stage.keypad), QStringList());
    QSqlQuery query(QSqlDatabase::database(u("pinyin")));
    QVERIFY(query.exec(DictionaryFile::insertion("qq", u("轻切"))));
    CHECKED(stage.type("Del q"));
    QCOMPARE(allCandidates(stage.keypad), QStringList(u("轻切")));
}

void tst_Dictionary::aMissingFileStaysMissing()
{
    m_dictionary->remove();
    MessageLog log;
    {
        ChineseStage stage;
        CHECKED(stage.type("n i > Del Del Del Space"));
        QCOMPARE(stage.shown(), u(":  |  b"));
        QVERIFY(!stage.keypad.findChild<QSqlTableModel *>());
        QCOMPARE(DictionaryFile::entries(), QStringList());
    }
    QCOMPARE(DictionaryFile::entries(), QStringList());
    QCOMPARE(log.messages(), QStringList());
}

QTEST_MAIN(tst_Dictionary)
#include "tst_Dictionary.moc"
