// SPDX-License-Identifier: MIT
#include "Session.h"

#include "FieldEditor.h"
#include "MachineScreen.h"
#include "Operator.h"
#include "Sight.h"
#include "TouchField.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QFileInfo>
#include <QGraphicsView>
#include <QImageReader>
#include <QImageWriter>
#include <QPixmap>
#include <QSpinBox>
#include <QTimer>

#include <cstdio>

namespace {

// Of a millisecond or more. A window can be worked without the focus, which a window manager may
// withhold; it is only awaited for the pictures' sake.
const int mostWaits = 5000;
const int mostWaitsForFocus = 100;

// Every picture says within who made it.
const QLatin1String markName("Software");
const QLatin1String mark("hmi-demo");

void removePictures(QDir folder)
{
    const QStringList names = folder.entryList({ QLatin1String("*.png") }, QDir::Files);
    for (const QString &name : names) {
        if (QImageReader(folder.filePath(name)).text(markName) == mark)
            folder.remove(name);
    }
}

} // namespace

Session::Session(QGraphicsView *view, MachineScreen *screen, FieldEditor *editor)
    : m_view(view)
    , m_screen(screen)
    , m_editor(editor)
    , m_next(0)
    , m_step(0)
    , m_picture(nullptr)
    , m_pictures(0)
    , m_waits(0)
    , m_failed(false)
{
}

void Session::start(const QString &folder)
{
    m_folder = QDir(folder);
    removePictures(m_folder);
    const QDir program(QCoreApplication::applicationDirPath());
    const bool hasDictionary = QFileInfo(program.filePath(QLatin1String("data.db"))).isFile();
    if (!hasDictionary)
        std::printf("No pinyin dictionary beside the demo: the Chinese steps are left out\n");
    m_steps = sessionSteps(hasDictionary);
    m_view->move(60, 40); // at the origin a keypad in the wrong place could go unnoticed
    QTimer::singleShot(0, this, SLOT(proceed()));
}

// A tap on a field returns when its keypad has closed again; so the next turn is asked for first.
void Session::proceed()
{
    if (m_failed)
        return;
    QWidget *window = windowToWork();
    if (!window || !Operator::isOnScreen(window)) {
        wait(QLatin1String("the window that is to be worked does not come to the screen"));
        return;
    }
    if (!Operator::isActive(window) && m_waits < mostWaitsForFocus) {
        wait(QString());
        return;
    }
    save(m_picture);
    m_picture = nullptr;
    if (m_next == m_steps.size())
        finish();
    else
        takeStep(m_steps.at(m_next));
}

void Session::takeStep(const Step &step)
{
    m_step = m_next + 1;
    const QString complaint = Sight::isLook(step) ? Sight::look(step, m_screen) : QString();
    if (!complaint.isEmpty()) {
        wait(complaint); // a window may come to its place later than to the screen
        return;
    }
    m_waits = 0;
    m_picture = step.picture;
    ++m_next;
    QTimer::singleShot(0, this, SLOT(proceed()));
    perform(step);
}

// Null while a keypad is about to come up, or the value of one that has gone is being looked at.
QWidget *Session::windowToWork() const
{
    if (QWidget *keypad = Operator::openKeypad())
        return keypad;
    return m_editor->isEditing() ? nullptr : m_view;
}

void Session::wait(const QString &reason)
{
    if (++m_waits < mostWaits)
        QTimer::singleShot(1, this, SLOT(proceed()));
    else
        fail(reason);
}

void Session::save(const char *picture)
{
    if (!picture)
        return;
    const QString path = m_folder.filePath(QString::fromLatin1("%1-%2.png")
                                               .arg(++m_pictures, 2, 10, QLatin1Char('0'))
                                               .arg(QLatin1String(picture)));
    QImageWriter writer(path, "png");
    writer.setText(markName, mark);
    if (!writer.write(Operator::picture(m_view).toImage()))
        fail(QString::fromLatin1("cannot write %1").arg(path));
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
    std::fprintf(stderr, "hmi-demo: step %d: %s\n", m_step, qPrintable(complaint));
    QCoreApplication::exit(1);
}

// What the operator does

void Session::perform(const Step &step)
{
    const QString subject = QString::fromUtf8(step.subject);
    const QStringList subjects = subject.split(QLatin1Char(' '));
    switch (step.action) {
    case Action::OpenPage:
        Operator::tap(m_screen->softKey(subject));
        break;
    case Action::TapField:
        Operator::tap(m_screen->field(subject));
        break;
    case Action::TapPart:
        tapPart(subject.toInt());
        break;
    case Action::TapKeys:
        for (const QString &label : subjects)
            tapKey(label);
        break;
    case Action::PressKeys:
        for (const QString &name : subjects)
            pressKey(name);
        break;
    default: // there is nothing to be done when looking
        break;
    }
}

void Session::tapPart(int index)
{
    const QWidget *keypad = Operator::openKeypad();
    const QList<QSpinBox *> parts =
        keypad ? keypad->findChildren<QSpinBox *>() : QList<QSpinBox *>();
    if (index < parts.size())
        Operator::tapEnd(parts.at(index));
    else
        fail(QString::fromLatin1("there is no spin box %1").arg(index));
}

void Session::tapKey(const QString &label)
{
    const QWidget *keypad = Operator::openKeypad();
    if (!keypad) {
        fail(QString::fromLatin1("no keypad is open for key \"%1\"").arg(label));
        return;
    }
    QWidget *key = Operator::findKey(keypad, label);
    if (!key)
        key = Operator::findKey(
            keypad, QCoreApplication::translate("DateTimeKeypad", label.toUtf8().constData()));
    if (key)
        Operator::tap(key);
    else
        fail(QString::fromLatin1("the keypad has no key \"%1\"").arg(label));
}

void Session::pressKey(const QString &name)
{
    QWidget *keypad = Operator::openKeypad();
    if (!keypad || !Operator::pressHardKey(keypad, name))
        fail(QString::fromLatin1("hard key \"%1\" cannot be pressed").arg(name));
}
