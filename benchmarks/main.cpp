// SPDX-License-Identifier: MIT
#include "Bench.h"
#include "Cases.h"
#include "Dictionary.h"
#include "Kinds.h"

#include <QApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>

#include <csignal>
#include <memory>
#include <vector>

// What the library costs, beside what the same thing costs without it. The keypads read the
// dictionary in the program's folder, and several are needed: the program makes a folder for them
// and a copy of itself, which measures.

namespace {

const char insideOption[] = "--inside"; // of the copy: that it is one
const char timesMode[] = "--times";
const char heapMode[] = "--heap";
const char instructionsMode[] = "--instructions";
const char usage[] =
    "usage: hmi-benchmarks [--times | --heap | --instructions FOLDER]\n"
    "  --times                what an operation takes, with the library and without\n"
    "  --heap                 what five keypads and bare dialogs allocate\n"
    "  --instructions FOLDER  counts instructions under Valgrind; callgrind writes into FOLDER\n"
    "Without an option times and heap.\n";

volatile std::sig_atomic_t isInterrupted = 0;

// The copy ends by itself, and the folder is left to nobody.
void interrupt(int)
{
    isInterrupted = 1;
}

void reportMemory()
{
    const long before = residentMemory();
    const double allocatedBefore = HeapBench::allocated();
    std::vector<std::unique_ptr<QDialog>> keypads;
    for (const Kind &kind : kinds)
        keypads.push_back(kind.make());
    QTextStream(stdout) << "The first five keypads take " << residentMemory() - before
                        << " KiB of memory, with what Qt loads for them, "
                        << qRound(HeapBench::allocated() - allocatedBefore)
                        << " KiB of it on the heap\n\n";
}

void compareAll(Bench &bench)
{
    Cases::construct(bench);
    Cases::show(bench);
    Cases::tap(bench);
    Cases::press(bench);
    Cases::compose(bench);
    Cases::composeAmongMany(bench);
}

int measure(const QString &mode)
{
    QApplication::setCursorFlashTime(0);
    Dictionary::use(QLatin1String(Dictionary::general));
    if (mode == QLatin1String(timesMode)) {
        reportMemory();
        TimeBench bench;
        compareAll(bench);
    } else if (mode == QLatin1String(instructionsMode) && InstructionBench::isPossible()) {
        InstructionBench bench;
        compareAll(bench);
    } else if (mode == QLatin1String(heapMode) && HeapBench::isPossible()) {
        HeapBench bench;
        Cases::construct(bench);
    } else {
        QTextStream(stderr) << "hmi-benchmarks: built without what " << mode << " needs\n";
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}

bool prepare(const QString &folder, const QString &program)
{
    const QString given = QCoreApplication::applicationDirPath() + QLatin1String("/data.db");
    if (QFile::exists(given))
        QFile::link(given, Dictionary::path(folder, QLatin1String(Dictionary::general)));
    Dictionary::write(folder, Cases::fewRows);
    Dictionary::write(folder, Cases::manyRows);
    return QFile::copy(QCoreApplication::applicationFilePath(), program);
}

// The same hash seed for every run; and, for the heap, nothing that was freed counts as allocated.
QProcessEnvironment surroundings(const QString &mode)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1String("QT_HASH_SEED"), QLatin1String("0"));
    if (mode == QLatin1String(heapMode))
        environment.insert(QLatin1String("GLIBC_TUNABLES"),
                           QLatin1String("glibc.malloc.tcache_count=0"));
    return environment;
}

QStringList valgrind(const QString &folder)
{
    return { QLatin1String("valgrind"), QLatin1String("--tool=callgrind"),
             QLatin1String("--collect-atstart=no"),
             QLatin1String("--callgrind-out-file=") + folder + QLatin1String("/callgrind.out") };
}

int run(const QString &program, const QString &mode, const QStringList &prefix)
{
    QStringList command = prefix;
    command << program << QLatin1String(insideOption) << mode;
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.setProcessEnvironment(surroundings(mode));
    process.start(command.takeFirst(), command);
    if (!process.waitForStarted() || !process.waitForFinished(-1)) {
        QTextStream(stderr) << "hmi-benchmarks: " << process.errorString() << '\n';
        return EXIT_FAILURE;
    }
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : EXIT_FAILURE;
}

int measureInFolder(const QStringList &modes, const QStringList &prefix)
{
    std::signal(SIGINT, interrupt);
    std::signal(SIGTERM, interrupt);
    QTemporaryDir folder;
    const QString program = Dictionary::path(folder.path(), QLatin1String("hmi-benchmarks"));
    if (!folder.isValid() || !prepare(folder.path(), program)) {
        QTextStream(stderr) << "hmi-benchmarks: no room for a copy in " << folder.path() << '\n';
        return EXIT_FAILURE;
    }
    for (const QString &mode : modes) {
        const int status = isInterrupted ? EXIT_FAILURE : run(program, mode, prefix);
        if (status != EXIT_SUCCESS)
            return status;
    }
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc == 3 && qstrcmp(argv[1], insideOption) == 0) {
        QApplication application(argc, argv);
        return measure(QLatin1String(argv[2]));
    }
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments().mid(1);
    const QString mode = arguments.value(0);
    if (arguments.isEmpty())
        return measureInFolder({ QLatin1String(timesMode), QLatin1String(heapMode) }, {});
    if (arguments.size() == 2 && mode == QLatin1String(instructionsMode))
        return measureInFolder({ mode }, valgrind(arguments.at(1)));
    if (arguments.size() == 1
        && (mode == QLatin1String(timesMode) || mode == QLatin1String(heapMode)))
        return measureInFolder({ mode }, {});
    QTextStream(stderr) << usage;
    return 2;
}
