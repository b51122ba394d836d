// SPDX-License-Identifier: MIT
#include "DictionarySession.h"
#include "support/DictionaryFile.h"

#include <QFile>

#include <cstdio>

// Dictionaries that somebody changes while a keypad has them open: candidates are right or absent,
// never wrong, and English is typed as ever.

namespace {

const char oldCandidates[] = "嗯 那";
const char newCandidates[] = "您 恁";

QList<DictionaryRow> otherWords()
{
    const DictionaryRow first = { "n", "您" };
    const DictionaryRow second = { "n", "恁" };
    return QList<DictionaryRow>() << first << second;
}

} // namespace

class tst_ChangedDictionary : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aWriterIsKilled();
    void anotherFileTakesItsPlace_data();
    void anotherFileTakesItsPlace();
    void itShrinks_data();
    void itShrinks();
    void itIsWrittenAnew();

private:
    void prepareNewFile();

    QScopedPointer<DictionaryFile> m_dictionary;
    QByteArray m_newFile; // with other words
};

void tst_ChangedDictionary::init()
{
    m_dictionary.reset(new DictionaryFile);
    CHECKED(m_dictionary->create(everydayWords()));
}

void tst_ChangedDictionary::cleanup()
{
    m_dictionary.reset();
}

void tst_ChangedDictionary::aWriterIsKilled()
{
    const QByteArray before = DictionaryFile::bytes();
    const Ruins ruins = DictionaryFile::ruinsOfAWriter();
    QVERIFY(ruins.file != before && !ruins.journal.isEmpty());
    DictionarySession session;
    session.type("CN n i");
    CHECKED(m_dictionary->overwrite(ruins.file));
    CHECKED(m_dictionary->setJournal(ruins.journal));
    session.type("Del Del n");
    QCOMPARE(candidateLine(session.keypad()), u(oldCandidates));
    CHECKED(session.finish());
    QCOMPARE(DictionaryFile::bytes(), before);
    QCOMPARE(DictionaryFile::entries(), QStringList(u("data.db")));
}

void tst_ChangedDictionary::prepareNewFile()
{
    const QByteArray oldFile = DictionaryFile::bytes();
    CHECKED(m_dictionary->create(otherWords()));
    m_newFile = DictionaryFile::bytes();
    CHECKED(m_dictionary->setBytes(oldFile));
}

void tst_ChangedDictionary::anotherFileTakesItsPlace_data()
{
    QTest::addColumn<bool>("isAtOnce");
    QTest::newRow("written beside it and renamed over it") << true;
    QTest::newRow("written where it was, when it has gone") << false;
}

// As an update does that is careful.
void tst_ChangedDictionary::anotherFileTakesItsPlace()
{
    QFETCH(bool, isAtOnce);
    CHECKED(prepareNewFile());
    {
        DictionarySession session;
        session.type("CN n i");
        const QString beside = DictionaryFile::directory() + u("/data.db-new");
        if (isAtOnce) {
            QFile file(beside);
            QVERIFY(file.open(QIODevice::WriteOnly));
            QCOMPARE(file.write(m_newFile), qint64(m_newFile.size()));
            file.close();
            QCOMPARE(std::rename(QFile::encodeName(beside).constData(),
                                 QFile::encodeName(DictionaryFile::path()).constData()),
                     0);
        } else {
            QVERIFY(
                QFile::rename(DictionaryFile::path(), beside)); // gives the old one another name
            CHECKED(m_dictionary->overwrite(m_newFile));
            QVERIFY(QFile::remove(beside));
        }
        QCOMPARE(DictionaryFile::entries(), QStringList(u("data.db")));
        session.type("Del Del n");
        QCOMPARE(candidateLine(session.keypad()), u(oldCandidates));
        CHECKED(session.finish());
    }
    DictionarySession next;
    next.type("CN n");
    QCOMPARE(candidateLine(next.keypad()), u(newCandidates));
    QCOMPARE(next.complaint(), QString());
}

void tst_ChangedDictionary::itShrinks_data()
{
    QTest::addColumn<int>("size");
    for (int size : { 0, 1, 100, 512, 1024, 4096, 5000 })
        QTest::newRow(qPrintable(QString::number(size))) << size;
}

void tst_ChangedDictionary::itShrinks()
{
    QFETCH(int, size);
    QVERIFY(DictionaryFile::bytes().size() > size);
    DictionarySession session;
    session.type("CN n i");
    QVERIFY(QFile::resize(DictionaryFile::path(), size));
    session.type("Del Del n");
    const QString candidates = candidateLine(session.keypad());
    QVERIFY2(candidates.isEmpty() || candidates == u(oldCandidates), qPrintable(candidates));
    CHECKED(session.finish());
}

// As an update does that is not careful. SQLite keeps what it has read as long as the file says
// that nothing has changed.
void tst_ChangedDictionary::itIsWrittenAnew()
{
    CHECKED(prepareNewFile());
    DictionarySession session;
    session.type("CN n i");
    CHECKED(m_dictionary->overwrite(m_newFile));
    session.type("Del Del n");
    const QString candidates = candidateLine(session.keypad());
    QVERIFY2(candidates.isEmpty() || candidates == u(oldCandidates)
                 || candidates == u(newCandidates),
             qPrintable(candidates));
    CHECKED(session.finish());
}

QTEST_MAIN(tst_ChangedDictionary)

#include "tst_ChangedDictionary.moc"
