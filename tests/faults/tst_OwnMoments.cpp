// SPDX-License-Identifier: MIT
#include "Moments.h"
#include "character/CharacterDriver.h"
#include "support/DictionaryFile.h"

#include <HMIDevice/DateTimeKeypad.h>
#include <HMIDevice/KeyBoardLineEdit.h>
#include <HMIDevice/NumericKeypad.h>

#include <QApplication>
#include <QSpinBox>

// Moments of an entry that only one keypad has: in signals of its candidates and of its fields.

namespace {

enum Fault { FieldGoes, ViewGoes, ViewGoesLater, AnotherKeypadOpens, EventsHappen };

const struct
{
    const char *name;
    Fault fault;
    Outcome outcome;
} faults[] = { { "field goes", FieldGoes, StaysOpen },
               { "view goes", ViewGoes, Rejects },
               { "view goes later", ViewGoesLater, Accepts },
               { "another keypad opens", AnotherKeypadOpens, Accepts },
               { "events happen", EventsHappen, Accepts } };
const int faultCount = int(sizeof(faults) / sizeof(faults[0]));

// A keypad in its view, bound to a field; an application may destroy any of them.
template <class Keypad>
struct Panel
{
    Panel()
        : view(new PanelView(1))
        , keypad(new Keypad(view, Qt::WindowFlags()))
        , field(new HookedField)
    {
        keypad->setObject(field);
    }
    ~Panel()
    {
        delete view;
        delete field;
    }

    void commit(Fault fault)
    {
        switch (fault) {
        case FieldGoes:
            delete field;
            break;
        case ViewGoes:
            delete view;
            break;
        case ViewGoesLater:
            view->deleteLater();
            break;
        case AnotherKeypadOpens: {
            NumericKeypad other(view, Qt::WindowFlags());
            CHECKED(execWhile(
                &other, [&] { other.reject(); }, Rejects));
            break;
        }
        case EventsHappen:
            QApplication::processEvents();
            break;
        }
    }

    // What has been written, and that the keypad is there if it should be.
    void verify(Fault fault, const QString &expected)
    {
        QCOMPARE(!keypad, fault == ViewGoes);
        if (field)
            QCOMPARE(field->text(), fault == ViewGoes ? QString() : expected);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(!view, fault == ViewGoes || fault == ViewGoesLater);
        QCOMPARE(!keypad, !view);
    }

    QPointer<PanelView> view;
    QPointer<Keypad> keypad;
    QPointer<HookedField> field;
};

} // namespace

class tst_OwnMoments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aCandidateIsChosen_data();
    void aCandidateIsChosen();
    void aDateIsTyped_data();
    void aDateIsTyped();
};

void tst_OwnMoments::aCandidateIsChosen_data()
{
    QTest::addColumn<int>("fault");
    for (int i = 0; i < faultCount; ++i)
        QTest::newRow(faults[i].name) << i;
}

// The keypad hears the candidate first.
void tst_OwnMoments::aCandidateIsChosen()
{
    QFETCH(int, fault);
    DictionaryFile dictionary;
    CHECKED(dictionary.create(everydayWords()));
    Panel<CharacterKeypad> panel;
    Once once([&] { CHECKED(panel.commit(faults[fault].fault)); });
    CHECKED(execWhile(
        panel.keypad,
        [&] {
            CHECKED(press(*panel.keypad, "CN n i"));
            once.watch(candidatePanel(*panel.keypad)->findChildren<ClickLabel *>().value(0),
                       SIGNAL(clicked()));
            tapCandidate(*panel.keypad, 0);
            if (panel.keypad)
                CHECKED(press(*panel.keypad, "EN Enter"));
        },
        faults[fault].outcome));
    QVERIFY(once.isDone());
    CHECKED(panel.verify(faults[fault].fault, u("你")));
}

// Qt's fields do not survive that they are destroyed in a slot of theirs.
void tst_OwnMoments::aDateIsTyped_data()
{
    QTest::addColumn<int>("fault");
    QTest::addColumn<QByteArray>("signal");
    for (int i = 0; i < faultCount; ++i) {
        if (faults[i].fault == ViewGoes)
            continue;
        QTest::newRow(qPrintable(u("valueChanged(), ") + u(faults[i].name)))
            << i << QByteArray(SIGNAL(valueChanged(int)));
        QTest::newRow(qPrintable(u("editingFinished(), ") + u(faults[i].name)))
            << i << QByteArray(SIGNAL(editingFinished()));
    }
}

void tst_OwnMoments::aDateIsTyped()
{
    QFETCH(int, fault);
    QFETCH(QByteArray, signal);
    Panel<DateTimeKeypad> panel;
    panel.keypad->setText(u("2024-02-29 12:34:56"));
    const QList<QSpinBox *> fields = panel.keypad->findChildren<QSpinBox *>();
    Once once([&] { CHECKED(panel.commit(faults[fault].fault)); });
    CHECKED(execWhile(
        panel.keypad,
        [&] {
            QApplication::setActiveWindow(panel.keypad);
            fields.last()->setFocus(Qt::TabFocusReason);
            once.watch(fields.last(), signal);
            CHECKED(tap(panel.keypad, u("7")));
            fields.first()->setFocus(Qt::TabFocusReason);
            QVERIFY(once.isDone());
            CHECKED(tap(panel.keypad, u("Ok")));
        },
        faults[fault].outcome));
    CHECKED(panel.verify(faults[fault].fault, u("2024-02-29 12:34:07")));
}

QTEST_MAIN(tst_OwnMoments)
#include "tst_OwnMoments.moc"
