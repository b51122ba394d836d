// SPDX-License-Identifier: MIT
#include "DictionaryFile.h"

#include "Checked.h"
#include "Text.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

namespace {

// clang-format off
const DictionaryRow words[] = {
    { "a", "啊" }, { "a", "阿" },
    { "n", "嗯" }, { "n", "那" },
    { "ni", "你" }, { "ni", "尼" }, { "ni", "泥" }, { "ni", "拟" }, { "ni", "逆" },
    { "ni", "倪" }, { "ni", "妮" }, { "ni", "腻" }, { "ni", "匿" }, { "ni", "溺" },
    { "ni", "呢" }, { "ni", "睨" },
    { "nin", "您" },
    { "hao", "好" }, { "hao", "号" }, { "hao", "毫" }, { "hao", "豪" }, { "hao", "耗" },
    { "zhu", "主" }, { "zhu", "住" }, { "zhu", "注" }, { "zhu", "祝" }, { "zhu", "柱" },
    { "zhu", "铸" },
    { "zhuzhou", "主轴" },
    { "skjc", "数控机床" },
    { "lv", "绿" }, { "lv", "率" },
    { "shuangzhuan", "双转" },
    { "shuangzhuang", "双桩" }
};
// clang-format on

QString connectionName()
{
    return u("dictionary of the test");
}

QString journalPath()
{
    return DictionaryFile::path() + u("-journal");
}

// Keeps a file where it is, if there is one.
void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

void executeIn(QSqlDatabase database, const QStringList &statements)
{
    QVERIFY2(database.open(), qPrintable(database.lastError().text()));
    QSqlQuery query(database);
    QVERIFY(query.exec(u("PRAGMA synchronous = OFF"))); // it need not last
    QVERIFY(database.transaction());
    for (const QString &statement : statements)
        QVERIFY2(query.exec(statement), qPrintable(query.lastError().text()));
    QVERIFY(database.commit());
}

} // namespace

QList<DictionaryRow> everydayWords()
{
    QList<DictionaryRow> list;
    for (const DictionaryRow &row : words)
        list << row;
    return list;
}

QString DictionaryFile::directory()
{
    return QCoreApplication::applicationDirPath();
}

QString DictionaryFile::path()
{
    return directory() + u("/data.db");
}

QStringList DictionaryFile::entries()
{
    return QDir(directory())
        .entryList(QStringList(u("data.db*")), QDir::AllEntries | QDir::Hidden | QDir::System);
}

QByteArray DictionaryFile::bytes()
{
    QFile file(path());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString DictionaryFile::insertion(const char *pinyin, QString word)
{
    word.replace(u("'"), u("''"));
    return QString::fromLatin1("INSERT INTO pinyin (py, word) VALUES ('%1', '%2')")
        .arg(u(pinyin), word);
}

void DictionaryFile::remove()
{
    const QStringList names = entries();
    for (const QString &name : names) {
        const QString path = directory() + QLatin1Char('/') + name;
        if (!QFile::remove(path))
            QDir().rmdir(path);
    }
}

void DictionaryFile::setBytes(const QByteArray &bytes)
{
    remove();
    CHECKED(write(path(), bytes));
}

Ruins DictionaryFile::ruinsOfAWriter()
{
    const QString name = u("crashed writer");
    Ruins ruins;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u("QSQLITE"), name);
        database.setDatabaseName(path());
        database.open();
        QSqlQuery query(database);
        query.exec(u("PRAGMA cache_size = 1")); // pages; what is more is written at once
        query.exec(u("BEGIN"));
        query.exec(u("UPDATE pinyin SET word = hex(zeroblob(5000))"));
        QFile journal(journalPath());
        if (journal.open(QIODevice::ReadOnly))
            ruins.journal = journal.readAll();
        ruins.file = bytes();
        query.exec(u("ROLLBACK"));
    }
    QSqlDatabase::removeDatabase(name);
    return ruins;
}

void DictionaryFile::overwrite(const QByteArray &bytes)
{
    CHECKED(write(path(), bytes));
}

void DictionaryFile::setJournal(const QByteArray &bytes)
{
    CHECKED(write(journalPath(), bytes));
}

void DictionaryFile::create(const QList<DictionaryRow> &rows)
{
    remove();
    QStringList statements(u("CREATE TABLE pinyin (py TEXT, word TEXT)"));
    for (const DictionaryRow &row : rows)
        statements << insertion(row.pinyin, u(row.word));
    execute(statements);
}

void DictionaryFile::execute(const QStringList &statements)
{
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u("QSQLITE"), connectionName());
        database.setDatabaseName(path());
        executeIn(database, statements);
    }
    QSqlDatabase::removeDatabase(connectionName());
}
