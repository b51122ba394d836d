// SPDX-License-Identifier: MIT
#include "support/AnyKeypad.h"
#include "support/MessageLog.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QSignalSpy>

// How an entry ends, whichever keypad it was made on: what is written, when, and into what. The
// hard keys of the application have a program of their own.

namespace {

enum TargetKind { LineEditTarget, LabelTarget, ButtonTarget, PlainTarget };

QObject *newTarget(int kind)
{
    switch (kind) {
    case LineEditTarget:
        return new QLineEdit;
    case LabelTarget:
        return new QLabel;
    case ButtonTarget:
        return new QPushButton;
    default:
        return new QObject;
    }
}

// Reads the target at the moment in which the application hears that the keypad was accepted.
class AcceptedReader : public QObject
{
    Q_OBJECT

public:
    AcceptedReader(QDialog *keypad, const QLineEdit *target)
        : m_target(target)
    {
        connect(keypad, SIGNAL(accepted()), SLOT(onAccepted()));
    }

    QStringList seen;

public Q_SLOTS:
    void onAccepted() { seen << m_target->text(); }

private:
    const QLineEdit *m_target;
};

// A field whose screen goes with its keypad as soon as the field has a value.
class ClosingTarget : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    explicit ClosingTarget(AnyKeypad *keypad)
        : m_keypad(keypad)
    {
    }

    QString text() const { return m_text; }
    void setText(const QString &text)
    {
        m_text = text;
        m_keypad.reset();
    }

    // Is there until a text is set.
    AnyKeypad *keypad() const { return m_keypad.data(); }

private:
    QScopedPointer<AnyKeypad> m_keypad;
    QString m_text;
};

} // namespace

class tst_KeypadClosing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void confirmingWritesTheTextProperty_data();
    void confirmingWritesTheTextProperty();
    void theTargetIsWrittenBeforeAcceptedIsHeard();
    void confirmingReachesTheLatestTarget();
    void confirmingWithoutTargetStaysOpen_data();
    void confirmingWithoutTargetStaysOpen();
    void aTargetDestroyedWhileOpenCountsAsNone_data();
    void aTargetDestroyedWhileOpenCountsAsNone();
    void aTargetMayDestroyTheKeypad_data();
    void aTargetMayDestroyTheKeypad();
    void cancellingWritesNothing_data();
    void cancellingWritesNothing();
    void cancellingNeedsNoTarget();
    void anOpenKeypadIsNotOpenedAgain();
};

void tst_KeypadClosing::initTestCase_data()
{
    addKeypadRows();
}

void tst_KeypadClosing::confirmingWritesTheTextProperty_data()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<int>("hardKey");

    QTest::newRow("line edit, on-screen key") << int(LineEditTarget) << 0;
    QTest::newRow("line edit, Return") << int(LineEditTarget) << int(Qt::Key_Return);
    QTest::newRow("line edit, Enter") << int(LineEditTarget) << int(Qt::Key_Enter);
    QTest::newRow("label, on-screen key") << int(LabelTarget) << 0;
    QTest::newRow("button, on-screen key") << int(ButtonTarget) << 0;
    QTest::newRow("object without a text, on-screen key") << int(PlainTarget) << 0;
    QTest::newRow("object without a text, Return") << int(PlainTarget) << int(Qt::Key_Return);
}

void tst_KeypadClosing::confirmingWritesTheTextProperty()
{
    QFETCH(int, target);
    QFETCH(int, hardKey);
    const bool confirms = !hardKey || currentKind().has(TypesText);
    AnyStage stage;
    QScopedPointer<QObject> object(newTarget(target));
    stage.keypad.setObject(object.data());
    stage.keypad.setText(u(currentKind().sampleText));
    QScopedPointer<QSignalSpy> changes;
    if (target == LineEditTarget)
        changes.reset(new QSignalSpy(object.data(), SIGNAL(textChanged(QString))));

    CHECKED(execWhile(
        stage.dialog(),
        [&] {
            stage.activate();
            if (hardKey)
                pressHardKey(stage.dialog(), hardKey);
            else
                CHECKED(stage.keypad.confirm());
        },
        confirms ? Accepts : StaysOpen));

    QCOMPARE(object->property("text").toString(),
             confirms ? u(currentKind().sampleText) : QString());
    QCOMPARE(stage.line()->text(), u(currentKind().sampleText));
    const int dynamic = object->dynamicPropertyNames().count("text");
    QCOMPARE(dynamic, confirms && target == PlainTarget ? 1 : 0);
    if (changes)
        QCOMPARE(int(changes->count()), confirms ? 1 : 0);
}

void tst_KeypadClosing::theTargetIsWrittenBeforeAcceptedIsHeard()
{
    AnyStage stage;
    AcceptedReader reader(stage.dialog(), &stage.target);
    stage.keypad.setText(u(currentKind().sampleText));
    CHECKED(execWhile(
        stage.dialog(), [&] { CHECKED(stage.keypad.confirm()); }, Accepts));
    QCOMPARE(reader.seen, QStringList(u(currentKind().sampleText)));
}

void tst_KeypadClosing::confirmingReachesTheLatestTarget()
{
    AnyStage stage;
    QLabel first(u("first")), second(u("second"));
    stage.keypad.setObject(&first);
    stage.keypad.setObject(&second);
    stage.keypad.setText(u(currentKind().sampleText));
    CHECKED(execWhile(
        stage.dialog(), [&] { CHECKED(stage.keypad.confirm()); }, Accepts));
    QCOMPARE(first.text(), u("first"));
    QCOMPARE(second.text(), u(currentKind().sampleText));

    stage.keypad.setObject(&first); // the same keypad again
    stage.keypad.setText(u(currentKind().otherText));
    CHECKED(execWhile(
        stage.dialog(), [&] { CHECKED(stage.keypad.confirm()); }, Accepts));
    QCOMPARE(first.text(), u(currentKind().otherText));
    QCOMPARE(second.text(), u(currentKind().sampleText));
}

void tst_KeypadClosing::confirmingWithoutTargetStaysOpen_data()
{
    QTest::addColumn<bool>("bound");
    QTest::addColumn<int>("hardKey");
    QTest::newRow("never bound, on-screen key") << false << 0;
    QTest::newRow("never bound, Return") << false << int(Qt::Key_Return);
    QTest::newRow("never bound, Enter") << false << int(Qt::Key_Enter);
    QTest::newRow("target destroyed, on-screen key") << true << 0;
    QTest::newRow("target destroyed, Return") << true << int(Qt::Key_Return);
    QTest::newRow("target destroyed, Enter") << true << int(Qt::Key_Enter);
}

void tst_KeypadClosing::confirmingWithoutTargetStaysOpen()
{
    QFETCH(bool, bound);
    QFETCH(int, hardKey);
    PanelView view(1);
    const QScopedPointer<AnyKeypad> keypad(currentKind().create(&view, Qt::WindowFlags()));
    if (bound)
        keypad->setObject(QScopedPointer<QObject>(newTarget(LineEditTarget)).data());
    keypad->setText(u(currentKind().sampleText));
    const QSignalSpy accepted(keypad->dialog(), SIGNAL(accepted()));

    CHECKED(execWhile(
        keypad->dialog(),
        [&] {
            QApplication::setActiveWindow(keypad->dialog());
            if (hardKey)
                pressHardKey(keypad->dialog(), hardKey);
            else
                CHECKED(keypad->confirm());
        },
        StaysOpen));

    QCOMPARE(int(accepted.count()), 0);
    QCOMPARE(editLine(keypad->dialog())->text(), u(currentKind().sampleText));
}

void tst_KeypadClosing::aTargetDestroyedWhileOpenCountsAsNone_data()
{
    QTest::addColumn<int>("target");
    QTest::newRow("line edit") << int(LineEditTarget);
    QTest::newRow("object without a text") << int(PlainTarget);
}

void tst_KeypadClosing::aTargetDestroyedWhileOpenCountsAsNone()
{
    QFETCH(int, target);
    AnyStage stage;
    QObject *object = newTarget(target);
    stage.keypad.setObject(object);
    stage.keypad.setText(u(currentKind().sampleText));

    bool openAfterConfirm = false;
    CHECKED(execWhile(
        stage.dialog(),
        [&] {
            delete object;
            CHECKED(stage.keypad.confirm());
            pressHardKey(stage.dialog(), Qt::Key_Return);
            openAfterConfirm = stage.dialog()->isVisible();
            pressHardKey(stage.dialog(), Qt::Key_Escape);
        },
        Rejects));

    QVERIFY(openAfterConfirm);
}

void tst_KeypadClosing::aTargetMayDestroyTheKeypad_data()
{
    QTest::addColumn<bool>("hardKey");
    QTest::newRow("on-screen key") << false;
    QTest::newRow("Return") << true;
}

void tst_KeypadClosing::aTargetMayDestroyTheKeypad()
{
    QFETCH(bool, hardKey);
    const bool confirms = !hardKey || currentKind().has(TypesText);
    PanelView view(1);
    ClosingTarget target(currentKind().create(&view, Qt::WindowFlags()));
    target.keypad()->setObject(&target);
    target.keypad()->setText(u(currentKind().sampleText));
    QDialog *dialog = target.keypad()->dialog();
    CHECKED(execWhile(
        dialog,
        [&] {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
            if (hardKey)
                QApplication::sendEvent(dialog, &press);
            else
                key(dialog, u(currentKind().confirmLabel))->click();
        },
        confirms ? Rejects : StaysOpen));
    QCOMPARE(!target.keypad(), confirms);
    QCOMPARE(target.text(), confirms ? u(currentKind().sampleText) : QString());
}

void tst_KeypadClosing::cancellingWritesNothing_data()
{
    QTest::addColumn<bool>("hardKey");
    QTest::newRow("on-screen key") << false;
    QTest::newRow("Escape") << true;
}

void tst_KeypadClosing::cancellingWritesNothing()
{
    QFETCH(bool, hardKey);
    AnyStage stage;
    QLineEdit target(u("as it was"));
    stage.keypad.setObject(&target);
    stage.keypad.setText(u(currentKind().sampleText));
    const QSignalSpy rejected(stage.dialog(), SIGNAL(rejected()));

    CHECKED(execWhile(
        stage.dialog(),
        [&] {
            stage.activate();
            if (hardKey)
                pressHardKey(stage.dialog(), Qt::Key_Escape);
            else
                CHECKED(stage.keypad.cancel());
        },
        Rejects));

    QCOMPARE(int(rejected.count()), 1);
    QCOMPARE(target.text(), u("as it was"));
    QCOMPARE(stage.line()->text(), u(currentKind().sampleText));
}

void tst_KeypadClosing::cancellingNeedsNoTarget()
{
    PanelView view(1);
    const QScopedPointer<AnyKeypad> keypad(currentKind().create(&view, Qt::WindowFlags()));
    CHECKED(execWhile(
        keypad->dialog(), [&] { CHECKED(keypad->cancel()); }, Rejects));
}

void tst_KeypadClosing::anOpenKeypadIsNotOpenedAgain()
{
    AnyStage stage;
    stage.target.setText(u("before"));
    stage.keypad.setText(u(currentKind().sampleText));
    int result = QDialog::Rejected;
    QStringList messages;
    const auto openAgain = [&] {
        const MessageLog log;
        result = stage.dialog()->exec();
        messages = log.messages();
        QVERIFY(stage.dialog()->isVisible());
    };
    CHECKED(execWhile(stage.dialog(), openAgain, StaysOpen));
    QCOMPARE(result, -1);
    QCOMPARE(messages, QStringList(u("QDialog::exec: Recursive call detected")));
    QCOMPARE(stage.target.text(), u("before"));
}

QTEST_MAIN(tst_KeypadClosing)

#include "tst_KeypadClosing.moc"
