// SPDX-License-Identifier: MIT
#ifndef DICTIONARY_H
#define DICTIONARY_H

#include <QSqlQuery>
#include <QStringList>

#include <memory>

class QSqlTableModel;

// The dictionary beside the program, where the character keypad looks for it. It is a link there to
// one of several in the same folder.
namespace Dictionary {

extern const char general[]; // the name of that with the general word list

QString numbered(int rows); // the name of one that was made for its number of rows

QString path(const QString &folder, const QString &name);

// Makes the dictionary of \a rows rows in \a folder. Each of the 26 letters is the key of some
// rows, as many in every dictionary; the rest has longer keys. Rows of one key lie together, as
// those of hmi-dictionary do. Where there is no room for it there is none.
void write(const QString &folder, int rows);

// Whether there is one of that name beside the program.
bool exists(const QString &name);

// Puts the one of that name where the next character keypad looks for it.
void use(const QString &name);

} // namespace Dictionary

// The pinyin query on a prepared statement, on a connection of its own to the file in use.
class PreparedQuery
{
public:
    PreparedQuery();
    ~PreparedQuery();

    QStringList candidates(const QString &pinyin);

private:
    QSqlQuery m_query;
};

// A bare opening of the file in use and a bare select() of its table.
class BareModel
{
public:
    BareModel();
    ~BareModel();

private:
    std::unique_ptr<QSqlTableModel> m_model;
};

#endif
