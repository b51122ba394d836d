// SPDX-License-Identifier: MIT
#include "CharacterDriver.h"

#include <QIntValidator>

// What the keys and other contents do to the edit line and the mode. Composing is in tst_Pinyin.

class tst_CharacterContent : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void modeKeysSwitchModes_data();
    void modeKeysSwitchModes();
    void keysType_data();
    void keysType();
    void contentIsTakenLiterally_data();
    void contentIsTakenLiterally();
    void insertionIsTheEditLines();
    void anInputMaskStaysInForce();
    void aPasswordStaysMasked_data();
    void aPasswordStaysMasked();
    void theBlankKeySendsNothing();
};

void tst_CharacterContent::modeKeysSwitchModes_data()
{
    QTest::addColumn<QString>("taps");
    QTest::addColumn<int>("expected");

    static const struct
    {
        const char *name, *taps;
        FaceIndex expected;
    } rows[] = { { "new keypad", "", English },
                 { "English, caps", "caps", Capitals },
                 { "English, CAPS", "caps CAPS", English },
                 { "English, CN", "CN", Chinese },
                 { "capitals, CN", "caps CN", Chinese },
                 { "English, *#", "*#", Symbols },
                 { "capitals, *#", "caps *#", Symbols },
                 { "Chinese, EN", "CN EN", English },
                 { "Chinese from capitals, EN", "caps CN EN", English },
                 { "Chinese, *#", "CN *#", Symbols },
                 { "symbols from English, <<", "*# <<", English },
                 { "symbols from capitals, <<", "caps *# <<", English },
                 { "symbols from Chinese, <<", "CN *# <<", Chinese },
                 { "there and back twice", "CN *# << EN *# <<", English },
                 { "back to English, then Chinese", "*# << CN", Chinese },
                 { "back to Chinese, then symbols", "CN *# << *# <<", Chinese },
                 { "the way back is fresh each time", "CN *# << EN caps *# <<", English } };
    for (const auto &row : rows)
        QTest::newRow(row.name) << u(row.taps) << int(row.expected);
}

void tst_CharacterContent::modeKeysSwitchModes()
{
    QFETCH(QString, taps);
    QFETCH(int, expected);
    CharacterStage stage;
    stage.keypad.setText(u("kept"));
    CHECKED(press(stage.keypad, taps));
    QCOMPARE(shownFace(stage.keypad), u(faces[expected].shown));
    QCOMPARE(modeKey(stage.keypad)->isEnabled(), expected != Chinese);
    QCOMPARE(stage.line()->text(), u("kept"));

    // The mode behind the face: only Chinese mode composes, only symbol mode halves "&&".
    static const char *const typed[] = { "&&x", "&&x", "&x", "&&" };
    QVERIFY(sendContent(stage.keypad, u("&&")));
    QVERIFY(sendContent(stage.keypad, u("x")));
    QCOMPARE(stage.line()->text(), u(typed[expected]));
    QCOMPARE(shownPinyin(stage.keypad), u(expected == Chinese ? "x" : ""));
}

void tst_CharacterContent::keysType_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("taps");
    QTest::addColumn<QString>("text");

    static const struct
    {
        const char *name, *mode, *taps, *text;
    } rows[] = { { "letters", "", "q w e r t y u i o p a s d f g h j k l z x c v b n m",
                   "qwertyuiopasdfghjklzxcvbnm" },
                 { "capitals", "caps", "Q W E R T Y U I O P A S D F G H J K L Z X C V B N M",
                   "QWERTYUIOPASDFGHJKLZXCVBNM" },
                 { "first symbols", "*#", "+ - * / ( ) [ ] = %", "+-*/()[]=%" },
                 { "second symbols", "*#", "! @ # $ ? ; : ' \"", "!@#$?;:'\"" },
                 { "third symbols", "*#", "< > | && \\ { }", "<>|&\\{}" },
                 { "two ampersands", "*#", "&& &&", "&&" },
                 { "keys at the left", "*#", "~ _", "~_" },
                 { "digits", "", "0 1 2 3 4 5 6 7 8 9", "0123456789" },
                 { "digits, capitals", "caps", "0 9", "09" },
                 { "digits, symbols", "*#", "0 1 2 3 4 5 6 7 8 9", "0123456789" },
                 { "common keys", "", ", Space .", ", ." },
                 { "common keys, capitals", "caps", ", Space .", ", ." },
                 { "common keys, symbols", "*#", ", Space .", ", ." },
                 { "common keys, Chinese", "CN", ", Space .", ", ." },
                 { "all together", "", "caps M CAPS a x *# && _ << 1 Space CN , EN z",
                   "Max&_1 ,z" } };
    for (const auto &row : rows)
        QTest::newRow(row.name) << u(row.mode) << u(row.taps) << u(row.text);
}

void tst_CharacterContent::keysType()
{
    QFETCH(QString, mode);
    QFETCH(QString, taps);
    QFETCH(QString, text);
    CharacterStage stage;
    stage.keypad.setText(u("replaced"));
    CHECKED(press(stage.keypad, mode));
    CHECKED(press(stage.keypad, taps));
    QCOMPARE(stage.line()->text(), text);
    QCOMPARE(stage.line()->cursorPosition(), int(text.size()));
}

void tst_CharacterContent::contentIsTakenLiterally_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("text"); // of the edit line, which held "ab" and a cursor between

    static const struct
    {
        const char *name, *mode, *content, *text;
    } rows[] = { { "nothing", "", "", "ab" },
                 { "nothing, symbols", "*#", "", "ab" },
                 { "nothing, Chinese", "CN", "", "ab" },
                 { "unknown", "", "F7", "aF7b" },
                 { "unknown, symbols", "*#", "F7", "aF7b" },
                 { "unknown, Chinese", "CN", "F7", "aF7b" },
                 { "wrong case", "", "del", "adelb" },
                 { "wrong case, symbols", "*#", "ENTER", "aENTERb" },
                 { "wrong case, Chinese", "CN", "SPACE", "aSPACEb" },
                 { "blank at the end", "", "Del ", "aDel b" },
                 { "key of another mode", "", "<<", "a<<b" },
                 { "key of another mode, EN", "", "EN", "aENb" },
                 { "key of another mode, symbols", "*#", "CN", "aCNb" },
                 { "caps in symbols", "*#", "caps", "acapsb" },
                 { "mode key in symbols", "*#", "*#", "a*#b" },
                 { "key of another mode, Chinese", "CN", "CN", "aCNb" },
                 { "back key, Chinese", "CN", "<<", "a<<b" },
                 { "caps in Chinese", "CN", "caps", "acapsb" },
                 { "ampersands in English", "", "&&", "a&&b" },
                 { "three ampersands in symbols", "*#", "&&&", "a&&&b" },
                 { "capital letter, Chinese", "CN", "N", "aNb" },
                 { "paging in English", "", ">", "a>b" },
                 { "Chinese text in English", "", "主轴", "a主轴b" } };
    for (const auto &row : rows)
        QTest::newRow(row.name) << u(row.mode) << u(row.content) << u(row.text);
}

void tst_CharacterContent::contentIsTakenLiterally()
{
    QFETCH(QString, mode);
    QFETCH(QString, content);
    QFETCH(QString, text);
    CharacterStage stage;
    CHECKED(press(stage.keypad, mode));
    const QString before = shownFace(stage.keypad);
    stage.keypad.setText(u("ab"));
    stage.line()->setCursorPosition(1);
    QVERIFY(sendContent(stage.keypad, content));
    QCOMPARE(stage.line()->text(), text);
    QCOMPARE(stage.line()->cursorPosition(), 1 + int(content.size()));
    QCOMPARE(shownFace(stage.keypad), before);
    QCOMPARE(shownPinyin(stage.keypad), QString());
}

void tst_CharacterContent::insertionIsTheEditLines()
{
    CharacterStage stage;
    KeyBoardLineEdit *line = stage.line();
    stage.keypad.setText(u("abc"));
    CHECKED(press(stage.keypad, "q"));
    QCOMPARE(line->text(), u("q"));

    stage.keypad.setText(u("abcdef"));
    line->setSelection(1, 3);
    CHECKED(press(stage.keypad, "Space"));
    QCOMPARE(line->text(), u("a ef"));
    QCOMPARE(line->cursorPosition(), 2);

    stage.keypad.setMaxLength(5);
    line->setCursorPosition(2);
    CHECKED(press(stage.keypad, "x y z"));
    QCOMPARE(line->text(), u("a xef"));

    QIntValidator numbers(0, 99, nullptr);
    numbers.setLocale(QLocale::c()); // others group digits with points
    stage.keypad.setText(u("7"));
    line->deselect();
    stage.keypad.setValidator(&numbers);
    CHECKED(press(stage.keypad, "k 5 . 6 Space"));
    QCOMPARE(line->text(), u("75"));
}

// An application may reach the edit line, and set what the keypad has no function for.
void tst_CharacterContent::anInputMaskStaysInForce()
{
    CharacterStage stage;
    stage.line()->setInputMask(u("99:99;_"));
    stage.line()->setCursorPosition(0);
    CHECKED(press(stage.keypad, "1 q 2 3"));
    QCOMPARE(stage.line()->displayText(), u("12:3_"));
    CHECKED(press(stage.keypad, "4"));
    stage.line()->setCursorPosition(1);
    CHECKED(press(stage.keypad, "9"));
    QCOMPARE(stage.line()->displayText(), u("19:34"));
}

void tst_CharacterContent::aPasswordStaysMasked_data()
{
    addFaceRows();
}

void tst_CharacterContent::aPasswordStaysMasked()
{
    QFETCH(int, face);
    CharacterStage stage;
    stage.keypad.setPasswordEchoMode(true);
    CHECKED(press(stage.keypad, faces[face].taps));
    stage.open(u("a"));
    const QString mask = stage.line()->displayText();
    QVERIFY(mask != u("a"));
    static const char *const contents[] = { "5", "好", "Space", "Del", ",", "主轴" };
    for (const char *content : contents) {
        QVERIFY(sendContent(stage.keypad, u(content)));
        QCOMPARE(stage.line()->displayText(), mask.repeated(int(stage.line()->text().size())));
    }
    QCOMPARE(stage.line()->text(), u("5好,主轴"));

    stage.activate();
    stage.line()->setFocus();
    QTest::keyClick(stage.line(), Qt::Key_7);
    QCOMPARE(stage.line()->displayText(), mask.repeated(6));
}

void tst_CharacterContent::theBlankKeySendsNothing()
{
    CharacterStage stage;
    CHECKED(press(stage.keypad, "CN n"));
    modeKey(stage.keypad)->click();
    QCOMPARE(shownFace(stage.keypad), u(faces[Chinese].shown));
    QCOMPARE(shownPinyin(stage.keypad), u("n"));
    QCOMPARE(stage.line()->text(), QString());
}

QTEST_MAIN(tst_CharacterContent)
#include "tst_CharacterContent.moc"
