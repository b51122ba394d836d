// SPDX-License-Identifier: MIT
#include "support/AnyKeypad.h"

#include <QIntValidator>
#include <QSignalSpy>
#include <QSpinBox>
#include <QStyle>

// What an application relies on whichever keypad it opens: binding, the text and the adjustments.

namespace {

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
        // Reaches the target that is stored by now.
        CHECKED(tap(m_keypad, u(currentKind().confirmLabel)));
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

void verifyMasked(const QLineEdit *line)
{
    const int mask = line->style()->styleHint(QStyle::SH_LineEdit_PasswordCharacter, nullptr, line);
    QVERIFY(!line->text().isEmpty());
    QCOMPARE(line->displayText(), QString(line->text().size(), QChar(mask)));
    QCOMPARE(int(line->echoMode()), int(QLineEdit::Password));
}

} // namespace

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
    void setTextClearsTheLineFirst();
    void adjustmentsReachTheEditLine();
    void aPasswordIsNeverShown();
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
    stage.keypad.setObject(&target);

    QCOMPARE(stage.line()->text(), u(currentKind().sampleText));
    QVERIFY(stage.line()->validator() == &validator);
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

void tst_KeypadContract::setTextClearsTheLineFirst()
{
    AnyStage stage;
    stage.keypad.setText(u(currentKind().sampleText));
    QSignalSpy changes(stage.line(), SIGNAL(textChanged(QString)));
    stage.keypad.setText(u(currentKind().sampleText)); // the same, but a new entry
    QCOMPARE(int(changes.count()), 2);
    QCOMPARE(changes.first().first().toString(), QString());
    QCOMPARE(changes.last().first().toString(), u(currentKind().sampleText));
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

void tst_KeypadContract::aPasswordIsNeverShown()
{
    AnyStage stage;
    stage.keypad.setPasswordEchoMode(true);
    stage.open(u(currentKind().sampleText));
    CHECKED(verifyMasked(stage.line()));

    stage.activate();
    const QList<QSpinBox *> fields = stage.dialog()->findChildren<QSpinBox *>();
    if (!fields.isEmpty())
        fields.last()->setFocus(Qt::TabFocusReason); // else its keys type nowhere
    CHECKED(tap(stage.dialog(), u("1")));
    QVERIFY(stage.line()->text() != u(currentKind().sampleText));
    CHECKED(verifyMasked(stage.line()));
}

QTEST_MAIN(tst_KeypadContract)

#include "tst_KeypadContract.moc"
