// SPDX-License-Identifier: MIT
#include "LampRow.h"

#include <QPainter>

namespace {

const int lampCount = 8;

}

LampRow::LampRow(QWidget *parent)
    : QWidget(parent)
{
}

void LampRow::setDigits(const QString &digits)
{
    m_digits = digits.rightJustified(lampCount, QLatin1Char('0'));
    update();
}

void LampRow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::black, 1));
    const double cell = width() / double(lampCount);
    const double radius = qMin(cell, double(height())) * 0.38;
    for (int i = 0; i < lampCount; ++i) {
        const bool lit = m_digits.at(i) == QLatin1Char('1');
        painter.setBrush(lit ? QColor(80, 255, 120) : QColor(40, 60, 50));
        painter.drawEllipse(QPointF(cell * (i + 0.5), height() / 2.0), radius, radius);
    }
}
