// SPDX-License-Identifier: MIT
#include "support/AnyKeypad.h"

#include <HMIDevice/KeyBoardLineEdit.h>

#include <QApplication>
#include <QKeyEvent>

// Which hard keys a keypad keeps and which it hands on to the application, and in what order.

namespace {

// clang-format off
const int dialogKeys[] = {
    Qt::Key_F6, Qt::Key_F7, Qt::Key_F8, Qt::Key_F12, Qt::Key_F14, Qt::Key_F15, Qt::Key_F16,
    Qt::Key_F19, Qt::Key_F21, Qt::Key_F22, Qt::Key_F23, Qt::Key_F24, Qt::Key_F28, Qt::Key_F29,
    Qt::Key_F30, Qt::Key_F31, Qt::Key_F33, Qt::Key_F34, Qt::Key_F35, Qt::Key_Left,
    Qt::Key_Right, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Help, Qt::Key_Menu
};
// clang-format on

void addKeyRows(const QList<int> &keys)
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("key");
    const DeviceType types[] = { 13, 1, 12, 14 };
    for (DeviceType type : types) {
        for (int key : keys) {
            const QString name =
                QString::fromLatin1("%1 on type %2").arg(QKeySequence(key).toString()).arg(type);
            QTest::newRow(qPrintable(name)) << type << key;
        }
    }
}

// Whether an edit line takes the key for itself, as those of X11 take F18 to paste and F20 to cut.
bool isEditingKey(int key)
{
    const QKeySequence::StandardKey editing[] = { QKeySequence::Undo, QKeySequence::Copy,
                                                  QKeySequence::Cut, QKeySequence::Paste };
    for (QKeySequence::StandardKey standardKey : editing) {
        if (QKeySequence::keyBindings(standardKey).contains(QKeySequence(key)))
            return true;
    }
    return false;
}

} // namespace

// Notes what a keypad does, in the order in which it does it.
class Log : public QObject
{
    Q_OBJECT

public:
    explicit Log(QDialog *keypad)
        : m_keypad(keypad)
    {
        connect(keypad, SIGNAL(rejected()), SLOT(onRejected()));
        connect(keypad, SIGNAL(accepted()), SLOT(onAccepted()));
        if (currentKind().has(TypesText))
            connect(keypad, SIGNAL(signal_kTypeKeyPressed(int)), SLOT(onKey(int)));
    }

    QStringList entries;

public Q_SLOTS:
    void onRejected() { entries << u("rejected"); }
    void onAccepted() { entries << u("accepted"); }

    void onKey(int key)
    {
        const bool open = m_keypad->isVisible() || m_keypad->result() != QDialog::Rejected;
        entries << QString::fromLatin1("key %1 of a keypad %2")
                       .arg(key)
                       .arg(QLatin1String(open ? "still open" : "closed"));
    }

private:
    QDialog *m_keypad;
};

class tst_HardKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void applicationKeysCloseOnlyOnTypeThirteen_data();
    void applicationKeysCloseOnlyOnTypeThirteen();
    void otherKeysStayWithTheDialog_data();
    void otherKeysStayWithTheDialog();
    void aFocusedKeyLetsHardKeysThrough_data();
    void aFocusedKeyLetsHardKeysThrough();
    void theTypeIsReadAtEveryKey();
    void theKeyIsHandedOnBetweenClosingAndReturning();
    void confirmKeysAreConsumedWithoutTarget();
};

void tst_HardKeys::initTestCase_data()
{
    addKeypadRows();
}

void tst_HardKeys::applicationKeysCloseOnlyOnTypeThirteen_data()
{
    QCOMPARE(int(applicationKeys().size()), 18);
    addKeyRows(applicationKeys());
}

void tst_HardKeys::applicationKeysCloseOnlyOnTypeThirteen()
{
    QFETCH(int, type);
    QFETCH(int, key);
    const bool handsOn = type == 13 && currentKind().has(TypesText);
    AnyStage stage(type);
    stage.target.setText(u("as it was"));
    stage.keypad.setText(u(currentKind().sampleText));
    Log log(stage.dialog());

    QStringList done;
    const QWidget *focused = nullptr;
    CHECKED(execWhile(
        stage.dialog(),
        [&] {
            stage.activate();
            focused = stage.dialog()->focusWidget();
            if (isEditingKey(key))
                QTest::keyClick(stage.dialog(), Qt::Key(key));
            else
                pressHardKey(stage.dialog(), key);
            done = log.entries;
        },
        handsOn ? Rejects : StaysOpen));

    QVERIFY(focused == stage.line() || !currentKind().has(TypesText));
    QStringList expected;
    if (handsOn)
        expected << u("rejected") << QString::fromLatin1("key %1 of a keypad closed").arg(key);
    QCOMPARE(done, expected);
    QCOMPARE(stage.target.text(), u("as it was"));
}

void tst_HardKeys::otherKeysStayWithTheDialog_data()
{
    QList<int> keys;
    for (int key : dialogKeys)
        keys << key;
    addKeyRows(keys);
}

void tst_HardKeys::otherKeysStayWithTheDialog()
{
    QFETCH(int, type);
    QFETCH(int, key);
    AnyStage stage(type);
    stage.target.setText(u("as it was"));
    Log log(stage.dialog());

    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QStringList done;
    CHECKED(execWhile(
        stage.dialog(),
        [&] {
            QApplication::sendEvent(stage.dialog(), &event);
            done = log.entries;
        },
        StaysOpen));

    QCOMPARE(done, QStringList());
    QVERIFY(!event.isAccepted()); // as a dialog leaves a key that it has no use for
    QCOMPARE(stage.target.text(), u("as it was"));
}

void tst_HardKeys::aFocusedKeyLetsHardKeysThrough_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("confirms");
    QTest::newRow("Return") << int(Qt::Key_Return) << true;
    QTest::newRow("Enter") << int(Qt::Key_Enter) << true;
    QTest::newRow("F1") << int(Qt::Key_F1) << false;
    QTest::newRow("F32") << int(Qt::Key_F32) << false;
}

void tst_HardKeys::aFocusedKeyLetsHardKeysThrough()
{
    QFETCH(int, key);
    QFETCH(bool, confirms);
    const bool answers = currentKind().has(TypesText);
    AnyStage stage(13);
    stage.keypad.setText(u(currentKind().sampleText));
    CHECKED(execWhile(
        stage.dialog(),
        [&] {
            stage.activate();
            QToolButton *cancel = ::key(stage.dialog(), u(currentKind().cancelLabel));
            cancel->setFocus();
            QTest::keyClick(cancel, Qt::Key(key));
        },
        !answers       ? StaysOpen
            : confirms ? Accepts
                       : Rejects));
    QCOMPARE(stage.target.text(), answers && confirms ? u(currentKind().sampleText) : QString());
}

void tst_HardKeys::theTypeIsReadAtEveryKey()
{
    AnyStage stage(1);
    Log log(stage.dialog());
    CHECKED(execWhile(
        stage.dialog(),
        [&] {
            pressHardKey(stage.dialog(), Qt::Key_F1);
            QVERIFY(stage.dialog()->isVisible());
            QVERIFY(log.entries.isEmpty());
            HMIDeviceInfo::setDeviceInfo(13, QSize());
            pressHardKey(stage.dialog(), Qt::Key_F1);
        },
        currentKind().has(TypesText) ? Rejects : StaysOpen));

    HMIDeviceInfo::setDeviceInfo(2, QSize());
    CHECKED(execWhile(
        stage.dialog(), [&] { pressHardKey(stage.dialog(), Qt::Key_F1); }, StaysOpen));
}

void tst_HardKeys::theKeyIsHandedOnBetweenClosingAndReturning()
{
    AnyStage stage(13);
    Log log(stage.dialog());
    CHECKED(execWhile(
        stage.dialog(),
        [&] {
            pressHardKey(stage.dialog(), Qt::Key_F1);
            log.entries << u("key handled");
            stage.dialog()->reject();
        },
        Rejects));
    log.entries << u("exec returned");

    QStringList expected;
    if (currentKind().has(TypesText))
        expected << u("rejected") << u("key 16777264 of a keypad closed");
    expected << u("key handled") << u("rejected") << u("exec returned");
    QCOMPARE(log.entries, expected);
}

void tst_HardKeys::confirmKeysAreConsumedWithoutTarget()
{
    PanelView view(1);
    const QScopedPointer<AnyKeypad> keypad(currentKind().create(&view, Qt::WindowFlags()));
    const int keys[] = { Qt::Key_Return, Qt::Key_Enter };
    for (int key : keys) {
        QDialog plain;
        QKeyEvent forPlain(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&plain, &forPlain);
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(keypad->dialog(), &event);
        QCOMPARE(event.isAccepted(), currentKind().has(TypesText) || forPlain.isAccepted());
    }
}

QTEST_MAIN(tst_HardKeys)

#include "tst_HardKeys.moc"
