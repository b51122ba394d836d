// SPDX-License-Identifier: MIT
#include "ClickLabel.h"

ClickLabel::ClickLabel(const QString &text, QWidget *parent)
    : QLabel(text, parent)
    , m_pressed(false)
{
    setAlignment(Qt::AlignCenter);
}

ClickLabel::~ClickLabel() = default;

void ClickLabel::mousePressEvent(QMouseEvent *)
{
    m_pressed = true;
}

void ClickLabel::mouseReleaseEvent(QMouseEvent *)
{
    if (!m_pressed)
        return;
    m_pressed = false;
    Q_EMIT clicked();
}
