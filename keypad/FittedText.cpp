// SPDX-License-Identifier: MIT
#include "FittedText_p.h"

#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace Keypad {

namespace {

const int frameWidth = 2; // pixels
const int smallestPixelSize = 8;
// No label that an operator can read is longer; a dictionary may hold any text.
const int longestDrawnText = 64;

} // namespace

QFont fittedFont(const QFont &font, const QString &text, const QSize &room)
{
    const QSize needed = QFontMetrics(font).size(Qt::TextShowMnemonic, text);
    if (needed.width() <= room.width() && needed.height() <= room.height())
        return font;
    const double scale = qMin(double(room.width()) / qMax(1, needed.width()),
                              double(room.height()) / qMax(1, needed.height()));
    QFont fitted(font);
    fitted.setPixelSize(qMax(smallestPixelSize, int(font.pixelSize() * scale)));
    return fitted;
}

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

void KeyButton::paintEvent(QPaintEvent *)
{
    QStyleOptionToolButton option;
    initStyleOption(&option);
    const QSize room = size() - QSize(2 * frameWidth, 2 * frameWidth);
    option.font = fittedFont(font(), option.text, room);
    option.fontMetrics = QFontMetrics(option.font);

    QStylePainter painter(this);
    painter.setFont(option.font);
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
}

void paintFittedLabel(QLabel *label)
{
    const QRect room = label->contentsRect();
    const QString text = label->text().left(longestDrawnText);

    QPainter painter(label);
    painter.setFont(fittedFont(label->font(), text, room.size()));
    label->style()->drawItemText(&painter, room, int(label->alignment()), label->palette(),
                                 label->isEnabled(), text, label->foregroundRole());
}

} // namespace Keypad
