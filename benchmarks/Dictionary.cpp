// SPDX-License-Identifier: MIT
#include "Dictionary.h"

#include <QCoreApplication>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlTableModel>
#include <QVariant>

namespace {

const QLatin1String queryConnection("floor of a letter");
const QLatin1String modelConnection("floor of a keypad");
const QLatin1String writerConnection("dictionary of the benchmark");
const int mostRows = 256; // what the keypad's model reports at most
const int rowsPerLetter = 200;

QSqlDatabase open(const QString &file, const QString &connection)
{
    QSqlDatabase database = QSqlDatabase::addDatabase(QLatin1String("QSQLITE"), connection);
    database.setDatabaseName(file);
    database.open();
    return database;
}

QString fileInUse()
{
    return QCoreApplication::applicationDirPath() + QLatin1String("/data.db");
}

// A number as letters, four at least, so that all keys are in the order of their numbers.
const char fillerKey[] = "char(97 + i / 456976 % 26, 97 + i / 17576 % 26, 97 + i / 676 % 26, "
                         "97 + i / 26 % 26, 97 + i % 26)";

QStringList statements(int rows)
{
    const QString count = QLatin1String("WITH RECURSIVE counter(i) AS "
                                        "(SELECT 0 UNION ALL SELECT i + 1 FROM counter LIMIT %1) ");
    const int lettersRows = 26 * rowsPerLetter;
    return { QLatin1String("CREATE TABLE pinyin (py TEXT NOT NULL, word TEXT NOT NULL)"),
             count.arg(lettersRows)
                 + QString::fromLatin1("INSERT INTO pinyin SELECT char(97 + i / %1), "
                                       "char(19968 + i) FROM counter")
                       .arg(rowsPerLetter),
             count.arg(rows - lettersRows)
                 + QString::fromLatin1("INSERT INTO pinyin SELECT %1, char(19968 + i % 20000) "
                                       "FROM counter")
                       .arg(QLatin1String(fillerKey)),
             QLatin1String("CREATE INDEX pinyin_py ON pinyin (py)") };
}

bool execute(const QSqlDatabase &database, const QStringList &list)
{
    QSqlQuery query(database);
    for (const QString &statement : list) {
        if (!query.exec(statement))
            return false;
    }
    return true;
}

} // namespace

const char Dictionary::general[] = "general.db";

QString Dictionary::numbered(int rows)
{
    return QString::fromLatin1("%1.db").arg(rows);
}

QString Dictionary::path(const QString &folder, const QString &name)
{
    return folder + QLatin1Char('/') + name;
}

void Dictionary::write(const QString &folder, int rows)
{
    bool isWritten = false;
    {
        QSqlDatabase database = open(path(folder, numbered(rows)), writerConnection);
        isWritten =
            database.transaction() && execute(database, statements(rows)) && database.commit();
    }
    QSqlDatabase::removeDatabase(writerConnection);
    if (!isWritten)
        QFile::remove(path(folder, numbered(rows)));
}

bool Dictionary::exists(const QString &name)
{
    return QFile::exists(path(QCoreApplication::applicationDirPath(), name));
}

void Dictionary::use(const QString &name)
{
    QFile::remove(fileInUse());
    QFile::link(path(QCoreApplication::applicationDirPath(), name), fileInUse());
}

PreparedQuery::PreparedQuery()
{
    m_query = QSqlQuery(open(fileInUse(), queryConnection));
    m_query.setForwardOnly(true);
    m_query.prepare(QLatin1String("SELECT word FROM pinyin WHERE py = ?"));
}

PreparedQuery::~PreparedQuery()
{
    m_query = QSqlQuery();
    QSqlDatabase::removeDatabase(queryConnection);
}

QStringList PreparedQuery::candidates(const QString &pinyin)
{
    QStringList list;
    m_query.addBindValue(pinyin);
    m_query.exec();
    while (list.size() < mostRows && m_query.next())
        list.append(m_query.value(0).toString());
    m_query.finish();
    return list;
}

BareModel::BareModel()
    : m_model(new QSqlTableModel(nullptr, open(fileInUse(), modelConnection)))
{
    m_model->setTable(QLatin1String("pinyin"));
    m_model->select();
}

BareModel::~BareModel()
{
    m_model.reset();
    QSqlDatabase::removeDatabase(modelConnection);
}
