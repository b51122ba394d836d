// SPDX-License-Identifier: MIT
#include "DictionaryProgram.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtTest>

#include <signal.h>
#include <unistd.h>

// What hmi-dictionary says and leaves behind when it cannot do its work.
class tst_hmi_dictionary_failures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wrongUsage_data();
    void wrongUsage();
    void unreadableList_data();
    void unreadableList();
    void fileThatCannotBeUsed_data();
    void fileThatCannotBeUsed();
    void outputIsADirectory();
    void outputIsADevice();
    void outputIsALinkInACircle();
    void withoutPermission_data();
    void withoutPermission();
    void databaseThatCannotBeOpened_data();
    void databaseThatCannotBeOpened();
    void fullDisk();
    void fullDiskWithoutAnOlderFile();
    void interrupted_data();
    void interrupted();
    void killedRunIsNamedByTheNext();
};

namespace {

const char olderFile[] = "what was there before";

// Words of two syllables, 410 for each of the first syllables.
QByteArray longList(int firstSyllables)
{
    const QStringList syllables = standardSyllables();
    const QStringList firsts = syllables.mid(0, firstSyllables);
    QByteArray list;
    for (const QString &first : firsts) {
        for (const QString &second : syllables)
            list += u("词语\t%1 %2\t1\n").arg(first, second).toUtf8();
    }
    return list;
}

// A limit on the size of files acts on the program as a disk that runs full does.
ProgramRun runWithLittleSpace(const Workshop &workshop)
{
    QProcess process;
    workshop.prepare(&process, words("--words list.tsv"));
    const QStringList limited { u("-c"), u("ulimit -f 64 && exec \"$0\" \"$@\"") };
    process.start(u("sh"), limited + QStringList(process.program()) + process.arguments());
    return ended(&process);
}

// As a user without rights, and not as root, as whom tests often run.
ProgramRun runAsAnybody(const Workshop &workshop, const QStringList &arguments)
{
    QProcess process;
    workshop.prepare(&process, arguments);
    if (geteuid() == 0) {
        process.setArguments(words("--reuid=65534 --regid=65534 --clear-groups")
                             + QStringList(process.program()) + process.arguments());
        process.setProgram(u("setpriv"));
    }
    process.start();
    return ended(&process);
}

bool startWriting(const Workshop &workshop, QProcess *process)
{
    workshop.write("data.db", olderFile);
    workshop.write("list.tsv", longList(250));
    workshop.prepare(process, words("--words list.tsv"));
    process->start();
    return QTest::qWaitFor([&workshop] { return workshop.names().size() > 2; }, 20000)
        && process->state() == QProcess::Running;
}

} // namespace

void tst_hmi_dictionary_failures::wrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");

    const QStringList noName((QString()));
    QTest::newRow("unknown option") << words("--wordz x") << u("wordz");
    QTest::newRow("argument without option")
        << words("data.db") << u("unexpected argument: data.db");
    QTest::newRow("words without a file") << words("--words") << u("words");
    QTest::newRow("words with an empty name") << words("--words") + noName << u("--words needs");
    QTest::newRow("add with an empty name") << words("--add") + noName << u("--add needs");
    QTest::newRow("output with an empty name") << words("--output") + noName << u("--output needs");
    QTest::newRow("check with an empty name") << words("--check") + noName << u("--check needs");
    QTest::newRow("check and make") << words("--check x --words y") << u("--check goes");
    QTest::newRow("check and add") << words("--check x --add y") << u("--check goes");
    QTest::newRow("check and output") << words("--check x --output y") << u("--check goes");
    QTest::newRow("machine-tool words and none")
        << words("--machine-tool-words x --no-machine-tool-words") << u("exclude each other");
}

void tst_hmi_dictionary_failures::wrongUsage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);
    Workshop workshop;
    const ProgramRun run = workshop.run(arguments);
    QCOMPARE(run.status, 2);
    QVERIFY2(run.errors.contains(message), qPrintable(run.errors));
    QVERIFY(run.errors.contains(u("--help")));
    QCOMPARE(run.output, QString());
    QVERIFY(workshop.names().isEmpty());
}

void tst_hmi_dictionary_failures::unreadableList_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<QString>("message");

    const QString encoding = u("list.tsv:%1: not UTF-8 text; convert the file to UTF-8");
    QTest::newRow("empty") << QByteArray() << u("list.tsv: holds no entry");
    QTest::newRow("comments only") << QByteArray("# nothing\n") << u("list.tsv: holds no entry");
    QTest::newRow("header without end")
        << QByteArray("# x\n---\n八\tba\t1\n") << u("list.tsv:2: no \"...\" ends the header");
    QTest::newRow("GBK") << QByteArray("# x\n\xb0\xcb\tba\t1\n") << encoding.arg(2);
    QTest::newRow("Latin-1") << QByteArray("八\tba\t1\nL\xfc\tl\t1\n") << encoding.arg(2);
    QTest::newRow("UTF-16") << QByteArray("\xff\xfe\x6b\x51\t\0b\0a\0\t\0\x31\0\n\0", 16)
                            << encoding.arg(1);
    QTest::newRow("NUL") << QByteArray("八\tba\t1\0\n", 10) << encoding.arg(1);
    QTest::newRow("cut within a character") << QByteArray("八\tba\t1\n\xe5\x85") << encoding.arg(2);
    QTest::newRow("overlong line") << QByteArray("八\tba\t1\n") + QByteArray(4097, 'a')
                                   << u("list.tsv:2: the line is too long");
}

void tst_hmi_dictionary_failures::unreadableList()
{
    QFETCH(QByteArray, list);
    QFETCH(QString, message);
    Workshop workshop;
    workshop.write("data.db", olderFile);
    const ProgramRun run = workshop.make(list);
    QCOMPARE(run.status, 1);
    QVERIFY2(run.errors.startsWith(u("hmi-dictionary: ") + message), qPrintable(run.errors));
    QCOMPARE(run.output, QString());
    QCOMPARE(workshop.bytes("data.db"), QByteArray(olderFile));
    QCOMPARE(workshop.names(), words("data.db list.tsv"));
}

void tst_hmi_dictionary_failures::fileThatCannotBeUsed_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");

    QTest::newRow("general words that do not exist")
        << words("--words no.tsv") << u("no.tsv: cannot be read: No such file or directory\n");
    QTest::newRow("general words in a folder") << words("--words .") << u(".: cannot be read: ");
    QTest::newRow("machine-tool words that do not exist")
        << words("--machine-tool-words no.tsv --words list.tsv") << u("no.tsv: cannot be read: ");
    QTest::newRow("own words that do not exist")
        << words("--words list.tsv --add no.tsv") << u("no.tsv: cannot be read: ");
    QTest::newRow("line without an end") << words("--words /dev/zero") << u("/dev/zero:1: ");
    QTest::newRow("output in a folder that does not exist")
        << words("--words list.tsv --output no/data.db") << u("no/data.db: cannot be written: ");
}

void tst_hmi_dictionary_failures::fileThatCannotBeUsed()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);
    Workshop workshop;
    workshop.write("list.tsv", "八\tba\t1\n");
    const ProgramRun run = workshop.run(arguments);
    QCOMPARE(run.status, 1);
    QVERIFY2(run.errors.startsWith(u("hmi-dictionary: ") + message), qPrintable(run.errors));
    QCOMPARE(workshop.names(), words("list.tsv"));
}

void tst_hmi_dictionary_failures::outputIsADirectory()
{
    Workshop workshop;
    QVERIFY(QDir().mkdir(workshop.path("data.db")));
    const ProgramRun run = workshop.make("八\tba\t1\n");
    QCOMPARE(run.status, 1);
    QCOMPARE(run.errors, u("hmi-dictionary: data.db: is no file that could be replaced\n"));
    QCOMPARE(workshop.names(), words("data.db list.tsv"));
    QVERIFY(QFileInfo(workshop.path("data.db")).isDir());
}

void tst_hmi_dictionary_failures::outputIsADevice()
{
    Workshop workshop;
    QVERIFY(QFile::link(u("/dev/null"), workshop.path("data.db")));
    const ProgramRun run = workshop.make("八\tba\t1\n");
    QCOMPARE(run.status, 1);
    QCOMPARE(run.errors, u("hmi-dictionary: data.db: is no file that could be replaced\n"));
    QVERIFY(QFileInfo(workshop.path("data.db")).isSymLink());
}

void tst_hmi_dictionary_failures::outputIsALinkInACircle()
{
    Workshop workshop;
    QVERIFY(QFile::link(u("data.db"), workshop.path("back")));
    QVERIFY(QFile::link(u("back"), workshop.path("data.db")));
    const ProgramRun run = workshop.make("八\tba\t1\n");
    QCOMPARE(run.status, 1);
    QCOMPARE(run.errors,
             u("hmi-dictionary: data.db: cannot be written: Too many levels of symbolic links\n"));
    QCOMPARE(workshop.names(), words("back data.db list.tsv"));
    QVERIFY(QFileInfo(workshop.path("data.db")).isSymLink());
}

void tst_hmi_dictionary_failures::withoutPermission_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");

    QTest::newRow("to write") << words("--words list.tsv --output closed/data.db")
                              << u("closed/data.db: cannot be written: Permission denied\n");
    QTest::newRow("to read words") << words("--words secret --output data.db")
                                   << u("secret: cannot be read: Permission denied\n");
    QTest::newRow("to read a dictionary")
        << words("--check secret") << u("secret: unable to open database file\n");
}

void tst_hmi_dictionary_failures::withoutPermission()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);
    Workshop workshop;
    const QFile::Permissions open =
        QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther;
    QVERIFY(QDir().mkdir(workshop.path("closed")));
    QVERIFY(QFile::setPermissions(workshop.path("closed"), open));
    workshop.write("list.tsv", "八\tba\t1\n");
    workshop.write("secret", "八\tba\t1\n");
    QVERIFY(QFile::setPermissions(workshop.path("secret"), QFile::Permissions()));
    QVERIFY(QFile::setPermissions(workshop.path(""), open | QFile::WriteOwner));
    if (runAsAnybody(workshop, words("--version")).status != 0)
        QSKIP("another user cannot run the program here");
    const ProgramRun run = runAsAnybody(workshop, arguments);
    QCOMPARE(run.status, 1);
    QVERIFY2(run.errors.startsWith(u("hmi-dictionary: ") + message), qPrintable(run.errors));
    QCOMPARE(workshop.names(), words("closed list.tsv secret"));
}

void tst_hmi_dictionary_failures::databaseThatCannotBeOpened_data()
{
    QTest::addColumn<QStringList>("options");

    QTest::newRow("to be made") << words("--words list.tsv --output");
    QTest::newRow("to be checked") << words("--check");
}

// SQLite takes no path of more than 512 bytes, which is neither a missing nor a closed file.
void tst_hmi_dictionary_failures::databaseThatCannotBeOpened()
{
    QFETCH(QStringList, options);
    Workshop workshop;
    workshop.write("list.tsv", "八\tba\t1\n");
    const QString folder = QString(200, QLatin1Char('d'));
    const QString deepFolder = QStringList { folder, folder, folder }.join(QLatin1Char('/'));
    QVERIFY(QDir(workshop.path("")).mkpath(deepFolder));
    const QString deepFile = deepFolder + u("/data.db");
    workshop.write(deepFile.toUtf8().constData(), olderFile);
    const ProgramRun run = workshop.run(options + QStringList(deepFile));
    QCOMPARE(run.status, 1);
    QCOMPARE(run.errors, u("hmi-dictionary: %1: unable to open database file\n").arg(deepFile));
    QCOMPARE(workshop.bytes(deepFile.toUtf8().constData()), QByteArray(olderFile));
    const QDir deepDir(QDir(workshop.path("")).filePath(deepFolder));
    QCOMPARE(deepDir.entryList(QDir::AllEntries | QDir::NoDotAndDotDot), words("data.db"));
}

void tst_hmi_dictionary_failures::fullDisk()
{
    Workshop workshop;
    workshop.write("data.db", olderFile);
    workshop.write("list.tsv", longList(20));
    const ProgramRun run = runWithLittleSpace(workshop);
    QCOMPARE(run.status, 1);
    QVERIFY2(run.errors.startsWith(u("hmi-dictionary: data.db: ")), qPrintable(run.errors));
    QVERIFY2(run.errors.contains(u("disk")), qPrintable(run.errors));
    QCOMPARE(workshop.bytes("data.db"), QByteArray(olderFile));
    QCOMPARE(workshop.names(), words("data.db list.tsv"));
}

void tst_hmi_dictionary_failures::fullDiskWithoutAnOlderFile()
{
    Workshop workshop;
    workshop.write("list.tsv", longList(20));
    QCOMPARE(runWithLittleSpace(workshop).status, 1);
    QCOMPARE(workshop.names(), words("list.tsv"));
}

void tst_hmi_dictionary_failures::interrupted_data()
{
    QTest::addColumn<int>("signalNumber");

    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGHUP") << SIGHUP;
}

void tst_hmi_dictionary_failures::interrupted()
{
    QFETCH(int, signalNumber);
    Workshop workshop;
    QProcess process;
    QVERIFY(startWriting(workshop, &process));
    QCOMPARE(kill(pid_t(process.processId()), signalNumber), 0);
    const ProgramRun run = ended(&process);
    QCOMPARE(run.status, 1);
    QCOMPARE(run.errors, u("hmi-dictionary: interrupted\n"));
    QCOMPARE(workshop.bytes("data.db"), QByteArray(olderFile));
    QCOMPARE(workshop.names(), words("data.db list.tsv"));
}

void tst_hmi_dictionary_failures::killedRunIsNamedByTheNext()
{
    Workshop workshop;
    QProcess process;
    QVERIFY(startWriting(workshop, &process));
    process.kill();
    QCOMPARE(ended(&process).status, -1);
    QCOMPARE(workshop.bytes("data.db"), QByteArray(olderFile));
    QCOMPARE(workshop.names().size(), 3);
    const QString left = workshop.names().at(1);
    const ProgramRun next = workshop.make("八\tba\t1\n");
    QVERIFY2(next.errors.startsWith(u("hmi-dictionary: %1: left by another run").arg(left)),
             qPrintable(next.errors));
    QCOMPARE(next.status, 0);
    QCOMPARE(workshop.names(), (QStringList { u("data.db"), left, u("list.tsv") }));
}

QTEST_GUILESS_MAIN(tst_hmi_dictionary_failures)
#include "tst_hmi_dictionary_failures.moc"
