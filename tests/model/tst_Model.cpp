// SPDX-License-Identifier: MIT
#include "CharacterModel.h"
#include "Run.h"
#include "support/Checked.h"
#include "support/MessageLog.h"
#include "support/QtDifferences.h"
#include "support/Text.h"

#include <QScopedPointer>

#include <cstdio>

// Every keypad beside a model of it: the same is done to both, and after each action all that can
// be seen of them is the same.

namespace {

const int sequences = 50;
const int bytesInSequence = 1600; // 400 actions

// Sequences at which keypad and model once differed, as a failure prints them.
const struct
{
    const char *keypad, *actions;
} knownSequences[] = {
    { "NumericKeypad", "7caf241ad2adbdac86133682" },
    { "NumericKeypad", "5f8fb120f3da5bc481de9b5a" },
    { "GCodeKeypad", "c1a875c6fbcc6e9ba07b79941f9c63fa" },
    { "GCodeKeypad", "e711b6f87531f5380f541be4e2f5f00c60299b2a" },
    { "vondKeypad", "735a94f1e7c5924de2b55b780444edd4" },
    { "DateTimeKeypad", "dc5cfb9a296498cfd8bbdcb2980b3e18" },
    { "DateTimeKeypad", "148f2dde8b057e37" },
    { "CharacterKeypad", "2b39b169e259fc6da5c640f035f7c75c" },
};

// Fewer distinct states would prove little; some 8,400 to 11,200 are reached.
const int fewestStates = 7000;

// The platform plugin that draws nowhere tells what it cannot do.
QString messagesOfKeypads(const MessageLog &log)
{
    QStringList list;
    const QStringList messages = log.messages();
    for (const QString &message : messages) {
        if (!message.startsWith(u("This plugin does not support")))
            list << message;
    }
    return list.join(u("\n"));
}

bool agree(KeypadName name, const QByteArray &bytes, Report *report)
{
    return runActions(name, reinterpret_cast<const unsigned char *>(bytes.constData()),
                      std::size_t(bytes.size()), report);
}

} // namespace

class tst_Model : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void knownSequences_data();
    void knownSequences();
    void randomActions_data();
    void randomActions();

private:
    QScopedPointer<DictionaryFile> m_dictionary;
};

void tst_Model::initTestCase()
{
    QtDifferences::readLiteralsAsGbk();
}

// The tests of several keypads may run at the same time, and only one of them has a dictionary.
void tst_Model::init()
{
    QFETCH(int, keypad);
    if (keypad != Character)
        return;
    m_dictionary.reset(new DictionaryFile);
    CHECKED(m_dictionary->create(modelWords()));
}

void tst_Model::cleanup()
{
    m_dictionary.reset();
}

void tst_Model::knownSequences_data()
{
    QTest::addColumn<int>("keypad");
    for (int i = 0; i < KeypadCount; ++i)
        QTest::newRow(className(KeypadName(i))) << i;
}

void tst_Model::knownSequences()
{
    QFETCH(int, keypad);
    for (const auto &sequence : ::knownSequences) {
        if (u(sequence.keypad) != u(className(KeypadName(keypad))))
            continue;
        Report report;
        QVERIFY2(agree(KeypadName(keypad), QByteArray::fromHex(sequence.actions), &report),
                 qPrintable(report.failure));
        QVERIFY(report.actions > 0);
    }
}

void tst_Model::randomActions_data()
{
    knownSequences_data();
}

void tst_Model::randomActions()
{
    QFETCH(int, keypad);
    Report report;
    {
        MessageLog log;
        for (unsigned seed = 1; seed <= unsigned(sequences); ++seed) {
            const bool same =
                agree(KeypadName(keypad), randomBytes(seed, bytesInSequence), &report);
            QVERIFY2(same, qPrintable(QString::fromLatin1("seed %1\n").arg(seed) + report.failure));
        }
        QCOMPARE(messagesOfKeypads(log), QString());
    }
    std::printf("%d actions, %d distinct states\n", report.actions, int(report.states.size()));
    QVERIFY(int(report.states.size()) >= fewestStates);
}

QTEST_MAIN(tst_Model)
#include "tst_Model.moc"
