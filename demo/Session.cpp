// SPDX-License-Identifier: MIT
#include "Session.h"

#include "FieldEditor.h"
#include "MachineScreen.h"
#include "Operator.h"
#include "TouchField.h"

#include <HMIDevice/KeyBoardLineEdit.h>

#include <QAbstractButton>
#include <QCoreApplication>
#include <QFileInfo>
#include <QGraphicsView>
#include <QPixmap>
#include <QSpinBox>
#include <QTimer>

#include <cstdio>

static const int mostWaits = 5000; // of a millisecond or more

Session::Session(QGraphicsView *view, MachineScreen *screen, FieldEditor *editor)
    : m_view(view)
    , m_screen(screen)
    , m_editor(editor)
    , m_next(0)
    , m_pictures(0)
    , m_waits(0)
    , m_failed(false)
{
}

void Session::start(const QString &folder)
{
    m_folder = QDir(folder);
    const QString dictionary = QCoreApplication::applicationDirPath() + "/data.db";
    const bool hasDictionary = QFileInfo(dictionary).isFile();
    if (!hasDictionary)
        std::printf("No pinyin dictionary beside the demo: the Chinese steps are left out\n");
    m_steps = sessionSteps(hasDictionary);
    m_view->move(60, 40); // at the origin a keypad in the wrong place could go unnoticed
    QTimer::singleShot(0, this, &Session::proceed);
}

// A tap on a field returns when its keypad has closed again; so the next turn is asked for first.
void Session::proceed()
{
    if (m_failed)
        return;
    if (!isSettled()) {
        wait();
        return;
    }
    m_waits = 0;
    if (m_next > 0)
        save(m_steps.at(m_next - 1).picture);
    if (m_next == m_steps.size()) {
        finish();
        return;
    }
    QTimer::singleShot(0, this, &Session::proceed);
    perform(m_steps.at(m_next++));
}

// Neither is a keypad about to come up, nor has one gone whose value is still being looked at.
bool Session::isSettled() const
{
    if (QWidget *keypad = Operator::openKeypad())
        return Operator::isReady(keypad);
    return Operator::isReady(m_view) && !m_editor->isEditing();
}

void Session::wait()
{
    if (++m_waits < mostWaits)
        QTimer::singleShot(1, this, &Session::proceed);
    else
        fail("the window that is to be worked does not become active");
}

void Session::save(const char *picture)
{
    if (!picture)
        return;
    const QString number = QString::number(++m_pictures).rightJustified(2, '0');
    const QString path = m_folder.filePath(QString("%1-%2.png").arg(number, picture));
    if (!Operator::picture(m_view).save(path))
        fail(QString("cannot write %1").arg(path));
}

void Session::finish()
{
    if (m_failed)
        return;
    std::printf("%d pictures in %s\n", m_pictures, qPrintable(m_folder.absolutePath()));
    QCoreApplication::exit(0);
}

void Session::fail(const QString &complaint)
{
    if (m_failed)
        return;
    m_failed = true;
    std::fprintf(stderr, "hmi-demo: step %d: %s\n", m_next, qPrintable(complaint));
    QCoreApplication::exit(1);
}

void Session::perform(const Step &step)
{
    switch (step.action) {
    case Action::OpenPage:
        Operator::tap(m_screen->softKey(step.subject));
        break;
    case Action::TapField:
        Operator::tap(m_screen->field(step.subject));
        break;
    case Action::TapPart:
        tapPart(QString(step.subject).toInt());
        break;
    case Action::TapKeys:
        tapKeys(step.subject);
        break;
    case Action::PressKeys:
        pressKeys(step.subject);
        break;
    case Action::SeeEntry:
        seeEntry(step.subject);
        break;
    case Action::SeeMask:
        seeMask(step.subject);
        break;
    case Action::SeeKeys:
        seeKeys(step.subject, true);
        break;
    case Action::MissKeys:
        seeKeys(step.subject, false);
        break;
    case Action::SeeDimmed:
        seeDimmed(step.subject);
        break;
    case Action::SeeCover:
        seeCover(step.subject);
        break;
    case Action::SeeField:
        seeField(step.subject, step.value);
        break;
    case Action::SeeMessage:
        if (!m_screen->message().contains(step.subject))
            fail(QString("the message is \"%1\", without \"%2\"")
                     .arg(m_screen->message(), step.subject));
        break;
    }
}

// What the operator does

void Session::tapPart(int index)
{
    const QWidget *keypad = Operator::openKeypad();
    const QList<QSpinBox *> parts =
        keypad ? keypad->findChildren<QSpinBox *>() : QList<QSpinBox *>();
    if (index < parts.size())
        Operator::tapEnd(parts.at(index));
    else
        fail(QString("there is no spin box %1").arg(index));
}

void Session::tapKeys(const QString &labels)
{
    for (const QString &label : labels.split(' '))
        tapKey(label);
}

void Session::tapKey(const QString &label)
{
    const QWidget *keypad = Operator::openKeypad();
    if (!keypad) {
        fail(QString("no keypad is open for key \"%1\"").arg(label));
        return;
    }
    QWidget *key = Operator::findKey(keypad, label);
    if (!key)
        key = Operator::findKey(
            keypad, QCoreApplication::translate("DateTimeKeypad", label.toUtf8().constData()));
    if (key)
        Operator::tap(key);
    else
        fail(QString("the keypad has no key \"%1\"").arg(label));
}

void Session::pressKeys(const QString &names)
{
    for (const QString &name : names.split(' ')) {
        QWidget *keypad = Operator::openKeypad();
        if (!keypad || !Operator::pressHardKey(keypad, name))
            fail(QString("hard key \"%1\" cannot be pressed").arg(name));
    }
}

// What the operator looks at

static const KeyBoardLineEdit *openEntry()
{
    const QWidget *keypad = Operator::openKeypad();
    return keypad ? keypad->findChild<KeyBoardLineEdit *>() : nullptr;
}

void Session::seeEntry(const QString &text)
{
    const KeyBoardLineEdit *entry = openEntry();
    if (!entry)
        fail("no keypad is open");
    else if (entry->displayText() != text)
        fail(QString("the keypad shows \"%1\" instead of \"%2\"").arg(entry->displayText(), text));
}

void Session::seeMask(const QString &text)
{
    const KeyBoardLineEdit *entry = openEntry();
    if (!entry || entry->text() != text)
        fail("the keypad does not hold what was typed");
    else if (entry->displayText().contains(text.at(0)))
        fail("the keypad shows what it should mask");
}

void Session::seeKeys(const QString &labels, bool expected)
{
    const QWidget *keypad = Operator::openKeypad();
    for (const QString &label : labels.split(' ')) {
        if (!keypad || !Operator::findKey(keypad, label) == expected)
            fail(QString("key \"%1\" is %2").arg(label, expected ? "missing" : "there"));
    }
}

void Session::seeDimmed(const QString &labels)
{
    const QWidget *keypad = Operator::openKeypad();
    for (const QString &label : labels.split(' ')) {
        const QWidget *key = keypad ? Operator::findKey(keypad, label) : nullptr;
        if (!key || key->isEnabled())
            fail(QString("key \"%1\" is not dimmed").arg(label));
    }
}

void Session::seeCover(const QString &field)
{
    const QWidget *keypad = Operator::openKeypad();
    const QWidget *covered = m_screen->field(field);
    if (!keypad || keypad->size() != covered->size()
        || keypad->mapToGlobal(QPoint(0, 0)) != covered->mapToGlobal(QPoint(0, 0)))
        fail(QString("the keypad does not lie over field \"%1\"").arg(field));
}

void Session::seeField(const QString &field, const QString &text)
{
    const QString held = m_screen->field(field)->text();
    if (Operator::openKeypad())
        fail(QString("a keypad is still open over field \"%1\"").arg(field));
    else if (held != text)
        fail(QString("field \"%1\" holds \"%2\" instead of \"%3\"").arg(field, held, text));
}
