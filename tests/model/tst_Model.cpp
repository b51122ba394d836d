// SPDX-License-Identifier: MIT
#include "CharacterModel.h"
#include "LastWords.h"
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

// Sequences at which keypad and model differed when a line of one of them was wrong, as a failure
// prints them.
// clang-format off
const struct
{
    const char *keypad, *actions;
} knownSequences[] = {
    // the sign key: cursor and selection
    { "NumericKeypad", "6affb8ee399db609ab764321435310ba" },
    { "vondKeypad", "2f6358ab65ef89d8" },
    // hard keys on panel type 13
    { "GCodeKeypad", "f506748b21c6c290837c96dc" },
    { "NumericKeypad", "f2defae354e602f49318e8b4" },
    // binding: maximum length, blocked signals, keys
    { "CharacterKeypad", "6affb8ee4772ca38b17e6a8ac0a3b920" },
    { "DateTimeKeypad", "c0a3b920" },
    { "NumericKeypad", "c0a3b920" },
    { "NumericKeypad", "7caf241a" },
    // confirming without a target, and a line for limits without a text
    { "GCodeKeypad", "6affb8ee0788abe9" },
    { "vondKeypad", "f10796e2" },
    // places
    { "GCodeKeypad", "c1a875c6a07b7994" },
    { "CharacterKeypad", "2b39b169" },
    // pages of candidates, and a pinyin of eleven letters
    { "CharacterKeypad", "2c56b6675296fd787d3342b0673f6f24" },
    { "CharacterKeypad", "61bc98546ce4d8d741bee87c78f435f5688495c46faeb2c4" },
    { "CharacterKeypad", "07f5c1fc6563bfd673fb73957aab79162513289d1ee3d0df1413e7e434b813d826428d73"
                         "00b4c65b1e18385b41dccd9d30e4f7f0242203b5" },
    // the Del key before a field for dates
    { "CharacterKeypad", "6affb8eea97f9f12e2b55b78c035ec0c5188fd1b" },
    // days of a month, leap years, the order of the fields, the orange mark
    { "DateTimeKeypad", "435310babc85c5bc9a068c73" },
    { "DateTimeKeypad", "435310babc85c5bccc93492049b396b2" },
    { "DateTimeKeypad", "d5bf3177d4986d99" },
    { "DateTimeKeypad", "435310babc85c5bc613d6905" },
    // keys of an edit line, and a field that hands the keyboard on
    { "NumericKeypad", "7caf241ad2adbdac86133682" },
    { "vondKeypad", "735a94f1e7c5924de2b55b780444edd4" },
    { "DateTimeKeypad", "dc5cfb9a296498cfd8bbdcb2980b3e18" },
    { "DateTimeKeypad", "148f2dde8b057e37" },
};
// clang-format on

// Fewer distinct states would prove little; some 8,400 to 11,200 are reached.
const int fewestStates = 7000;

// So would actions that a keypad never feels, such as a key that is not shown. Of 20,000 some
// 18,100 to 19,990 reach it.
const int fewestActions = 17500;

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
    LastWords::keepReady();
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
            LastWords::setSeed(seed);
            const bool same =
                agree(KeypadName(keypad), randomBytes(seed, bytesInSequence), &report);
            QVERIFY2(same, qPrintable(QString::fromLatin1("seed %1\n").arg(seed) + report.failure));
        }
        QCOMPARE(messagesOfKeypads(log), QString());
    }
    std::printf("%lld actions, %d distinct states\n", report.actions, int(report.states.size()));
    QVERIFY(report.actions >= fewestActions);
    QVERIFY(int(report.states.size()) >= fewestStates);
}

QTEST_MAIN(tst_Model)
#include "tst_Model.moc"
