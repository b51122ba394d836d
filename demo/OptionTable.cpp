// SPDX-License-Identifier: MIT
#include "OptionTable.h"

#include <QFile>
#include <QRegularExpression>
#include <QVector>

#include <cstdio>
#include <cstdlib>

namespace {

struct Option
{
    QString name;
    QString value;     // what stands for the value in the help, or "-" for a flag
    QString form;      // of the value, a regular expression
    QString permitted; // the form in words
    QString fallback;  // the value if none is given, or "-"
    QString needs;     // "name=value" of another option, a flag, "!" and what excludes it, or "-"
    QString doneBy;    // "script" if scripts/demo alone can do it, or "-"
    QString help;
};

QVector<Option> readTable()
{
    QFile file(QLatin1String(":/options.txt"));
    file.open(QIODevice::ReadOnly);
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    QVector<Option> table;
    for (const QString &line : lines) {
        const QStringList columns = line.split(QLatin1Char('\t'));
        if (columns.size() == 8)
            table.append({ columns.at(0), columns.at(1), columns.at(2), columns.at(3),
                           columns.at(4), columns.at(5), columns.at(6), columns.at(7) });
    }
    return table;
}

bool isGiven(const QString &column)
{
    return column != QLatin1String("-");
}

bool isFlag(const Option &option)
{
    return !isGiven(option.value);
}

[[noreturn]] void showHelp(const QVector<Option> &table)
{
    std::printf("Usage: hmi-demo [options]\n"
                "A machine-tool panel to try every keypad of HMIDevice on.\n\n");
    for (const Option &option : table) {
        const QString synopsis =
            isFlag(option) ? option.name : option.name + QLatin1Char(' ') + option.value;
        std::printf("  --%-14s %s", qPrintable(synopsis), qPrintable(option.help));
        if (isGiven(option.permitted))
            std::printf(": %s", qPrintable(option.permitted));
        if (isGiven(option.fallback))
            std::printf(" (%s)", qPrintable(option.fallback));
        std::printf("\n");
    }
    std::printf("  --%-14s These lines\n", "help");
    std::exit(0);
}

const Option &findOption(const QVector<Option> &table, const QString &name)
{
    for (const Option &option : table) {
        if (name == QLatin1String("--") + option.name)
            return option;
    }
    complain(QString::fromLatin1("there is no option \"%1\"").arg(name));
}

void checkForm(const Option &option, const QString &value)
{
    const QRegularExpression form(QString::fromLatin1("\\A(?:%1)\\z").arg(option.form));
    if (!form.match(value).hasMatch())
        complain(QString::fromLatin1("--%1 must be %2, not \"%3\"")
                     .arg(option.name, option.permitted, value));
}

// The value of the option at index, joined to it or the next argument, to which index then goes.
QString readValue(const Option &option, const QStringList &arguments, int *index)
{
    const QString &argument = arguments.at(*index);
    const bool isJoined = argument.contains(QLatin1Char('='));
    if (isFlag(option)) {
        if (isJoined)
            complain(QString::fromLatin1("--%1 takes no value").arg(option.name));
        return QString();
    }
    if (!isJoined && ++*index == arguments.size())
        complain(QString::fromLatin1("--%1 needs a value").arg(option.name));
    const QString value = isJoined ? argument.section(QLatin1Char('='), 1) : arguments.at(*index);
    checkForm(option, value);
    return value;
}

void checkNeeds(const Option &option, const QMap<QString, QString> &values)
{
    const QString needed = option.needs.section(QLatin1Char('='), 0, 0);
    const QString value = option.needs.section(QLatin1Char('='), 1);
    if (!values.contains(needed) || values.value(needed) != value)
        complain(QString::fromLatin1("--%1 needs --%2")
                     .arg(option.name,
                          QString(option.needs).replace(QLatin1Char('='), QLatin1Char(' '))));
}

void checkExclusions(const Option &option, const QMap<QString, QString> &values)
{
    const QStringList others = option.needs.mid(1).split(QLatin1Char(','));
    for (const QString &other : others) {
        if (values.contains(other))
            complain(
                QString::fromLatin1("--%1 cannot be joined with --%2").arg(option.name, other));
    }
}

void checkCompany(const QVector<Option> &table, const QMap<QString, QString> &values)
{
    for (const Option &option : table) {
        if (!values.contains(option.name) || !isGiven(option.needs))
            continue;
        if (option.needs.startsWith(QLatin1Char('!')))
            checkExclusions(option, values);
        else
            checkNeeds(option, values);
    }
}

void refuseWhatTheScriptDoes(const QVector<Option> &table, const QMap<QString, QString> &values)
{
    for (const Option &option : table) {
        if (values.contains(option.name) && isGiven(option.doneBy))
            complain(QString::fromLatin1("--%1 is for scripts/demo, which starts this program")
                         .arg(option.name));
    }
}

void addFallbacks(const QVector<Option> &table, QMap<QString, QString> *values)
{
    for (const Option &option : table) {
        if (isGiven(option.fallback) && !values->contains(option.name))
            values->insert(option.name, option.fallback);
    }
}

} // namespace

QMap<QString, QString> readArguments(const QStringList &arguments)
{
    const QVector<Option> table = readTable();
    QMap<QString, QString> values;
    for (int i = 1; i < arguments.size(); ++i) {
        const QString &argument = arguments.at(i);
        if (argument == QLatin1String("--help") || argument == QLatin1String("-h"))
            showHelp(table);
        if (!argument.startsWith(QLatin1Char('-')))
            complain(QString::fromLatin1("unexpected argument \"%1\"").arg(argument));
        const Option &option = findOption(table, argument.section(QLatin1Char('='), 0, 0));
        values.insert(option.name, readValue(option, arguments, &i));
    }
    checkCompany(table, values);
    refuseWhatTheScriptDoes(table, values);
    addFallbacks(table, &values);
    return values;
}

void complain(const QString &complaint)
{
    std::fprintf(stderr, "hmi-demo: %s\n", qPrintable(complaint));
    std::exit(2);
}
