// SPDX-License-Identifier: MIT
#include "FieldService_p.h"

#include "KeypadRun_p.h"
#include "OwnView_p.h"
#include "QtDifferences_p.h"

#include <QAbstractItemDelegate>
#include <QAbstractItemView>
#include <QApplication>
#include <QDialog>
#include <QScopedPointer>
#include <QScopedValueRollback>
#include <QVariant>
#include <QWidget>
#include <QWindow>

namespace Fields {

namespace {

struct KindName
{
    FieldKeypads::Kind kind;
    const char *name;
};

// clang-format off
const KindName kindNames[] = {
    { FieldKeypads::NoKeypad,  "none"      },
    { FieldKeypads::Numeric,   "numeric"   },
    { FieldKeypads::GCode,     "gcode"     },
    { FieldKeypads::Axis,      "axis"      },
    { FieldKeypads::DateTime,  "datetime"  },
    { FieldKeypads::Character, "character" }
};
// clang-format on

// A delegate's editor would be in the way, and would not outlive the keypad.
void closeEditorOf(QAbstractItemView *view)
{
    QWidget *editor = view->indexWidget(view->currentIndex());
    QMetaObject::invokeMethod(
        view, "closeEditor", Q_ARG(QWidget *, editor),
        Q_ARG(QAbstractItemDelegate::EndEditHint, QAbstractItemDelegate::NoHint));
}

// As the windowing system does some time after a dialog has closed, or not at all.
void activate(QWidget *window)
{
    if (QApplication::activeWindow() != window)
        window->activateWindow();
}

} // namespace

FieldService *FieldService::instance()
{
    static QPointer<FieldService> service;
    if (!service)
        service = new FieldService(qApp);
    return service;
}

FieldService::FieldService(QObject *parent)
    : QObject(parent)
    , m_watch(nullptr)
    , m_shield(nullptr)
    , m_isOpen(false)
{
    connect(&m_watch, SIGNAL(tapped(QWidget *)), this, SLOT(fieldTapped(QWidget *)));
}

void FieldService::add(FieldKeypads *keypads, QWidget *window)
{
    m_clients.append(Client { keypads, window });
}

void FieldService::remove(FieldKeypads *keypads)
{
    for (int i = int(m_clients.size()) - 1; i >= 0; --i) {
        if (m_clients.at(i).keypads == keypads)
            m_clients.removeAt(i);
    }
}

bool FieldService::edit(FieldKeypads *keypads, QWidget *field)
{
    const QScopedPointer<FieldAccess> access(accessTo(field));
    const FieldKeypads::Kind kind = kindOf(field, access.data());
    if (m_isOpen || kind == FieldKeypads::NoKeypad)
        return false;
    prepareView(windowOf(keypads, field));
    QDialog *keypad = keypadOf(kind);
    if (keypad->isVisible()) // the program itself has opened it
        return false;

    const QScopedValueRollback<bool> open(m_isOpen, true);
    if (kind != FieldKeypads::DateTime) // which hands no key on
        connect(keypad, SIGNAL(signal_kTypeKeyPressed(int)), keypads, SIGNAL(hardKeyPressed(int)));
    const QPointer<FieldKeypads> client(keypads);
    const bool written = editWith(keypad, kind, access.data(), field);
    if (client)
        disconnect(keypad, nullptr, keypads, nullptr);
    return written;
}

void FieldService::fieldTapped(QWidget *field)
{
    FieldKeypads *keypads = clientFor(field);
    if (!keypads || keypads->kind(field) == FieldKeypads::NoKeypad)
        return;
    if (QAbstractItemView *view = qobject_cast<QAbstractItemView *>(field))
        closeEditorOf(view);
    keypads->edit(field);
}

// A window that is hidden and shown again at once may keep the keyboard all the while, without a
// window manager: then Qt does not hear that it has become active.
void FieldService::activateKeypad()
{
    if (!m_keypad || !m_keypad->isVisible())
        return;
    activate(m_keypad);
    if (QGuiApplication::focusWindow() == m_keypad->windowHandle())
        QtDifferences::setActiveWindow(m_keypad);
}

// The one whose window is the nearest above \a field, or the first.
FieldKeypads *FieldService::clientFor(const QWidget *field) const
{
    for (const QWidget *widget = field; widget; widget = widget->parentWidget()) {
        for (const Client &client : m_clients) {
            if (client.window == widget)
                return client.keypads;
        }
    }
    return m_clients.isEmpty() ? nullptr : m_clients.first().keypads;
}

const QWidget *FieldService::windowOf(const FieldKeypads *keypads, const QWidget *field) const
{
    for (const Client &client : m_clients) {
        if (client.keypads == keypads && client.window && client.window->isVisible())
            return client.window;
    }
    return field->window();
}

// What the field refuses is not lost: the keypad opens again with it.
bool FieldService::editWith(QDialog *keypad, FieldKeypads::Kind kind, FieldAccess *access,
                            QWidget *field)
{
    const QPointer<QWidget> edited(field);
    Entry entry = access->open(kind);
    const QVariant limits = field->property(limitsProperty);
    if (limits.isValid())
        entry.limits = limits.toString();
    do {
        m_shield.protect(keypad, m_watch.lastTap());
        m_keypad = keypad;
        QMetaObject::invokeMethod(this, "activateKeypad", Qt::QueuedConnection);
        const bool confirmed = runKeypad(kind, &entry);
        m_shield.release();
        if (edited)
            activate(edited->window());
        if (!confirmed || !edited || !access->isEditable())
            return false;
    } while (access->write(entry.text) == Refused);
    return true;
}

FieldKeypads::Kind kindOf(const QWidget *field, const FieldAccess *access)
{
    if (!access)
        return FieldKeypads::NoKeypad;
    const QByteArray chosen = field->property(kindProperty).toByteArray();
    for (const KindName &kindName : kindNames) {
        if (chosen == kindName.name)
            return kindName.kind;
    }
    return access->kind();
}

void setKindOf(QWidget *field, FieldKeypads::Kind kind)
{
    for (const KindName &kindName : kindNames) {
        if (kindName.kind == kind)
            field->setProperty(kindProperty, QString::fromLatin1(kindName.name));
    }
}

} // namespace Fields
