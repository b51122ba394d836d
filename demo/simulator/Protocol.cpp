// SPDX-License-Identifier: MIT
#include "Protocol.h"

#include <QtEndian>

namespace Protocol {

namespace {

const int lengthBytes = 4;
const int pixelBytes = 4; // of QImage::Format_RGB32

} // namespace

QDataStream &operator<<(QDataStream &stream, const PanelSetup &setup)
{
    return stream << setup.type << setup.size << setup.rotation << setup.language
                  << int(setup.style) << setup.frame;
}

QDataStream &operator>>(QDataStream &stream, PanelSetup &setup)
{
    int style = 0;
    stream >> setup.type >> setup.size >> setup.rotation >> setup.language >> style >> setup.frame;
    setup.style = Style(style);
    return stream;
}

QDataStream &operator<<(QDataStream &stream, const PanelState &state)
{
    return stream << state.page << state.message << state.texts;
}

QDataStream &operator>>(QDataStream &stream, PanelState &state)
{
    return stream >> state.page >> state.message >> state.texts;
}

QDataStream &operator<<(QDataStream &stream, const MouseInput &input)
{
    return stream << int(input.type) << input.place << input.button << input.buttons;
}

QDataStream &operator>>(QDataStream &stream, MouseInput &input)
{
    int type = 0;
    stream >> type >> input.place >> input.button >> input.buttons;
    input.type = QEvent::Type(type);
    return stream;
}

QDataStream &operator<<(QDataStream &stream, const KeyInput &input)
{
    return stream << int(input.type) << input.key << input.modifiers << input.text;
}

QDataStream &operator>>(QDataStream &stream, KeyInput &input)
{
    int type = 0;
    stream >> type >> input.key >> input.modifiers >> input.text;
    input.type = QEvent::Type(type);
    return stream;
}

// Rows as they are: QImage's own operator would compress them, for many times the time.

QDataStream &operator<<(QDataStream &stream, const PicturePart &part)
{
    stream << part.screen << part.place;
    for (int y = 0; y < part.place.height(); ++y)
        stream.writeRawData(reinterpret_cast<const char *>(part.part.constScanLine(y)),
                            part.place.width() * pixelBytes);
    return stream;
}

QDataStream &operator>>(QDataStream &stream, PicturePart &part)
{
    stream >> part.screen >> part.place;
    part.part = QImage(part.place.size(), QImage::Format_RGB32);
    for (int y = 0; y < part.place.height(); ++y)
        stream.readRawData(reinterpret_cast<char *>(part.part.scanLine(y)),
                           part.place.width() * pixelBytes);
    return stream;
}

QByteArray withLength(const QByteArray &content)
{
    QByteArray length(lengthBytes, '\0');
    qToBigEndian<quint32>(quint32(content.size()), length.data());
    return length + content;
}

bool Inbox::take(QByteArray *content)
{
    if (m_bytes.size() < lengthBytes)
        return false;
    const int length = int(qFromBigEndian<quint32>(m_bytes.constData()));
    if (m_bytes.size() < lengthBytes + length)
        return false;
    *content = m_bytes.mid(lengthBytes, length);
    m_bytes.remove(0, lengthBytes + length);
    return true;
}

Kind readKind(QDataStream *stream)
{
    quint8 kind = 0;
    *stream >> kind;
    return Kind(kind);
}

} // namespace Protocol
