// SPDX-License-Identifier: MIT
#include "DictionaryProgram.h"

#include <QtTest>

#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

// What hmi-dictionary shows on a terminal while it works, and leaves out elsewhere.
class tst_hmi_dictionary_terminal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void progress();
    void aPercentageIsShownOnce();
    void complaintsStandOnLinesOfTheirOwn();
    void failuresStandOnLinesOfTheirOwn();
    void noProgressElsewhere();
};

namespace {

const char clearedLine[] = "\r\033[K";

// A terminal without a screen: what is written to it can be read back.
class Terminal
{
public:
    Terminal()
        : m_screen(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK))
    {
        if (m_screen < 0 || grantpt(m_screen) || unlockpt(m_screen))
            qFatal("no pseudo-terminal");
        m_line = ::open(ptsname(m_screen), O_RDWR | O_NOCTTY); // what was written stays readable
    }

    ~Terminal()
    {
        close(m_line);
        close(m_screen);
    }

    QString name() const { return u(ptsname(m_screen)); }

    QByteArray text()
    {
        char bytes[4096];
        for (ssize_t size; (size = read(m_screen, bytes, sizeof bytes)) > 0;)
            m_text.append(bytes, int(size));
        return m_text;
    }

private:
    Terminal(const Terminal &) = delete;
    Terminal &operator=(const Terminal &) = delete;

    int m_screen;
    int m_line;
    QByteArray m_text;
};

// Makes a dictionary from \a list with the standard error on a terminal, and returns what it shows.
QByteArray shownWhileMaking(const QByteArray &list)
{
    Workshop workshop;
    workshop.write("list.tsv", list);
    Terminal terminal;
    QProcess process;
    workshop.prepare(&process, words("--no-machine-tool-words --words list.tsv"));
    process.setStandardErrorFile(terminal.name(), QIODevice::Append);
    process.start();
    while (process.state() != QProcess::NotRunning) {
        terminal.text(); // the program waits when nobody reads
        process.waitForFinished(20);
    }
    return terminal.text();
}

} // namespace

void tst_hmi_dictionary_terminal::progress()
{
    QByteArray expected;
    for (const char *shown :
         { "Reading words 25%", "Reading words 50%", "Reading words 75%", "Reading words 100%",
           "Writing rows 0%", "Writing rows 25%", "Writing rows 50%", "Writing rows 75%" })
        expected += QByteArray(shown) + clearedLine;
    const QByteArray fourWordsOfOneKey = "啊\ta\t1\n阿\ta\t2\n吖\ta\t3\n呵\ta\t4\n";
    QCOMPARE(shownWhileMaking(fourWordsOfOneKey), expected);
}

void tst_hmi_dictionary_terminal::aPercentageIsShownOnce()
{
    const QByteArray shown = shownWhileMaking(QByteArray("啊\ta\t1\n").repeated(300));
    QCOMPARE(shown.count("Reading words 50%"), 1);
}

void tst_hmi_dictionary_terminal::complaintsStandOnLinesOfTheirOwn()
{
    const QByteArray shown = shownWhileMaking("啊\ta\t1\n阿\ta \n吖\ta\t3\n");
    QVERIFY2(shown.contains(QByteArray("%") + clearedLine
                            + "hmi-dictionary: list.tsv:2: skipped: fewer than three columns\r\n"
                              "Reading words"),
             shown.constData());
}

void tst_hmi_dictionary_terminal::failuresStandOnLinesOfTheirOwn()
{
    const QByteArray shown = shownWhileMaking("啊\ta\t1\n\xff\n");
    QVERIFY2(shown.endsWith(QByteArray("%") + clearedLine
                            + "hmi-dictionary: list.tsv:2: not UTF-8 text; convert the file to "
                              "UTF-8\r\n"),
             shown.constData());
}

void tst_hmi_dictionary_terminal::noProgressElsewhere()
{
    Workshop workshop;
    const ProgramRun run = workshop.make("啊\ta\t1\n");
    QCOMPARE(run.errors, QString());
    QVERIFY(!run.output.contains(QLatin1Char('%')));
}

QTEST_GUILESS_MAIN(tst_hmi_dictionary_terminal)
#include "tst_hmi_dictionary_terminal.moc"
