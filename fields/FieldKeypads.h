// SPDX-License-Identifier: MIT
#ifndef FIELDKEYPADS_H
#define FIELDKEYPADS_H

#include "HMIDeviceFieldsExport.h"

#include <QObject>

class QWidget;

/*!
 * Keypads for every field of a program that exists: a tap on a field opens its keypad.
 *
 * \code
 * FieldKeypads keypads(&window); // from now on
 * \endcode
 *
 * One object serves the whole program: all windows and dialogs, those shown later too. Make it
 * after the QApplication. A tap is a press and a release of the left button on a field that is
 * enabled and not read-only; a cell of an item view takes a double tap. The keypad follows from the
 * field: spin boxes and line edits with a QIntValidator or QDoubleValidator have the numeric one,
 * date and time edits the date-time one, other line edits, editable combo boxes and text edits
 * (their current line) the character one, cells the one that suits their data. Everything else has
 * none.
 *
 * What is confirmed is written as though the operator had typed it: signals, undo, limits,
 * validator, prefix, suffix and locale of the field count, and the keypad's "." is the decimal
 * point of every locale. A text that the field refuses opens the keypad again with that text;
 * nothing reaches the program meanwhile. Opening and cancelling leave no trace.
 *
 * Where HMIDeviceInfo::graphicsView() is null when a keypad opens, a view that nobody sees is
 * registered, so that keypads cover the window; it stays registered and goes with the application.
 * Where the program has registered a view, keypads cover that one. Set the panel model with
 * HMIDeviceInfo::setDeviceInfo() before the first tap.
 *
 * Call everything from the GUI thread.
 */
class HMIDEVICEFIELDS_EXPORT FieldKeypads : public QObject
{
    Q_OBJECT

public:
    /*! The keypad of a field. */
    enum Kind {
        NoKeypad, /*!< a tap leaves the field alone */
        Numeric,  /*!< NumericKeypad */
        GCode,    /*!< GCodeKeypad */
        Axis,     /*!< vondKeypad */
        DateTime, /*!< DateTimeKeypad */
        Character /*!< CharacterKeypad */
    };

    /*!
     * Watches the program from now on. Keypads cover \a window while it is visible, or else the
     * window of the field. Not owned; it may be null, and destroyed before this object. \a parent,
     * which may be null, owns this object. Of several objects the one whose window is nearest above
     * a field serves it.
     */
    explicit FieldKeypads(QWidget *window, QObject *parent = nullptr);

    /*! Fields open keypads no longer, unless there is another object of this class. */
    ~FieldKeypads() override;

    /*!
     * Chooses the keypad of \a field, instead of the one that follows from it. Sets its dynamic
     * property "keypad" to "none", "numeric", "gcode", "axis", "datetime" or "character", which a
     * form can do as well. Null is ignored. GCodeKeypad lies over the lower half of the view.
     */
    void setKind(QWidget *field, Kind kind);

    /*! Takes setKind() back: the keypad follows from \a field again. Null is ignored. */
    void resetKind(QWidget *field);

    /*!
     * The keypad that a tap on \a field opens now: NoKeypad for a field that is disabled or
     * read-only, for null, and for what is no field. Of an item view, that of its current cell.
     */
    Kind kind(QWidget *field) const;

    /*!
     * Shows \a text above the edit line while \a field is edited, instead of the limits that the
     * field tells itself; empty for none. Sets the dynamic property "keypadLimits". Null is
     * ignored.
     */
    void setLimits(QWidget *field, const QString &text);

    /*!
     * Whether \a field sends returnPressed() before editingFinished() when it has been written; it
     * does not at first. Sets the dynamic property "keypadReturn". Null is ignored.
     */
    void setReturnPressed(QWidget *field, bool on);

    /*!
     * Opens the keypad of \a field as a tap does, and returns when it has closed: true when the
     * field was written. False at once for a field without a keypad, and while another keypad is
     * open. An item view edits its current cell. The field may be destroyed meanwhile.
     */
    bool edit(QWidget *field);

Q_SIGNALS:
    /*!
     * On panel type 13: hard key \a key (a Qt::Key value), which belongs to the application, has
     * closed a keypad that this object had opened. See NumericKeypad::signal_kTypeKeyPressed().
     */
    void hardKeyPressed(int key);
};

#endif
