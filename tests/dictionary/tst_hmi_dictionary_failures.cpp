// SPDX-License-Identifier: MIT
#include "DictionaryProgram.h"

#include <QtTest>

#include <signal.h>
#include <unistd.h>

static const char olderFile[] = "what was there before";

/*! What hmi-dictionary says and leaves behind when it cannot do its work. */
class tst_hmi_dictionary_failures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wrongUsage_data();
    void wrongUsage();
    void unreadableList_data();
    void unreadableList();
    void missingList();
    void directoryAsList();
    void missingMachineToolList();
    void endlessLine();
    void missingOutputDirectory();
    void outputIsADirectory();
    void outputIsADevice();
    void outputDirectoryWithoutWritePermission();
    void fullDisk();
    void fullDiskWithoutAnOlderFile();
    void interrupted_data();
    void interrupted();
    void killed();

private:
    static QByteArray longList(int firstSyllables);
    static bool startWriting(const Workshop &workshop, QProcess *process);
};

void tst_hmi_dictionary_failures::wrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");

    QTest::newRow("unknown option") << QStringList { "--wordz", "x" } << "wordz";
    QTest::newRow("argument without option")
        << QStringList { "data.db" } << "unexpected argument: data.db";
    QTest::newRow("words without a file") << QStringList { "--words" } << "words";
    QTest::newRow("words with an empty name") << QStringList { "--words", "" } << "--words needs";
    QTest::newRow("output with an empty name")
        << QStringList { "--output", "" } << "--output needs";
    QTest::newRow("check with an empty name") << QStringList { "--check", "" } << "--check needs";
    QTest::newRow("check and make")
        << QStringList { "--check", "x", "--words", "y" } << "--check goes";
    QTest::newRow("check and output")
        << QStringList { "--check", "x", "--output", "y" } << "--check goes";
    QTest::newRow("machine-tool words and none")
        << QStringList { "--machine-tool-words", "x", "--no-machine-tool-words" }
        << "exclude each other";
}

void tst_hmi_dictionary_failures::wrongUsage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);
    Workshop workshop;
    const ProgramRun run = workshop.run(arguments);
    QCOMPARE(run.status, 2);
    QVERIFY2(run.errors.contains(message), qPrintable(run.errors));
    QVERIFY(run.errors.contains("--help"));
    QCOMPARE(run.output, QString());
    QVERIFY(workshop.names().isEmpty());
}

void tst_hmi_dictionary_failures::unreadableList_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<QString>("message");

    const QString encoding = "not UTF-8 text; convert the file to UTF-8";
    QTest::newRow("empty") << QByteArray() << "list.tsv: holds no entry";
    QTest::newRow("comments only") << QByteArray("# nothing\n") << "list.tsv: holds no entry";
    QTest::newRow("header without end")
        << QByteArray("# x\n---\n八\tba\t1\n") << "list.tsv:2: no \"...\" ends the header";
    QTest::newRow("GBK") << QByteArray("# x\n\xb0\xcb\tba\t1\n") << "list.tsv:2: " + encoding;
    QTest::newRow("Latin-1") << QByteArray("八\tba\t1\nL\xfc\tl\t1\n") << "list.tsv:2: " + encoding;
    QTest::newRow("UTF-16") << QByteArray("\xff\xfe\x6b\x51\t\0b\0a\0\t\0\x31\0\n\0", 16)
                            << "list.tsv:1: " + encoding;
    QTest::newRow("NUL") << QByteArray("八\tba\t1\0\n", 10) << "list.tsv:1: " + encoding;
    QTest::newRow("cut within a character")
        << QByteArray("八\tba\t1\n\xe5\x85") << "list.tsv:2: " + encoding;
    QTest::newRow("overlong line")
        << QByteArray("八\tba\t1\n") + QByteArray(4097, 'a') << "list.tsv:2: the line is too long";
}

void tst_hmi_dictionary_failures::unreadableList()
{
    QFETCH(QByteArray, list);
    QFETCH(QString, message);
    Workshop workshop;
    workshop.write("data.db", olderFile);
    const ProgramRun run = workshop.make(list);
    QCOMPARE(run.status, 1);
    QVERIFY2(run.errors.startsWith("hmi-dictionary: " + message), qPrintable(run.errors));
    QCOMPARE(run.output, QString());
    QCOMPARE(workshop.bytes("data.db"), QByteArray(olderFile));
    QCOMPARE(workshop.names(), (QStringList { "data.db", "list.tsv" }));
}

void tst_hmi_dictionary_failures::missingList()
{
    Workshop workshop;
    const ProgramRun run = workshop.run({ "--words", "no.tsv" });
    QCOMPARE(run.status, 1);
    QCOMPARE(run.errors,
             QString("hmi-dictionary: no.tsv: cannot be read: No such file or directory\n"));
    QVERIFY(workshop.names().isEmpty());
}

void tst_hmi_dictionary_failures::directoryAsList()
{
    Workshop workshop;
    const ProgramRun run = workshop.run({ "--words", "." });
    QCOMPARE(run.status, 1);
    QVERIFY2(run.errors.startsWith("hmi-dictionary: .: cannot be read: "), qPrintable(run.errors));
    QVERIFY(workshop.names().isEmpty());
}

void tst_hmi_dictionary_failures::missingMachineToolList()
{
    Workshop workshop;
    workshop.write("list.tsv", "八\tba\t1\n");
    const ProgramRun run =
        workshop.run({ "--machine-tool-words", "no.tsv", "--words", "list.tsv" });
    QCOMPARE(run.status, 1);
    QVERIFY2(run.errors.startsWith("hmi-dictionary: no.tsv: cannot be read: "),
             qPrintable(run.errors));
    QCOMPARE(workshop.names(), QStringList("list.tsv"));
}

void tst_hmi_dictionary_failures::endlessLine()
{
    Workshop workshop;
    const ProgramRun run = workshop.run({ "--words", "/dev/zero" });
    QCOMPARE(run.status, 1);
    QVERIFY2(run.errors.startsWith("hmi-dictionary: /dev/zero:1: "), qPrintable(run.errors));
}

void tst_hmi_dictionary_failures::missingOutputDirectory()
{
    Workshop workshop;
    workshop.write("list.tsv", "八\tba\t1\n");
    const ProgramRun run = workshop.run({ "--words", "list.tsv", "--output", "no/data.db" });
    QCOMPARE(run.status, 1);
    QVERIFY2(run.errors.startsWith("hmi-dictionary: no/data.db: cannot be written: "),
             qPrintable(run.errors));
    QCOMPARE(workshop.names(), QStringList("list.tsv"));
}

void tst_hmi_dictionary_failures::outputIsADirectory()
{
    Workshop workshop;
    QVERIFY(QDir().mkdir(workshop.path("data.db")));
    const ProgramRun run = workshop.make("八\tba\t1\n");
    QCOMPARE(run.status, 1);
    QCOMPARE(run.errors, QString("hmi-dictionary: data.db: is no file that could be replaced\n"));
    QCOMPARE(workshop.names(), (QStringList { "data.db", "list.tsv" }));
    QVERIFY(QFileInfo(workshop.path("data.db")).isDir());
}

void tst_hmi_dictionary_failures::outputIsADevice()
{
    Workshop workshop;
    workshop.write("list.tsv", "八\tba\t1\n");
    QVERIFY(QFile::link("/dev/null", workshop.path("device")));
    const ProgramRun run = workshop.run({ "--words", "list.tsv", "--output", "device" });
    QCOMPARE(run.status, 1);
    QCOMPARE(run.errors, QString("hmi-dictionary: device: is no file that could be replaced\n"));
    QVERIFY(QFileInfo(workshop.path("device")).isSymLink());
}

void tst_hmi_dictionary_failures::outputDirectoryWithoutWritePermission()
{
    if (geteuid() == 0) {
        QSKIP("root may write everywhere");
    }
    Workshop workshop;
    workshop.write("list.tsv", "八\tba\t1\n");
    QVERIFY(QDir().mkdir(workshop.path("closed")));
    QVERIFY(QFile::setPermissions(workshop.path("closed"), QFile::ReadOwner | QFile::ExeOwner));
    const ProgramRun run = workshop.run({ "--words", "list.tsv", "--output", "closed/data.db" });
    QCOMPARE(run.status, 1);
    QVERIFY2(run.errors.startsWith("hmi-dictionary: closed/data.db: cannot be written: "),
             qPrintable(run.errors));
}

// A limit on the size of files acts on the program as a disk that runs full does.
static ProgramRun runWithLittleSpace(const Workshop &workshop)
{
    QProcess process;
    process.setWorkingDirectory(workshop.path(QString()));
    process.start("sh",
                  { "-c", "ulimit -f 64 && exec \"$0\" --words list.tsv", HMI_DICTIONARY_PROGRAM });
    return ended(&process);
}

void tst_hmi_dictionary_failures::fullDisk()
{
    Workshop workshop;
    workshop.write("data.db", olderFile);
    workshop.write("list.tsv", longList(20));
    const ProgramRun run = runWithLittleSpace(workshop);
    QCOMPARE(run.status, 1);
    QVERIFY2(run.errors.startsWith("hmi-dictionary: data.db: "), qPrintable(run.errors));
    QVERIFY2(run.errors.contains("disk"), qPrintable(run.errors));
    QCOMPARE(workshop.bytes("data.db"), QByteArray(olderFile));
    QCOMPARE(workshop.names(), (QStringList { "data.db", "list.tsv" }));
}

void tst_hmi_dictionary_failures::fullDiskWithoutAnOlderFile()
{
    Workshop workshop;
    workshop.write("list.tsv", longList(20));
    QCOMPARE(runWithLittleSpace(workshop).status, 1);
    QCOMPARE(workshop.names(), QStringList("list.tsv"));
}

QByteArray tst_hmi_dictionary_failures::longList(int firstSyllables)
{
    const QStringList syllables = standardSyllables();
    QByteArray list;
    for (const QString &first : syllables.mid(0, firstSyllables)) {
        for (const QString &second : syllables) {
            list += "词\t" + (first + ' ' + second).toUtf8() + "\t1\n";
        }
    }
    return list;
}

bool tst_hmi_dictionary_failures::startWriting(const Workshop &workshop, QProcess *process)
{
    workshop.write("data.db", olderFile);
    workshop.write("list.tsv", longList(250));
    workshop.start(process, { "--words", "list.tsv" });
    return QTest::qWaitFor([&workshop] { return workshop.names().size() > 2; }, 20000)
        && process->state() == QProcess::Running;
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
    QCOMPARE(run.errors, QString("hmi-dictionary: interrupted\n"));
    QCOMPARE(workshop.bytes("data.db"), QByteArray(olderFile));
    QCOMPARE(workshop.names(), (QStringList { "data.db", "list.tsv" }));
}

void tst_hmi_dictionary_failures::killed()
{
    Workshop workshop;
    QProcess process;
    QVERIFY(startWriting(workshop, &process));
    process.kill();
    QCOMPARE(ended(&process).status, -1);
    QCOMPARE(workshop.bytes("data.db"), QByteArray(olderFile));
}

QTEST_GUILESS_MAIN(tst_hmi_dictionary_failures)
#include "tst_hmi_dictionary_failures.moc"
