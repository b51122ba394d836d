// SPDX-License-Identifier: MIT
#include "DictionarySession.h"
#include "support/DictionaryFile.h"

#include <QSqlDatabase>
#include <QSqlQuery>

#include <ctime>

// Dictionaries that are databases, but hold what nobody would put there.

namespace {

// The statements for a dictionary of so many numbers as 2 to the power of \a doublings: even ones
// for "ni", odd ones for "hao". The SQLite in Qt 4 knows no recursive queries.
QStringList numberedRows(int doublings)
{
    QStringList statements(u("CREATE TABLE pinyin (py, word)"));
    statements << u("INSERT INTO pinyin VALUES ('hao', 1)");
    for (int i = 0; i < doublings; ++i)
        statements << u("INSERT INTO pinyin SELECT CASE (word + last) % 2 WHEN 0 THEN 'ni' ELSE"
                        " 'hao' END, word + last FROM pinyin, (SELECT max(word) AS last FROM"
                        " pinyin)");
    return statements;
}

// The statements for a dictionary of one candidate, the value of an expression, for each pinyin.
QStringList oneCandidate(const char *expression)
{
    return QStringList() << u("CREATE TABLE pinyin (py, word)")
                         << u("INSERT INTO pinyin VALUES ('ni', %1)").arg(u(expression))
                         << u("INSERT INTO pinyin SELECT k, word FROM pinyin JOIN (SELECT 'hao' AS"
                              " k UNION SELECT 'zhu')");
}

QStringList manyColumns()
{
    QString columns;
    for (int i = 0; i < 500; ++i)
        columns += QString::fromLatin1(", c%1").arg(i);
    return QStringList() << u("CREATE TABLE pinyin (py, word%1)").arg(columns)
                         << u("INSERT INTO pinyin (py, word, c499) VALUES ('ni', '你', 'x')");
}

// What the driver makes of the value of an expression.
QString asRead(const char *expression)
{
    const QString name = u("bare query");
    QString text;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u("QSQLITE"), name);
        database.setDatabaseName(u(":memory:"));
        database.open();
        QSqlQuery query(u("SELECT ") + u(expression), database);
        query.first();
        text = query.value(0).toString();
    }
    QSqlDatabase::removeDatabase(name);
    return text;
}

// The processor time that \a work takes; other programs do not lengthen it.
double cost(const std::function<void()> &work)
{
    const std::clock_t start = std::clock();
    work();
    return double(std::clock() - start);
}

} // namespace

class tst_OddDictionary : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void databasesWithAnotherContent_data();
    void databasesWithAnotherContent();
    void aLongCandidateCostsWhatFitsOfIt();
};

void tst_OddDictionary::databasesWithAnotherContent_data()
{
    QTest::addColumn<QStringList>("statements");
    QTest::addColumn<QString>("candidates"); // of "ni"

    static const struct
    {
        const char *name, *statements, *candidates; // statements separated by ";"
    } rows[] = {
        { "no table", "CREATE TABLE words (py, word); INSERT INTO words VALUES ('ni', '你')", "" },
        { "no table at all", "PRAGMA user_version = 1", "" },
        { "empty table", "CREATE TABLE pinyin (py, word)", "" },
        { "one column", "CREATE TABLE pinyin (py); INSERT INTO pinyin VALUES ('ni')", "" },
        { "no column py", "CREATE TABLE pinyin (k, w); INSERT INTO pinyin VALUES ('ni', '你')",
          "" },
        { "view of a missing table", "CREATE VIEW pinyin AS SELECT * FROM missing", "" },
        { "view of itself", "CREATE VIEW pinyin AS SELECT * FROM pinyin", "" },
        { "NULL candidates",
          "CREATE TABLE pinyin (py, word); INSERT INTO pinyin VALUES ('ni', NULL);"
          "INSERT INTO pinyin VALUES ('ni', '你'); INSERT INTO pinyin VALUES ('hao', NULL);"
          "INSERT INTO pinyin VALUES (NULL, NULL)",
          "你" },
        { "nothing but NULL",
          "CREATE TABLE pinyin (py, word); INSERT INTO pinyin VALUES ('ni', NULL);"
          "INSERT INTO pinyin VALUES ('hao', NULL); INSERT INTO pinyin VALUES ('zhu', NULL)",
          "" },
        { "empty candidates",
          "CREATE TABLE pinyin (py, word); INSERT INTO pinyin VALUES ('ni', '');"
          "INSERT INTO pinyin VALUES ('ni', '尼'); INSERT INTO pinyin VALUES ('hao', '')",
          "尼" },
        { "numbers",
          "CREATE TABLE pinyin (py, word); INSERT INTO pinyin VALUES ('ni', 7);"
          "INSERT INTO pinyin VALUES ('ni', 2.5); INSERT INTO pinyin VALUES (3, 3)",
          "7 2.5" },
        { "quotes in a column's name",
          "CREATE TABLE pinyin (py, \"a\"\"b\"); INSERT INTO pinyin VALUES ('ni', '你')", "你" },
        { "a dot in a column's name",
          "CREATE TABLE pinyin (py, \"a.b\"); INSERT INTO pinyin VALUES ('ni', '你')", "你" },
        { "markup",
          "CREATE TABLE pinyin (py, word);"
          "INSERT INTO pinyin VALUES ('ni', '<img src=\"file:///no/such.png\"><h1>你</h1>');"
          "INSERT INTO pinyin SELECT 'hao', word FROM pinyin",
          "<img src=\"file:///no/such.png\"><h1>你</h1>" },
        { "newlines",
          "CREATE TABLE pinyin (py, word);"
          "INSERT INTO pinyin VALUES ('ni', '你\n好\r\t\xe2\x80\xa8');"
          "INSERT INTO pinyin SELECT 'hao', word FROM pinyin",
          "你\n好\r\t\xe2\x80\xa8" }
    };
    for (const auto &row : rows)
        QTest::newRow(row.name) << u(row.statements).split(QLatin1Char(';')) << u(row.candidates);

    static const struct
    {
        const char *name, *expression;
    } candidates[] = { { "1 MiB of letters", "replace(hex(zeroblob(524288)), '0', 'W')" },
                       { "1 MiB of Chinese", "replace(hex(zeroblob(174763)), '00', '铸')" },
                       { "1 MiB of blanks and lines",
                         "'a' || replace(hex(zeroblob(524288)), '00', ' \n') || 'b'" },
                       { "invalid UTF-8", "CAST(x'fffec3280080e4bd' AS TEXT)" },
                       { "blob", "x'00ff00fe'" } };
    for (const auto &candidate : candidates)
        QTest::newRow(candidate.name)
            << oneCandidate(candidate.expression) << asRead(candidate.expression);

    QTest::newRow("a million rows")
        << (numberedRows(20) << u("CREATE INDEX py_index ON pinyin (py)")) << u("2 4 6 8 10");
    QTest::newRow("many rows without an index") << numberedRows(16) << u("2 4 6 8 10");
    QTest::newRow("502 columns") << manyColumns() << u("你");
}

void tst_OddDictionary::databasesWithAnotherContent()
{
    QFETCH(QStringList, statements);
    QFETCH(QString, candidates);
    DictionaryFile file;
    CHECKED(file.execute(statements));
    const QByteArray bytes = DictionaryFile::bytes();

    PanelView view(1);
    DictionarySession session;
    session.type("CN n i");
    QVERIFY2(candidateLine(session.keypad()) == candidates,
             qPrintable(candidateLine(session.keypad()).left(100)));
    const QRect geometry = session.keypad().geometry();
    session.workInChinese();
    QCOMPARE(session.keypad().geometry(), geometry);
    CHECKED(session.finish());
    QVERIFY(DictionaryFile::bytes() == bytes);
    QCOMPARE(DictionaryFile::entries(), QStringList(u("data.db")));
}

// On a panel's slow core a tap must not last for seconds because of what an edit line cuts off.
void tst_OddDictionary::aLongCandidateCostsWhatFitsOfIt()
{
    const int longest = 150000;
    const char expression[] = "replace(hex(zeroblob(524288)), '0', 'W')";
    const QString part(longest, QLatin1Char('W'));
    DictionaryFile file;
    CHECKED(file.execute(oneCandidate(expression)));
    double leastCost = 0;
    double leastFloor = 0;
    for (int run = 0; run < 3; ++run) {
        CharacterKeypad keypad(nullptr, Qt::WindowFlags());
        keypad.setMaxLength(longest + 1);
        CHECKED(press(keypad, ". CN n i"));
        const double tap = cost([&] { tapCandidate(keypad, 0); });
        QVERIFY(editLine(&keypad)->text() == u(".") + part);
        QLineEdit bare;
        bare.setFont(keypad.font());
        bare.setMaxLength(longest);
        const double floor = cost([&] { bare.insert(part); });
        leastCost = run == 0 ? tap : qMin(leastCost, tap);
        leastFloor = run == 0 ? floor : qMin(leastFloor, floor);
    }
    QVERIFY2(leastCost < 5 * leastFloor,
             qPrintable(QString::fromLatin1("%1 times the bare edit line")
                            .arg(leastCost / leastFloor, 0, 'f', 1)));
}

QTEST_MAIN(tst_OddDictionary)
#include "tst_OddDictionary.moc"
