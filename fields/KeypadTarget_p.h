// SPDX-License-Identifier: MIT
#ifndef KEYPADTARGET_P_H
#define KEYPADTARGET_P_H

#include <QWidget>

namespace Fields {

// What the keypads write: the text waits here until the field has taken it. It is a widget, never
// shown, as the G-code keypad lays itself over its target.
class KeypadTarget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text MEMBER text)

public:
    QString text;
};

} // namespace Fields

#endif
