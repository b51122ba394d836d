// SPDX-License-Identifier: MIT
#ifndef PROTOCOL_H
#define PROTOCOL_H

#include "PanelSetup.h"
#include "PanelState.h"

#include <QByteArray>
#include <QDataStream>
#include <QEvent>
#include <QIODevice>
#include <QImage>
#include <QPoint>
#include <QRect>

#include <initializer_list>

// What the simulator and its panel process say to each other through the latter's standard input
// and output. A message is its length in four bytes, the highest first, and as many bytes: its
// kind, and what the kind has, as QDataStream writes it. Both are the same program of the same
// version.
namespace Protocol {

// The argument that makes a panel process of the program.
const char panelArgument[] = "--remote-panel";

enum class Kind : quint8 {
    // Said by the simulator
    Begin, // PanelSetup, PanelState: first and once
    Mouse, // MouseInput
    Key,   // KeyInput
    // Said by the panel process
    Picture, // PicturePart: what has changed on the screen; all of it at first
    State,   // PanelState: it has changed
    Keypad,  // bool: whether a keypad is open has changed
    Line     // QString: what a keypad did, as KeypadWatch tells it
};

struct MouseInput
{
    QEvent::Type type; // MouseButtonPress, MouseButtonRelease, MouseButtonDblClick or MouseMove
    QPoint place;      // on the screen
    int button;        // a Qt::MouseButton
    int buttons;       // Qt::MouseButtons that are down afterwards
};

struct KeyInput
{
    QEvent::Type type; // KeyPress or KeyRelease
    int key;           // a Qt::Key
    int modifiers;     // Qt::KeyboardModifiers
    QString text;
};

struct PicturePart
{
    QSize screen; // the size of the whole
    QRect place;  // of the part
    QImage part;  // Format_RGB32
};

QDataStream &operator<<(QDataStream &stream, const PanelSetup &setup);
QDataStream &operator>>(QDataStream &stream, PanelSetup &setup);
QDataStream &operator<<(QDataStream &stream, const PanelState &state);
QDataStream &operator>>(QDataStream &stream, PanelState &state);
QDataStream &operator<<(QDataStream &stream, const MouseInput &input);
QDataStream &operator>>(QDataStream &stream, MouseInput &input);
QDataStream &operator<<(QDataStream &stream, const KeyInput &input);
QDataStream &operator>>(QDataStream &stream, KeyInput &input);
QDataStream &operator<<(QDataStream &stream, const PicturePart &part);
QDataStream &operator>>(QDataStream &stream, PicturePart &part);

QByteArray withLength(const QByteArray &content);

template <class... Parts>
QByteArray message(Kind kind, const Parts &...parts)
{
    QByteArray content;
    QDataStream stream(&content, QIODevice::WriteOnly);
    stream << quint8(kind);
    (void)std::initializer_list<int> { (stream << parts, 0)... };
    return withLength(content);
}

// Puts together what arrives in pieces.
class Inbox
{
public:
    void append(const QByteArray &bytes) { m_bytes += bytes; }

    // Takes the next message, without its length, if all of it is there.
    bool take(QByteArray *content);

private:
    QByteArray m_bytes;
};

// Reads the kind, the first thing in a message's content.
Kind readKind(QDataStream *stream);

} // namespace Protocol

#endif
