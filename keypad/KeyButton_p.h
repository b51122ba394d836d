// SPDX-License-Identifier: MIT
#ifndef KEYBUTTON_P_H
#define KEYBUTTON_P_H

#include "LabelSizes_p.h"

#include <QFont>
#include <QSize>
#include <QString>
#include <QToolButton>

namespace Keypad {

// A key whose size does not depend on its label. It looks as any tool button does; only a label
// that would be clipped is drawn smaller, and with it the labels that share its size.
class KeyButton : public QToolButton, public SizedLabel
{
public:
    // A layout that is short of room leaves the key \a leastWidth pixels.
    explicit KeyButton(QWidget *parent, int leastWidth = 0);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    QWidget *widget() override { return this; }
    QString label() const override;
    int wholeLabelSize() const override;

protected:
    bool event(QEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    // What fitting a label into its room has come to, so that painting need not do it again.
    struct Measure
    {
        QString label;
        QFont font;
        QSize room;
        int size;     // at which the label is drawn if it is on its own, or anySize
        bool isWhole; // then
    };

    const Measure &measure() const;
    int labelSize() const;
    bool isBlank() const;
    bool showsOnlyText() const;
    QRect labelRect() const;
    QSize labelRoom() const;

    int m_leastWidth;
    mutable Measure m_measure;
};

} // namespace Keypad

#endif
