// SPDX-License-Identifier: MIT
#include "HardKey.h"

#include "BezelColours.h"

#include <QLinearGradient>
#include <QPainter>

namespace {

const QSize smallest(40, 26); // pixels
const int radius = 5;
const int travel = 1; // down, while the key is pressed

const int letterPixels = 15;
const int wordPixels = 11;

} // namespace

HardKey::HardKey(const QString &label, int key, const QString &text, bool marked, QWidget *parent)
    : QAbstractButton(parent)
    , m_key(key)
    , m_text(text)
    , m_marked(marked)
{
    setText(label);
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumSize(smallest);
    QFont keyFont = font();
    keyFont.setPixelSize(label.length() == 1 ? letterPixels : wordPixels);
    keyFont.setBold(true);
    setFont(keyFont);
}

QSize HardKey::sizeHint() const
{
    return smallest;
}

void HardKey::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF body =
        QRectF(rect()).adjusted(1.5, 1.5, -1.5, -2.5).translated(0, isDown() ? travel : 0);
    const BezelColours::Key &colours = m_marked ? BezelColours::marked : BezelColours::plain;
    QLinearGradient face(body.topLeft(), body.bottomLeft());
    face.setColorAt(isDown() ? 1 : 0, QColor(colours.top));
    face.setColorAt(isDown() ? 0 : 1, QColor(colours.bottom));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(BezelColours::shadow));
    painter.drawRoundedRect(body.translated(0, isDown() ? 0 : travel), radius, radius);
    painter.setPen(QPen(QColor(colours.edge), 1));
    painter.setBrush(face);
    painter.drawRoundedRect(body, radius, radius);
    painter.setPen(QColor(colours.label));
    painter.drawText(body, Qt::AlignCenter, text());
}
