// SPDX-License-Identifier: MIT
#include "KeyButton_p.h"

#include "FittedText_p.h"

#include <QFontMetrics>
#include <QStyle>
#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace Keypad {

namespace {

const int labelFlags = Qt::TextShowMnemonic;
const int leastHeight = 20; // pixels, that limits of many lines leave a key

} // namespace

KeyButton::KeyButton(QWidget *parent)
    : QToolButton(parent)
{
}

QSize KeyButton::sizeHint() const
{
    const int lineHeight = fontMetrics().height();
    return QSize(lineHeight, lineHeight);
}

QSize KeyButton::minimumSizeHint() const
{
    return QSize(0, leastHeight);
}

// Not as a tool button, which looks at itself once more after its click: what a key does may
// destroy the keypad, such as a field that closes its screen.
void KeyButton::mouseReleaseEvent(QMouseEvent *event)
{
    QAbstractButton::mouseReleaseEvent(event);
}

void KeyButton::paintEvent(QPaintEvent *event)
{
    const QRect rect = labelRect();
    const QSize room = rect.size() - QSize(2, 2); // a pixel off what surrounds it
    if (!showsOnlyText() || fits(sizeOf(text(), font(), labelFlags), room)) {
        QToolButton::paintEvent(event);
        return;
    }
    // Drawn in two steps: with the whole button a style sheet would bring back its own font.
    QStyleOptionToolButton option;
    initStyleOption(&option);
    option.text.clear();
    QStylePainter painter(this);
    painter.drawComplexControl(QStyle::CC_ToolButton, option);

    option.rect = rect;
    option.font = fittedFont(font(), text(), labelFlags, room);
    option.fontMetrics = QFontMetrics(option.font);
    option.text = fittedText(option.font, text(), labelFlags, room);
    painter.drawControl(QStyle::CE_ToolButtonLabel, option);
}

bool KeyButton::showsOnlyText() const
{
    return icon().isNull() && arrowType() == Qt::NoArrow;
}

// Inside what a style sheet puts around a label, or else inside the style's frame.
// A tool button's label does not change sides with the direction of the layout.
QRect KeyButton::labelRect() const
{
    QStyleOptionToolButton option;
    initStyleOption(&option);
    option.direction = Qt::LeftToRight;
    QRect rect = style()->subElementRect(QStyle::SE_FrameContents, &option, this);
    if (rect.isEmpty()) {
        const int frame = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, this);
        rect = option.rect.adjusted(frame, frame, -frame, -frame);
    }
    return rect;
}

} // namespace Keypad
