// SPDX-License-Identifier: MIT
#include "CharacterDriver.h"

// How a run of the keypad ends with each of its faces: keys and hard keys that confirm, cancel or
// are handed on. What is alike in all keypads is tested with them.

class tst_CharacterClosing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void enterWritesAndAccepts_data();
    void enterWritesAndAccepts();
    void enterNeedsATarget_data();
    void enterNeedsATarget();
    void escapeLeavesTheTargetAlone_data();
    void escapeLeavesTheTargetAlone();
    void hardKeysEndTheRun_data();
    void hardKeysEndTheRun();
    void theNextRunOpensAsTheLastWasLeft();
};

void tst_CharacterClosing::enterWritesAndAccepts_data()
{
    addFaceRows();
}

void tst_CharacterClosing::enterWritesAndAccepts()
{
    QFETCH(int, face);
    CharacterStage stage;
    stage.target.setText(u("old"));
    stage.keypad.setText(u("new"));
    QSignalSpy changed(&stage.target, SIGNAL(textChanged(QString)));
    CHECKED(execWhile(
        &stage.keypad,
        [&] {
            CHECKED(press(stage.keypad, faces[face].taps));
            QCOMPARE(stage.target.text(), u("old"));
            CHECKED(press(stage.keypad, "Enter"));
        },
        Accepts));
    QCOMPARE(stage.target.text(), u("new"));
    QCOMPARE(changed.count(), 1);
}

void tst_CharacterClosing::enterNeedsATarget_data()
{
    addFaceRows();
}

void tst_CharacterClosing::enterNeedsATarget()
{
    QFETCH(int, face);
    PanelView view(1);
    CharacterKeypad keypad(&view, Qt::WindowFlags());
    keypad.setText(u("text"));
    CHECKED(execWhile(
        &keypad,
        [&] {
            CHECKED(press(keypad, faces[face].taps));
            CHECKED(press(keypad, "Enter"));
            pressHardKey(&keypad, Qt::Key_Return);
        },
        StaysOpen));
    QCOMPARE(editLine(&keypad)->text(), u("text"));
    QCOMPARE(shownFace(keypad), u(faces[face].shown));
}

void tst_CharacterClosing::escapeLeavesTheTargetAlone_data()
{
    addFaceRows();
}

void tst_CharacterClosing::escapeLeavesTheTargetAlone()
{
    QFETCH(int, face);
    CharacterStage stage;
    stage.target.setText(u("old"));
    stage.keypad.setText(u("new"));
    CHECKED(execWhile(
        &stage.keypad,
        [&] {
            CHECKED(press(stage.keypad, faces[face].taps));
            CHECKED(press(stage.keypad, "Esc"));
        },
        Rejects));
    QCOMPARE(stage.target.text(), u("old"));
}

void tst_CharacterClosing::hardKeysEndTheRun_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("face");
    QTest::addColumn<int>("outcome");
    QTest::addColumn<bool>("handedOn");

    static const struct
    {
        const char *name;
        int type, key;
        Outcome outcome;
        bool handedOn;
    } keys[] = { { "Return", 1, Qt::Key_Return, Accepts, false },
                 { "Enter", 1, Qt::Key_Enter, Accepts, false },
                 { "Escape", 1, Qt::Key_Escape, Rejects, false },
                 { "F5", 1, Qt::Key_F5, StaysOpen, false },
                 { "Return, type 13", 13, Qt::Key_Return, Accepts, false },
                 { "Enter, type 13", 13, Qt::Key_Enter, Accepts, false },
                 { "Escape, type 13", 13, Qt::Key_Escape, Rejects, false },
                 { "F5, type 13", 13, Qt::Key_F5, Rejects, true },
                 { "F6, type 13", 13, Qt::Key_F6, StaysOpen, false } };
    for (const auto &key : keys) {
        for (int face = 0; face < 4; ++face) {
            const QString name =
                QString::fromLatin1("%1, %2").arg(u(key.name), u(faces[face].name));
            QTest::newRow(qPrintable(name))
                << key.type << key.key << face << int(key.outcome) << key.handedOn;
        }
    }
}

void tst_CharacterClosing::hardKeysEndTheRun()
{
    QFETCH(int, type);
    QFETCH(int, key);
    QFETCH(int, face);
    QFETCH(int, outcome);
    QFETCH(bool, handedOn);
    CharacterStage stage(type);
    stage.target.setText(u("old"));
    stage.keypad.setText(u("new"));
    QSignalSpy signal(&stage.keypad, SIGNAL(signal_kTypeKeyPressed(int)));
    CHECKED(execWhile(
        &stage.keypad,
        [&] {
            CHECKED(press(stage.keypad, faces[face].taps));
            pressHardKey(&stage.keypad, key);
        },
        Outcome(outcome)));
    QCOMPARE(stage.target.text(), u(outcome == Accepts ? "new" : "old"));
    QCOMPARE(signal.count(), handedOn ? 1 : 0);
    if (handedOn)
        QCOMPARE(signal.at(0).at(0).toInt(), key);
}

void tst_CharacterClosing::theNextRunOpensAsTheLastWasLeft()
{
    static const struct
    {
        FaceIndex face;
        const char *taps, *wayOut;
        Outcome outcome;
    } runs[] = { { English, "a b CN *#", "Esc", Rejects }, { Symbols, "<<", "Enter", Accepts },
                 { Chinese, "EN caps", "Enter", Accepts }, { Capitals, "CAPS", "Esc", Rejects },
                 { English, "CN", "Esc", Rejects },        { Chinese, "EN", "Enter", Accepts } };
    CharacterStage stage;
    for (const auto &run : runs) {
        QLineEdit target;
        stage.keypad.setObject(&target);
        CHECKED(execWhile(
            &stage.keypad,
            [&] {
                QCOMPARE(shownFace(stage.keypad), u(faces[run.face].shown));
                CHECKED(press(stage.keypad, run.taps));
                CHECKED(press(stage.keypad, run.wayOut));
            },
            run.outcome));
        QCOMPARE(target.text(), u(run.outcome == Accepts ? "ab" : ""));
    }
}

QTEST_MAIN(tst_CharacterClosing)
#include "tst_CharacterClosing.moc"
