// SPDX-License-Identifier: MIT
#include "FittedLabel_p.h"

#include <QAbstractTextDocumentLayout>
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

QRect textRect(const QLabel *label)
{
    const int margin = label->margin() + 1; // a pixel off whatever surrounds the text
    return label->contentsRect().adjusted(margin, margin, -margin, -margin);
}

Qt::LayoutDirection textDirection(const QLabel *label)
{
    return label->text().isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
}

void paintPlainText(QPainter *painter, const QLabel *label)
{
    const QRect rect = textRect(label);
    const QFont font = fittedFont(label->font(), label->text(), 0, rect.size());
    painter->setFont(font);
    const Qt::Alignment alignment =
        QStyle::visualAlignment(textDirection(label), label->alignment());
    label->style()->drawItemText(
        painter, rect, int(alignment), label->palette(), label->isEnabled(),
        fittedText(font, label->text(), 0, rect.size()), label->foregroundRole());
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
    const QRect room = textRect(label);
    QSizeF size = document.size();
    const qreal scale =
        qMin(qreal(1), qMin(room.width() / size.width(), room.height() / size.height()));
    const QRect rect = QStyle::alignedRect(textDirection(label), label->alignment(),
                                           (size * scale).toSize(), room);
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette = label->palette();
    const QPalette::ColorGroup group = label->isEnabled() ? QPalette::Active : QPalette::Disabled;
    context.palette.setColor(QPalette::Text,
                             label->palette().color(group, label->foregroundRole()));
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
    const int most = lines * label->fontMetrics().height() + surrounds;
    return QSize(plain.width(), qMin(plain.height(), most));
}

void paintFittedText(QPainter *painter, const QLabel *label)
{
    if (isRich(label))
        paintRichText(painter, label);
    else
        paintPlainText(painter, label);
}

} // namespace Keypad
