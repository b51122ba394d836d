// SPDX-License-Identifier: MIT
#ifndef GAUGEBAR_H
#define GAUGEBAR_H

#include <QProgressBar>

// A bar that shows how much of its largest value a number is.
class GaugeBar : public QProgressBar
{
    Q_OBJECT

public:
    GaugeBar(const QString &maximum, QWidget *parent);

public Q_SLOTS:
    void showNumber(const QString &number);
};

#endif
