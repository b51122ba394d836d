// SPDX-License-Identifier: MIT
#ifndef NUMPANEL_H
#define NUMPANEL_H

#include "HMIDeviceExport.h"

#include <QWidget>

class QToolButton;

/*! The row of digit keys, "0" to "9", of the character keypad. Connect their clicks yourself. */
class HMIDEVICE_EXPORT NumPanel : public QWidget
{
    Q_OBJECT

public:
    /*!
     * Builds the row, hidden, in the colours of the panel type that is set now. \a parent, which
     * may be null, owns it.
     */
    explicit NumPanel(QWidget *parent);

    /*! The key of digit \a index, 0 to 9, owned by the panel; null for any other index. */
    QToolButton *getToolButton(short index);

private:
    enum { DigitCount = 10 };

    QToolButton *m_buttons[DigitCount];
};

#endif
