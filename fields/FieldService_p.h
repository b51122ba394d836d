// SPDX-License-Identifier: MIT
#ifndef FIELDSERVICE_P_H
#define FIELDSERVICE_P_H

#include "FieldAccess_p.h"
#include "KeypadShield_p.h"
#include "TapWatch_p.h"

#include <QList>
#include <QObject>

namespace Fields {

// What all FieldKeypads of the process share: one watch, and one open keypad at a time.
class FieldService : public QObject
{
    Q_OBJECT

public:
    // Lives as long as the application.
    static FieldService *instance();

    void add(FieldKeypads *keypads, QWidget *window);
    void remove(FieldKeypads *keypads);

    // Runs the keypad of \a field for \a keypads. Returns whether the field was written.
    bool edit(FieldKeypads *keypads, QWidget *field);

private Q_SLOTS:
    void fieldTapped(QWidget *field);
    void activateKeypad();

private:
    struct Client
    {
        FieldKeypads *keypads;
        QPointer<QWidget> window;
    };

    explicit FieldService(QObject *parent);

    FieldKeypads *clientFor(const QWidget *field) const;
    const QWidget *windowOf(const FieldKeypads *keypads, const QWidget *field) const;
    bool editWith(QDialog *keypad, FieldKeypads::Kind kind, FieldAccess *access, QWidget *field);

    QList<Client> m_clients;
    TapWatch m_watch;
    KeypadShield m_shield;
    QPointer<QDialog> m_keypad;
    bool m_isOpen;
};

// The keypad of \a field: what the program has set, or else what suits the field.
FieldKeypads::Kind kindOf(const QWidget *field, const FieldAccess *access);

// Sets the keypad of \a field.
void setKindOf(QWidget *field, FieldKeypads::Kind kind);

} // namespace Fields

#endif
