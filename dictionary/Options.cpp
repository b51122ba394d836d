// SPDX-License-Identifier: MIT
#include "Options.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {

const char description[] =
    "Makes the pinyin dictionary of the character keypad from lists of Chinese words,\n"
    "or checks one.\n"
    "\n"
    "A word list is UTF-8 text with an entry a line: word, its syllables without tones\n"
    "separated by blanks (ü as v), and a weight, with a tab between them. Lines that\n"
    "begin with \"#\" and a header from \"---\" to \"...\" are passed over. A line that is\n"
    "no entry is named and skipped, such as one with a syllable too few or too many for\n"
    "its Chinese characters.\n"
    "\n"
    "Words of your own, given with --add, rank above the words of machine tools, which\n"
    "the program carries with it, and these above the general ones. The words of\n"
    "machine tools are also installed as share/HMIDevice/machine-tool-words.tsv.\n"
    "An existing dictionary is replaced only when the new one is complete. Where the\n"
    "output is a symbolic link, the file it leads to is replaced.\n"
    "\n"
    "Exit status: 0 when all is well, 1 after a failure or when a check has findings,\n"
    "2 after a usage error.";

struct OptionRow
{
    const char *letter;
    const char *name;
    const char *description;
    const char *valueName;
    const char *defaultValue;
};

enum OptionIndex {
    Help,
    Version,
    Add,
    Words,
    MachineToolWords,
    NoMachineToolWords,
    Output,
    Check,
    OptionCount
};

const OptionRow rows[OptionCount] = {
    { "h", "help", "Show this text.", nullptr, nullptr },
    { "v", "version", "Show the version.", nullptr, nullptr },
    { nullptr, "add", "Add the words of this list to all others; may be repeated.", "FILE",
      nullptr },
    { nullptr, "words",
      "Take the general words from this list alone; may be repeated. Without it: " HMI_PINYIN_WORDS,
      "FILE", HMI_PINYIN_WORDS },
    { nullptr, "machine-tool-words",
      "Take the words of machine tools from this list, not the program's own.", "FILE",
      ":/machine-tool-words.tsv" },
    { nullptr, "no-machine-tool-words", "Leave the words of machine tools out.", nullptr, nullptr },
    { nullptr, "output", "Write the dictionary to this file. Without it: data.db", "FILE",
      "data.db" },
    { nullptr, "check", "Make nothing; report what in this dictionary would hurt an operator.",
      "FILE", nullptr }
};

QString nameOf(OptionIndex index)
{
    return QLatin1String(rows[index].name);
}

void addOptions(QCommandLineParser *parser)
{
    for (const OptionRow &row : rows) {
        QStringList names(QLatin1String(row.name));
        if (row.letter)
            names.prepend(QLatin1String(row.letter));
        QCommandLineOption option(names, QString::fromUtf8(row.description));
        if (row.valueName) {
            option.setValueName(QLatin1String(row.valueName));
            option.setDefaultValue(QString::fromUtf8(row.defaultValue));
        }
        parser->addOption(option);
    }
}

// Says why the options do not go together; empty when they do.
QString contradiction(const QCommandLineParser &parser)
{
    if (!parser.positionalArguments().isEmpty())
        return QLatin1String("unexpected argument: ") + parser.positionalArguments().first();
    if (parser.isSet(nameOf(MachineToolWords)) && parser.isSet(nameOf(NoMachineToolWords))) {
        return QLatin1String("--machine-tool-words and --no-machine-tool-words exclude each other");
    }
    const bool checks = parser.isSet(nameOf(Check));
    for (int i = 0; i < OptionCount; ++i) {
        const OptionIndex index = OptionIndex(i);
        if (checks && index != Check && parser.isSet(nameOf(index)))
            return QLatin1String("--check goes with no other option");
        if (parser.isSet(nameOf(index)) && rows[i].valueName
            && parser.values(nameOf(index)).contains(QString())) {
            return QString::fromLatin1("--%1 needs the name of a file").arg(nameOf(index));
        }
    }
    return QString();
}

Options showText(const QString &text)
{
    Options options;
    options.task = Options::ShowText;
    options.text = text;
    return options;
}

Options refuse(const QString &reason)
{
    Options options;
    options.task = Options::RefuseUsage;
    options.text = reason;
    return options;
}

Options asked(const QCommandLineParser &parser)
{
    Options options;
    options.task = parser.isSet(nameOf(Check)) ? Options::CheckDictionary : Options::MakeDictionary;
    options.checkedFile = parser.value(nameOf(Check));
    options.output = parser.value(nameOf(Output));
    options.ownWords = parser.values(nameOf(Add));
    options.generalWords = parser.values(nameOf(Words));
    if (!parser.isSet(nameOf(NoMachineToolWords)))
        options.machineToolWords = parser.value(nameOf(MachineToolWords));
    return options;
}

} // namespace

Options readOptions(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QString::fromUtf8(description));
    addOptions(&parser);
    if (!parser.parse(arguments))
        return refuse(parser.errorText());
    if (parser.isSet(nameOf(Help)))
        return showText(parser.helpText());
    if (parser.isSet(nameOf(Version))) {
        return showText(QCoreApplication::applicationName() + QLatin1Char(' ')
                        + QCoreApplication::applicationVersion());
    }
    const QString reason = contradiction(parser);
    return reason.isEmpty() ? asked(parser) : refuse(reason);
}
