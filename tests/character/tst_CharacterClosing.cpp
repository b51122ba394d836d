// SPDX-License-Identifier: MIT
#include "CharacterDriver.h"

// How a run of the keypad ends in each of its modes: keys and hard keys that confirm, cancel or are
// handed on.

namespace {

/* How each mode is reached from a new keypad. */
const struct
{
    const char *name, *taps;
} modes[] = { { "English", "" }, { "capitals", "caps" }, { "symbols", "*#" }, { "Chinese", "CN" } };

/* Hears of a hard key that was handed on, and looks at the keypad in that moment. */
class KeyListener : public QObject
{
    Q_OBJECT

public:
    explicit KeyListener(CharacterKeypad *keypad)
        : visible(true)
        , m_keypad(keypad)
    {
        connect(keypad, SIGNAL(signal_kTypeKeyPressed(int)), this, SLOT(hear(int)));
    }

    QList<int> keys;
    bool visible;

public Q_SLOTS:
    void hear(int key)
    {
        keys << key;
        visible = m_keypad->isVisible();
    }

private:
    CharacterKeypad *m_keypad;
};

} // namespace

class tst_CharacterClosing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void enterWritesAndAccepts_data();
    void enterWritesAndAccepts();
    void enterNeedsALivingTarget_data();
    void enterNeedsALivingTarget();
    void escapeLeavesTheTargetAlone_data();
    void escapeLeavesTheTargetAlone();
    void hardKeysConfirmAndCancel_data();
    void hardKeysConfirmAndCancel();
    void hardKeysAreHandedOnByType13_data();
    void hardKeysAreHandedOnByType13();
    void theNextRunOpensAsTheLastWasLeft();
};

void tst_CharacterClosing::enterWritesAndAccepts_data()
{
    QTest::addColumn<QString>("mode");
    for (int i = 0; i < 4; ++i)
        QTest::newRow(modes[i].name) << u(modes[i].taps);
}

void tst_CharacterClosing::enterWritesAndAccepts()
{
    QFETCH(QString, mode);
    CharacterStage stage;
    stage.target.setText(u("old"));
    stage.keypad.setText(u("new"));
    QSignalSpy changed(&stage.target, SIGNAL(textChanged(QString)));
    CHECKED(execWhile(
        &stage.keypad,
        [&] {
            press(stage.keypad, qPrintable(mode));
            QCOMPARE(stage.target.text(), u("old"));
            press(stage.keypad, "Enter");
        },
        Accepts));
    QCOMPARE(stage.target.text(), u("new"));
    QCOMPARE(changed.count(), 1);
}

void tst_CharacterClosing::enterNeedsALivingTarget_data()
{
    enterWritesAndAccepts_data();
}

void tst_CharacterClosing::enterNeedsALivingTarget()
{
    QFETCH(QString, mode);
    PanelView view(1);
    CharacterKeypad keypad(&view, Qt::WindowFlags());
    QObject *gone = new QLineEdit;
    for (int i = 0; i < 2; ++i) {
        keypad.setText(u("text"));
        CHECKED(execWhile(
            &keypad,
            [&] {
                if (i == 0)
                    press(keypad, qPrintable(mode));
                press(keypad, "Enter");
                pressHardKey(&keypad, Qt::Key_Return);
            },
            StaysOpen));
        QCOMPARE(editLine(&keypad)->text(), u("text"));
        if (i == 0) {
            keypad.setObject(gone);
            delete gone;
        }
    }
}

void tst_CharacterClosing::escapeLeavesTheTargetAlone_data()
{
    enterWritesAndAccepts_data();
}

void tst_CharacterClosing::escapeLeavesTheTargetAlone()
{
    QFETCH(QString, mode);
    CharacterStage stage;
    stage.target.setText(u("old"));
    stage.keypad.setText(u("new"));
    CHECKED(execWhile(
        &stage.keypad,
        [&] {
            press(stage.keypad, qPrintable(mode));
            press(stage.keypad, "Esc");
        },
        Rejects));
    QCOMPARE(stage.target.text(), u("old"));
}

void tst_CharacterClosing::hardKeysConfirmAndCancel_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<bool>("confirms");

    static const struct
    {
        const char *name;
        int key;
        bool confirms;
    } keys[] = { { "Return", Qt::Key_Return, true },
                 { "Enter", Qt::Key_Enter, true },
                 { "Escape", Qt::Key_Escape, false } };
    for (int type = 1; type <= 13; type += 12) {
        for (int m = 0; m < 4; ++m) {
            for (int k = 0; k < 3; ++k) {
                const QString name = QString::fromLatin1("%1, %2, type %3")
                                         .arg(u(keys[k].name), u(modes[m].name))
                                         .arg(type);
                QTest::newRow(qPrintable(name))
                    << type << keys[k].key << u(modes[m].taps) << keys[k].confirms;
            }
        }
    }
}

void tst_CharacterClosing::hardKeysConfirmAndCancel()
{
    QFETCH(int, type);
    QFETCH(int, key);
    QFETCH(QString, mode);
    QFETCH(bool, confirms);
    CharacterStage stage(type);
    stage.target.setText(u("old"));
    stage.keypad.setText(u("new"));
    QSignalSpy handedOn(&stage.keypad, SIGNAL(signal_kTypeKeyPressed(int)));
    CHECKED(execWhile(
        &stage.keypad,
        [&] {
            press(stage.keypad, qPrintable(mode));
            pressHardKey(&stage.keypad, key);
        },
        confirms ? Accepts : Rejects));
    QCOMPARE(stage.target.text(), u(confirms ? "new" : "old"));
    QCOMPARE(handedOn.count(), 0);
}

void tst_CharacterClosing::hardKeysAreHandedOnByType13_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("mode");
    QTest::newRow("type 13, English") << 13 << "";
    QTest::newRow("type 13, symbols") << 13 << "*#";
    QTest::newRow("type 13, Chinese") << 13 << "CN";
    QTest::newRow("type 1") << 1 << "";
    QTest::newRow("type 12") << 12 << "CN";
    QTest::newRow("type 14") << 14 << "";
}

void tst_CharacterClosing::hardKeysAreHandedOnByType13()
{
    QFETCH(int, type);
    QFETCH(QString, mode);
    CharacterStage stage(type);
    stage.keypad.setText(u("text"));
    press(stage.keypad, qPrintable(mode));
    QList<int> keys;
    keys << Qt::Key_Left << Qt::Key_Up << Qt::Key_Right << Qt::Key_Down << Qt::Key_Home
         << Qt::Key_PageUp;
    for (int key = Qt::Key_F1; key <= Qt::Key_F35; ++key)
        keys << key;
    for (int i = 0; i < keys.size(); ++i) {
        const int key = keys.at(i);
        const bool handedOn = type == 13 && applicationKeys().contains(key);
        stage.keypad.show();
        KeyListener listener(&stage.keypad);
        QSignalSpy rejected(&stage.keypad, SIGNAL(rejected()));
        QTest::keyClick(&stage.keypad, Qt::Key(key));
        QCOMPARE(listener.keys, handedOn ? QList<int>() << key : QList<int>());
        QCOMPARE(rejected.count(), handedOn ? 1 : 0);
        QCOMPARE(stage.keypad.isVisible(), !handedOn);
        if (handedOn)
            QVERIFY(!listener.visible);
    }
    QCOMPARE(editLine(&stage.keypad)->text(), u("text"));
    QCOMPARE(stage.target.text(), QString());
}

void tst_CharacterClosing::theNextRunOpensAsTheLastWasLeft()
{
    CharacterStage stage;
    CHECKED(execWhile(
        &stage.keypad, [&] { press(stage.keypad, "a b CN *# Esc"); }, Rejects));
    CHECKED(execWhile(
        &stage.keypad,
        [&] {
            QCOMPARE(face(stage.keypad), u("~ << _ + digits"));
            QCOMPARE(editLine(&stage.keypad)->text(), u("ab"));
            press(stage.keypad, "<< Enter");
        },
        Accepts));
    QCOMPARE(stage.target.text(), u("ab"));
    QLineEdit other;
    stage.keypad.setObject(&other);
    CHECKED(execWhile(
        &stage.keypad,
        [&] {
            QCOMPARE(face(stage.keypad), u("blank EN *# q candidates"));
            QCOMPARE(editLine(&stage.keypad)->text(), u("ab"));
            press(stage.keypad, "EN Enter");
        },
        Accepts));
    QCOMPARE(other.text(), u("ab"));
    CHECKED(execWhile(
        &stage.keypad, [&] { press(stage.keypad, "caps Esc"); }, Rejects));
    CHECKED(execWhile(
        &stage.keypad, [&] { QCOMPARE(face(stage.keypad), u("CAPS CN *# Q digits")); }, StaysOpen));
}

QTEST_MAIN(tst_CharacterClosing)
#include "tst_CharacterClosing.moc"
