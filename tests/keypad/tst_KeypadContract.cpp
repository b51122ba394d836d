// SPDX-License-Identifier: MIT
#include "support/AnyKeypad.h"

#include <HMIDevice/KeyBoardLineEdit.h>

#include <QIntValidator>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>

// What an application relies on whichever keypad it opens: binding, the text, the adjustments,
// and writing back. The hard keys have a program of their own.

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

} // namespace

// Looks at keypad and target from inside the keypad's setObject(): when the edit line's length is
// set anew, which moves its cursor to the end, and when a key is enabled.
class BindingWitness : public QObject
{
    Q_OBJECT

public:
    BindingWitness(QDialog *keypad, QObject *target)
        : m_keypad(keypad)
        , m_target(target)
        , m_key(keypad->findChildren<QToolButton *>().first())
    {
        m_key->setEnabled(false);
        m_key->installEventFilter(this);
        editLine(keypad)->setCursorPosition(0);
        connect(editLine(keypad), SIGNAL(cursorPositionChanged(int, int)), SLOT(onLength()));
    }

    QStringList seen;

    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::EnabledChange)
            note("key");
        return QObject::eventFilter(object, event);
    }

public Q_SLOTS:
    void onLength()
    {
        note("length");
        tap(m_keypad, u(currentKind().confirmLabel)); // reaches the target that is stored by now
    }

private:
    void note(const char *step)
    {
        seen << QString::fromLatin1("%1: target %2, echo %3, length %4, key %5")
                    .arg(QLatin1String(step))
                    .arg(QLatin1String(m_target->signalsBlocked() ? "blocked" : "heard"))
                    .arg(int(editLine(m_keypad)->echoMode()))
                    .arg(editLine(m_keypad)->maxLength())
                    .arg(QLatin1String(m_key->isEnabled() ? "enabled" : "disabled"));
    }

    QDialog *m_keypad;
    QObject *m_target;
    QToolButton *m_key;
};

class tst_KeypadContract : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void bindingNullIsIgnored();
    void bindingResetsEchoAndLength();
    void bindingTakesItsStepsInOrder();
    void bindingUnblocksTheTarget_data();
    void bindingUnblocksTheTarget();
    void bindingEnablesTheKeysOfAFixedFaceOnly();
    void bindingLeavesTextAndValidatorAlone();
    void bindingNeitherReadsNorWritesTheTarget();
    void setTextReplacesTheTextAndSelectsIt();
    void adjustmentsReachTheEditLine();
    void limitsAreShownUntilTheyAreEmpty();
    void confirmingWritesTheTextProperty_data();
    void confirmingWritesTheTextProperty();
    void confirmingReachesTheLatestTarget();
    void confirmingWithoutTargetStaysOpen_data();
    void confirmingWithoutTargetStaysOpen();
    void aTargetDestroyedWhileOpenCountsAsNone_data();
    void aTargetDestroyedWhileOpenCountsAsNone();
    void cancellingWritesNothing_data();
    void cancellingWritesNothing();
};

void tst_KeypadContract::initTestCase_data()
{
    addKeypadRows();
}

void tst_KeypadContract::bindingNullIsIgnored()
{
    AnyStage stage;
    QLabel first;
    stage.keypad.setObject(nullptr);
    stage.keypad.setObject(&first);
    stage.keypad.setText(u(currentKind().sampleText));
    stage.keypad.setMaxLength(30);
    stage.keypad.setPasswordEchoMode(true);
    stage.keypad.setObject(nullptr);

    QCOMPARE(stage.line()->maxLength(), 30);
    QCOMPARE(int(stage.line()->echoMode()), int(QLineEdit::Password));
    CHECKED(execWhile(
        stage.dialog(), [&] { CHECKED(stage.keypad.confirm()); }, Accepts));
    QCOMPARE(first.text(), u(currentKind().sampleText));
}

void tst_KeypadContract::bindingResetsEchoAndLength()
{
    AnyStage stage;
    QLabel first, second;
    stage.keypad.setObject(&first);
    stage.keypad.setPasswordEchoMode(true);
    stage.keypad.setMaxLength(4);
    stage.keypad.setObject(&second);
    QCOMPARE(int(stage.line()->echoMode()), int(QLineEdit::Normal));
    QCOMPARE(stage.line()->maxLength(), 32767);
}

void tst_KeypadContract::bindingTakesItsStepsInOrder()
{
    AnyStage stage;
    QLabel before, target;
    stage.keypad.setObject(&before);
    stage.keypad.setText(u(currentKind().sampleText));
    stage.keypad.setMaxLength(25);
    stage.keypad.setPasswordEchoMode(true);

    BindingWitness witness(stage.dialog(), &target);
    stage.keypad.setObject(&target);

    QStringList expected(u("length: target blocked, echo 0, length 32767, key disabled"));
    if (currentKind().has(FixedFace))
        expected << u("key: target blocked, echo 0, length 32767, key enabled");
    QCOMPARE(witness.seen, expected);
    QCOMPARE(target.text(), u(currentKind().sampleText));
    QCOMPARE(before.text(), QString());
}

void tst_KeypadContract::bindingUnblocksTheTarget_data()
{
    QTest::addColumn<bool>("blockedBefore");
    QTest::newRow("heard before") << false;
    QTest::newRow("blocked before") << true;
}

void tst_KeypadContract::bindingUnblocksTheTarget()
{
    QFETCH(bool, blockedBefore);
    AnyStage stage;
    QLabel target;
    target.blockSignals(blockedBefore);
    stage.keypad.setObject(&target);
    QVERIFY(!target.signalsBlocked());
}

void tst_KeypadContract::bindingEnablesTheKeysOfAFixedFaceOnly()
{
    AnyStage stage;
    QLabel target;
    const QList<QToolButton *> keys = stage.dialog()->findChildren<QToolButton *>();
    for (QToolButton *key : keys)
        key->setEnabled(false);
    stage.keypad.setObject(nullptr);
    QVERIFY(enabledKeyLabels(stage.dialog()).isEmpty());
    stage.keypad.setObject(&target);
    const int enabled = enabledKeyLabels(stage.dialog()).size();
    QCOMPARE(enabled, currentKind().has(FixedFace) ? int(keys.size()) : 0);
}

void tst_KeypadContract::bindingLeavesTextAndValidatorAlone()
{
    AnyStage stage;
    QLabel target;
    QIntValidator validator(nullptr);
    stage.keypad.setText(u(currentKind().sampleText));
    stage.keypad.setValidator(&validator);
    if (currentKind().has(FixedFace))
        stage.keypad.setLimitToolTip(u("0 to 9"));
    stage.keypad.setObject(&target);

    QCOMPARE(stage.line()->text(), u(currentKind().sampleText));
    QVERIFY(stage.line()->validator() == &validator);
    if (currentKind().has(FixedFace)) {
        QCOMPARE(tipLabel(stage.dialog())->text(), u("0 to 9"));
        QVERIFY(!tipLabel(stage.dialog())->isHidden());
    }
}

void tst_KeypadContract::bindingNeitherReadsNorWritesTheTarget()
{
    AnyStage stage;
    QLabel target(u("as it was"));
    stage.keypad.setObject(&target);
    QCOMPARE(target.text(), u("as it was"));
    QCOMPARE(stage.line()->text(), QString());
}

void tst_KeypadContract::setTextReplacesTheTextAndSelectsIt()
{
    AnyStage stage;
    stage.keypad.setText(u(currentKind().otherText));
    stage.keypad.setText(u(currentKind().sampleText));
    QCOMPARE(stage.line()->text(), u(currentKind().sampleText));
    if (!currentKind().has(TypesText))
        return;
    QCOMPARE(stage.line()->selectedText(), u(currentKind().sampleText));
    stage.keypad.setText(QString());
    QCOMPARE(stage.line()->text(), QString());
    QVERIFY(!stage.line()->hasSelectedText());
}

void tst_KeypadContract::adjustmentsReachTheEditLine()
{
    AnyStage stage;
    stage.keypad.setPasswordEchoMode(true);
    QCOMPARE(int(stage.line()->echoMode()), int(QLineEdit::Password));
    stage.keypad.setPasswordEchoMode(false);
    QCOMPARE(int(stage.line()->echoMode()), int(QLineEdit::Normal));

    QIntValidator validator(nullptr);
    stage.keypad.setValidator(&validator);
    QVERIFY(stage.line()->validator() == &validator);
    stage.keypad.setValidator(nullptr);
    QVERIFY(!stage.line()->validator());

    stage.keypad.setMaxLength(4);
    QCOMPARE(stage.line()->maxLength(), 4);
    stage.keypad.setMaxLength(0);
    QCOMPARE(stage.line()->maxLength(), 0);
}

void tst_KeypadContract::limitsAreShownUntilTheyAreEmpty()
{
    if (!currentKind().has(FixedFace))
        HMI_SKIP("this keypad has no line for limits");
    AnyStage stage;
    const QLabel *label = tipLabel(stage.dialog());
    QVERIFY(label->isHidden());
    QCOMPARE(label->text(), QString());
    stage.keypad.setLimitToolTip(u("0 … 100"));
    QVERIFY(!label->isHidden());
    QCOMPARE(label->text(), u("0 … 100"));

    bool shown = false;
    CHECKED(execWhile(
        stage.dialog(), [&] { shown = label->isVisible(); }, StaysOpen));
    QVERIFY(shown);

    stage.keypad.setLimitToolTip(QString());
    QVERIFY(label->isHidden());
}

void tst_KeypadContract::confirmingWritesTheTextProperty_data()
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

void tst_KeypadContract::confirmingWritesTheTextProperty()
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

void tst_KeypadContract::confirmingReachesTheLatestTarget()
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

void tst_KeypadContract::confirmingWithoutTargetStaysOpen_data()
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

void tst_KeypadContract::confirmingWithoutTargetStaysOpen()
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

void tst_KeypadContract::aTargetDestroyedWhileOpenCountsAsNone_data()
{
    QTest::addColumn<int>("target");
    QTest::newRow("line edit") << int(LineEditTarget);
    QTest::newRow("object without a text") << int(PlainTarget);
}

void tst_KeypadContract::aTargetDestroyedWhileOpenCountsAsNone()
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

void tst_KeypadContract::cancellingWritesNothing_data()
{
    QTest::addColumn<bool>("hardKey");
    QTest::newRow("on-screen key") << false;
    QTest::newRow("Escape") << true;
}

void tst_KeypadContract::cancellingWritesNothing()
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

QTEST_MAIN(tst_KeypadContract)

#include "tst_KeypadContract.moc"
