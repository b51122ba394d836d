// SPDX-License-Identifier: MIT
#include "GaugeBar.h"

GaugeBar::GaugeBar(const QString &maximum, QWidget *parent)
    : QProgressBar(parent)
{
    setTextVisible(false);
    setMaximum(int(maximum.toDouble()));
}

void GaugeBar::showNumber(const QString &number)
{
    setValue(int(number.toDouble()));
}
