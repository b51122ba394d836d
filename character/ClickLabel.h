// SPDX-License-Identifier: MIT
#ifndef CLICKLABEL_H
#define CLICKLABEL_H

#include "HMIDeviceExport.h"

#include <QLabel>

/*! A label that can be clicked, with centred text: a candidate of the character keypad. */
class HMIDEVICE_EXPORT ClickLabel : public QLabel
{
    Q_OBJECT

public:
    /*! Makes a label that shows \a text; \a parent, which may be null, owns it. */
    ClickLabel(const QString &text, QWidget *parent);
    ~ClickLabel() override;

Q_SIGNALS:
    /*!
     * A mouse button was pressed on the label and released again. The place of the release does
     * not matter: a finger in a glove slips.
     */
    void clicked();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    bool m_pressed;
};

#endif
