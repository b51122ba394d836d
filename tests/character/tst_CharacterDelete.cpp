// SPDX-License-Identifier: MIT
#include "CharacterDriver.h"

#include <QIntValidator>
#include <QScopedPointer>

// What "Del" takes away, and the rule of its own that date-time fields have.

// The application's date-time field: the class whose name gives it a delete rule of its own.
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

// Knows only whole dates, as a validator of such fields does.
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

// Puts a text with its marks for cursor and selection into the edit line.
void setMarkedText(QLineEdit *line, QString text)
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

QString markedText(const QLineEdit *line)
{
    QString text = line->text();
    if (!line->hasSelectedText())
        return text.insert(line->cursorPosition(), QLatin1Char('|'));
    const int start = line->selectionStart();
    text.insert(start + int(line->selectedText().size()), QLatin1Char(']'));
    return text.insert(start, QLatin1Char('['));
}

} // namespace

class tst_CharacterDelete : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deleteTakesOneCharacterOrTheSelection_data();
    void deleteTakesOneCharacterOrTheSelection();
    void deletingFromADateIsAnEdit();
};

void tst_CharacterDelete::deleteTakesOneCharacterOrTheSelection_data()
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
    for (const auto &row : rows)
        QTest::newRow(row.name) << int(row.target) << row.validated << u(row.before)
                                << u(row.after);
}

void tst_CharacterDelete::deleteTakesOneCharacterOrTheSelection()
{
    QFETCH(int, target);
    QFETCH(bool, validated);
    QFETCH(QString, before);
    QFETCH(QString, after);
    const WholeDates wholeDates;
    const QScopedPointer<QObject> field(createTarget(TargetKind(target)));
    for (const Face &face : faces) {
        CharacterKeypad keypad(nullptr, Qt::WindowFlags());
        keypad.setObject(field.data());
        CHECKED(press(keypad, face.taps));
        if (validated)
            keypad.setValidator(&wholeDates);
        setMarkedText(editLine(&keypad), before);
        CHECKED(press(keypad, "Del"));
        QCOMPARE(markedText(editLine(&keypad)), after);
    }
}

// The text is set whole, but the edit line tells its listeners of an edit first.
void tst_CharacterDelete::deletingFromADateIsAnEdit()
{
    CharacterKeypad keypad(nullptr, Qt::WindowFlags());
    DateTimeField field;
    const QIntValidator numbers(0, 99999999, nullptr);
    keypad.setObject(&field);
    keypad.setValidator(&numbers);
    setMarkedText(editLine(&keypad), u("2024|0131"));
    QSignalSpy edited(editLine(&keypad), SIGNAL(textEdited(QString)));
    CHECKED(press(keypad, "Del"));
    QCOMPARE(markedText(editLine(&keypad)), u("202|0131"));
    QCOMPARE(edited.count(), 1);
    QCOMPARE(edited.at(0).at(0).toString(), u("2020131"));
}

QTEST_MAIN(tst_CharacterDelete)
#include "tst_CharacterDelete.moc"
