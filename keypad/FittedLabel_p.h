// SPDX-License-Identifier: MIT
#ifndef FITTEDLABEL_P_H
#define FITTEDLABEL_P_H

#include <QLabel>

namespace Keypad {

// The pixels that the text of \a label needs in width; bounded, as it may be of any length.
int textWidth(const QLabel *label);

// Draws the text of \a label smaller and returns true if it would be clipped otherwise.
bool paintFitted(QLabel *label);

// A label one line high that asks for the width of its text, and makes do with less.
template <class Label>
class FittedLabel : public Label
{
public:
    // A layout that is short of room leaves the label \a minimumWidthInLines heights of a line.
    FittedLabel(const QString &text, QWidget *parent, int minimumWidthInLines)
        : Label(text, parent)
        , m_minimumWidthInLines(minimumWidthInLines)
    {
    }

    QSize sizeHint() const override
    {
        const QSize minimum = minimumSizeHint();
        return QSize(qMax(minimum.width(), textWidth(this)), minimum.height());
    }

    QSize minimumSizeHint() const override
    {
        const int lineHeight = this->fontMetrics().height();
        return QSize(m_minimumWidthInLines * lineHeight, lineHeight);
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        if (!paintFitted(this))
            Label::paintEvent(event);
    }

private:
    int m_minimumWidthInLines;
};

} // namespace Keypad

#endif
