// SPDX-License-Identifier: MIT
#include "KeypadLook_p.h"

#include "FittedLabel_p.h"
#include "KeyBoardLineEdit.h"
#include "KeyButton_p.h"
#include "KeypadFont_p.h"
#include "KeypadRules_p.h"

#include <QColor>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QPalette>
#include <QSize>
#include <QToolButton>
#include <QVBoxLayout>

namespace Keypad {

namespace {

const QRgb darkBlue = qRgb(15, 15, 70);
const QRgb green = qRgb(0, 255, 0);
const QRgb yellow = qRgb(255, 255, 0);

const int mostLimitLines = 12;      // however many an application sets, there is room for keys
const QSize unplacedSize(320, 240); // pixels, until the first placement over a view

struct RoleColour
{
    QPalette::ColorGroup group;
    QPalette::ColorRole role;
    QRgb colour;
};

const RoleColour dialogColours[] = { { QPalette::All, QPalette::Window, darkBlue } };

const RoleColour labelColours[] = { { QPalette::All, QPalette::WindowText, green } };

const RoleColour editLineColours[] = { { QPalette::All, QPalette::Base, darkBlue },
                                       { QPalette::All, QPalette::Text, yellow },
                                       { QPalette::All, QPalette::Highlight, yellow },
                                       { QPalette::All, QPalette::HighlightedText, darkBlue } };

// The disabled group keeps the style's text colour, so that a disabled key looks dimmed.
const RoleColour keyColours[] = { { QPalette::Active, QPalette::ButtonText, green },
                                  { QPalette::Inactive, QPalette::ButtonText, green },
                                  { QPalette::All, QPalette::Button, darkBlue } };

template <int count>
void applyDarkScheme(QWidget *widget, const RoleColour (&colours)[count])
{
    if (!isPanelType13())
        return;
    QPalette palette(widget->palette());
    for (const RoleColour &colour : colours)
        palette.setColor(colour.group, colour.role, QColor(colour.colour));
    widget->setPalette(palette);
}

void colourEditLine(QLineEdit *editLine)
{
    applyDarkScheme(editLine, editLineColours);
}

void colourKey(QToolButton *key)
{
    applyDarkScheme(key, keyColours);
}

QLabel *createTipLabel(QDialog *keypad)
{
    QLabel *label = new FittedLabel<QLabel>(QString(), keypad, anyWidth, mostLimitLines);
    colourLabel(label);
    label->setObjectName(QLatin1String("limitLabel"));
    label->hide();
    return label;
}

} // namespace

void colourDialog(QWidget *dialog)
{
    applyDarkScheme(dialog, dialogColours);
}

void colourLabel(QLabel *label)
{
    applyDarkScheme(label, labelColours);
}

void setUpLayout(QLayout *layout, int spacing)
{
    layout->setSpacing(spacing);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSizeConstraint(QLayout::SetNoConstraint);
}

QToolButton *createKey(QWidget *parent, const QString &label)
{
    QToolButton *key = new KeyButton(parent);
    setUpKey(key, label);
    return key;
}

void setUpKey(QToolButton *key, const QString &label)
{
    key->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    key->setText(label);
    colourKey(key);
}

KeyBoardLineEdit *createEditLine(QDialog *keypad)
{
    KeyBoardLineEdit *editLine = new KeyBoardLineEdit(keypad);
    editLine->setObjectName(QLatin1String(editLineName));
    colourEditLine(editLine);
    editLine->setContextMenuPolicy(Qt::NoContextMenu);
    editLine->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return editLine;
}

void setUpFixedFace(QDialog *keypad, QLabel **tipLabel, KeyBoardLineEdit **editLine,
                    const KeyTable &table)
{
    const QFont common = setDialogFont(keypad, fewKeysPoints);
    colourDialog(keypad);
    *tipLabel = createTipLabel(keypad);
    *editLine = createEditLine(keypad);
    QGridLayout *grid = new QGridLayout;
    grid->setSpacing(keySpacing);
    addKeys(keypad, grid, table);
    for (int i = 0; i < table.keyCount; ++i)
        QObject::connect(table.keys[i], SIGNAL(clicked()), keypad, SLOT(slot_toolButton_clicked()));

    QVBoxLayout *layout = new QVBoxLayout(keypad);
    setUpLayout(layout, 0);
    layout->addWidget(*tipLabel);
    layout->addWidget(*editLine);
    layout->addLayout(grid);
    setPartFonts(keypad, common);
    (*tipLabel)->setFont(font(tipPoints));
    keypad->resize(unplacedSize);
}

} // namespace Keypad
