// SPDX-License-Identifier: MIT
#include "Moments.h"

#include <HMIDevice/KeyBoardLineEdit.h>

#include <QApplication>
#include <QTimerEvent>

// An application that quits while a keypad is open, whoever asks for it.

namespace {

bool isWhileItRuns(const Moment &moment)
{
    return moment.when != BeforeOpening && moment.when != AfterClosing;
}

// Opens a keypad from the application's event loop, and does something when it is shown.
class QuittingRun : public QObject
{
    Q_OBJECT

public:
    QuittingRun(QDialog *keypad, const std::function<void()> &whenShown)
        : m_keypad(keypad)
        , m_whenShown(whenShown)
        , m_timer(0)
        , m_result(-1)
    {
        QMetaObject::invokeMethod(this, "open", Qt::QueuedConnection);
    }

    int result() const { return m_result; }

public Q_SLOTS:
    void open()
    {
        m_timer = startTimer(0);
        m_result = m_keypad->exec();
    }

protected:
    void timerEvent(QTimerEvent *) override
    {
        if (!m_keypad->isVisible())
            return;
        killTimer(m_timer);
        m_whenShown();
    }

private:
    QDialog *m_keypad;
    std::function<void()> m_whenShown;
    int m_timer;
    int m_result;
};

} // namespace

class tst_Quitting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { addKeypadRows(); }
    void init() { QApplication::setQuitOnLastWindowClosed(false); }
    void quittingClosesWithoutWriting();
    void quittingDuringAnEntry_data() { addMomentRows(isWhileItRuns); }
    void quittingDuringAnEntry();
};

void tst_Quitting::quittingClosesWithoutWriting()
{
    AnyStage stage;
    stage.target.setText(u("as it was"));
    stage.keypad.setText(u(currentKind().sampleText));
    const QuittingRun run(stage.dialog(), [] { QCoreApplication::quit(); });
    qApp->exec();
    QCOMPARE(run.result(), int(QDialog::Rejected));
    QCOMPARE(stage.target.text(), u("as it was"));
    stage.dialog()->hide();
    CHECKED(verifyUsable(&stage.keypad)); // by an application that has changed its mind
}

// The rest of an entry that lies in the same event still happens.
void tst_Quitting::quittingDuringAnEntry()
{
    QFETCH(int, moment);
    const Moment &when = momentAt(moment);
    AnyStage stage(13);
    HookedField field;
    Once entry([&] {
        CHECKED(
            enter(&stage.keypad, &field, when, QCoreApplication::quit, undisturbedOutcome(when)));
        QCoreApplication::quit(); // where the keypad hands no key on
    });
    QMetaObject::invokeMethod(&entry, "act", Qt::QueuedConnection);
    qApp->exec();
    QVERIFY(entry.isDone());
    QCOMPARE(field.text(), when.end == ByConfirming ? stage.line()->text() : QString());
    CHECKED(verifyUsable(&stage.keypad));
}

QTEST_MAIN(tst_Quitting)
#include "tst_Quitting.moc"
