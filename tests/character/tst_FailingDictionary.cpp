// SPDX-License-Identifier: MIT
#include "CharacterDriver.h"
#include "FailingCalls.h"
#include "support/DictionaryFile.h"
#include "support/MessageLog.h"

#include <QFile>
#include <QMap>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSqlTableModel>

#include <cerrno>
#include <cstdio>

// Each system call that SQLite makes with the dictionary fails in turn, once and from then on:
// candidates are right or absent, never wrong nor a part, English is typed as ever, and when the
// fault has passed, the next letter has candidates again, or the next keypad, where the dictionary
// could not be opened, or be mended.

namespace {

const char *const keys[] = { "n", "ni", "h", "ha", "hao" };
const int keyCount = 5;
const int wordCount = 20; // of a key

QString word(int key, int place)
{
    return u("候选%1").arg(key + keyCount * place);
}

QStringList candidatesOf(const QString &pinyin)
{
    QStringList list;
    for (int key = 0; key < keyCount; ++key) {
        for (int place = 0; pinyin == u(keys[key]) && place < wordCount; ++place)
            list << word(key, place);
    }
    return list;
}

// Small pages, so that a query reads many of them, and other rows before those that are asked for,
// so that a keypad has not read these before.
QStringList soundStatements()
{
    QStringList statements(u("PRAGMA page_size = 512"));
    statements << u("CREATE TABLE pinyin (py TEXT, word TEXT)");
    for (int other = 0; other < 300; ++other)
        statements << DictionaryFile::insertion("zhuang", u("装"));
    for (int place = 0; place < wordCount; ++place) {
        for (int key = 0; key < keyCount; ++key)
            statements << DictionaryFile::insertion(keys[key], word(key, place));
    }
    return statements << u("CREATE INDEX py_index ON pinyin (py)");
}

const char *const kinds[] = { "plain", "hot journal", "WAL" };
const int kindCount = 3;

const struct
{
    const char *name;
    int error;
    FailingCalls::Way way;
} faults[] = { { "EIO", EIO, FailingCalls::Once },
               { "ENOSPC", ENOSPC, FailingCalls::Once },
               { "EINTR", EINTR, FailingCalls::Once },
               { "ENOMEM", ENOMEM, FailingCalls::Once },
               { "EACCES", EACCES, FailingCalls::Once },
               { "short read", FailingCalls::shortRead, FailingCalls::Once },
               { "EIO from then on", EIO, FailingCalls::FromThenOn } };
const int rowCount = kindCount * int(sizeof(faults) / sizeof(faults[0]));

// Without which nothing is read, mended or shared: by one name or another SQLite calls these.
const struct
{
    const char *names;
    int firstKind;
} neededFailures[] = { { "open64", 0 },         { "fstat64", 0 },   { "stat64 access", 0 },
                       { "fcntl64", 0 },        { "close", 0 },     { "pread64 read", 0 },
                       { "pwrite64 write", 1 }, { "fdatasync", 1 }, { "unlink", 1 },
                       { "ftruncate64", 1 },    { "mmap64", 2 } };

// A dictionary and what lies beside it; empty for no such file.
struct Files
{
    QByteArray file, journal, wal;
};

QString walPath()
{
    return DictionaryFile::path() + u("-wal");
}

// Wrong words in the file, and right ones beside it, as a program leaves them that is killed after
// its work.
Files filesWithWal()
{
    const QString name = u("killed author");
    Files files;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u("QSQLITE"), name);
        database.setDatabaseName(DictionaryFile::path());
        database.open();
        QSqlQuery query(database);
        query.exec(u("UPDATE pinyin SET word = '旧' || word"));
        query.exec(u("PRAGMA journal_mode = WAL"));
        query.exec(u("PRAGMA wal_autocheckpoint = 0"));
        query.exec(u("UPDATE pinyin SET word = substr(word, 2)"));
        files.file = DictionaryFile::bytes();
        QFile wal(walPath());
        if (wal.open(QIODevice::ReadOnly))
            files.wal = wal.readAll();
    }
    QSqlDatabase::removeDatabase(name);
    return files;
}

// One keypad and the operator, who knows the dictionary by heart.
class Trial
{
public:
    Trial(const Files &files, int error, FailingCalls::Way way)
        : m_mustMend(!files.journal.isEmpty())
        , m_error(error)
        , m_way(way)
        , m_keypad(new CharacterKeypad(nullptr, Qt::WindowFlags()))
    {
        m_keypad->setObject(&m_target);
    }

    bool hasDictionary() const { return m_keypad->findChild<QSqlTableModel *>(); }

    void workInBothLanguages()
    {
        press(*m_keypad, u("CN"));
        compose("n", "n");
        compose("i", "ni");
        turnTo(">", 1);
        turnTo(">", 2);
        turnTo("<", 1);
        compose("Del", "n");
        compose("i", "ni");
        choose(1);
        compose("h", "h");
        compose("a", "ha");
        compose("o", "hao");
        choose(0);
        press(*m_keypad, u("EN"));
        workInEnglish();
    }

    void workInChineseAgain()
    {
        press(*m_keypad, u("CN"));
        compose("n", "n");
        compose("i", "ni");
        press(*m_keypad, u("EN"));
    }

    // Closes the keypad and tells the first complaint; there was none when it is empty.
    QString complaint()
    {
        m_keypad.reset();
        if (!m_log.messages().isEmpty())
            note(m_log.messages().join(u("\n")));
        if (FailingCalls::openFiles() != 0)
            note(u("a file stays open"));
        return m_complaint;
    }

private:
    QStringList shown() const { return shownCandidates(candidatePanel(*m_keypad)); }

    void note(const QString &complaint)
    {
        if (m_complaint.isEmpty())
            m_complaint = complaint;
    }

    // Whether nothing keeps the candidates from being found by now.
    bool isUnhindered() const
    {
        if (!hasDictionary() || (m_mustMend && FailingCalls::mayOnlyRead()))
            return false;
        return m_error == FailingCalls::shortRead || FailingCalls::isOver()
            || (m_way == FailingCalls::Once && FailingCalls::hasFailed());
    }

    void compose(const char *key, const char *pinyin)
    {
        const bool mustFind = isUnhindered();
        QStringList expected = shown(); // labels beyond the end of a list keep what they show
        m_list = candidatesOf(u(pinyin));
        for (int i = 0; i < expected.size() && i < m_list.size(); ++i)
            expected[i] = m_list.at(i);
        press(*m_keypad, u(key));
        if (shown().join(QString()).isEmpty())
            m_list.clear();
        else if (shown() != expected)
            note(u(pinyin) + u(" shows ") + shown().join(u(" ")));
        if (mustFind && m_list.isEmpty())
            note(u(pinyin) + u(" has no candidates"));
    }

    void turnTo(const char *key, int page)
    {
        press(*m_keypad, u(key));
        for (int i = 0; i < shown().size(); ++i) {
            if (shown().at(i) != m_list.value(5 * page + i))
                note(u("a page shows ") + shown().join(u(" ")));
        }
    }

    void choose(int place)
    {
        const QString expected = editLine(m_keypad.data())->text() + shown().at(place);
        tapCandidate(*m_keypad, place);
        if (editLine(m_keypad.data())->text() != expected)
            note(u("chosen: ") + editLine(m_keypad.data())->text());
    }

    void workInEnglish()
    {
        m_keypad->setText(QString());
        press(*m_keypad, u("o k Enter"));
        if (m_target.text() != u("ok"))
            note(u("English gave ") + m_target.text());
    }

    const bool m_mustMend; // writes into the dictionary what its last writer has left
    const int m_error;
    const FailingCalls::Way m_way;
    MessageLog m_log;
    QLineEdit m_target;
    QScopedPointer<CharacterKeypad> m_keypad;
    QStringList m_list;
    QString m_complaint;
};

} // namespace

class tst_FailingDictionary : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void aCallFails_data();
    void aCallFails();

private:
    void putBack(const Files &files);
    void tryWith(const Files &files, int number, int error, FailingCalls::Way way);
    void verifyThatOneFailed(int kind, const char *names) const;

    QScopedPointer<DictionaryFile> m_dictionary;
    QList<Files> m_files;
    QMap<QByteArray, int> m_callsFailed[kindCount]; // by their names
    int m_rowsDone;
};

void tst_FailingDictionary::initTestCase()
{
    m_rowsDone = 0;
    m_dictionary.reset(new DictionaryFile);
    CHECKED(m_dictionary->execute(soundStatements()));
    Files plain;
    plain.file = DictionaryFile::bytes();
    const Ruins ruins = DictionaryFile::ruinsOfAWriter();
    Files withJournal;
    withJournal.file = ruins.file;
    withJournal.journal = ruins.journal;
    const Files withWal = filesWithWal();
    QVERIFY(plain.file.size() > 6 * 512 && !withJournal.journal.isEmpty()
            && !withWal.wal.isEmpty());
    QVERIFY(withJournal.file != plain.file);
    QVERIFY(withWal.file.contains(u("旧").toUtf8()));
    m_files << plain << withJournal << withWal;

    FailingCalls::arrange(0, EIO, FailingCalls::Once);
    CHECKED(tryWith(plain, 0, EIO, FailingCalls::Once));
#if QT_VERSION < QT_VERSION_CHECK(5, 0, 0)
    if (FailingCalls::callsSeen() == 0)
        QSKIP("the SQLite of this Qt calls by other names", SkipAll);
#endif
    QVERIFY(FailingCalls::callsSeen() > 20);
}

void tst_FailingDictionary::cleanupTestCase()
{
    m_dictionary.reset();
    for (int kind = 0; kind < kindCount; ++kind) {
        const QList<QByteArray> names = m_callsFailed[kind].keys();
        for (const QByteArray &name : names)
            std::printf("%s: %s failed %d times\n", kinds[kind], name.constData(),
                        m_callsFailed[kind].value(name));
    }
    if (m_rowsDone < rowCount)
        return;
    for (const auto &needed : neededFailures) {
        for (int kind = needed.firstKind; kind < kindCount; ++kind)
            CHECKED(verifyThatOneFailed(kind, needed.names));
    }
}

// Otherwise SQLite does by another name what it needs here, which has to be added to FailingCalls.
void tst_FailingDictionary::verifyThatOneFailed(int kind, const char *names) const
{
    const QList<QByteArray> alternatives = QByteArray(names).split(' ');
    int failures = 0;
    for (const QByteArray &name : alternatives)
        failures += m_callsFailed[kind].value(name);
    QVERIFY2(failures > 0, qPrintable(u(kinds[kind]) + u(": never failed: ") + u(names)));
}

void tst_FailingDictionary::putBack(const Files &files)
{
    CHECKED(m_dictionary->setBytes(files.file));
    if (!files.journal.isEmpty())
        CHECKED(m_dictionary->setJournal(files.journal));
    if (!files.wal.isEmpty()) {
        QFile wal(walPath());
        QVERIFY(wal.open(QIODevice::WriteOnly));
        QCOMPARE(wal.write(files.wal), qint64(files.wal.size()));
    }
}

void tst_FailingDictionary::tryWith(const Files &files, int number, int error,
                                    FailingCalls::Way way)
{
    CHECKED(putBack(files));
    FailingCalls::arrange(number, error, way);
    Trial trial(files, error, way);
    trial.workInBothLanguages();
    if (way == FailingCalls::FromThenOn)
        FailingCalls::end();
    trial.workInChineseAgain();
    QString complaint = trial.complaint();
    FailingCalls::end();
    if (complaint.isEmpty()) {
        Trial next(files, error,
                   way); // one that finds the dictionary in whichever state it was left
        if (!next.hasDictionary())
            complaint = u("the next keypad has no dictionary");
        next.workInChineseAgain();
        complaint += next.complaint();
    }
    QVERIFY2(complaint.isEmpty(),
             qPrintable(QString::fromLatin1("call %1 (%2): ")
                            .arg(number)
                            .arg(QLatin1String(FailingCalls::failedCall()))
                        + complaint));
}

void tst_FailingDictionary::aCallFails_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("error");
    QTest::addColumn<int>("way");

    for (int kind = 0; kind < kindCount; ++kind) {
        for (const auto &fault : faults)
            QTest::newRow(qPrintable(u(kinds[kind]) + u(", ") + u(fault.name)))
                << kind << fault.error << int(fault.way);
    }
}

void tst_FailingDictionary::aCallFails()
{
    QFETCH(int, kind);
    QFETCH(int, error);
    QFETCH(int, way);
    CHECKED(tryWith(m_files.at(kind), 1, error, FailingCalls::Way(way)));
    for (int number = 2; FailingCalls::isReached(); ++number) {
        if (FailingCalls::hasFailed())
            ++m_callsFailed[kind][FailingCalls::failedCall()];
        CHECKED(tryWith(m_files.at(kind), number, error, FailingCalls::Way(way)));
    }
    ++m_rowsDone;
}

QTEST_MAIN(tst_FailingDictionary)
#include "tst_FailingDictionary.moc"
