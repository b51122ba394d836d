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

/*
 * Looks at keypad and target from inside the keypad's setObject(): when the edit line's length is
 * set anew, which moves its cursor to the end, and when a key is enabled.
 */
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
    KeypadStage stage;
    QLabel first;
    stage->setObject(nullptr);
    stage->setObject(&first);
    stage->setText(u(currentKind().sampleText));
    stage->setMaxLength(30);
    stage->setPasswordEchoMode(true);
    stage->setObject(nullptr);

    QCOMPARE(stage.line()->maxLength(), 30);
    QCOMPARE(int(stage.line()->echoMode()), int(QLineEdit::Password));
    QCOMPARE(execWhile(stage.dialog(), [&] { stage.confirm(); }), int(QDialog::Accepted));
    QCOMPARE(first.text(), u(currentKind().sampleText));
}

void tst_KeypadContract::bindingResetsEchoAndLength()
{
    KeypadStage stage;
    QLabel first, second;
    stage->setObject(&first);
    stage->setPasswordEchoMode(true);
    stage->setMaxLength(4);
    stage->setObject(&second);
    QCOMPARE(int(stage.line()->echoMode()), int(QLineEdit::Normal));
    QCOMPARE(stage.line()->maxLength(), 32767);
}

void tst_KeypadContract::bindingTakesItsStepsInOrder()
{
    KeypadStage stage;
    QLabel before, target;
    stage->setObject(&before);
    stage->setText(u(currentKind().sampleText));
    stage->setMaxLength(25);
    stage->setPasswordEchoMode(true);

    BindingWitness witness(stage.dialog(), &target);
    stage->setObject(&target);

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
    KeypadStage stage;
    QLabel target;
    target.blockSignals(blockedBefore);
    stage->setObject(&target);
    QVERIFY(!target.signalsBlocked());
}

void tst_KeypadContract::bindingEnablesTheKeysOfAFixedFaceOnly()
{
    KeypadStage stage;
    QLabel target;
    const QList<QToolButton *> keys = stage.dialog()->findChildren<QToolButton *>();
    for (QToolButton *key : keys)
        key->setEnabled(false);
    stage->setObject(nullptr);
    QVERIFY(enabledKeyLabels(stage.dialog()).isEmpty());
    stage->setObject(&target);
    const int enabled = enabledKeyLabels(stage.dialog()).size();
    QCOMPARE(enabled, currentKind().has(FixedFace) ? int(keys.size()) : 0);
}

void tst_KeypadContract::bindingLeavesTextAndValidatorAlone()
{
    KeypadStage stage;
    QLabel target;
    QIntValidator validator(nullptr);
    stage->setText(u(currentKind().sampleText));
    stage->setValidator(&validator);
    if (currentKind().has(FixedFace))
        stage->setLimitToolTip(u("0 to 9"));
    stage->setObject(&target);

    QCOMPARE(stage.line()->text(), u(currentKind().sampleText));
    QVERIFY(stage.line()->validator() == &validator);
    if (currentKind().has(FixedFace)) {
        QCOMPARE(tipLabel(stage.dialog())->text(), u("0 to 9"));
        QVERIFY(!tipLabel(stage.dialog())->isHidden());
    }
}

void tst_KeypadContract::bindingNeitherReadsNorWritesTheTarget()
{
    KeypadStage stage;
    QLabel target(u("as it was"));
    stage->setObject(&target);
    QCOMPARE(target.text(), u("as it was"));
    QCOMPARE(stage.line()->text(), QString());
}

void tst_KeypadContract::setTextReplacesTheTextAndSelectsIt()
{
    KeypadStage stage;
    stage->setText(u(currentKind().otherText));
    stage->setText(u(currentKind().sampleText));
    QCOMPARE(stage.line()->text(), u(currentKind().sampleText));
    if (!currentKind().has(TypesText))
        return;
    QCOMPARE(stage.line()->selectedText(), u(currentKind().sampleText));
    stage->setText(QString());
    QCOMPARE(stage.line()->text(), QString());
    QVERIFY(!stage.line()->hasSelectedText());
}

void tst_KeypadContract::adjustmentsReachTheEditLine()
{
    KeypadStage stage;
    stage->setPasswordEchoMode(true);
    QCOMPARE(int(stage.line()->echoMode()), int(QLineEdit::Password));
    stage->setPasswordEchoMode(false);
    QCOMPARE(int(stage.line()->echoMode()), int(QLineEdit::Normal));

    QIntValidator validator(nullptr);
    stage->setValidator(&validator);
    QVERIFY(stage.line()->validator() == &validator);
    stage->setValidator(nullptr);
    QVERIFY(!stage.line()->validator());

    stage->setMaxLength(4);
    QCOMPARE(stage.line()->maxLength(), 4);
    stage->setMaxLength(0);
    QCOMPARE(stage.line()->maxLength(), 0);
}

void tst_KeypadContract::limitsAreShownUntilTheyAreEmpty()
{
    if (!currentKind().has(FixedFace))
        HMI_SKIP("this keypad has no line for limits");
    KeypadStage stage;
    const QLabel *label = tipLabel(stage.dialog());
    QVERIFY(label->isHidden());
    QCOMPARE(label->text(), QString());
    stage->setLimitToolTip(u("0 … 100"));
    QVERIFY(!label->isHidden());
    QCOMPARE(label->text(), u("0 … 100"));

    bool shown = false;
    execWhile(stage.dialog(), [&] { shown = label->isVisible(); });
    QVERIFY(shown);

    stage->setLimitToolTip(QString());
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
    KeypadStage stage;
    QScopedPointer<QObject> object(newTarget(target));
    stage->setObject(object.data());
    stage->setText(u(currentKind().sampleText));
    QScopedPointer<QSignalSpy> changes;
    if (target == LineEditTarget)
        changes.reset(new QSignalSpy(object.data(), SIGNAL(textChanged(QString))));

    const int result = execWhile(stage.dialog(), [&] {
        stage.activate();
        if (hardKey)
            pressHardKey(stage.dialog(), hardKey);
        else
            stage.confirm();
    });

    QCOMPARE(result, int(confirms ? QDialog::Accepted : QDialog::Rejected));
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
    KeypadStage stage;
    QLabel first(u("first")), second(u("second"));
    stage->setObject(&first);
    stage->setObject(&second);
    stage->setText(u(currentKind().sampleText));
    execWhile(stage.dialog(), [&] { stage.confirm(); });
    QCOMPARE(first.text(), u("first"));
    QCOMPARE(second.text(), u(currentKind().sampleText));

    stage->setObject(&first); // the same keypad again
    stage->setText(u(currentKind().otherText));
    execWhile(stage.dialog(), [&] { stage.confirm(); });
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
    KeypadStage stage;
    if (bound)
        stage->setObject(QScopedPointer<QObject>(newTarget(LineEditTarget)).data());
    stage->setText(u(currentKind().sampleText));
    const QSignalSpy accepted(stage.dialog(), SIGNAL(accepted()));

    bool leftOpen = false;
    execWhile(
        stage.dialog(),
        [&] {
            stage.activate();
            if (hardKey)
                pressHardKey(stage.dialog(), hardKey);
            else
                stage.confirm();
        },
        &leftOpen);

    QVERIFY(leftOpen);
    QCOMPARE(int(accepted.count()), 0);
    QCOMPARE(stage.line()->text(), u(currentKind().sampleText));
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
    KeypadStage stage;
    QObject *object = newTarget(target);
    stage->setObject(object);
    stage->setText(u(currentKind().sampleText));

    bool openAfterConfirm = false;
    bool leftOpen = true;
    const int result = execWhile(
        stage.dialog(),
        [&] {
            delete object;
            stage.confirm();
            pressHardKey(stage.dialog(), Qt::Key_Return);
            openAfterConfirm = stage.dialog()->isVisible();
            pressHardKey(stage.dialog(), Qt::Key_Escape);
        },
        &leftOpen);

    QVERIFY(openAfterConfirm);
    QVERIFY(!leftOpen);
    QCOMPARE(result, int(QDialog::Rejected));
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
    KeypadStage stage;
    QLineEdit target(u("as it was"));
    stage->setObject(&target);
    stage->setText(u(currentKind().sampleText));
    const QSignalSpy rejected(stage.dialog(), SIGNAL(rejected()));

    const int result = execWhile(stage.dialog(), [&] {
        stage.activate();
        if (hardKey)
            pressHardKey(stage.dialog(), Qt::Key_Escape);
        else
            stage.cancel();
    });

    QCOMPARE(result, int(QDialog::Rejected));
    QCOMPARE(int(rejected.count()), 1);
    QCOMPARE(target.text(), u("as it was"));
    QCOMPARE(stage.line()->text(), u(currentKind().sampleText));
}

QTEST_MAIN(tst_KeypadContract)

#include "tst_KeypadContract.moc"
