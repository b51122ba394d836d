// SPDX-License-Identifier: MIT
#ifndef NUMERICKEYPAD_H
#define NUMERICKEYPAD_H

#include "HMIDeviceExport.h"

#include <QDialog>
#include <QPointer>

class KeyBoardLineEdit;
class QLabel;
class QToolButton;
class QValidator;

/*!
 * The modal keypad for numbers: decimal with sign and decimal point, binary and hexadecimal.
 *
 * It edits a copy of a field's text and writes it into the field's "text" property when the
 * operator confirms. For each field call, in this order: instance(), setObject(), the adjustments
 * (setEditMode() to setLimitToolTip(), which setObject() resets in part), setText(), exec().
 * exec() returns QDialog::Accepted when the field was written, else QDialog::Rejected.
 *
 * At every show it covers the viewport of HMIDeviceInfo::graphicsView(). Without a view it does not
 * place itself: 320x240 pixels at first, and where Qt puts a dialog that nobody has moved. Return
 * and Enter confirm, Escape cancels.
 *
 * Confirming writes what stands in the edit line, whether or not a validator accepts it as
 * complete. Without a target it does nothing, and the keypad stays open.
 *
 * Call everything from the GUI thread.
 */
class HMIDEVICE_EXPORT NumericKeypad : public QDialog
{
    Q_OBJECT

public:
    /*!
     * The process's one numeric keypad, built by the first call as a child of
     * HMIDeviceInfo::graphicsView(), which may be null. The library never deletes it; if the
     * application deletes the view, the keypad is gone with it and must not be asked for again.
     */
    static NumericKeypad *instance();

    /*!
     * Builds a keypad in decimal mode, with \a flags and Qt::FramelessWindowHint; \a parent may be
     * null. Applications use instance().
     */
    NumericKeypad(QWidget *parent, Qt::WindowFlags flags);
    ~NumericKeypad() override;

    /*!
     * Binds the field to be edited: any object with a "text" property that can be written. Null is
     * ignored, and the previous target stays. Resets echo mode, maximum length (32767) and enables
     * every key; leaves the edit line's text, its validator and the limit line alone. Blocks the
     * signals of \a object meanwhile and leaves them unblocked. Does not own it; an object
     * destroyed later counts as no target. An object without the property gets a dynamic one, and
     * one whose property is read-only, such as a spin box, keeps its value; exec() says Accepted
     * all the same.
     */
    void setObject(QObject *object);

    /*!
     * Disables the keys that the number base \a mode (2, 10 or 16) does not have; any other value
     * is ignored. It never enables a key: call setObject() first, which enables all.
     */
    void setEditMode(int mode);

    /*! Enables or disables the "." key, until the next setObject(). */
    void setDecimalPointEnabled(bool enabled);

    /*!
     * The longest text, in characters (0 to 32767), that can be entered; until the next
     * setObject(). A longer text that is being edited is cut at once. The sign counts, and one put
     * in front of a text of that length cuts its last character off.
     */
    void setMaxLength(int length);

    /*!
     * Restricts what can be entered. Null removes the restriction. Not owned: keep \a validator
     * alive until it is replaced. It stays set for later targets. Enter confirms what the validator
     * calls intermediate as well, and the sign key asks no validator: look at the field after
     * exec() if its value must be right.
     */
    void setValidator(const QValidator *validator);

    /*! Masks what is entered when \a on; until the next setObject(). */
    void setPasswordEchoMode(bool on);

    /*!
     * Shows \a text above the edit line, such as the permitted range of the value. An empty text
     * hides the line, as in a new keypad. Survives setObject().
     */
    void setLimitToolTip(const QString &text);

    /*!
     * Replaces the text being edited and selects all of it, so that the first key replaces it. A
     * text beyond the maximum length is cut; a validator is not asked.
     */
    void setText(const QString &text);

Q_SIGNALS:
    /*!
     * On panel type 13, which is read at every key: the operator pressed hard key \a key (a Qt::Key
     * value), one of Up, Down, F1 to F5, F9 to F11, F13, F17, F18, F20, F25 to F27 and F32, which
     * belong to the application. The keypad has rejected itself by then, and exec() has not yet
     * returned.
     */
    void signal_kTypeKeyPressed(int key);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;

private Q_SLOTS:
    void slot_toolButton_clicked();

private:
    enum { KeyCount = 23 };

    static NumericKeypad *m_instance;

    QPointer<QObject> m_object;
    QLabel *m_tipLabel;
    KeyBoardLineEdit *m_lineEdit;
    QToolButton *m_keys[KeyCount]; // "A", "1", "2", "3", "ESC", row by row
};

#endif
