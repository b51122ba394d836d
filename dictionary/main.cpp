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

enum ExitStatus { Fine = 0, FailureOrFindings = 1, WrongUsage = 2 };

static void printSummary(const WordList &words, const RankedRows &ranking, const QString &fileName)
{
    Console::print(QStringLiteral("%1: %2 bytes")
                       .arg(QDir::toNativeSeparators(fileName))
                       .arg(QFileInfo(fileName).size()));
    Console::print(QStringLiteral("entries read: %1").arg(words.entries().size()));
    Console::print(QStringLiteral("keys: %1").arg(ranking.keys));
    Console::print(QStringLiteral("rows: %1").arg(ranking.rows.size()));
    Console::print(QStringLiteral("skipped lines: %1").arg(words.skippedCount()));
    for (const QString &reason : words.skippedLines().keys())
        Console::print(QStringLiteral("  %1: %2").arg(reason).arg(words.skippedLines()[reason]));
}

static ExitStatus makeDictionary(const Options &options)
{
    WordList words;
    if (!options.machineToolWords.isEmpty())
        words.read(options.machineToolWords, MachineToolList);
    for (const QString &fileName : options.words)
        words.read(fileName, GeneralList);
    const RankedRows ranking = ranked(words.entries());
    writeDictionary(options.output, ranking.rows);
    printSummary(words, ranking, options.output);
    return Fine;
}

static ExitStatus checkDictionaryFile(const QString &fileName)
{
    const CheckReport report = checkDictionary(fileName);
    for (const QString &finding : report.findings)
        Console::print(finding);
    Console::print(QStringLiteral("%1: keys: %2, rows: %3, slowest of %4 queries: %5 ms")
                       .arg(QDir::toNativeSeparators(fileName))
                       .arg(report.keys)
                       .arg(report.rows)
                       .arg(report.timedQueries)
                       .arg(report.slowestQuery, 0, 'f', 2));
    Console::print(QStringLiteral("findings: %1").arg(report.findings.size()));
    return report.findings.isEmpty() ? Fine : FailureOrFindings;
}

static ExitStatus refuse(const QString &reason)
{
    Console::complain(reason);
    Console::complain(QStringLiteral("see hmi-dictionary --help"));
    return WrongUsage;
}

static ExitStatus run(const Options &options)
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

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("hmi-dictionary"));
    QCoreApplication::setApplicationVersion(QStringLiteral(HMI_VERSION));
    noticeInterruptions();
    try {
        return run(readOptions(QCoreApplication::arguments()));
    } catch (const Failure &failure) {
        Console::complain(failure.message);
        return FailureOrFindings;
    }
}
