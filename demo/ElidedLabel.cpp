// SPDX-License-Identifier: MIT
#include "ElidedLabel.h"

#include <QPainter>
#include <QStyle>

ElidedLabel::ElidedLabel(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRect room = contentsRect();
    style()->drawItemText(
        &painter, room, int(alignment()) | int(Qt::TextSingleLine), palette(), isEnabled(),
        fontMetrics().elidedText(text(), Qt::ElideRight, room.width()), foregroundRole());
}
