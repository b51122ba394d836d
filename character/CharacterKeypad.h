// SPDX-License-Identifier: MIT
#ifndef CHARACTERKEYPAD_H
#define CHARACTERKEYPAD_H

#include "HMIDeviceExport.h"

#include <QDialog>
#include <QList>
#include <QPointer>
#include <QStringList>

class ChnPanel;
class KeyBoardLineEdit;
class NumPanel;
class QSignalMapper;
class QSqlTableModel;
class QToolButton;
class QValidator;

/*!
 * The modal keypad for free text: English lower case and capitals, special symbols, and Chinese by
 * pinyin.
 *
 * It edits a copy of a field's text and writes it into the field's "text" property when the
 * operator confirms. For each field call, in this order: instance(), setObject(), the adjustments
 * (setMaxLength(), setValidator(), setPasswordEchoMode(), which setObject() resets in part),
 * setText(), exec(). exec() returns QDialog::Accepted when the field was written, else
 * QDialog::Rejected. The keypad opens with the key set that it was left with.
 *
 * At every show it covers the viewport of HMIDeviceInfo::graphicsView(); without a view it does not
 * place itself. Return and Enter confirm, Escape cancels.
 *
 * Confirming writes what stands in the edit line, whether or not a validator accepts it as
 * complete. Without a target it does nothing, and the keypad stays open.
 *
 * Chinese candidates come from the SQLite file "data.db" in the application's directory: table
 * "pinyin", first column "py" (a pinyin of at most 11 lower-case letters, ü as v), second column
 * one candidate, rows in ranking order. Give it an index on "py", or every letter reads the whole
 * table; at most 256 rows of a pinyin are seen. The file is opened when the keypad is built, under
 * the connection name "pinyin", and queried once for each letter typed, or taken back while others
 * are left, and once more where that fails; without it there are no candidates, nor where only a
 * part of them can be read, and one that appears later is not looked for. The keypad writes nothing
 * into it, but an application may, through that connection, so that words can be learned.
 *
 * While another process has the file locked for writing, a letter has no candidates; nothing waits,
 * and the next letter asks again. In return the keypad may keep the file locked for reading from
 * one letter to the next: replace a file in use by renaming another over it. A program that runs
 * goes on with the former one.
 *
 * Call everything from the GUI thread.
 */
class HMIDEVICE_EXPORT CharacterKeypad : public QDialog
{
    Q_OBJECT

public:
    /*!
     * The process's one character keypad, built by the first call as a child of
     * HMIDeviceInfo::graphicsView(), which may be null. The library never deletes it; if the
     * application deletes the view, the keypad is gone with it and must not be asked for again.
     */
    static CharacterKeypad *instance();

    /*!
     * Builds a keypad in English lower case, with \a flags and Qt::FramelessWindowHint; \a parent
     * may be null. Applications use instance(): of two at a time, the second takes the dictionary's
     * connection from the first.
     */
    CharacterKeypad(QWidget *parent, Qt::WindowFlags flags);

    /*! Closes the dictionary and removes its connection. */
    ~CharacterKeypad() override;

    /*!
     * Binds the field to be edited: any object with a "text" property that can be written. Null is
     * ignored, and the previous target stays. Resets echo mode and maximum length (32767); leaves
     * the edit line's text, its validator and the key set alone. Blocks the signals of \a object
     * meanwhile and leaves them unblocked. Does not own it; an object destroyed later counts as no
     * target. An object without the property gets a dynamic one, and one whose property is
     * read-only, such as a spin box, keeps its value; exec() says Accepted all the same.
     *
     * When \a object is of a class "DateTimeField", or derived from one, and a validator is set,
     * "Del" without a selection cuts the character before the cursor even where the validator would
     * refuse it, and the last one when the cursor is at the beginning.
     */
    void setObject(QObject *object);

    /*!
     * The longest text, in characters (0 to 32767), that can be entered; until the next
     * setObject(). A longer text that is being edited is cut at once.
     */
    void setMaxLength(int length);

    /*!
     * Restricts what can be entered. Null removes the restriction. Not owned: keep \a validator
     * alive until it is replaced. It stays set for later targets. Enter confirms what the validator
     * calls intermediate as well: look at the field after exec() if its value must be right.
     */
    void setValidator(const QValidator *validator);

    /*! Masks what is entered when \a on; until the next setObject(). */
    void setPasswordEchoMode(bool on);

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
    void sendContent(const QString &text);

private:
    enum {
        LetterCount = 26,
        ModeKey = LetterCount,
        SpaceKey,
        EnterKey,
        EscKey,
        DelKey,
        LanguageKey,
        SymbolKey,
        CommaKey,
        PeriodKey,
        KeyCount
    };
    enum Mode { EnglishMode, SymbolMode, ChineseMode };

    void drawWindow();
    void setUpMapper();
    void setUpConnect();
    QList<QWidget *> mappedKeys();

    void setUpEnglish();
    void setUpEnglishCaps();
    void setUpSpecialSymbols();
    void setUpChanese();
    void labelLetters(const QString &letters, const char *modeLabel, const char *languageLabel);
    void setModes(Mode last, Mode current);

    void sendEnContent(const QString &text);
    void sendSpecialSymbols(const QString &text);
    void sendChnContent(const QString &text);
    void editText(const QString &key);
    void deleteCharacter();
    bool targetIsDateTimeField() const;

    void openDb();
    QString pinyin() const;
    void compose(const QString &pinyin);
    void clearComposition();

    static CharacterKeypad *m_instance;

    QPointer<QObject> m_object;
    KeyBoardLineEdit *m_lineEdit;
    ChnPanel *m_chnPanel;
    NumPanel *m_numPanel;
    QToolButton *m_keys[KeyCount]; // the letters "q" to "m", row by row, then the others
    QSignalMapper *m_signalMapper;
    QStringList m_candidates;
    QSqlTableModel *m_dictionary;
    Mode m_mode;
    Mode m_lastMode; // the mode that symbols return to; SymbolMode when they have returned
};

#endif
