// SPDX-License-Identifier: MIT
#ifndef KEYBOARDLINEEDIT_H
#define KEYBOARDLINEEDIT_H

#include "HMIDeviceExport.h"

#include <QLineEdit>

/*!
 * The edit line of a keypad: a QLineEdit in everything it does, but that a text which would be cut
 * is drawn smaller while the line is disabled, as the date-time keypad's is.
 *
 * It is a type of its own so that an application can tell a keypad's edit line from its own
 * fields, in an event filter or a style sheet for instance. Each keypad has exactly one.
 */
class HMIDEVICE_EXPORT KeyBoardLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    /*! Makes an empty edit line; \a parent, which may be null, owns it. */
    explicit KeyBoardLineEdit(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
};

#endif
