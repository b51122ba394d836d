// SPDX-License-Identifier: MIT
#include "KeypadFont_p.h"

#include "KeyButton_p.h"
#include "LabelSizes_p.h"

#include <QAbstractSpinBox>
#include <QDialog>
#include <QEvent>
#include <QFontInfo>
#include <QLineEdit>
#include <QList>
#include <QStyle>

namespace Keypad {

namespace {

// Sets what \a font has by default, so that nothing of it is left to the application's own font.
// The pitch is left out: setting it would choose another family.
void settle(QFont *font)
{
    font->setWeight(QFont::Normal);
    font->setStyle(font->style());
    font->setStyleName(font->styleName());
    font->setStyleHint(font->styleHint(), font->styleStrategy());
    font->setHintingPreference(font->hintingPreference());
    font->setStretch(font->stretch());
    font->setUnderline(font->underline());
    font->setOverline(font->overline());
    font->setStrikeOut(font->strikeOut());
    font->setKerning(font->kerning());
    font->setCapitalization(font->capitalization());
    font->setLetterSpacing(font->letterSpacingType(), font->letterSpacing());
    font->setWordSpacing(font->wordSpacing());
}

bool isStyledBySheet(const QWidget *widget)
{
    return widget->style()->inherits("QStyleSheetStyle");
}

// Sets a keypad's font on each of its parts: where there is a style sheet, which may come at any
// time, a part inherits no font, but one that is set on it stays. Without a sheet the parts follow
// the keypad's font all the same.
class FontShare : public QObject
{
public:
    FontShare(QDialog *keypad, const QList<QWidget *> &parts, const QFont &font)
        : QObject(keypad)
        , m_keypad(keypad)
        , m_font(font)
    {
        for (QWidget *part : parts) {
            part->setFont(font);
            if (qobject_cast<QAbstractSpinBox *>(part))
                part->installEventFilter(this);
        }
        keypad->installEventFilter(this);
    }

    // A font that a style sheet gives the dialog is for the dialog alone.
    bool eventFilter(QObject *changed, QEvent *event) override
    {
        if (event->type() != QEvent::FontChange)
            return false;
        if (changed != m_keypad)
            handOn(static_cast<QWidget *>(changed));
        else if (!isStyledBySheet(m_keypad))
            follow(m_keypad->font());
        return false;
    }

private:
    // The line inside \a spinBox has the font of that, wherever it comes from.
    static void handOn(const QWidget *spinBox)
    {
        const QList<QLineEdit *> lines = spinBox->findChildren<QLineEdit *>();
        for (QLineEdit *line : lines)
            line->setFont(spinBox->font());
    }

    // A part that was given a font of its own keeps it. Qt 5 has two ways to say the same family,
    // which only the fonts' descriptions make equal.
    void follow(const QFont &font)
    {
        const QString former = m_font.toString();
        m_font = font;
        const QList<QWidget *> parts = m_keypad->findChildren<QWidget *>();
        for (QWidget *part : parts) {
            if (part->font().toString() == former)
                part->setFont(font);
        }
    }

    QDialog *m_keypad;
    QFont m_font;
};

} // namespace

QFont font(int points)
{
    const QString family = QFontInfo(QFont(QLatin1String("simsun"))).family();
    QFont font(family, points);
    font.setPixelSize(qRound(points * 96 / 72.0f));
    settle(&font);
    return font;
}

QFont setDialogFont(QDialog *keypad, int points)
{
    const QFont common = font(points);
    keypad->setFont(common);
    return common;
}

void setPartFonts(QDialog *keypad, const QFont &font)
{
    const QList<QWidget *> parts = keypad->findChildren<QWidget *>();
    new FontShare(keypad, parts, font);
    QList<SizedLabel *> keys;
    for (QWidget *part : parts) {
        if (KeyButton *key = dynamic_cast<KeyButton *>(part))
            keys << key;
    }
    shareLabelSizes(keys);
}

} // namespace Keypad
