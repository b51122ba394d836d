// SPDX-License-Identifier: MIT
#ifndef LAMPROW_H
#define LAMPROW_H

#include <QWidget>

// A row of lamps, one for each binary digit.
class LampRow : public QWidget
{
    Q_OBJECT

public:
    explicit LampRow(QWidget *parent);

public Q_SLOTS:
    // A lamp is lit where digits has a 1; the lowest digit is the rightmost lamp.
    void setDigits(const QString &digits);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_digits;
};

#endif
