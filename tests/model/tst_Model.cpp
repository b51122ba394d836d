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
// prints them: bytes, and what they mean, lest they come to mean something else unnoticed.
// clang-format off
const struct
{
    const char *keypad, *actions, *story;
} knownSequences[] = {
    // the sign key: cursor and selection
    { "NumericKeypad", "6affb8ee399db609ab764321435310ba",
      "open; tap \".\"; point at 118 67 33; tap \"+/-\"" },
    { "vondKeypad", "2f6358ab65ef89d8",
      "open; tap \"-\"" },
    // hard keys on panel type 13
    { "GCodeKeypad", "f506748b21c6c290837c96dc",
      "set device type 13; open; press Ctrl+Shift+F25" },
    { "NumericKeypad", "f3e8a80baf11f93585d2eee0",
      "set device type 13; open; press Ctrl+Alt+Shift+Down" },
    { "NumericKeypad", "f2defae354e602f49318e8b4",
      "set device type 13; open; press F6" },
    // binding: maximum length, blocked signals, keys
    { "CharacterKeypad", "6affb8ee4772ca38b17e6a8ac0a3b920",
      "open; tap \"q\"; point at 126 106 138; set object object" },
    { "DateTimeKeypad", "c0a3b920",
      "set object object" },
    { "NumericKeypad", "c0a3b920",
      "set object object" },
    { "NumericKeypad", "7caf241a",
      "open" },
    // confirming without a target, and a line for limits without a text
    { "GCodeKeypad", "6affb8ee0788abe9",
      "open; tap \"Enter\"" },
    { "vondKeypad", "f10796e2",
      "set limits \"\"" },
    // places
    { "GCodeKeypad", "c1a875c6a07b7994",
      "set object field; open" },
    { "CharacterKeypad", "2b39b169",
      "open" },
    { "GCodeKeypad", "f6828037c37b2bf52b88e1f7",
      "register view 130 128 55; set object derived DateTimeField, which writes capitals; open" },
    { "vondKeypad", "39381bc4f682803738c7016d6a58908a",
      "open; register view 130 128 55; tap \"ESC\"; open" },
    // pages of candidates, and a pinyin of eleven letters
    { "CharacterKeypad", "2c56b6675296fd787d3342b0673f6f24",
      "open; tap \"CN\"; tap \"n\"; tap \">\"" },
    { "CharacterKeypad", "61bc98546ce4d8d741bee87c78f43575688495c46faeb2c4",
      "open; tap \"CN\"; tap \"n\"; tap \"i\"; tap \">\"; tap \"<\"" },
    { "CharacterKeypad", "07f5c1fc6563bfd673fb73957aab79162513289d1ee3d0df1413e7e434b813d826428d73"
                         "00b4c65b1e18385b41dccd9d30e4f770242203b5",
      "open; tap \"CN\"; tap \"h\"; tap \"a\"; tap \"p\"; tap \"p\"; tap \"p\"; tap \"l\"; "
      "tap \"t\"; tap \"g\"; tap \"g\"; tap \"e\"; tap \"a\"; tap \"n\"" },
    // the Del key before a field for dates
    { "CharacterKeypad", "6affb8eea97f9f12e2b55b78c035ec0c5188fd1b",
      "open; type \"7\"; set validator nothing is right; set object derived DateTimeField; "
      "tap \"Del\"" },
    // days of a month, leap years, the order of the fields, the orange mark
    { "DateTimeKeypad", "435310babc85c5bc9a068c73",
      "open; touch field 133 197 188; type \"6\"" },
    { "DateTimeKeypad", "435310babc85c5bccc93492049b396b2",
      "open; touch field 133 197 188; set text \"12:34:56\"; tap \"+\"" },
    { "DateTimeKeypad", "d5bf3177d4986d99",
      "set text \"2024-02-29 12:34:56\"; set text \"1999-12-31 23:59:59\"" },
    { "DateTimeKeypad", "435310babc85c5bc613d6905",
      "open; touch field 133 197 188; tap \"0\"" },
    // how often a target is written, keys that are left, input methods, and the mouse
    { "NumericKeypad", "399db609c013db099215bb0b",
      "open; set object short field; press Ctrl+Return" },
    { "NumericKeypad", "455be5c0a97f9f12735a94f1",
      "open; type \"7\"; tap and leave \"BSP\"" },
    { "NumericKeypad", "c5f8bb4d42504139a1ac58c7",
      "set object DateTimeField; open; type \"٣\" by the input method" },
    { "DateTimeKeypad", "5c053950b98179eb",
      "open; touch field 129 121 235 by the mouse" },
    // keys of an edit line, and a field that hands the keyboard on
    { "NumericKeypad", "7caf241ad2adbdac86133682",
      "open; set text \"数控机床\"; press Ctrl+Shift+Backspace" },
    { "vondKeypad", "735a94f1e7c5924de2b55b780444edd4",
      "open; set password echo on; set validator nothing is right; tap \"6\"" },
    { "DateTimeKeypad", "dc5cfb9a296498cfd8bbdcb2980b3e18",
      "set maximum length 8; open; set maximum length 10; press Ctrl+Shift+Left" },
    { "DateTimeKeypad", "148f2dde8b057e37",
      "open; press Ctrl+Shift+End" },
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
        const QByteArray bytes = QByteArray::fromHex(sequence.actions);
        Report report;
        QVERIFY2(agree(KeypadName(keypad), bytes, &report), qPrintable(report.failure));
        QCOMPARE(storyOf(KeypadName(keypad), bytes), u(sequence.story));
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
