// SPDX-License-Identifier: MIT
#include "CharacterDriver.h"

#include <QIntValidator>

/* The application's date-time field: the class whose name gives it a delete rule of its own. */
class DateTimeField : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    QString text() const { return m_text; }
    void setText(const QString &text) { m_text = text; }

private:
    QString m_text;
};

class StampField : public DateTimeField
{
    Q_OBJECT
};

namespace {

const char lowerCase[] = "caps CN *# q digits";
const char capitals[] = "CAPS CN *# Q digits";
const char symbols[] = "~ << _ + digits";
const char chinese[] = "blank EN *# q candidates";

/* Knows only whole dates, as a validator of such fields does. */
class WholeDates : public QValidator
{
public:
    WholeDates()
        : QValidator(nullptr)
    {
    }

    State validate(QString &input, int &) const override
    {
        return input.size() == 8 ? Acceptable : Invalid;
    }
};

enum TargetKind { NoTarget, PlainField, DateField, DerivedField };

QObject *createTarget(TargetKind kind)
{
    switch (kind) {
    case PlainField:
        return new QLineEdit;
    case DateField:
        return new DateTimeField;
    case DerivedField:
        return new StampField;
    case NoTarget:
        break;
    }
    return nullptr;
}

} // namespace

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
    void theBlankKeySendsNothing();
    void deleteTakesOneCharacterOrTheSelection_data();
    void deleteTakesOneCharacterOrTheSelection();
    void deletingFromADateIsAnEdit();
};

void tst_CharacterContent::modeKeysSwitchModes_data()
{
    QTest::addColumn<QString>("taps");
    QTest::addColumn<QString>("expected");

    QTest::newRow("new keypad") << "" << lowerCase;
    QTest::newRow("English, caps") << "caps" << capitals;
    QTest::newRow("English, CAPS") << "caps CAPS" << lowerCase;
    QTest::newRow("English, CN") << "CN" << chinese;
    QTest::newRow("capitals, CN") << "caps CN" << chinese;
    QTest::newRow("English, *#") << "*#" << symbols;
    QTest::newRow("capitals, *#") << "caps *#" << symbols;
    QTest::newRow("Chinese, EN") << "CN EN" << lowerCase;
    QTest::newRow("Chinese from capitals, EN") << "caps CN EN" << lowerCase;
    QTest::newRow("Chinese, *#") << "CN *#" << symbols;
    QTest::newRow("symbols from English, <<") << "*# <<" << lowerCase;
    QTest::newRow("symbols from capitals, <<") << "caps *# <<" << lowerCase;
    QTest::newRow("symbols from Chinese, <<") << "CN *# <<" << chinese;
    QTest::newRow("there and back twice") << "CN *# << EN *# <<" << lowerCase;
    QTest::newRow("back to English, then Chinese") << "*# << CN" << chinese;
    QTest::newRow("back to Chinese, then symbols") << "CN *# << *# <<" << chinese;
    QTest::newRow("the way back is fresh each time") << "CN *# << EN caps *# <<" << lowerCase;
}

void tst_CharacterContent::modeKeysSwitchModes()
{
    QFETCH(QString, taps);
    QFETCH(QString, expected);
    CharacterStage stage;
    stage.keypad.setText(u("kept"));
    press(stage.keypad, qPrintable(taps));
    QCOMPARE(face(stage.keypad), expected);
    QCOMPARE(modeKey(stage.keypad)->isEnabled(), expected != u(chinese));
    QCOMPARE(editLine(&stage.keypad)->text(), u("kept"));

    // The mode behind the face: only Chinese mode composes, only symbol mode halves "&&".
    QVERIFY(sendContent(stage.keypad, u("&&")));
    QVERIFY(sendContent(stage.keypad, u("x")));
    const bool composing = expected == u(chinese);
    QCOMPARE(editLine(&stage.keypad)->text(),
             u(composing                    ? "&&"
                   : expected == u(symbols) ? "&x"
                                            : "&&x"));
    QCOMPARE(shownPinyin(stage.keypad), u(composing ? "x" : ""));
}

void tst_CharacterContent::keysType_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("taps");
    QTest::addColumn<QString>("text");

    QTest::newRow("letters") << ""
                             << "q w e r t y u i o p a s d f g h j k l z x c v b n m"
                             << "qwertyuiopasdfghjklzxcvbnm";
    QTest::newRow("capitals") << "caps"
                              << "Q W E R T Y U I O P A S D F G H J K L Z X C V B N M"
                              << "QWERTYUIOPASDFGHJKLZXCVBNM";
    QTest::newRow("first symbols") << "*#"
                                   << "+ - * / ( ) [ ] = %"
                                   << "+-*/()[]=%";
    QTest::newRow("second symbols") << "*#"
                                    << "! @ # $ ? ; : ' \""
                                    << "!@#$?;:'\"";
    QTest::newRow("third symbols") << "*#"
                                   << "< > | && \\ { }"
                                   << "<>|&\\{}";
    QTest::newRow("two ampersands") << "*#"
                                    << "&& &&"
                                    << "&&";
    QTest::newRow("keys at the left") << "*#"
                                      << "~ _"
                                      << "~_";
    QTest::newRow("digits") << ""
                            << "0 1 2 3 4 5 6 7 8 9"
                            << "0123456789";
    QTest::newRow("digits, capitals") << "caps"
                                      << "0 9"
                                      << "09";
    QTest::newRow("digits, symbols") << "*#"
                                     << "0 1 2 3 4 5 6 7 8 9"
                                     << "0123456789";
    QTest::newRow("common keys") << ""
                                 << ", Space ."
                                 << ", .";
    QTest::newRow("common keys, capitals") << "caps"
                                           << ", Space ."
                                           << ", .";
    QTest::newRow("common keys, symbols") << "*#"
                                          << ", Space ."
                                          << ", .";
    QTest::newRow("common keys, Chinese") << "CN"
                                          << ", Space ."
                                          << ", .";
    QTest::newRow("all together") << ""
                                  << "caps M CAPS a x *# && _ << 1 Space CN , EN z"
                                  << "Max&_1 ,z";
}

void tst_CharacterContent::keysType()
{
    QFETCH(QString, mode);
    QFETCH(QString, taps);
    QFETCH(QString, text);
    CharacterStage stage;
    stage.keypad.setText(u("replaced"));
    press(stage.keypad, qPrintable(mode));
    press(stage.keypad, qPrintable(taps));
    QCOMPARE(editLine(&stage.keypad)->text(), text);
    QCOMPARE(editLine(&stage.keypad)->cursorPosition(), int(text.size()));
}

void tst_CharacterContent::contentIsTakenLiterally_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("text"); // of the edit line, which held "ab" and a cursor between

    QTest::newRow("nothing") << ""
                             << ""
                             << "ab";
    QTest::newRow("nothing, symbols") << "*#"
                                      << ""
                                      << "ab";
    QTest::newRow("nothing, Chinese") << "CN"
                                      << ""
                                      << "ab";
    QTest::newRow("unknown") << ""
                             << "F7"
                             << "aF7b";
    QTest::newRow("unknown, symbols") << "*#"
                                      << "F7"
                                      << "aF7b";
    QTest::newRow("unknown, Chinese") << "CN"
                                      << "F7"
                                      << "aF7b";
    QTest::newRow("wrong case") << ""
                                << "del"
                                << "adelb";
    QTest::newRow("wrong case, symbols") << "*#"
                                         << "ENTER"
                                         << "aENTERb";
    QTest::newRow("wrong case, Chinese") << "CN"
                                         << "SPACE"
                                         << "aSPACEb";
    QTest::newRow("blank at the end") << ""
                                      << "Del "
                                      << "aDel b";
    QTest::newRow("key of another mode") << ""
                                         << "<<"
                                         << "a<<b";
    QTest::newRow("key of another mode, EN") << ""
                                             << "EN"
                                             << "aENb";
    QTest::newRow("key of another mode, symbols") << "*#"
                                                  << "CN"
                                                  << "aCNb";
    QTest::newRow("caps in symbols") << "*#"
                                     << "caps"
                                     << "acapsb";
    QTest::newRow("mode key in symbols") << "*#"
                                         << "*#"
                                         << "a*#b";
    QTest::newRow("key of another mode, Chinese") << "CN"
                                                  << "CN"
                                                  << "aCNb";
    QTest::newRow("back key, Chinese") << "CN"
                                       << "<<"
                                       << "a<<b";
    QTest::newRow("ampersands in English") << ""
                                           << "&&"
                                           << "a&&b";
    QTest::newRow("three ampersands in symbols") << "*#"
                                                 << "&&&"
                                                 << "a&&&b";
    QTest::newRow("capital letter, Chinese") << "CN"
                                             << "N"
                                             << "aNb";
    QTest::newRow("paging in English") << ""
                                       << ">"
                                       << "a>b";
    QTest::newRow("Chinese text in English") << "" << u("主轴") << u("a主轴b");
}

void tst_CharacterContent::contentIsTakenLiterally()
{
    QFETCH(QString, mode);
    QFETCH(QString, content);
    QFETCH(QString, text);
    CharacterStage stage;
    press(stage.keypad, qPrintable(mode));
    const QString before = face(stage.keypad);
    stage.keypad.setText(u("ab"));
    editLine(&stage.keypad)->setCursorPosition(1);
    QVERIFY(sendContent(stage.keypad, content));
    QCOMPARE(editLine(&stage.keypad)->text(), text);
    QCOMPARE(editLine(&stage.keypad)->cursorPosition(), 1 + int(content.size()));
    QCOMPARE(face(stage.keypad), before);
    QCOMPARE(shownPinyin(stage.keypad), QString());
}

void tst_CharacterContent::insertionIsTheEditLines()
{
    CharacterStage stage;
    KeyBoardLineEdit *line = editLine(&stage.keypad);
    stage.keypad.setText(u("abc"));
    press(stage.keypad, "q");
    QCOMPARE(line->text(), u("q"));

    stage.keypad.setText(u("abcdef"));
    line->setSelection(1, 3);
    press(stage.keypad, "Space");
    QCOMPARE(line->text(), u("a ef"));
    QCOMPARE(line->cursorPosition(), 2);

    stage.keypad.setMaxLength(5);
    line->setCursorPosition(2);
    press(stage.keypad, "x y z");
    QCOMPARE(line->text(), u("a xef"));

    const QIntValidator numbers(0, 99, nullptr);
    stage.keypad.setText(u("7"));
    line->deselect();
    stage.keypad.setValidator(&numbers);
    press(stage.keypad, "k 5 . 6 Space");
    QCOMPARE(line->text(), u("75"));
}

void tst_CharacterContent::theBlankKeySendsNothing()
{
    CharacterStage stage;
    press(stage.keypad, "CN n");
    modeKey(stage.keypad)->click();
    QCOMPARE(face(stage.keypad), u(chinese));
    QCOMPARE(shownPinyin(stage.keypad), u("n"));
    QCOMPARE(editLine(&stage.keypad)->text(), QString());
}

void tst_CharacterContent::deleteTakesOneCharacterOrTheSelection_data()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<bool>("validated"); // by one that refuses anything but 8 characters
    QTest::addColumn<QString>("before"); // "|": cursor, "[" and "]": selection
    QTest::addColumn<QString>("after");

    static const struct
    {
        const char *name;
        TargetKind target;
        bool validated;
        const char *before, *after;
    } rows[] = { { "no target", NoTarget, false, "abc|", "ab|" },
                 { "plain field", PlainField, false, "abc|", "ab|" },
                 { "plain field, in the middle", PlainField, false, "ab|c", "a|c" },
                 { "plain field, at the start", PlainField, false, "|abc", "|abc" },
                 { "plain field, selection", PlainField, false, "a[bc]d", "a|d" },
                 { "plain field, empty", PlainField, false, "|", "|" },
                 { "plain field, refused", PlainField, true, "20240131|", "20240131|" },
                 { "plain field, selection refused", PlainField, true, "20[24]0131", "20[24]0131" },
                 { "no target, refused", NoTarget, true, "20240131|", "20240131|" },
                 { "date field, no validator", DateField, false, "2024|0131", "202|0131" },
                 { "date field, no validator, at the start", DateField, false, "|2024", "|2024" },
                 { "date field", DateField, true, "20240131|", "2024013|" },
                 { "date field, in the middle", DateField, true, "2024|0131", "202|0131" },
                 { "date field, first character", DateField, true, "2|0240131", "|0240131" },
                 { "date field, at the start", DateField, true, "|20240131", "|2024013" },
                 { "date field, selection refused", DateField, true, "20[24]0131", "20[24]0131" },
                 { "date field, empty", DateField, true, "|", "|" },
                 { "derived field", DerivedField, true, "2024|0131", "202|0131" },
                 { "derived field, at the start", DerivedField, true, "|20240131", "|2024013" },
                 { "derived field, no validator", DerivedField, false, "2024|0131", "202|0131" } };
    for (size_t i = 0; i < sizeof(rows) / sizeof(rows[0]); ++i) {
        QTest::newRow(rows[i].name)
            << int(rows[i].target) << rows[i].validated << u(rows[i].before) << u(rows[i].after);
    }
}

/* Puts a text with its marks for cursor and selection into the edit line. */
static void setMarkedText(QLineEdit *line, QString text)
{
    const int cursor = int(text.indexOf(QLatin1Char('|')));
    const int start = int(text.indexOf(QLatin1Char('[')));
    const int end = int(text.indexOf(QLatin1Char(']'))) - 1;
    text.remove(QLatin1Char('|')).remove(QLatin1Char('[')).remove(QLatin1Char(']'));
    line->setText(text);
    if (start >= 0)
        line->setSelection(start, end - start);
    else
        line->setCursorPosition(cursor);
}

static QString markedText(const QLineEdit *line)
{
    QString text = line->text();
    if (!line->hasSelectedText())
        return text.insert(line->cursorPosition(), QLatin1Char('|'));
    const int start = line->selectionStart();
    text.insert(start + int(line->selectedText().size()), QLatin1Char(']'));
    return text.insert(start, QLatin1Char('['));
}

void tst_CharacterContent::deleteTakesOneCharacterOrTheSelection()
{
    QFETCH(int, target);
    QFETCH(bool, validated);
    QFETCH(QString, before);
    QFETCH(QString, after);
    const WholeDates wholeDates;
    const QScopedPointer<QObject> field(createTarget(TargetKind(target)));
    static const char *const modesWithDelete[] = { "", "caps", "*#", "CN" };
    for (int i = 0; i < 4; ++i) {
        CharacterKeypad keypad(nullptr, Qt::WindowFlags());
        keypad.setObject(field.data());
        press(keypad, modesWithDelete[i]);
        if (validated)
            keypad.setValidator(&wholeDates);
        setMarkedText(editLine(&keypad), before);
        press(keypad, "Del");
        QCOMPARE(markedText(editLine(&keypad)), after);
    }
}

/* The text is set whole, but the edit line tells its listeners of an edit first. */
void tst_CharacterContent::deletingFromADateIsAnEdit()
{
    CharacterKeypad keypad(nullptr, Qt::WindowFlags());
    DateTimeField field;
    const QIntValidator numbers(0, 99999999, nullptr);
    keypad.setObject(&field);
    keypad.setValidator(&numbers);
    setMarkedText(editLine(&keypad), u("2024|0131"));
    QSignalSpy edited(editLine(&keypad), SIGNAL(textEdited(QString)));
    press(keypad, "Del");
    QCOMPARE(markedText(editLine(&keypad)), u("202|0131"));
    QCOMPARE(edited.count(), 1);
    QCOMPARE(edited.at(0).at(0).toString(), u("2020131"));
}

QTEST_MAIN(tst_CharacterContent)
#include "tst_CharacterContent.moc"
