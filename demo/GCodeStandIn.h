// SPDX-License-Identifier: MIT
#ifndef GCODESTANDIN_H
#define GCODESTANDIN_H

#include <QWidget>

/*!
 * Stands in for a field as the target of the G-code keypad, so that the keypad lies exactly over
 * the field wherever field and view are.
 *
 * The keypad takes the geometry of a target without parent as it is and maps it once, by the
 * viewport of the registered view. So this is a window, never shown, with the field's rectangle in
 * that viewport. docs/gcode-placement.md has the arithmetic.
 */
class GCodeStandIn : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    /*! \a field must lie inside the viewport of HMIDeviceInfo::graphicsView(). Not owned. */
    explicit GCodeStandIn(QWidget *field);

    QString text() const;
    void setText(const QString &text);

private:
    QWidget *m_field;
};

#endif
