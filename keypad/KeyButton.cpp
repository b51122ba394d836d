// SPDX-License-Identifier: MIT
#include "KeyButton_p.h"

#include "FittedText_p.h"

#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace Keypad {

namespace {

const int labelFlags = Qt::TextShowMnemonic;

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
    return QSize(0, 0);
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
    if (fits(sizeOf(text(), font(), labelFlags), rect.size())) {
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
    option.font = fittedFont(font(), text(), labelFlags, rect.size());
    option.fontMetrics = QFontMetrics(option.font);
    option.text = fittedText(option.font, text(), labelFlags, rect.size());
    painter.drawControl(QStyle::CE_ToolButtonLabel, option);
}

// Inside what a style sheet puts around a label, or else inside the style's frame, and a pixel off.
QRect KeyButton::labelRect() const
{
    QStyleOptionToolButton option;
    initStyleOption(&option);
    QRect rect = style()->subElementRect(QStyle::SE_FrameContents, &option, this);
    if (rect.isEmpty()) {
        const int frame = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, this);
        rect = option.rect.adjusted(frame, frame, -frame, -frame);
    }
    return rect.adjusted(1, 1, -1, -1);
}

} // namespace Keypad
