// SPDX-License-Identifier: MIT
#ifndef DICTIONARYFILE_H
#define DICTIONARYFILE_H

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QStringList>
#include <QVariant>
#include <QtTest>

struct DictionaryRow
{
    const char *pinyin;
    const char *word; // UTF-8
};

/*
 * The pinyin dictionary beside the test program, where a keypad looks for it. At first there is
 * none, and none is left when this goes.
 */
class DictionaryFile
{
public:
    DictionaryFile() { remove(); }
    ~DictionaryFile() { remove(); }

    static QString directory() { return QCoreApplication::applicationDirPath(); }
    static QString path() { return directory() + QLatin1String("/data.db"); }

    /* What there is in the directory; names of things that begin as the dictionary does. */
    static QStringList entries()
    {
        return QDir(directory())
            .entryList(QStringList(QLatin1String("data.db*")), QDir::AllEntries | QDir::Hidden);
    }

    static QByteArray bytes()
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    void remove()
    {
        QFile::setPermissions(path(), QFile::ReadOwner | QFile::WriteOwner);
        const QStringList names = entries();
        for (int i = 0; i < names.size(); ++i) {
            const QString name = directory() + QLatin1Char('/') + names.at(i);
            if (!QFile::remove(name))
                QDir().rmdir(name);
        }
    }

    void setBytes(const QByteArray &bytes)
    {
        remove();
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), qint64(bytes.size()));
    }

    /* Executes \a statements in the dictionary, one after the other, in one transaction. */
    void execute(const QStringList &statements)
    {
        {
            QSqlDatabase database = open();
            QVERIFY2(database.open(), qPrintable(database.lastError().text()));
            QSqlQuery query(database);
            QVERIFY(query.exec(QLatin1String("PRAGMA synchronous = OFF"))); // it need not last
            QVERIFY(database.transaction());
            for (int i = 0; i < statements.size(); ++i)
                QVERIFY2(query.exec(statements.at(i)), qPrintable(query.lastError().text()));
            QVERIFY(database.commit());
        }
        QSqlDatabase::removeDatabase(connectionName());
    }

    void execute(const char *statement) { execute(QStringList(QString::fromUtf8(statement))); }

    /* Makes a dictionary of \a rows, in their order. */
    void create(const QList<DictionaryRow> &rows)
    {
        remove();
        QStringList statements(QLatin1String("CREATE TABLE pinyin (py TEXT, word TEXT)"));
        for (int i = 0; i < rows.size(); ++i)
            statements << insertion(rows.at(i).pinyin, QString::fromUtf8(rows.at(i).word));
        execute(statements);
    }

    template <int count>
    void create(const DictionaryRow (&rows)[count])
    {
        QList<DictionaryRow> list;
        for (int i = 0; i < count; ++i)
            list << rows[i];
        create(list);
    }

    static QString insertion(const char *pinyin, QString word)
    {
        word.replace(QLatin1String("'"), QLatin1String("''"));
        return QString::fromLatin1("INSERT INTO pinyin (py, word) VALUES ('%1', '%2')")
            .arg(QLatin1String(pinyin), word);
    }

private:
    Q_DISABLE_COPY(DictionaryFile)

    static QString connectionName() { return QLatin1String("dictionary of the test"); }

    static QSqlDatabase open()
    {
        QSqlDatabase database =
            QSqlDatabase::addDatabase(QLatin1String("QSQLITE"), connectionName());
        database.setDatabaseName(path());
        return database;
    }
};

/* Everyday syllables: "ni" has three pages, "hao" exactly one, "zhu" one and a single candidate. */
static const DictionaryRow everydayWords[] = { { "a", "啊" },
                                               { "a", "阿" },
                                               { "n", "嗯" },
                                               { "n", "那" },
                                               { "ni", "你" },
                                               { "ni", "尼" },
                                               { "ni", "泥" },
                                               { "ni", "拟" },
                                               { "ni", "逆" },
                                               { "ni", "倪" },
                                               { "ni", "妮" },
                                               { "ni", "腻" },
                                               { "ni", "匿" },
                                               { "ni", "溺" },
                                               { "ni", "呢" },
                                               { "ni", "睨" },
                                               { "nin", "您" },
                                               { "hao", "好" },
                                               { "hao", "号" },
                                               { "hao", "毫" },
                                               { "hao", "豪" },
                                               { "hao", "耗" },
                                               { "zhu", "主" },
                                               { "zhu", "住" },
                                               { "zhu", "注" },
                                               { "zhu", "祝" },
                                               { "zhu", "柱" },
                                               { "zhu", "铸" },
                                               { "zhuzhou", "主轴" },
                                               { "skjc", "数控机床" },
                                               { "lv", "绿" },
                                               { "lv", "率" },
                                               { "shuangzhuan", "双转" },
                                               { "shuangzhuang", "双桩" } };

#endif
