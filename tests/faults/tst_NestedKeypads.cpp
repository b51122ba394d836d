// SPDX-License-Identifier: MIT
#include "Moments.h"
#include "support/MessageLog.h"

#include <HMIDevice/KeyBoardLineEdit.h>

#include <QApplication>
#include <QEventLoop>

// Keypads that are opened from slots of keypads, and event loops inside an entry.

namespace {

const int otherKeypads = 4;

bool isWhileItRuns(const Moment &moment)
{
    return moment.when != BeforeOpening && moment.when != AfterClosing;
}

// Not of the same kind: applications have one of each.
const KeypadKind &otherKind(int distance)
{
    QFETCH_GLOBAL(int, keypad);
    return keypadKind((keypad + distance) % (otherKeypads + 1));
}

// An entry on another keypad, from its building to its destruction.
void enterOnAnother(int distance)
{
    const KeypadKind &kind = otherKind(distance);
    const QScopedPointer<AnyKeypad> other(
        kind.create(HMIDeviceInfo::graphicsView(), Qt::WindowFlags()));
    HookedField field;
    other->setObject(&field);
    other->setText(u(kind.sampleText));
    CHECKED(execWhile(
        other->dialog(), [&] { CHECKED(endEntry(other->dialog(), ByConfirming)); }, Accepts));
    QCOMPARE(field.text(), u(kind.sampleText));
}

// Lets the events that are waiting happen, and \a action in a loop of its own.
void loopOnce(const std::function<void()> &action)
{
    QEventLoop loop;
    Once once([&] {
        action();
        loop.quit();
    });
    QMetaObject::invokeMethod(&once, "act", Qt::QueuedConnection);
    loop.exec();
}

} // namespace

class tst_NestedKeypads : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { addKeypadRows(); }
    void anotherKeypadMayBeOpened_data() { addMomentRows(); }
    void anotherKeypadMayBeOpened();
    void aKeypadIsNotOpenedInItself_data() { addMomentRows(isWhileItRuns); }
    void aKeypadIsNotOpenedInItself();
    void waitingEventsMayHappen_data() { addMomentRows(); }
    void waitingEventsMayHappen();
    void theSettersLoopMayConfirmAgain();
    void theSettersLoopMayCancel();
    void theSettersLoopMayBindAnother();
    void theSettersLoopMayDestroy_data();
    void theSettersLoopMayDestroy();
};

void tst_NestedKeypads::anotherKeypadMayBeOpened()
{
    QFETCH(int, moment);
    const Moment &when = momentAt(moment);
    for (int distance = 1; distance <= otherKeypads; ++distance) {
        AnyStage stage(13);
        HookedField field;
        CHECKED(enter(
            &stage.keypad, &field, when, [&] { CHECKED(enterOnAnother(distance)); },
            undisturbedOutcome(when)));
        QCOMPARE(field.text(), when.end == ByConfirming ? stage.line()->text() : QString());
    }
}

void tst_NestedKeypads::aKeypadIsNotOpenedInItself()
{
    QFETCH(int, moment);
    const Moment &when = momentAt(moment);
    AnyStage stage(13);
    HookedField field;
    QList<int> results;
    QStringList messages;
    const auto openAgain = [&] {
        const MessageLog log;
        results << stage.dialog()->exec();
        messages = log.messages();
    };
    CHECKED(enter(&stage.keypad, &field, when, openAgain, undisturbedOutcome(when)));
    if (undisturbedOutcome(when) != StaysOpen) {
        QCOMPARE(results, QList<int>() << -1);
        QCOMPARE(messages, QStringList(u("QDialog::exec: Recursive call detected")));
    }
    QCOMPARE(field.text(), when.end == ByConfirming ? stage.line()->text() : QString());
    CHECKED(verifyUsable(&stage.keypad));
}

void tst_NestedKeypads::waitingEventsMayHappen()
{
    QFETCH(int, moment);
    const Moment &when = momentAt(moment);
    AnyStage stage(13);
    HookedField field;
    bool happened = false;
    const auto loop = [&] {
        loopOnce([&] { happened = true; });
        QApplication::processEvents();
        QApplication::sendPostedEvents();
    };
    CHECKED(enter(&stage.keypad, &field, when, loop, undisturbedOutcome(when)));
    QCOMPARE(happened, undisturbedOutcome(when) != StaysOpen);
    QCOMPARE(field.text(), when.end == ByConfirming ? stage.line()->text() : QString());
}

void tst_NestedKeypads::theSettersLoopMayConfirmAgain()
{
    AnyStage stage;
    HookedField field;
    Once again([&] { loopOnce([&] { CHECKED(stage.keypad.confirm()); }); });
    field.whenSet = [&] {
        again.act();
    };
    stage.keypad.setObject(&field);
    stage.keypad.setText(u(currentKind().sampleText));
    CHECKED(execWhile(
        stage.dialog(), [&] { CHECKED(stage.keypad.confirm()); }, Accepts));
    QVERIFY(again.isDone());
    QCOMPARE(field.text(), u(currentKind().sampleText));
    CHECKED(verifyUsable(&stage.keypad));
}

// The field has its text by then, which is what exec() tells.
void tst_NestedKeypads::theSettersLoopMayCancel()
{
    AnyStage stage;
    HookedField field;
    field.whenSet = [&] {
        loopOnce([&] { CHECKED(stage.keypad.cancel()); });
    };
    stage.keypad.setObject(&field);
    stage.keypad.setText(u(currentKind().sampleText));
    CHECKED(execWhile(
        stage.dialog(), [&] { CHECKED(stage.keypad.confirm()); }, Accepts));
    QCOMPARE(field.text(), u(currentKind().sampleText));
    CHECKED(verifyUsable(&stage.keypad));
}

void tst_NestedKeypads::theSettersLoopMayBindAnother()
{
    AnyStage stage;
    HookedField field;
    field.whenSet = [&] {
        loopOnce([&] {
            stage.keypad.setObject(&stage.target);
            stage.keypad.setText(u(currentKind().otherText));
        });
    };
    stage.keypad.setObject(&field);
    stage.keypad.setText(u(currentKind().sampleText));
    CHECKED(execWhile(
        stage.dialog(), [&] { CHECKED(stage.keypad.confirm()); }, Accepts));
    QCOMPARE(field.text(), u(currentKind().sampleText));
    QCOMPARE(stage.target.text(), QString());
    CHECKED(execWhile(
        stage.dialog(), [&] { CHECKED(stage.keypad.confirm()); }, Accepts));
    QCOMPARE(stage.target.text(), u(currentKind().otherText));
}

void tst_NestedKeypads::theSettersLoopMayDestroy_data()
{
    QTest::addColumn<bool>("field");
    QTest::addColumn<bool>("view");
    QTest::newRow("the field") << true << false;
    QTest::newRow("the view") << false << true;
    QTest::newRow("both") << true << true;
}

void tst_NestedKeypads::theSettersLoopMayDestroy()
{
    QFETCH(bool, field);
    QFETCH(bool, view);
    QPointer<PanelView> panel = new PanelView(1);
    const QScopedPointer<AnyKeypad> keypad(currentKind().create(panel, Qt::WindowFlags()));
    QPointer<HookedField> target = new HookedField;
    QString written;
    target->whenSet = [&] {
        loopOnce([&] {
            written = target->text();
            if (field)
                delete target;
            if (view)
                delete panel;
        });
    };
    keypad->setObject(target);
    keypad->setText(u(currentKind().sampleText));
    CHECKED(execWhile(
        keypad->dialog(), [&] { CHECKED(endEntry(keypad->dialog(), ByConfirming)); },
        view ? Rejects : Accepts));
    QCOMPARE(written, u(currentKind().sampleText));
    QCOMPARE(!keypad->dialog(), view);
    delete target;
    delete panel;
}

QTEST_MAIN(tst_NestedKeypads)
#include "tst_NestedKeypads.moc"
