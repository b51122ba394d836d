// SPDX-License-Identifier: MIT
#include "DictionarySession.h"
#include "support/DictionaryFile.h"

#include <QSqlDatabase>

// A Qt without its SQLite driver. A program of its own: a driver once loaded stays.

class tst_NoSqlDriver : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void englishIsTypedAsEver();
};

void tst_NoSqlDriver::initTestCase()
{
    QCoreApplication::setLibraryPaths(QStringList());
    if (QSqlDatabase::isDriverAvailable(u("QSQLITE")))
        HMI_SKIP("this Qt has the driver built in");
}

void tst_NoSqlDriver::englishIsTypedAsEver()
{
    DictionaryFile file;
    CHECKED(file.setBytes("SQLite format 3"));
    DictionarySession session;
    session.type("CN n i");
    QCOMPARE(shownPinyin(session.keypad()), u("ni"));
    QCOMPARE(candidateLine(session.keypad()), QString());
    CHECKED(session.finish());
    QCOMPARE(DictionaryFile::entries(), QStringList(u("data.db")));
}

QTEST_MAIN(tst_NoSqlDriver)
#include "tst_NoSqlDriver.moc"
