// SPDX-License-Identifier: MIT
#include "Moments.h"

#include <HMIDevice/KeyBoardLineEdit.h>

#include <QSignalSpy>
#include <QValidator>

// Fields and validators that an application destroys at any moment of an entry.

namespace {

// Accepts everything, and destroys itself while it is asked.
class VanishingValidator : public QValidator
{
public:
    State validate(QString &, int &) const override
    {
        delete this;
        return Acceptable;
    }
};

class PlainValidator : public QValidator
{
public:
    State validate(QString &, int &) const override { return Acceptable; }
};

} // namespace

class tst_DestroyedFields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { addKeypadRows(); }
    void aFieldMayGo_data() { addMomentRows(); }
    void aFieldMayGo();
    void aFieldMayGoAndLeaveAnother_data() { addMomentRows(); }
    void aFieldMayGoAndLeaveAnother();
    void aFieldMayGoWhileItIsBound();
    void aValidatorMayGo_data() { addMomentRows(); }
    void aValidatorMayGo();
    void aValidatorMayGoWhileItIsAsked();
};

void tst_DestroyedFields::aFieldMayGo()
{
    QFETCH(int, moment);
    const Moment &when = momentAt(moment);
    AnyStage stage(13);
    QPointer<HookedField> field = new HookedField;
    QString written;
    const bool isTooEarly = when.end == ByConfirming && when.isBeforeWriting();
    const auto destroy = [&] {
        written = field->text();
        delete field;
    };
    CHECKED(enter(&stage.keypad, field, when, destroy,
                  isTooEarly ? StaysOpen : undisturbedOutcome(when)));
    const bool isWritten = when.end == ByConfirming && !isTooEarly;
    QCOMPARE(written, isWritten ? stage.line()->text() : QString());
    delete field; // where no key was handed on
    CHECKED(verifyUsable(&stage.keypad));
}

void tst_DestroyedFields::aFieldMayGoAndLeaveAnother()
{
    QFETCH(int, moment);
    const Moment &when = momentAt(moment);
    AnyStage stage(13);
    QPointer<HookedField> field = new HookedField;
    const auto replace = [&] {
        delete field;
        stage.keypad.setObject(&stage.target);
    };
    CHECKED(enter(&stage.keypad, field, when, replace, undisturbedOutcome(when)));
    const bool isInTime = when.end == ByConfirming && when.isBeforeWriting();
    QCOMPARE(stage.target.text(), isInTime ? stage.line()->text() : QString());
    delete field;
    CHECKED(verifyUsable(&stage.keypad));
}

// Binding resets the edit line, which tells the application that the cursor has moved.
void tst_DestroyedFields::aFieldMayGoWhileItIsBound()
{
    AnyStage stage;
    stage.keypad.setText(u(currentKind().sampleText));
    stage.line()->setCursorPosition(0);
    QPointer<HookedField> field = new HookedField;
    Once once([&] { delete field; });
    once.watch(stage.line(), SIGNAL(cursorPositionChanged(int, int)));
    stage.keypad.setObject(field);
    QVERIFY(once.isDone());
    QVERIFY(!field);
    CHECKED(execWhile(
        stage.dialog(), [&] { CHECKED(stage.keypad.confirm()); }, StaysOpen));
    CHECKED(verifyUsable(&stage.keypad));
}

void tst_DestroyedFields::aValidatorMayGo()
{
    QFETCH(int, moment);
    const Moment &when = momentAt(moment);
    AnyStage stage(13);
    HookedField field;
    QPointer<QValidator> validator = new PlainValidator;
    stage.keypad.setValidator(validator);
    CHECKED(enter(
        &stage.keypad, &field, when, [&] { delete validator; }, undisturbedOutcome(when)));
    QCOMPARE(field.text(), when.end == ByConfirming ? stage.line()->text() : QString());
    delete validator;
    QVERIFY(!stage.line()->validator());
    CHECKED(verifyUsable(&stage.keypad));
}

void tst_DestroyedFields::aValidatorMayGoWhileItIsAsked()
{
    AnyStage stage;
    stage.keypad.setText(u(currentKind().sampleText));
    const QPointer<QValidator> validator = new VanishingValidator;
    stage.keypad.setValidator(validator);
    CHECKED(execWhile(
        stage.dialog(),
        [&] {
            CHECKED(typeOne(stage.dialog()));
            QVERIFY(!validator);
            CHECKED(stage.keypad.confirm());
        },
        Accepts));
    QCOMPARE(stage.target.text(), stage.line()->text());
    CHECKED(verifyUsable(&stage.keypad));
}

QTEST_MAIN(tst_DestroyedFields)
#include "tst_DestroyedFields.moc"
