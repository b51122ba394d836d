// SPDX-License-Identifier: MIT
#include "CharacterDriver.h"
#include "DictionaryFile.h"
#include "support/MessageLog.h"

#include <QElapsedTimer>
#include <QProcess>

#include <random>

#include <unistd.h>

// Whatever lies beside the application as its dictionary, the keypad neither crashes nor hangs nor
// prints, and English is typed as ever.

namespace {

const int longestStep = 1000; // milliseconds

/* Works one new keypad as an operator does, and notes what an operator would complain about. */
class Session
{
public:
    /* Over the registered view, or unseen when there is none. */
    Session()
        : m_slowest(0)
    {
        QElapsedTimer clock;
        clock.start();
        m_keypad.reset(new CharacterKeypad(HMIDeviceInfo::graphicsView(), Qt::WindowFlags()));
        m_keypad->setObject(&m_target);
        if (HMIDeviceInfo::graphicsView())
            m_keypad->show();
        note(clock, "building");
    }

    CharacterKeypad &keypad() { return *m_keypad; }

    /* Taps keys; each for itself must be fast. */
    void step(const char *taps)
    {
        const QStringList list = u(taps).split(QLatin1Char(' '));
        for (int i = 0; i < list.size(); ++i) {
            QElapsedTimer clock;
            clock.start();
            press(*m_keypad, qPrintable(list.at(i)));
            if (HMIDeviceInfo::graphicsView())
                QApplication::processEvents();
            note(clock, qPrintable(list.at(i)));
        }
    }

    /* Composes, pages, chooses, edits and switches in Chinese mode. */
    void workInChinese()
    {
        step("CN n i > > < Space Del Del h a o");
        choose(0);
        step("z h u");
        choose(4);
        step("n i *# && << n i , Del Del");
    }

    /* Leaves for English, types a word and confirms it. */
    void workInEnglish()
    {
        m_keypad->setText(QString());
        step(languageKey(*m_keypad)->text() == u("EN") ? "n i EN" : "");
        step("o k Enter");
    }

    /* Closes the keypad and tells what went wrong; nothing did when it is empty. */
    QString complaint()
    {
        QElapsedTimer clock;
        clock.start();
        m_keypad.reset();
        note(clock, "closing");
        if (m_target.text() != u("ok"))
            return u("English gave ") + m_target.text();
        if (m_slowest > longestStep)
            return QString::fromLatin1("\"%1\" took %2 ms").arg(m_slowestStep).arg(m_slowest);
        return m_log.messages().join(u("\n"));
    }

private:
    void choose(short index)
    {
        QElapsedTimer clock;
        clock.start();
        tapCandidate(*m_keypad, index);
        note(clock, "a candidate");
    }

    void note(const QElapsedTimer &clock, const char *step)
    {
        if (clock.elapsed() <= m_slowest)
            return;
        m_slowest = clock.elapsed();
        m_slowestStep = u(step);
    }

    MessageLog m_log;
    QLineEdit m_target;
    QScopedPointer<CharacterKeypad> m_keypad;
    qint64 m_slowest;
    QString m_slowestStep;
};

QString complaintAbout(const QByteArray &bytes)
{
    DictionaryFile file;
    file.setBytes(bytes);
    Session session;
    session.workInChinese();
    session.workInEnglish();
    return session.complaint();
}

/* A dictionary of many small pages, so that damage can be anywhere in it. */
QByteArray manyPages()
{
    DictionaryFile file;
    QStringList statements;
    statements << u("PRAGMA page_size = 512") << u("CREATE TABLE pinyin (py TEXT, word TEXT)");
    static const char *const keys[] = { "n", "ni", "h", "ha", "hao", "z", "zh", "zhu", "yi" };
    for (int i = 0; i < 540; ++i)
        statements << DictionaryFile::insertion(keys[i % 9], u("候选") + QString::number(i));
    statements << u("CREATE INDEX py_index ON pinyin (py)");
    file.execute(statements);
    return DictionaryFile::bytes();
}

/*
 * The statements for a dictionary of so many numbers as 2 to the power of \a doublings: even ones
 * for "ni", odd ones for "hao". The SQLite in Qt 4 knows no recursive queries.
 */
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

/* Another process that holds the dictionary locked. */
class Writer
{
public:
    bool lock()
    {
        m_process.start(DictionaryFile::directory() + u("/lock_dictionary"),
                        QStringList(DictionaryFile::path()));
        return m_process.waitForReadyRead() && m_process.readAll().startsWith("locked");
    }

    bool release()
    {
        m_process.closeWriteChannel();
        return m_process.waitForFinished() && m_process.exitCode() == 0;
    }

private:
    QProcess m_process;
};

} // namespace

class tst_BadDictionary : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSessionSeesCandidates();
    void filesThatAreNoDictionary_data();
    void filesThatAreNoDictionary();
    void noReadPermission();
    void databasesWithAnotherContent_data();
    void databasesWithAnotherContent();
    void truncatedAtEachPage();
    void bytesFlipped_data();
    void bytesFlipped();
    void lockedWhenTheKeypadIsBuilt();
    void lockedWhileTyping();
    void removedWhileTyping();
};

/* What follows proves nothing unless the session works with a sound file. */
void tst_BadDictionary::theSessionSeesCandidates()
{
    const QByteArray sound = manyPages();
    QCOMPARE(complaintAbout(sound), QString());
    DictionaryFile file;
    file.setBytes(sound);
    Session session;
    session.step("CN n i");
    QCOMPARE(candidateLine(session.keypad()), u("候选1 候选10 候选19 候选28 候选37"));
    session.workInEnglish();
    QCOMPARE(session.complaint(), QString());
}

void tst_BadDictionary::filesThatAreNoDictionary_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QByteArray>("bytes");

    const QByteArray sound = manyPages();
    QTest::newRow("no file") << "none" << QByteArray();
    QTest::newRow("directory") << "directory" << QByteArray();
    QTest::newRow("empty") << "file" << QByteArray();
    QTest::newRow("one byte") << "file" << QByteArray("S");
    QTest::newRow("text") << "file" << QByteArray("ni\t\xe4\xbd\xa0\n").repeated(1000);
    QTest::newRow("zeros") << "file" << QByteArray(8192, '\0');
    QTest::newRow("nothing but the header") << "file" << sound.left(100);
    QTest::newRow("header and noise") << "file" << sound.left(100) + QByteArray(20000, '\xa5');
    QTest::newRow("page size 0") << "file" << QByteArray(sound).replace(16, 2, QByteArray(2, '\0'));
    QTest::newRow("later file format")
        << "file" << QByteArray(sound).replace(18, 2, QByteArray(2, '\x7f'));
}

void tst_BadDictionary::filesThatAreNoDictionary()
{
    QFETCH(QString, kind);
    QFETCH(QByteArray, bytes);
    DictionaryFile file;
    if (kind == u("directory"))
        QVERIFY(QDir().mkdir(DictionaryFile::path()));
    else if (kind == u("file"))
        file.setBytes(bytes);
    const QStringList entries = DictionaryFile::entries();

    PanelView view(1);
    Session session;
    session.step("CN n i");
    QCOMPARE(candidateLine(session.keypad()), QString());
    QCOMPARE(shownPinyin(session.keypad()), u("ni"));
    session.step("EN");
    session.workInChinese();
    session.workInEnglish();
    QCOMPARE(session.complaint(), QString());
    QCOMPARE(DictionaryFile::entries(), entries);
    QCOMPARE(DictionaryFile::bytes(), bytes);
}

void tst_BadDictionary::noReadPermission()
{
    DictionaryFile file;
    file.create(everydayWords);
    QVERIFY(QFile::setPermissions(DictionaryFile::path(), QFile::Permissions()));
    if (geteuid() == 0)
        HMI_SKIP("the superuser reads files whatever their permissions");
    Session session;
    session.step("CN n i");
    QCOMPARE(candidateLine(session.keypad()), QString());
    session.step("EN");
    session.workInChinese();
    session.workInEnglish();
    QCOMPARE(session.complaint(), QString());
}

void tst_BadDictionary::databasesWithAnotherContent_data()
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
        { "markup",
          "CREATE TABLE pinyin (py, word);"
          "INSERT INTO pinyin VALUES ('ni', '<img src=\"file:///no/such.png\"><h1>你</h1>');"
          "INSERT INTO pinyin SELECT 'hao', word FROM pinyin",
          "<img src=\"file:///no/such.png\"><h1>你</h1>" },
        { "newlines",
          "CREATE TABLE pinyin (py, word);"
          "INSERT INTO pinyin VALUES ('ni', '你\n好\r\t\xe2\x80\xa8');"
          "INSERT INTO pinyin SELECT 'hao', word FROM pinyin",
          "你\n好\r\t\xe2\x80\xa8" },
    };
    for (size_t i = 0; i < sizeof(rows) / sizeof(rows[0]); ++i) {
        QTest::newRow(rows[i].name)
            << u(rows[i].statements).split(QLatin1Char(';')) << u(rows[i].candidates);
    }

    const QString table = u("CREATE TABLE pinyin (py, word)");
    const QString copies =
        u("INSERT INTO pinyin SELECT k, word FROM pinyin JOIN (SELECT 'hao' AS k UNION"
          " SELECT 'zhu')");
    const QString ni = u("INSERT INTO pinyin VALUES ('ni', %1)");
    QTest::newRow("1 MiB of letters")
        << (QStringList(table) << ni.arg(u("replace(hex(zeroblob(524288)), '0', 'W')")) << copies)
        << QString(1024 * 1024, QLatin1Char('W'));
    QTest::newRow("1 MiB of Chinese")
        << (QStringList(table) << ni.arg(u("replace(hex(zeroblob(174763)), '00', '铸')")) << copies)
        << QString(174763, QChar(0x94f8));
    QTest::newRow("1 MiB of blanks and lines")
        << (QStringList(table) << ni.arg(
                u("'a' || replace(hex(zeroblob(524288)), '00', ' \n') || 'b'"))
                               << copies)
        << QLatin1Char('a') + QString::fromLatin1(" \n").repeated(524288) + QLatin1Char('b');
    QTest::newRow("a million rows")
        << (numberedRows(20) << u("CREATE INDEX py_index ON pinyin (py)")) << u("2 4 6 8 10");
    QTest::newRow("many rows without an index") << numberedRows(16) << u("2 4 6 8 10");
    QString columns;
    for (int i = 0; i < 500; ++i)
        columns += QString::fromLatin1(", c%1").arg(i);
    QTest::newRow("502 columns")
        << (QStringList(QString::fromLatin1("CREATE TABLE pinyin (py, word%1)").arg(columns))
            << u("INSERT INTO pinyin (py, word, c499) VALUES ('ni', '你', 'x')"))
        << u("你");
    QTest::newRow("invalid UTF-8")
        << (QStringList(table) << ni.arg(u("CAST(x'fffec3280080e4bd' AS TEXT)")) << copies)
        << QString(); // shown as Qt likes
    QTest::newRow("blob") << (QStringList(table) << ni.arg(u("x'00ff00fe'")) << copies)
                          << QString(); // the same
}

void tst_BadDictionary::databasesWithAnotherContent()
{
    QFETCH(QStringList, statements);
    QFETCH(QString, candidates);
    DictionaryFile file;
    file.execute(statements);
    const QByteArray bytes = DictionaryFile::bytes();

    PanelView view(1);
    Session session;
    session.step("CN n i");
    if (!candidates.isEmpty() || !statements.last().contains(u("zhu")))
        QVERIFY(candidateLine(session.keypad()) == candidates);
    const QRect geometry = session.keypad().geometry();
    session.step("EN");
    session.workInChinese();
    QCOMPARE(session.keypad().geometry(), geometry);
    session.workInEnglish();
    QCOMPARE(session.complaint(), QString());
    QVERIFY(DictionaryFile::bytes() == bytes);
    QCOMPARE(DictionaryFile::entries(), QStringList(u("data.db")));
}

void tst_BadDictionary::truncatedAtEachPage()
{
    const QByteArray sound = manyPages();
    const int pageSize = 512;
    QVERIFY(sound.size() > 30 * pageSize);
    QCOMPARE(int(sound.size()) % pageSize, 0);
    for (int size = 0; size < sound.size(); size += pageSize) {
        for (int more = 0; more <= 1; ++more) {
            const QString complaint = complaintAbout(sound.left(size + more));
            QVERIFY2(complaint.isEmpty(),
                     qPrintable(QString::fromLatin1("%1 bytes: ").arg(size + more) + complaint));
        }
    }
}

void tst_BadDictionary::bytesFlipped_data()
{
    QTest::addColumn<int>("seed");
    QTest::addColumn<int>("first"); // byte that may be changed
    QTest::addColumn<int>("last");  // -1: of the file

    QTest::newRow("header") << 1 << 0 << 99;
    QTest::newRow("schema") << 2 << 100 << 511;
    QTest::newRow("anywhere") << 3 << 0 << -1;
    QTest::newRow("anywhere but the first page") << 4 << 512 << -1;
}

void tst_BadDictionary::bytesFlipped()
{
    QFETCH(int, seed);
    QFETCH(int, first);
    QFETCH(int, last);
    const QByteArray sound = manyPages();
    const unsigned range = unsigned((last < 0 ? int(sound.size()) - 1 : last) - first + 1);
    std::mt19937 random { unsigned(seed) };
    for (int variant = 0; variant < 130; ++variant) {
        QByteArray bytes = sound;
        for (unsigned flips = 1 + random() % 12; flips > 0; --flips) {
            const int place = first + int(random() % range);
            bytes[place] = char(bytes.at(place) ^ char(1 + random() % 255));
        }
        const QString complaint = complaintAbout(bytes);
        QVERIFY2(complaint.isEmpty(),
                 qPrintable(QString::fromLatin1("variant %1: ").arg(variant) + complaint));
    }
}

void tst_BadDictionary::lockedWhenTheKeypadIsBuilt()
{
    DictionaryFile file;
    file.create(everydayWords);
    Writer writer;
    QVERIFY(writer.lock());
    Session locked;
    locked.step("CN n i");
    QCOMPARE(candidateLine(locked.keypad()), QString());
    QCOMPARE(shownPinyin(locked.keypad()), u("ni"));
    locked.step("EN");
    locked.workInChinese();
    locked.workInEnglish();
    QVERIFY(writer.release());

    locked.step("CN h a o");
    QCOMPARE(candidateLine(locked.keypad()), u("好 号 毫 豪 耗"));
    QCOMPARE(locked.complaint(), QString());
}

void tst_BadDictionary::lockedWhileTyping()
{
    DictionaryFile file;
    file.create(everydayWords);
    Session session;
    session.step("CN n i");
    QCOMPARE(candidateLine(session.keypad()), u("你 尼 泥 拟 逆"));

    Writer writer;
    QVERIFY(writer.lock());
    session.step(">");
    QCOMPARE(candidateLine(session.keypad()), u("倪 妮 腻 匿 溺"));
    session.step("n");
    QCOMPARE(candidateLine(session.keypad()), QString());
    session.step("EN");
    session.workInChinese();
    QVERIFY(writer.release());

    session.step("Del h a o");
    QCOMPARE(candidateLine(session.keypad()), u("好 号 毫 豪 耗"));
    session.workInEnglish();
    QCOMPARE(session.complaint(), QString());
}

void tst_BadDictionary::removedWhileTyping()
{
    DictionaryFile file;
    file.create(everydayWords);
    Session session;
    session.step("CN n i");
    file.remove();
    session.workInEnglish();
    session.workInChinese();
    session.workInEnglish();
    QCOMPARE(DictionaryFile::entries(), QStringList());
    QCOMPARE(session.complaint(), QString());
}

QTEST_MAIN(tst_BadDictionary)
#include "tst_BadDictionary.moc"
