// SPDX-License-Identifier: MIT
#include "DictionarySession.h"
#include "support/DictionaryFile.h"

#include <QDir>

#include <random>

// Whatever lies beside the application as its dictionary, the keypad neither crashes nor prints nor
// reads more than it must, and English is typed as ever.

namespace {

const int pageSize = 512; // bytes

// The statements for a dictionary of many small pages, so that damage can be anywhere in it.
QStringList manyPages()
{
    static const char *const keys[] = { "n", "ni", "h", "ha", "hao", "z", "zh", "zhu", "yi" };
    QStringList statements;
    statements << QString::fromLatin1("PRAGMA page_size = %1").arg(pageSize)
               << u("CREATE TABLE pinyin (py TEXT, word TEXT)");
    for (int i = 0; i < 540; ++i)
        statements << DictionaryFile::insertion(keys[i % 9], u("候选") + QString::number(i));
    return statements << u("CREATE INDEX py_index ON pinyin (py)");
}

// Asserts that an operator has nothing to complain about with a dictionary of \a bytes.
void work(const QByteArray &bytes, const QString &what)
{
    DictionaryFile file;
    CHECKED(file.setBytes(bytes));
    DictionarySession session;
    session.workInChinese();
    session.workInEnglish();
    const QString complaint = session.complaint();
    QVERIFY2(complaint.isEmpty(), qPrintable(what + u(": ") + complaint));
}

} // namespace

class tst_BadDictionary : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theSessionSeesCandidates();
    void filesThatAreNoDictionary_data();
    void filesThatAreNoDictionary();
    void truncatedAtEachPage();
    void bytesFlipped_data();
    void bytesFlipped();

private:
    QByteArray m_sound; // a dictionary
};

void tst_BadDictionary::initTestCase()
{
    DictionaryFile file;
    CHECKED(file.execute(manyPages()));
    m_sound = DictionaryFile::bytes();
}

// What follows proves nothing unless the session works with a sound file.
void tst_BadDictionary::theSessionSeesCandidates()
{
    CHECKED(work(m_sound, u("sound")));
    DictionaryFile file;
    CHECKED(file.setBytes(m_sound));
    DictionarySession session;
    session.type("CN n i");
    QCOMPARE(candidateLine(session.keypad()), u("候选1 候选10 候选19 候选28 候选37"));
    session.workInEnglish();
    QCOMPARE(session.complaint(), QString());
}

void tst_BadDictionary::filesThatAreNoDictionary_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QByteArray>("bytes");

    const QByteArray none;
    QTest::newRow("no file") << u("none") << none;
    QTest::newRow("directory") << u("directory") << none;
    QTest::newRow("empty") << u("file") << none;
    const struct
    {
        const char *name;
        QByteArray bytes;
    } rows[] = { { "one byte", "S" },
                 { "text", QByteArray("ni\t\xe4\xbd\xa0\n").repeated(1000) },
                 { "zeros", QByteArray(8192, '\0') },
                 { "nothing but the header", m_sound.left(100) },
                 { "header and noise", m_sound.left(100) + QByteArray(20000, '\xa5') },
                 { "page size 0", QByteArray(m_sound).replace(16, 2, QByteArray(2, '\0')) },
                 { "later file format",
                   QByteArray(m_sound).replace(18, 2, QByteArray(2, '\x7f')) } };
    for (const auto &row : rows)
        QTest::newRow(row.name) << u("file") << row.bytes;
}

void tst_BadDictionary::filesThatAreNoDictionary()
{
    QFETCH(QString, kind);
    QFETCH(QByteArray, bytes);
    DictionaryFile file;
    if (kind == u("directory"))
        QVERIFY(QDir().mkdir(DictionaryFile::path()));
    else if (kind == u("file"))
        CHECKED(file.setBytes(bytes));
    const QStringList entries = DictionaryFile::entries();

    PanelView view(1);
    DictionarySession session;
    session.type("CN n i");
    QCOMPARE(candidateLine(session.keypad()), QString());
    QCOMPARE(shownPinyin(session.keypad()), u("ni"));
    CHECKED(session.finish());
    QCOMPARE(DictionaryFile::entries(), entries);
    QCOMPARE(DictionaryFile::bytes(), bytes);
}

void tst_BadDictionary::truncatedAtEachPage()
{
    QVERIFY(m_sound.size() > 30 * pageSize);
    QCOMPARE(int(m_sound.size()) % pageSize, 0);
    for (int size = 0; size < m_sound.size(); size += pageSize) {
        for (int more = 0; more <= 1; ++more) {
            const QString what = QString::fromLatin1("%1 bytes").arg(size + more);
            CHECKED(work(m_sound.left(size + more), what));
        }
    }
}

void tst_BadDictionary::bytesFlipped_data()
{
    QTest::addColumn<int>("seed");
    QTest::addColumn<int>("first"); // byte that may be changed
    QTest::addColumn<int>("last");

    const int end = int(m_sound.size()) - 1;
    QTest::newRow("header") << 1 << 0 << 99;
    QTest::newRow("schema") << 2 << 100 << pageSize - 1;
    QTest::newRow("anywhere") << 3 << 0 << end;
    QTest::newRow("anywhere but the first page") << 4 << pageSize << end;
}

void tst_BadDictionary::bytesFlipped()
{
    QFETCH(int, seed);
    QFETCH(int, first);
    QFETCH(int, last);
    const unsigned range = unsigned(last - first + 1);
    std::mt19937 random { unsigned(seed) };
    for (int variant = 0; variant < 130; ++variant) {
        QByteArray bytes = m_sound;
        for (unsigned flips = 1 + random() % 12; flips > 0; --flips) {
            const int place = first + int(random() % range);
            bytes[place] = char(bytes.at(place) ^ char(1 + random() % 255));
        }
        CHECKED(work(bytes, QString::fromLatin1("variant %1").arg(variant)));
    }
}

QTEST_MAIN(tst_BadDictionary)
#include "tst_BadDictionary.moc"
