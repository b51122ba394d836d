// SPDX-License-Identifier: MIT
#include "Console.h"
#include "DictionaryCheck.h"
#include "DictionaryWriter.h"
#include "Failure.h"
#include "Interruption.h"
#include "Options.h"
#include "Ranking.h"
#include "WordList.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace {

enum ExitStatus { Fine = 0, FailureOrFindings = 1, WrongUsage = 2 };

void printSummary(const WordList &words, const RankedRows &ranking, const QString &fileName)
{
    Console::print(QString::fromLatin1("%1: %2 bytes")
                       .arg(QDir::toNativeSeparators(fileName))
                       .arg(QFileInfo(fileName).size()));
    Console::print(QString::fromLatin1("entries read: %1").arg(words.entries().size()));
    Console::print(QString::fromLatin1("keys: %1").arg(ranking.keys));
    Console::print(QString::fromLatin1("rows: %1").arg(ranking.rows.size()));
    Console::print(QString::fromLatin1("skipped lines: %1").arg(words.skippedCount()));
    const QStringList reasons = words.skippedLines().keys();
    for (const QString &reason : reasons)
        Console::print(
            QString::fromLatin1("  %1: %2").arg(reason).arg(words.skippedLines()[reason]));
}

ExitStatus makeDictionary(const Options &options)
{
    WordList words;
    for (const QString &fileName : options.ownWords)
        words.read(fileName, OwnList);
    if (!options.machineToolWords.isEmpty())
        words.read(options.machineToolWords, MachineToolList);
    for (const QString &fileName : options.generalWords)
        words.read(fileName, GeneralList);
    const RankedRows ranking = ranked(words.entries());
    writeDictionary(options.output, ranking.rows);
    printSummary(words, ranking, options.output);
    return Fine;
}

ExitStatus checkDictionaryFile(const QString &fileName)
{
    const CheckReport report = checkDictionary(fileName);
    for (const QString &finding : report.findings)
        Console::print(finding);
    Console::print(QString::fromLatin1("%1: keys: %2, rows: %3")
                       .arg(QDir::toNativeSeparators(fileName))
                       .arg(report.keys)
                       .arg(report.rows));
    Console::print(QString::fromLatin1("findings: %1").arg(report.findings.size()));
    return report.findings.isEmpty() ? Fine : FailureOrFindings;
}

ExitStatus refuse(const QString &reason)
{
    Console::complain(reason);
    Console::complain(QLatin1String("see hmi-dictionary --help"));
    return WrongUsage;
}

ExitStatus run(const Options &options)
{
    switch (options.task) {
    case Options::MakeDictionary:
        return makeDictionary(options);
    case Options::CheckDictionary:
        return checkDictionaryFile(options.checkedFile);
    case Options::ShowText:
        Console::print(options.text.trimmed());
        return Fine;
    case Options::RefuseUsage:
        break;
    }
    return refuse(options.text);
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QLatin1String("hmi-dictionary"));
    QCoreApplication::setApplicationVersion(QLatin1String(HMI_VERSION));
    noticeInterruptions();
    try {
        return run(readOptions(QCoreApplication::arguments()));
    } catch (const Failure &failure) {
        Console::complain(failure.message);
        return FailureOrFindings;
    }
}
