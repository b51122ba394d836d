// SPDX-License-Identifier: MIT
#include "DictionarySession.h"
#include "OrdinaryUser.h"
#include "support/DictionaryFile.h"

#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <sys/stat.h>

// A dictionary in a directory where the keypad may make and remove no file. What its last writer
// has left beside it cannot be mended then: there are no candidates until it can.

namespace {

const mode_t readOnlyDirectory = 0555;
const mode_t filesForAll = 0666;

QString walPath()
{
    return DictionaryFile::path() + u("-wal");
}

QByteArray directory()
{
    return QFile::encodeName(DictionaryFile::directory());
}

// While it lives nobody writes the directory, though its files may be written.
class ReadOnlyDirectory
{
public:
    ReadOnlyDirectory()
        : m_isReadOnly(true)
    {
        struct stat former;
        m_isReadOnly = stat(directory().constData(), &former) == 0;
        m_formerMode = former.st_mode;
        const QStringList names = DictionaryFile::entries();
        for (const QString &name : names) {
            const QByteArray path = directory() + '/' + QFile::encodeName(name);
            m_isReadOnly = m_isReadOnly && chmod(path.constData(), filesForAll) == 0;
        }
        m_isReadOnly = m_isReadOnly && chmod(directory().constData(), readOnlyDirectory) == 0;
        m_user.reset(new OrdinaryUser);
        QFile other(DictionaryFile::directory() + u("/other"));
        m_isReadOnly = m_isReadOnly && !other.open(QIODevice::WriteOnly);
    }
    ~ReadOnlyDirectory()
    {
        m_user.reset();
        chmod(directory().constData(), m_formerMode);
    }

    bool isReadOnly() const { return m_isReadOnly; }

private:
    Q_DISABLE_COPY(ReadOnlyDirectory)

    QScopedPointer<OrdinaryUser> m_user;
    mode_t m_formerMode;
    bool m_isReadOnly;
};

// The newest word stands beside the dictionary, as a program leaves it that is killed after its
// work.
void leaveWal(DictionaryFile *dictionary)
{
    const QString name = u("killed author");
    QByteArray file, wal;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u("QSQLITE"), name);
        database.setDatabaseName(DictionaryFile::path());
        QVERIFY(database.open());
        QSqlQuery query(database);
        QVERIFY(query.exec(u("PRAGMA journal_mode = WAL")));
        QVERIFY(query.exec(DictionaryFile::insertion("n", u("新"))));
        file = DictionaryFile::bytes();
        QFile beside(walPath());
        QVERIFY(beside.open(QIODevice::ReadOnly));
        wal = beside.readAll();
    }
    QSqlDatabase::removeDatabase(name);
    CHECKED(dictionary->setBytes(file));
    QFile beside(walPath());
    QVERIFY(beside.open(QIODevice::WriteOnly));
    QCOMPARE(beside.write(wal), qint64(wal.size()));
}

} // namespace

class tst_ReadOnlyDirectory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aSoundFile();
    void filesBeside_data();
    void filesBeside();

private:
    QScopedPointer<DictionaryFile> m_dictionary;
};

void tst_ReadOnlyDirectory::init()
{
    m_dictionary.reset(new DictionaryFile);
    CHECKED(m_dictionary->create(everydayWords()));
}

void tst_ReadOnlyDirectory::cleanup()
{
    m_dictionary.reset();
}

void tst_ReadOnlyDirectory::aSoundFile()
{
    const QByteArray before = DictionaryFile::bytes();
    const ReadOnlyDirectory directory;
    QVERIFY(directory.isReadOnly());
    if (DictionaryFile::bytes().isEmpty())
        HMI_SKIP("no ordinary user may look into the directory of the test");
    DictionarySession session;
    session.type("CN n");
    QCOMPARE(candidateLine(session.keypad()), u("嗯 那"));
    CHECKED(session.finish());
    QCOMPARE(DictionaryFile::bytes(), before);
    QCOMPARE(DictionaryFile::entries(), QStringList(u("data.db")));
}

void tst_ReadOnlyDirectory::filesBeside_data()
{
    QTest::addColumn<bool>("isWal");
    QTest::addColumn<QString>("candidates");
    QTest::newRow("journal") << false << u("嗯 那");
    QTest::newRow("WAL") << true << u("嗯 那 新");
}

void tst_ReadOnlyDirectory::filesBeside()
{
    QFETCH(bool, isWal);
    QFETCH(QString, candidates);
    const Ruins ruins = DictionaryFile::ruinsOfAWriter();
    if (isWal) {
        CHECKED(leaveWal(m_dictionary.data()));
    } else {
        CHECKED(m_dictionary->setBytes(ruins.file));
        CHECKED(m_dictionary->setJournal(ruins.journal));
    }
    const QStringList entries = DictionaryFile::entries();
    QCOMPARE(entries.size(), 2);

    QScopedPointer<ReadOnlyDirectory> directory(new ReadOnlyDirectory);
    QVERIFY(directory->isReadOnly());
    if (DictionaryFile::bytes().isEmpty())
        HMI_SKIP("no ordinary user may look into the directory of the test");
    DictionarySession session;
    session.type("CN n");
    QCOMPARE(candidateLine(session.keypad()), QString());
    session.workInChinese();
    session.workInEnglish();
    QCOMPARE(DictionaryFile::entries(), entries);

    directory.reset();
    session.type("CN n");
    QCOMPARE(candidateLine(session.keypad()), candidates);
    CHECKED(session.finish());
    QCOMPARE(DictionaryFile::entries(), QStringList(u("data.db")));
}

QTEST_MAIN(tst_ReadOnlyDirectory)
#include "tst_ReadOnlyDirectory.moc"
