// SPDX-License-Identifier: MIT
#include "support/AnyKeypad.h"

#include <HMIDevice/KeyBoardLineEdit.h>

#include <QApplication>
#include <QKeyEvent>

// Which hard keys a keypad keeps and which it hands on to the application, and in what order.

namespace {

// clang-format off
const int applicationKeys[] = {
    Qt::Key_Up, Qt::Key_Down,
    Qt::Key_F1, Qt::Key_F2, Qt::Key_F3, Qt::Key_F4, Qt::Key_F5,
    Qt::Key_F9, Qt::Key_F10, Qt::Key_F11, Qt::Key_F13,
    Qt::Key_F17, Qt::Key_F18, Qt::Key_F20,
    Qt::Key_F25, Qt::Key_F26, Qt::Key_F27, Qt::Key_F32
};

const int dialogKeys[] = {
    Qt::Key_F6, Qt::Key_F7, Qt::Key_F8, Qt::Key_F12, Qt::Key_F14, Qt::Key_F15, Qt::Key_F16,
    Qt::Key_F19, Qt::Key_F21, Qt::Key_F22, Qt::Key_F23, Qt::Key_F24, Qt::Key_F28, Qt::Key_F29,
    Qt::Key_F30, Qt::Key_F31, Qt::Key_F33, Qt::Key_F34, Qt::Key_F35, Qt::Key_Left,
    Qt::Key_Right, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Help, Qt::Key_Menu
};
// clang-format on

} // namespace

/* Notes what a keypad does, in the order in which it does it. */
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

static void addKeyRows(const int *keys, int count)
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("key");
    const DeviceType types[] = { 13, 1, 12, 14 };
    for (DeviceType type : types) {
        for (int i = 0; i < count; ++i) {
            const QString name = QString::fromLatin1("%1 on type %2")
                                     .arg(QKeySequence(keys[i]).toString())
                                     .arg(type);
            QTest::newRow(qPrintable(name)) << type << keys[i];
        }
    }
}

void tst_HardKeys::applicationKeysCloseOnlyOnTypeThirteen_data()
{
    const int count = int(sizeof(applicationKeys) / sizeof(applicationKeys[0]));
    QCOMPARE(count, 18);
    addKeyRows(applicationKeys, count);
}

/* Whether an edit line takes the key for itself, as those of X11 take F18 to paste and F20 to cut.
 */
static bool isEditingKey(int key)
{
    const QKeySequence::StandardKey editing[] = { QKeySequence::Undo, QKeySequence::Copy,
                                                  QKeySequence::Cut, QKeySequence::Paste };
    for (QKeySequence::StandardKey standardKey : editing) {
        if (QKeySequence::keyBindings(standardKey).contains(QKeySequence(key)))
            return true;
    }
    return false;
}

void tst_HardKeys::applicationKeysCloseOnlyOnTypeThirteen()
{
    QFETCH(int, type);
    QFETCH(int, key);
    KeypadStage stage(type);
    QLabel target(u("as it was"));
    stage->setObject(&target);
    stage->setText(u(currentKind().sampleText));
    Log log(stage.dialog());

    QStringList done;
    const QWidget *focused = nullptr;
    bool leftOpen = false;
    const int result = execWhile(
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
        &leftOpen);

    QVERIFY(focused == stage.line() || !currentKind().has(TypesText));
    const bool handsOn = type == 13 && currentKind().has(TypesText);
    QStringList expected;
    if (handsOn)
        expected << u("rejected") << QString::fromLatin1("key %1 of a keypad closed").arg(key);
    QCOMPARE(done, expected);
    QCOMPARE(leftOpen, !handsOn);
    QCOMPARE(result, int(QDialog::Rejected));
    QCOMPARE(target.text(), u("as it was"));
}

void tst_HardKeys::otherKeysStayWithTheDialog_data()
{
    addKeyRows(dialogKeys, int(sizeof(dialogKeys) / sizeof(dialogKeys[0])));
}

void tst_HardKeys::otherKeysStayWithTheDialog()
{
    QFETCH(int, type);
    QFETCH(int, key);
    KeypadStage stage(type);
    QLabel target(u("as it was"));
    stage->setObject(&target);
    Log log(stage.dialog());

    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QStringList done;
    bool leftOpen = false;
    execWhile(
        stage.dialog(),
        [&] {
            QApplication::sendEvent(stage.dialog(), &event);
            done = log.entries;
        },
        &leftOpen);

    QVERIFY(leftOpen);
    QCOMPARE(done, QStringList());
    QVERIFY(!event.isAccepted()); // as a dialog leaves a key that it has no use for
    QCOMPARE(target.text(), u("as it was"));
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
    KeypadStage stage(13);
    QLabel target;
    stage->setObject(&target);
    stage->setText(u(currentKind().sampleText));

    bool leftOpen = false;
    const int result = execWhile(
        stage.dialog(),
        [&] {
            stage.activate();
            QToolButton *cancel = ::key(stage.dialog(), u(currentKind().cancelLabel));
            cancel->setFocus();
            QTest::keyClick(cancel, Qt::Key(key));
        },
        &leftOpen);

    const bool answers = currentKind().has(TypesText);
    QCOMPARE(leftOpen, !answers);
    QCOMPARE(result, int(answers && confirms ? QDialog::Accepted : QDialog::Rejected));
    QCOMPARE(target.text(), answers && confirms ? u(currentKind().sampleText) : QString());
}

void tst_HardKeys::theTypeIsReadAtEveryKey()
{
    KeypadStage stage(1);
    Log log(stage.dialog());
    bool openOnTypeOne = false;
    bool leftOpen = false;
    execWhile(
        stage.dialog(),
        [&] {
            pressHardKey(stage.dialog(), Qt::Key_F1);
            openOnTypeOne = stage.dialog()->isVisible() && log.entries.isEmpty();
            HMIDeviceInfo::setDeviceInfo(13, QSize());
            pressHardKey(stage.dialog(), Qt::Key_F1);
        },
        &leftOpen);
    QVERIFY(openOnTypeOne);
    QCOMPARE(leftOpen, !currentKind().has(TypesText));

    HMIDeviceInfo::setDeviceInfo(2, QSize());
    execWhile(
        stage.dialog(), [&] { pressHardKey(stage.dialog(), Qt::Key_F1); }, &leftOpen);
    QVERIFY(leftOpen);
}

void tst_HardKeys::theKeyIsHandedOnBetweenClosingAndReturning()
{
    KeypadStage stage(13);
    Log log(stage.dialog());
    execWhile(stage.dialog(), [&] {
        pressHardKey(stage.dialog(), Qt::Key_F1);
        log.entries << u("key handled");
        stage.dialog()->reject();
    });
    log.entries << u("exec returned");

    QStringList expected;
    if (currentKind().has(TypesText))
        expected << u("rejected") << u("key 16777264 of a keypad closed");
    expected << u("key handled") << u("rejected") << u("exec returned");
    QCOMPARE(log.entries, expected);
}

void tst_HardKeys::confirmKeysAreConsumedWithoutTarget()
{
    KeypadStage stage;
    const int keys[] = { Qt::Key_Return, Qt::Key_Enter };
    for (int key : keys) {
        QDialog plain;
        QKeyEvent forPlain(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&plain, &forPlain);
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(stage.dialog(), &event);
        QCOMPARE(event.isAccepted(), currentKind().has(TypesText) || forPlain.isAccepted());
    }
}

QTEST_MAIN(tst_HardKeys)

#include "tst_HardKeys.moc"
