// SPDX-License-Identifier: MIT
#include "FittedLabel_p.h"

#include <QAbstractTextDocumentLayout>
#include <QFontInfo>
#include <QPalette>
#include <QStyle>
#include <QTextDocument>
#include <QTextOption>

namespace Keypad {

namespace {

bool isRich(const QLabel *label)
{
    return label->textFormat() == Qt::RichText
        || (label->textFormat() == Qt::AutoText && Qt::mightBeRichText(label->text()));
}

Qt::LayoutDirection textDirection(const QLabel *label)
{
    return label->text().isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
}

Qt::Alignment visualAlignment(const QLabel *label)
{
    return QStyle::visualAlignment(textDirection(label), label->alignment());
}

// What one letter needs, which may be more than the height of the font.
QSize letterSize(const QLabel *label)
{
    return sizeOf(QLatin1String("x"), label->font(), 0);
}

// How far a label keeps its text off the side at which it is aligned.
int indentOf(const QLabel *label)
{
    if (label->indent() >= 0 || label->frameWidth() == 0)
        return qMax(0, label->indent());
    return qMax(0, letterSize(label).width() / 2 - label->margin());
}

// Where a label draws its text.
QRect textRect(const QLabel *label)
{
    const int margin = label->margin();
    const int indent = indentOf(label);
    const Qt::Alignment alignment = visualAlignment(label);
    return label->contentsRect().adjusted(margin + (alignment & Qt::AlignLeft ? indent : 0),
                                          margin + (alignment & Qt::AlignTop ? indent : 0),
                                          -margin - (alignment & Qt::AlignRight ? indent : 0),
                                          -margin - (alignment & Qt::AlignBottom ? indent : 0));
}

// A pixel off whatever surrounds the text.
QSize roomOf(const QLabel *label)
{
    return textRect(label).size() - QSize(2, 2);
}

QFont fontUpTo(int pixels, const QLabel *label)
{
    QFont font(label->font());
    if (pixels < QFontInfo(font).pixelSize())
        font.setPixelSize(pixels);
    return font;
}

void paintPlainText(QPainter *painter, const QLabel *label, int mostPixels)
{
    const QSize room = roomOf(label);
    const QFont font = fittedFont(fontUpTo(mostPixels, label), label->text(), 0, room);
    painter->setFont(font);
    const int direction = textDirection(label) == Qt::LeftToRight ? Qt::TextForceLeftToRight
                                                                  : Qt::TextForceRightToLeft;
    label->style()->drawItemText(painter, textRect(label), int(visualAlignment(label)) | direction,
                                 label->palette(), label->isEnabled(),
                                 fittedText(font, label->text(), 0, room), label->foregroundRole());
}

void setUpDocument(QTextDocument *document, const QLabel *label)
{
    QTextOption option(label->alignment());
    option.setWrapMode(QTextOption::NoWrap);
    option.setTextDirection(textDirection(label));
    document->setDefaultTextOption(option);
    document->setDocumentMargin(0);
    document->setDefaultFont(label->font());
    document->setHtml(label->text());
    document->setTextWidth(document->idealWidth());
}

void paintRichText(QPainter *painter, const QLabel *label)
{
    QTextDocument document;
    setUpDocument(&document, label);
    const QSize room = roomOf(label);
    const QSizeF size = document.size();
    const qreal scale =
        qMin(qreal(1), qMin(room.width() / size.width(), room.height() / size.height()));
    const QRect rect = QStyle::alignedRect(textDirection(label), label->alignment(),
                                           (size * scale).toSize(), textRect(label));
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette = label->palette();
    context.palette.setColor(QPalette::Text, label->palette().color(label->foregroundRole()));
    painter->translate(rect.topLeft());
    painter->scale(scale, scale);
    document.documentLayout()->draw(painter, context);
}

} // namespace

QSize plainSize(const QLabel *label)
{
    if (label->text().length() <= longestMeasuredText || isRich(label))
        return label->QLabel::sizeHint();
    return sizeOf(label->text(), label->font(), 0);
}

QSize boundedSize(const QLabel *label, QSize plain, int lines)
{
    const int surrounds = label->height() - label->contentsRect().height();
    const int most = lines * letterSize(label).height() + surrounds;
    return QSize(plain.width(), qMin(plain.height(), most));
}

int wholeTextSize(const QLabel *label)
{
    if (isRich(label) || fits(plainSize(label), label->size()))
        return SizedLabel::anySize;
    bool isWhole = false;
    const QFont font = fittedFont(label->font(), label->text(), 0, roomOf(label), &isWhole);
    return isWhole ? QFontInfo(font).pixelSize() : int(SizedLabel::noSize);
}

void paintFittedText(QPainter *painter, const QLabel *label, int mostPixels)
{
    if (isRich(label))
        paintRichText(painter, label);
    else
        paintPlainText(painter, label, mostPixels);
}

} // namespace Keypad
