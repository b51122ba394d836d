// SPDX-License-Identifier: MIT
#include "Moments.h"

#include <HMIDevice/KeyBoardLineEdit.h>

#include <QApplication>

// A view that an application destroys with its open keypad, or beside it.
//
// Destroying a dialog at once is more than Qt bears in some places, and nothing of the library's is
// on the way there: in rejected() and accepted(), after which QDialog::done() goes on to
// finished(), and in textChanged(), after which QLineEdit goes on to its other signals. There
// deleteLater() does.

namespace {

bool allowsDeletion(const Moment &moment)
{
    return moment.when == InTheLoop || moment.when == InTypingKey || moment.when == InClicked
        || moment.when == InTheSetter || moment.when == InFinished || moment.when == InKeyHandedOn;
}

bool allowsLaterDeletion(const Moment &moment)
{
    return moment.when != BeforeOpening && moment.when != AfterClosing;
}

// A panel with a keypad in its view, which both go when the view does.
class Panel
{
public:
    Panel()
        : view(new PanelView(13))
        , keypad(currentKind().create(view, Qt::WindowFlags()))
    {
    }
    ~Panel()
    {
        keypad.reset();
        delete view;
    }

    QPointer<PanelView> view;
    QScopedPointer<AnyKeypad> keypad;
    HookedField field;
};

bool isHandedOnInVain(const Moment &moment)
{
    return moment.end == ByHandedOnKey && !currentKind().has(TypesText);
}

} // namespace

class tst_DestroyedViews : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { addKeypadRows(); }
    void aViewMayTakeItsOpenKeypadAlong_data() { addMomentRows(allowsDeletion); }
    void aViewMayTakeItsOpenKeypadAlong();
    void aViewMayTakeItsKeypadAlongLater_data() { addMomentRows(allowsLaterDeletion); }
    void aViewMayTakeItsKeypadAlongLater();
    void aViewMayTakeItsKeypadAlongBeforeAndAfter();
    void aKeypadOfItsOwnOutlivesTheView_data() { addMomentRows(); }
    void aKeypadOfItsOwnOutlivesTheView();
};

void tst_DestroyedViews::aViewMayTakeItsOpenKeypadAlong()
{
    QFETCH(int, moment);
    const Moment &when = momentAt(moment);
    Panel panel;
    QString written;
    const auto destroy = [&] {
        delete panel.view;
        written = panel.field.text();
    };
    // exec() of a keypad that is gone tells Rejected, whatever was written.
    CHECKED(enter(panel.keypad.data(), &panel.field, when, destroy,
                  isHandedOnInVain(when) ? StaysOpen : Rejects));
    QCOMPARE(!panel.view, !isHandedOnInVain(when));
    QCOMPARE(!panel.keypad->dialog(), !panel.view);
    const bool isWritten = when.end == ByConfirming && !when.isBeforeWriting();
    QCOMPARE(!written.isEmpty(), isWritten);
    QCOMPARE(panel.field.text(), written);
}

void tst_DestroyedViews::aViewMayTakeItsKeypadAlongLater()
{
    QFETCH(int, moment);
    const Moment &when = momentAt(moment);
    Panel panel;
    const auto destroy = [&] {
        panel.view->deleteLater();
    };
    CHECKED(enter(panel.keypad.data(), &panel.field, when, destroy, undisturbedOutcome(when)));
    QCOMPARE(panel.field.text().isEmpty(), when.end != ByConfirming);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(!panel.view, !isHandedOnInVain(when));
    QCOMPARE(!panel.keypad->dialog(), !panel.view);
}

void tst_DestroyedViews::aViewMayTakeItsKeypadAlongBeforeAndAfter()
{
    {
        Panel panel;
        panel.keypad->setObject(&panel.field);
        delete panel.view; // a keypad that was never opened
        QVERIFY(!panel.keypad->dialog());
    }
    Panel panel;
    CHECKED(verifyUsable(panel.keypad.data()));
    delete panel.view;
    QVERIFY(!panel.keypad->dialog());
}

void tst_DestroyedViews::aKeypadOfItsOwnOutlivesTheView()
{
    QFETCH(int, moment);
    const Moment &when = momentAt(moment);
    QPointer<PanelView> view = new PanelView(13);
    const QScopedPointer<AnyKeypad> keypad(currentKind().create(nullptr, Qt::WindowFlags()));
    HookedField field;
    CHECKED(enter(
        keypad.data(), &field, when,
        [&] {
            delete view;
            HMIDeviceInfo::setDeviceInfo(13, QSize()); // which the view has reset
        },
        undisturbedOutcome(when)));
    QCOMPARE(field.text(),
             when.end == ByConfirming ? editLine(keypad->dialog())->text() : QString());
    delete view;
    CHECKED(verifyUsable(keypad.data())); // where no view is registered
}

QTEST_MAIN(tst_DestroyedViews)
#include "tst_DestroyedViews.moc"
