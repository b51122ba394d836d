// SPDX-License-Identifier: MIT
#ifndef ELIDEDLABEL_H
#define ELIDEDLABEL_H

#include <QLabel>

// A line of plain text that takes whatever width there is, and ends in an ellipsis where that is
// too little.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
};

#endif
