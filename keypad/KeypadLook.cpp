// SPDX-License-Identifier: MIT
#include "KeypadLook_p.h"

#include "FittedLabel_p.h"
#include "HMIDeviceInfo.h"
#include "KeyBoardLineEdit.h"
#include "KeyButton_p.h"

#include <QAbstractSpinBox>
#include <QDialog>
#include <QEvent>
#include <QFont>
#include <QFontInfo>
#include <QGridLayout>
#include <QLabel>
#include <QList>
#include <QToolButton>
#include <QVBoxLayout>

namespace Keypad {

namespace {

const DeviceType darkSchemeType = 13;

const QRgb darkBlue = qRgb(15, 15, 70);
const QRgb green = qRgb(0, 255, 0);
const QRgb yellow = qRgb(255, 255, 0);

const int tipPoints = 20;
const int mostLimitLines = 6;       // so that there is room for keys
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
    if (HMIDeviceInfo::deviceType() != darkSchemeType)
        return;
    QPalette palette(widget->palette());
    for (const RoleColour &colour : colours)
        palette.setColor(colour.group, colour.role, QColor(colour.colour));
    widget->setPalette(palette);
}

// Sets what \a font has by default, so that nothing of it is left to the application's own font.
void settle(QFont *font)
{
    font->setWeight(QFont::Normal);
    font->setStyle(font->style());
    font->setStretch(font->stretch());
    font->setUnderline(font->underline());
    font->setOverline(font->overline());
    font->setStrikeOut(font->strikeOut());
    font->setKerning(font->kerning());
    font->setCapitalization(font->capitalization());
    font->setLetterSpacing(font->letterSpacingType(), font->letterSpacing());
    font->setWordSpacing(font->wordSpacing());
}

QFont font(int points)
{
    const QString family = QFontInfo(QFont(QLatin1String("simsun"))).family();
    QFont font(family, points);
    font.setPixelSize(qRound(points * 96 / 72.0f));
    settle(&font);
    return font;
}

// The widgets of \a keypad, without those inside a spin box, which take its font.
QList<QWidget *> partsOf(const QDialog *keypad)
{
    QList<QWidget *> parts;
    const QList<QWidget *> widgets = keypad->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (!qobject_cast<QAbstractSpinBox *>(widget->parentWidget()))
            parts << widget;
    }
    return parts;
}

// Sets a keypad's font on each of its parts. Where there is a style sheet, which may come at any
// time, a part inherits no font, but one that is set on it stays.
class FontShare : public QObject
{
public:
    explicit FontShare(QDialog *keypad)
        : QObject(keypad)
        , m_keypad(keypad)
        , m_shared(keypad->font())
    {
        const QList<QWidget *> parts = partsOf(keypad);
        for (QWidget *part : parts)
            part->setFont(m_shared);
        keypad->installEventFilter(this);
    }

    // A font that a style sheet gives the dialog is for the dialog alone.
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::FontChange && !m_keypad->testAttribute(Qt::WA_StyleSheet))
            replaceShared(m_keypad->font());
        return false;
    }

private:
    // A part that was given a font of its own keeps it.
    void replaceShared(const QFont &font)
    {
        const QList<QWidget *> parts = partsOf(m_keypad);
        for (QWidget *part : parts) {
            if (part->font() == m_shared)
                part->setFont(font);
        }
        m_shared = font;
    }

    QDialog *m_keypad;
    QFont m_shared;
};

QLabel *createTipLabel(QDialog *keypad)
{
    QLabel *label = new FittedLabel<QLabel>(QString(), keypad, 0, mostLimitLines);
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

void colourEditLine(QLineEdit *editLine)
{
    applyDarkScheme(editLine, editLineColours);
}

void colourKey(QToolButton *key)
{
    applyDarkScheme(key, keyColours);
}

void setUpFonts(QDialog *keypad, int points)
{
    keypad->setFont(font(points));
    new FontShare(keypad);
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
                    const KeyCell *cells, const KeyMembers &members)
{
    colourDialog(keypad);
    *tipLabel = createTipLabel(keypad);
    *editLine = createEditLine(keypad);
    QGridLayout *grid = new QGridLayout;
    grid->setSpacing(keySpacing);
    addKeys(keypad, grid, cells, members);
    for (QToolButton *const *key : members)
        QObject::connect(*key, SIGNAL(clicked()), keypad, SLOT(slot_toolButton_clicked()));

    QVBoxLayout *layout = new QVBoxLayout(keypad);
    setUpLayout(layout, 0);
    layout->addWidget(*tipLabel);
    layout->addWidget(*editLine);
    layout->addLayout(grid);
    setUpFonts(keypad, fewKeysPoints);
    (*tipLabel)->setFont(font(tipPoints));
    keypad->resize(unplacedSize);
}

} // namespace Keypad
