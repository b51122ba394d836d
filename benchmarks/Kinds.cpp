// SPDX-License-Identifier: MIT
#include "Kinds.h"

#include <HMIDevice/CharacterKeypad.h>
#include <HMIDevice/DateTimeKeypad.h>
#include <HMIDevice/GCodeKeypad.h>
#include <HMIDevice/NumericKeypad.h>
#include <HMIDevice/vondKeypad.h>

#include <QLineEdit>
#include <QSpinBox>
#include <QToolButton>

namespace {

template <class Keypad>
std::unique_ptr<QDialog> make()
{
    return std::unique_ptr<QDialog>(new Keypad(nullptr, Qt::WindowFlags()));
}

} // namespace

const std::vector<Kind> kinds = { { "numeric", make<NumericKeypad>, "7", false },
                                  { "G-code", make<GCodeKeypad>, "G", false },
                                  { "axis", make<vondKeypad>, "X", false },
                                  { "date-time", make<DateTimeKeypad>, "+", false },
                                  { "character", make<CharacterKeypad>, "q", true } };

// With every key enabled, as once a target is set.
std::unique_ptr<QDialog> makeEnabled(const Kind &kind)
{
    std::unique_ptr<QDialog> keypad = kind.make();
    const QList<QToolButton *> keys = keypad->findChildren<QToolButton *>();
    for (QToolButton *button : keys)
        button->setEnabled(true);
    return keypad;
}

QToolButton *keyOf(const QWidget &dialog, const Kind &kind)
{
    const QList<QToolButton *> keys = dialog.findChildren<QToolButton *>();
    for (QToolButton *button : keys) {
        if (button->text() == QLatin1String(kind.key))
            return button;
    }
    qFatal("no key %s", kind.key);
    return nullptr;
}

// Not that inside a spin box.
QLineEdit *lineOf(const QWidget &dialog)
{
    return dialog.findChild<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly);
}

void connectBareKey(const QDialog &bare, const Kind &kind)
{
    QToolButton *button = keyOf(bare, kind);
    QLineEdit *line = lineOf(bare);
    const QString label = button->text();
    if (QSpinBox *field = bare.findChild<QSpinBox *>()) {
        QObject::connect(button, &QToolButton::clicked, [field, line] {
            field->stepUp();
            line->setText(QLatin1String("2027-01-01 00:00:00"));
        });
    } else {
        QObject::connect(button, &QToolButton::clicked, [line, label] { line->insert(label); });
    }
}

void doNothing()
{
}
