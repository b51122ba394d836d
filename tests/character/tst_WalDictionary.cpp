// SPDX-License-Identifier: MIT
#include "DictionarySession.h"
#include "support/DictionaryFile.h"

#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>

// A dictionary in SQLite's journal mode "WAL", whose newest words stand in a file beside it until
// they are written into the dictionary itself.

namespace {

QString fileBeside()
{
    return DictionaryFile::path() + u("-wal");
}

// A program that adds a word in this mode, and has it open as long as it lives.
class Author
{
public:
    Author()
        : m_name(u("author"))
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u("QSQLITE"), m_name);
        database.setDatabaseName(DictionaryFile::path());
        database.open();
        QSqlQuery query(database);
        query.exec(u("PRAGMA journal_mode = WAL"));
        query.exec(u("PRAGMA wal_autocheckpoint = 0"));
        m_hasWritten = query.exec(DictionaryFile::insertion("n", u("新")));
    }
    ~Author()
    {
        QSqlDatabase::database(m_name).close();
        QSqlDatabase::removeDatabase(m_name);
    }

    bool hasWritten() const { return m_hasWritten; }
    void writeIntoTheFile() const
    {
        QSqlQuery(u("PRAGMA wal_checkpoint"), QSqlDatabase::database(m_name));
    }

private:
    Q_DISABLE_COPY(Author)

    QString m_name;
    bool m_hasWritten;
};

} // namespace

class tst_WalDictionary : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theNewestWordIsFoundBeside();
    void aCopyOfTheFileAlone_data();
    void aCopyOfTheFileAlone();

private:
    QScopedPointer<DictionaryFile> m_dictionary;
};

void tst_WalDictionary::init()
{
    m_dictionary.reset(new DictionaryFile);
    CHECKED(m_dictionary->create(everydayWords()));
}

void tst_WalDictionary::cleanup()
{
    m_dictionary.reset();
}

void tst_WalDictionary::theNewestWordIsFoundBeside()
{
    const Author author;
    QVERIFY(author.hasWritten() && QFile::exists(fileBeside()));
    DictionarySession session;
    session.type("CN n");
    QCOMPARE(candidateLine(session.keypad()), u("嗯 那 新"));
    CHECKED(session.finish());
}

void tst_WalDictionary::aCopyOfTheFileAlone_data()
{
    QTest::addColumn<bool>("writtenBefore");
    QTest::addColumn<QString>("candidates");
    QTest::newRow("as it is") << false << u("嗯 那");
    QTest::newRow("after a checkpoint") << true << u("嗯 那 新");
}

void tst_WalDictionary::aCopyOfTheFileAlone()
{
    QFETCH(bool, writtenBefore);
    QByteArray copy;
    {
        const Author author;
        QVERIFY(author.hasWritten());
        if (writtenBefore)
            author.writeIntoTheFile();
        copy = DictionaryFile::bytes();
    }
    m_dictionary->remove();
    CHECKED(m_dictionary->setBytes(copy));

    DictionarySession session;
    session.type("CN n");
    QTEST(candidateLine(session.keypad()), "candidates");
    CHECKED(session.finish());
}

QTEST_MAIN(tst_WalDictionary)

#include "tst_WalDictionary.moc"
