// SPDX-License-Identifier: MIT
#ifndef KEYBUTTON_P_H
#define KEYBUTTON_P_H

#include <QSharedPointer>
#include <QToolButton>

#include <climits>

namespace Keypad {

class LabelSizes;

// A key whose size does not depend on its label. It looks as any tool button does; only a label
// that would be clipped is drawn smaller, and with it the labels that share its size.
class KeyButton : public QToolButton
{
public:
    enum { noSize = 0, anySize = INT_MAX };

    explicit KeyButton(QWidget *parent);
    ~KeyButton() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    // Once; all keys with the same \a sizes draw their labels alike.
    void shareLabelSize(const QSharedPointer<LabelSizes> &sizes);

    // The text, or nothing where an icon takes its place.
    QString label() const;

    // The largest size in pixels at which the label is whole; anySize where the font's will do, noSize
    // where none does that can be read.
    int wholeLabelSize() const;

protected:
    bool event(QEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    int labelSize() const;
    bool isBlank() const;
    QRect labelRect() const;
    QSize labelRoom() const;

    QSharedPointer<LabelSizes> m_sizes;
};

} // namespace Keypad

#endif
