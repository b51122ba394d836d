// SPDX-License-Identifier: MIT
#ifndef GCODESTANDIN_H
#define GCODESTANDIN_H

#include <QWidget>

// Stands in for a field as the target of the G-code keypad, so that the keypad lies where it
// should: exactly over the field, or over any other part of the screen that is large enough for its
// keys. Copy it into your program.
//
// The keypad takes the geometry of a target without parent as it is and maps it once, by the
// viewport of the registered view. So this is a window, never shown, with a rectangle of that
// viewport.
class GCodeStandIn : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    // Over \a field, which lies inside the viewport of HMIDeviceInfo::graphicsView(). Not owned.
    explicit GCodeStandIn(QWidget *field);

    // Over \a place, in the coordinates of that viewport, for \a field anywhere.
    GCodeStandIn(QWidget *field, const QRect &place);

    QString text() const;
    void setText(const QString &text);

private:
    QWidget *m_field;
};

#endif
