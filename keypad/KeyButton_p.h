// SPDX-License-Identifier: MIT
#ifndef KEYBUTTON_P_H
#define KEYBUTTON_P_H

#include <QToolButton>

namespace Keypad {

// A key whose size does not depend on its label. It looks as any tool button does; only a label
// that would be clipped is drawn smaller.
class KeyButton : public QToolButton
{
public:
    explicit KeyButton(QWidget *parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool showsOnlyText() const;
    QRect labelRect() const;
};

} // namespace Keypad

#endif
