// SPDX-License-Identifier: MIT
#include "DictionarySession.h"
#include "OrdinaryUser.h"
#include "support/DictionaryFile.h"
#include "support/Emulation.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QScopedPointer>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <fcntl.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

// Dictionaries that the keypad may not read, or not now: it does not wait for them.

namespace {

// Another process that holds the dictionary locked.
class Writer
{
public:
    bool lock()
    {
        const QStringList command = commandOf(DictionaryFile::directory() + u("/lock_dictionary"))
            << DictionaryFile::path();
        m_process.start(command.first(), command.mid(1));
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

// A pipe in the dictionary's place. It is kept open, so that nobody waits for a writer, and
// watched.
class Pipe
{
public:
    Pipe()
        : m_end(-1)
        , m_watch(inotify_init1(IN_NONBLOCK))
    {
    }
    ~Pipe()
    {
        close(m_end);
        close(m_watch);
    }

    bool create()
    {
        const QByteArray path = QFile::encodeName(DictionaryFile::path());
        if (mkfifo(path.constData(), S_IRUSR | S_IWUSR) != 0)
            return false;
        m_end = open(path.constData(), O_RDWR);
        return m_end >= 0 && inotify_add_watch(m_watch, path.constData(), IN_OPEN) >= 0;
    }

    bool wasOpened() const
    {
        char event[sizeof(inotify_event) + 256];
        return read(m_watch, event, sizeof(event)) > 0;
    }

private:
    Q_DISABLE_COPY(Pipe)

    int m_end;
    int m_watch;
};

// How long the keypad's connection waits for a writer, in milliseconds: SQLite's own way is to hold
// up a key for seconds.
int longestWait()
{
    QSqlQuery query(QSqlDatabase::database(u("pinyin"), false));
    return query.exec(u("PRAGMA busy_timeout")) && query.first() ? query.value(0).toInt() : -1;
}

} // namespace

class tst_UnavailableDictionary : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void noReadPermission();
    void noWritePermission();
    void aFileWhoseWriterCrashedIsMended();
    void aPipeIsNotOpened();
    void lockedWhenTheKeypadIsBuilt();
    void lockedWhileTyping();
    void removedWhileTyping();

private:
    QScopedPointer<DictionaryFile> m_dictionary;
};

void tst_UnavailableDictionary::init()
{
    m_dictionary.reset(new DictionaryFile);
    CHECKED(m_dictionary->create(everydayWords()));
}

void tst_UnavailableDictionary::cleanup()
{
    m_dictionary.reset();
}

void tst_UnavailableDictionary::noReadPermission()
{
    QVERIFY(QFile::setPermissions(DictionaryFile::path(), QFile::Permissions()));
    const OrdinaryUser user;
    if (!QFileInfo(DictionaryFile::path()).isFile())
        HMI_SKIP("no ordinary user may look into the directory of the test");
    QCOMPARE(DictionaryFile::bytes(), QByteArray());
    DictionarySession session;
    QVERIFY(!session.keypad().findChild<QSqlTableModel *>());
    session.type("CN n i");
    QCOMPARE(candidateLine(session.keypad()), QString());
    CHECKED(session.finish());
}

void tst_UnavailableDictionary::noWritePermission()
{
    const QByteArray before = DictionaryFile::bytes();
    QVERIFY(QFile::setPermissions(DictionaryFile::path(),
                                  QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));
    const OrdinaryUser user;
    if (DictionaryFile::bytes().isEmpty())
        HMI_SKIP("no ordinary user may look into the directory of the test");
    QVERIFY(!QFile(DictionaryFile::path()).open(QIODevice::ReadWrite));
    DictionarySession session;
    session.type("CN n");
    QCOMPARE(candidateLine(session.keypad()), u("嗯 那"));
    CHECKED(session.finish());
    QCOMPARE(DictionaryFile::bytes(), before);
    QCOMPARE(DictionaryFile::entries(), QStringList(u("data.db")));
}

void tst_UnavailableDictionary::aFileWhoseWriterCrashedIsMended()
{
    const QByteArray before = DictionaryFile::bytes();
    const Ruins ruins = DictionaryFile::ruinsOfAWriter();
    QVERIFY(ruins.file != before && !ruins.journal.isEmpty());
    QCOMPARE(DictionaryFile::bytes(), before);
    CHECKED(m_dictionary->setBytes(ruins.file));
    CHECKED(m_dictionary->setJournal(ruins.journal));

    DictionarySession session;
    session.type("CN n");
    QCOMPARE(candidateLine(session.keypad()), u("嗯 那"));
    CHECKED(session.finish());
    QCOMPARE(DictionaryFile::bytes(), before);
    QCOMPARE(DictionaryFile::entries(), QStringList(u("data.db")));
}

void tst_UnavailableDictionary::aPipeIsNotOpened()
{
    m_dictionary->remove();
    Pipe pipe;
    QVERIFY(pipe.create());
    QVERIFY(!pipe.wasOpened());
    QCOMPARE(DictionaryFile::entries(), QStringList(u("data.db")));
    DictionarySession session;
    CHECKED(session.finish());
    QVERIFY(!pipe.wasOpened());
    close(open(QFile::encodeName(DictionaryFile::path()).constData(), O_RDONLY));
    QVERIFY2(pipe.wasOpened(), "this would have been noticed");
}

void tst_UnavailableDictionary::lockedWhenTheKeypadIsBuilt()
{
    Writer writer;
    QVERIFY(writer.lock());
    DictionarySession session;
    QCOMPARE(longestWait(), 0);
    session.type("CN n i");
    QCOMPARE(candidateLine(session.keypad()), QString());
    QCOMPARE(shownPinyin(session.keypad()), u("ni"));
    session.workInChinese();
    session.workInEnglish();
    QVERIFY(writer.release());

    session.type("CN n");
    QCOMPARE(candidateLine(session.keypad()), u("嗯 那"));
    QCOMPARE(session.complaint(), QString());
}

void tst_UnavailableDictionary::lockedWhileTyping()
{
    DictionarySession session;
    QCOMPARE(longestWait(), 0);
    session.type("CN n i");
    QCOMPARE(candidateLine(session.keypad()), u("你 尼 泥 拟 逆"));

    Writer writer;
    QVERIFY(writer.lock());
    session.type(">");
    QCOMPARE(candidateLine(session.keypad()), u("倪 妮 腻 匿 溺"));
    session.type("n");
    QCOMPARE(candidateLine(session.keypad()), QString());
    session.workInChinese();
    session.type("n i n");
    QVERIFY(writer.release());

    session.type("Del");
    QCOMPARE(candidateLine(session.keypad()), u("你 尼 泥 拟 逆"));
    session.workInEnglish();
    QCOMPARE(session.complaint(), QString());
}

void tst_UnavailableDictionary::removedWhileTyping()
{
    DictionarySession session;
    session.type("CN n i");
    m_dictionary->remove();
    CHECKED(session.finish());
    QCOMPARE(DictionaryFile::entries(), QStringList());
}

QTEST_MAIN(tst_UnavailableDictionary)
#include "tst_UnavailableDictionary.moc"
