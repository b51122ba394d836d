// SPDX-License-Identifier: MIT
#include "KeyButton_p.h"

#include "FittedText_p.h"

#include <QEvent>
#include <QFontMetrics>
#include <QStyle>
#include <QStyleOptionToolButton>
#include <QStylePainter>

namespace Keypad {

namespace {

const int labelFlags = Qt::TextShowMnemonic;
const int leastHeight = 20;     // pixels, that limits of many lines leave a key
const qreal blankOpacity = 0.4; // of a disabled key, which has no label that could look disabled

} // namespace

KeyButton::KeyButton(QWidget *parent, int leastWidth)
    : QToolButton(parent)
    , m_leastWidth(leastWidth)
    , m_measure()
{
}

QSize KeyButton::sizeHint() const
{
    const int lineHeight = fontMetrics().height();
    return QSize(lineHeight, lineHeight);
}

QSize KeyButton::minimumSizeHint() const
{
    return QSize(m_leastWidth, leastHeight);
}

QString KeyButton::label() const
{
    return showsOnlyText() ? text() : QString();
}

int KeyButton::wholeLabelSize() const
{
    const Measure &measured = measure();
    return measured.isWhole ? measured.size : int(noSize);
}

bool KeyButton::event(QEvent *event)
{
    heed(event);
    return QToolButton::event(event);
}

// Not as a tool button, which looks at itself once more after its click: what a key does may
// destroy the keypad, such as a field that closes its screen.
void KeyButton::mouseReleaseEvent(QMouseEvent *event)
{
    QAbstractButton::mouseReleaseEvent(event);
}

void KeyButton::paintEvent(QPaintEvent *event)
{
    const int size = labelSize();
    if (size == anySize && !isBlank()) {
        QToolButton::paintEvent(event);
        return;
    }
    // Drawn in two steps: with the whole button a style sheet would bring back its own font.
    QStyleOptionToolButton option;
    initStyleOption(&option);
    option.text.clear();
    QStylePainter painter(this);
    painter.setOpacity(isBlank() ? blankOpacity : 1);
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
    if (isBlank())
        return;
    option.rect = labelRect();
    option.font = font();
    option.font.setPixelSize(size);
    option.fontMetrics = QFontMetrics(option.font);
    option.text =
        measure().isWhole ? text() : fittedText(option.font, text(), labelFlags, measure().room);
    painter.drawControl(QStyle::CE_ToolButtonLabel, option);
}

// Measured anew when a key has another label, font or room: a style sheet can give a pressed key
// another border. Fonts that are installed later are not noticed.
const KeyButton::Measure &KeyButton::measure() const
{
    const QSize room = labelRoom();
    if (m_measure.room == room && m_measure.label == label() && m_measure.font == font())
        return m_measure;
    m_measure.label = label();
    m_measure.font = font();
    m_measure.room = room;
    const QFont fitted = fittedFont(font(), label(), labelFlags, room, &m_measure.isWhole);
    m_measure.size = m_measure.isWhole && fitted == font() ? int(anySize) : fitted.pixelSize();
    return m_measure;
}

// At which the label is drawn.
int KeyButton::labelSize() const
{
    if (label().isEmpty())
        return anySize;
    const Measure &measured = measure();
    return measured.isWhole ? sharedLabelSize(measured.size) : measured.size;
}

bool KeyButton::isBlank() const
{
    return !isEnabled() && text().isEmpty() && showsOnlyText();
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

// A pixel off what surrounds the label.
QSize KeyButton::labelRoom() const
{
    return labelRect().size() - QSize(2, 2);
}

} // namespace Keypad
