// SPDX-License-Identifier: MIT
#ifndef KEYPADMODEL_H
#define KEYPADMODEL_H

#include "LineModel.h"

#include <QRect>
#include <QStringList>
#include <QVector>

// What can be seen of a keypad and of what it edits, of the model as of the keypad.
struct Seen
{
    QString text, selectedText;
    int cursor;
    int maxLength;
    bool hidden;         // as a password
    QStringList keys;    // labels, in brackets where hidden, with a stroke in front where disabled
    QString tip;         // of the line for limits, and whether it is shown
    QStringList parts;   // what only this kind of keypad has
    QStringList targets; // of each, text, how often it was written, and whether signals are blocked
    bool open;
    int result;
    int focus;   // the place of what has the keyboard, or -1 while the keypad is closed
    QRect place; // null where no rule tells it
    bool resizable;
    QStringList happenings; // since the last time

    QStringList lines() const;
};

// What a target makes of a text that it is given.
enum WhenWritten { TakeIt, RefuseIt, PutItInCapitals, TakeItUncounted };

struct TargetModel
{
    QString text;
    int maxLength;
    bool blocked; // its signals
    bool isWidget;
    bool isDateTimeField;
    WhenWritten whenWritten;
    int timesWritten;

    void write(const QString &newText);
    QString seen() const;
};

// What can be seen of a key and of a target, of the model's as of the keypad's.
QString seenKey(const QString &label, bool enabled, bool shown);
QString seenTarget(const QString &text, int timesWritten, bool blocked);

// Where the registered view lies, and a target, in global coordinates.
struct ViewPlace
{
    bool registered;
    QPoint viewportOrigin;  // where the viewport's own (0, 0) is
    QRect viewportGeometry; // in the view
};

struct TargetPlace
{
    bool hasParent;
    QPoint origin;
    QRect geometry;
};

// What is around all keypads.
struct World
{
    int deviceType;
    QVector<TargetModel> targets;
};

// What all keypads have in common. A target is its index among the world's, or noTarget.
class KeypadModel
{
public:
    enum { noTarget = -1 };

    explicit KeypadModel(World *world);
    virtual ~KeypadModel();

    // The application
    virtual void setObject(int target);
    virtual void setText(const QString &text);
    virtual void setMaxLength(int length);
    virtual void setEditMode(int mode);
    virtual void setDecimalPointEnabled(bool enabled);
    virtual void setLimitToolTip(const QString &text);
    void setValidator(const QValidator *validator);
    void setPasswordEchoMode(bool on);
    void targetIsGone(int target);

    // Without a view it stays where it is.
    virtual void open(const ViewPlace &view, const TargetPlace &target);
    void closeWith(int result);
    virtual void lostTheKeyboard(); // after it was closed

    // The operator
    void tap(int key);
    void press(const HardKey &key);
    void touchField(int field);
    virtual void pointAt(int position, bool selecting); // in the edit line
    virtual void pointTwiceAt(int position);
    virtual void pointIntoField(int field, int position);
    void commit(const QString &text); // by an input method

    bool isOpen() const { return m_open; }
    int target() const { return m_target; }
    QRect place() const { return m_place; } // null where no rule tells it
    virtual Seen seen();

    // A key that is likely to lead somewhere; which one, \a choice decides.
    virtual int likelyKey(int choice) const;

protected:
    struct Key
    {
        QString label;
        bool enabled;
        bool shown;
    };

    virtual void act(int key) = 0;

    // What has the keyboard: what is edited, of which there is one or more, then the keys.
    virtual int fieldCount() const { return 1; }
    virtual bool isFieldEnabled(int) const { return true; }
    virtual bool pressInField(const HardKey &key); // false: the key is none of the field's
    virtual void commitInField(const QString &text);
    virtual void fieldGotKeyboard();
    virtual void fieldLostKeyboard();
    virtual void pressElsewhere(const HardKey &key);
    void moveFocus(int step);
    void setFocus(int place);
    int focus() const { return m_focus; }
    void setKeyEnabled(int key, bool enabled);

    virtual void confirm();
    virtual void tellKey(int code);
    void cancel();
    void addKey(const QString &label);
    World *world() const { return m_world; }
    void lieAt(const QRect &rect, bool resizable);

    LineModel m_line;
    QVector<Key> m_keys;
    QString m_tip;
    bool m_tipShown;

private:
    World *m_world;
    int m_target;
    bool m_open;
    int m_result;
    int m_focus;
    QRect m_place;
    bool m_resizable;
    QStringList m_happenings, m_finished;
};

// Where a keypad lies that covers the view.
QRect rectOfView(const ViewPlace &view);

#endif
