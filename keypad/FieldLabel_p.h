// SPDX-License-Identifier: MIT
#ifndef FIELDLABEL_P_H
#define FIELDLABEL_P_H

#include "FittedLabel_p.h"
#include "LabelSizes_p.h"

namespace Keypad {

// The label of a field: one line, which leaves the field its room and is drawn smaller then, as are
// those of the other fields.
class FieldLabel : public FittedLabel<QLabel>, public SizedLabel
{
public:
    FieldLabel(const QString &text, QWidget *parent);

    QWidget *widget() override { return this; }
    QString label() const override;
    int wholeLabelSize() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

} // namespace Keypad

#endif
