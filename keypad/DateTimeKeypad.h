// SPDX-License-Identifier: MIT
#ifndef DATETIMEKEYPAD_H
#define DATETIMEKEYPAD_H

#include "HMIDeviceExport.h"

#include <QDialog>
#include <QPointer>

class KeyBoardLineEdit;
class QLayout;
class QSpinBox;
class QToolButton;
class QValidator;

/*!
 * The modal editor for a date, a time of day, or both.
 *
 * The operator edits six spin boxes; the edit line only shows the composed value, and "Ok" writes
 * what it shows into the field's "text" property. For each field call, in this order: instance(),
 * setObject(), setMaxLength(), which chooses the format, setText(), exec(). exec() returns
 * QDialog::Accepted when the field was written, else QDialog::Rejected.
 *
 * At every show it covers the viewport of HMIDeviceInfo::graphicsView(); without a view it does not
 * place itself. Hard keys go to the focused spin box; Escape cancels. All texts are translated in
 * the context "DateTimeKeypad" when the keypad is built, so install a translator before that.
 *
 * The year goes from 1600 to 9999, the hour to 24: that is no time of day, and the display is then
 * empty or, with a date, shows midnight. A field that is no value after a
 * tap on a key is orange until it is right or left. "Ok" writes what the display shows; without a
 * target it does nothing, and the keypad stays open.
 *
 * Call everything from the GUI thread.
 */
class HMIDEVICE_EXPORT DateTimeKeypad : public QDialog
{
    Q_OBJECT

public:
    /*!
     * The process's one date-time keypad, built by the first call as a child of
     * HMIDeviceInfo::graphicsView(), which may be null. The library never deletes it; if the
     * application deletes the view, the keypad is gone with it and must not be asked for again.
     */
    static DateTimeKeypad *instance();

    /*!
     * Builds a keypad with \a flags and Qt::FramelessWindowHint; \a parent may be null.
     * Applications use instance().
     */
    DateTimeKeypad(QWidget *parent, Qt::WindowFlags flags);
    ~DateTimeKeypad() override;

    /*!
     * Binds the field to be edited: any object with a "text" property that can be written. Null is
     * ignored, and the previous target stays. Resets the edit line's echo mode and maximum length
     * (32767), but not the format. Blocks the signals of \a object meanwhile and leaves them
     * unblocked. Does not own it; an object destroyed later counts as no target. An object without
     * the property gets a dynamic one, and one whose property is read-only, such as a spin box,
     * keeps its value; exec() says Accepted all the same.
     */
    void setObject(QObject *object);

    /*!
     * Chooses the format by its \a length in characters: 10 is a date ("yyyy-MM-dd"), 8 a time
     * ("hh:mm:ss"), and the spin boxes of the other half are disabled; anything else, 0 in a new
     * keypad included, is date and time ("yyyy-MM-dd hh:mm:ss") and leaves the spin boxes enabled
     * as they were. setObject() keeps the format.
     *
     * It also limits the edit line to \a length characters until the next setObject(): pass 19 for
     * date and time, as a smaller number cuts off what is shown and written.
     */
    void setMaxLength(int length);

    /*!
     * Sets a validator on the edit line; null removes it. What the spin boxes compose is shown and
     * written whatever it says. Not owned: keep \a validator alive until it is replaced. It stays
     * set for later targets.
     */
    void setValidator(const QValidator *validator);

    /*! Masks the edit line when \a on; until the next setObject(). */
    void setPasswordEchoMode(bool on);

    /*!
     * Shows \a text and takes the spin boxes' values from it. Its length, not the chosen format,
     * tells what it is: 10 characters a date, 8 a time (of 1900-01-01), anything else date and
     * time. A text that is neither sets every spin box to its minimum; with Qt 4.8, which reads
     * dates up to 7999, so does a later one. As soon as a spin box changes, the composed value
     * takes the place of \a text.
     */
    void setText(const QString &text);

    /*!
     * Limits the day to those of \a month (1 to 12, any other has 31 days) in \a year; a day beyond
     * is clamped. Holds until a spin box changes.
     */
    void setSpinBoxDayRange(int year, int month);

    /*! The spin box that has the keyboard focus, or null. Owned by the keypad. */
    QSpinBox *focusSpinBox();

protected:
    void showEvent(QShowEvent *event) override;

private Q_SLOTS:
    void slot_toolButtonClicked();
    void slot_valueChanged(int);
    void slot_editingFinished();

private:
    enum { Year, Month, Day, Hour, Minute, Second, FieldCount, DigitCount = 10 };

    void setUpDisplay();
    void setUpFields();
    void setUpButtons();
    QToolButton *createButton(const char *label, int action);
    QLayout *displayAndDigits();
    QLayout *labelledFields();
    QLayout *commands();

    void focusEnabledField();
    QString composedText() const;
    void edit(QSpinBox *field, const QObject *button);
    void pressKey(QSpinBox *field, int key, const QString &text);
    bool isValid(const QSpinBox *field) const;

    static DateTimeKeypad *m_instance;

    QPointer<QObject> m_object;
    KeyBoardLineEdit *m_lineEdit;
    QSpinBox *m_fields[FieldCount];
    QToolButton *m_digitButtons[DigitCount];
    QToolButton *m_plusButton;
    QToolButton *m_minusButton;
    QToolButton *m_deleteButton;
    QToolButton *m_okButton;
    QToolButton *m_cancelButton;
    int m_formatLength;
};

#endif
