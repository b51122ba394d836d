// SPDX-License-Identifier: MIT
#ifndef FITTEDLABEL_P_H
#define FITTEDLABEL_P_H

#include "FittedText_p.h"
#include "LabelSizes_p.h"

#include <QLabel>
#include <QPainter>

namespace Keypad {

// The size at which \a label shows all of its text as any QLabel does, unless the text is longer
// than any panel is wide.
QSize plainSize(const QLabel *label);

// \a plain, the plain size of \a label, but not higher than \a lines lines of text need.
QSize boundedSize(const QLabel *label, QSize plain, int lines);

// The largest size in pixels at which the text of \a label is whole; see SizedLabel.
int wholeTextSize(const QLabel *label);

// Draws the text of \a label at \a mostPixels, or smaller where its size is too small for that.
void paintFittedText(QPainter *painter, const QLabel *label, int mostPixels);

const int anyWidth = 0;
const int oneLine = 1;

// A label that makes do with less room than its text asks for. It looks as any label does; only a
// text that would be clipped is drawn smaller, and with it the labels that share its size, if any.
template <class Label>
class FittedLabel : public Label, public SizedLabel
{
public:
    // The label asks for \a mostLines lines at most; a layout that is short of room leaves it a
    // quarter of them, and \a leastWidth pixels.
    FittedLabel(const QString &text, QWidget *parent, int leastWidth, int mostLines)
        : Label(text, parent)
        , m_leastWidth(leastWidth)
        , m_mostLines(mostLines)
    {
    }

    QSize sizeHint() const override
    {
        return boundedSize(this, plainSize(this), m_mostLines).expandedTo(minimumSizeHint());
    }

    QSize minimumSizeHint() const override
    {
        const QSize size(m_leastWidth, plainSize(this).height());
        return boundedSize(this, size, (m_mostLines + 3) / 4);
    }

    QWidget *widget() override { return this; }
    QString label() const override { return this->text(); }
    int wholeLabelSize() const override { return wholeTextSize(this); }

protected:
    bool event(QEvent *event) override
    {
        heed(event);
        return Label::event(event);
    }

    void paintEvent(QPaintEvent *event) override
    {
        const int size = sharedLabelSize(anySize);
        if (size == anySize && fits(plainSize(this), this->size())) {
            Label::paintEvent(event);
            return;
        }
        QPainter painter(this);
        this->drawFrame(&painter);
        paintFittedText(&painter, this, size);
    }

private:
    int m_leastWidth;
    int m_mostLines;
};

} // namespace Keypad

#endif
