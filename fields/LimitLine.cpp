// SPDX-License-Identifier: MIT
#include "LimitLine_p.h"

#include <HMIDevice/HMIDeviceInfo.h>
#include <HMIDevice/KeyBoardLineEdit.h>

#include <QDialog>
#include <QFontMetrics>
#include <QGraphicsView>
#include <QLabel>
#include <QLayout>

namespace Fields {

namespace {

const int largestFont = 27; // pixels, as the limit lines of the other keypads
const int smallestFont = 8;

int widthOf(const QFont &font, const QString &text)
{
    return QFontMetrics(font).boundingRect(text).width();
}

QFont fittingFont(QFont font, const QString &text, int width)
{
    int size = largestFont;
    do {
        font.setPixelSize(size);
    } while (widthOf(font, text) > width && --size > smallestFont);
    return font;
}

} // namespace

LimitLine::LimitLine(QDialog *keypad, const QString &text)
    : m_keypad(keypad)
{
    if (!keypad || text.isEmpty())
        return;
    m_label = new QLabel(text, keypad);
    m_label->setObjectName(QLatin1String("limitLabel")); // as in the other keypads
    m_label->setTextFormat(Qt::PlainText);
    m_label->setFont(
        fittingFont(keypad->font(), text, HMIDeviceInfo::graphicsView()->viewport()->width()));
    const QWidget *editLine = keypad->findChild<KeyBoardLineEdit *>();
    m_label->setPalette(editLine->palette()); // dark where the keypad is
    keypad->layout()->setMenuBar(m_label);    // above the face, whatever its layout
    m_label->show();
}

LimitLine::~LimitLine()
{
    if (m_label && m_keypad)
        m_keypad->layout()->setMenuBar(nullptr);
    delete m_label;
}

} // namespace Fields
