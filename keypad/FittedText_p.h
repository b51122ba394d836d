// SPDX-License-Identifier: MIT
#ifndef FITTEDTEXT_P_H
#define FITTEDTEXT_P_H

#include <QLabel>
#include <QToolButton>

// Keys and labels whose place does not depend on what they show. A layout may make them as small
// as the panel requires; a text that would be clipped is drawn smaller instead.

namespace Keypad {

class KeyButton : public QToolButton
{
public:
    explicit KeyButton(QWidget *parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};

/* Draws the text of \a label smaller and returns true if it would be clipped otherwise. */
bool paintFitted(QLabel *label);

template <class Label>
class FittedLabel : public Label
{
public:
    /* Asks for a width of \a widthInLines heights of a line, whatever the text. */
    FittedLabel(const QString &text, QWidget *parent, int widthInLines)
        : Label(text, parent)
        , m_widthInLines(widthInLines)
    {
    }

    QSize sizeHint() const override
    {
        const int lineHeight = this->fontMetrics().height();
        return QSize(m_widthInLines * lineHeight, lineHeight);
    }

    QSize minimumSizeHint() const override { return QSize(0, this->fontMetrics().height()); }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        if (!paintFitted(this))
            Label::paintEvent(event);
    }

private:
    int m_widthInLines;
};

} // namespace Keypad

#endif
