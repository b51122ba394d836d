// SPDX-License-Identifier: MIT
#include "TextEditField_p.h"

#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextEdit>

namespace Fields {

namespace {

int equalCharacters(const QString &text, const QString &other)
{
    const int longest = int(qMin(text.length(), other.length()));
    int count = 0;
    while (count < longest && text.at(count) == other.at(count))
        ++count;
    return count;
}

QString reversed(const QString &text)
{
    QString back;
    for (const QChar character : text)
        back.prepend(character);
    return back;
}

// Replaces only what differs, so that formats and pictures of the line stay.
void replaceLine(QTextCursor *cursor, const QString &text)
{
    const QString line = cursor->block().text();
    const int head = equalCharacters(line, text);
    const int tail = equalCharacters(reversed(line.mid(head)), reversed(text.mid(head)));
    const int start = cursor->block().position();
    cursor->setPosition(start + head);
    cursor->setPosition(start + int(line.length()) - tail, QTextCursor::KeepAnchor);
    cursor->insertText(text.mid(head, int(text.length()) - head - tail));
    cursor->movePosition(QTextCursor::EndOfBlock);
}

} // namespace

template <class Edit>
bool TextEditField<Edit>::isEditable() const
{
    return m_edit && m_edit->isEnabled() && !m_edit->isReadOnly();
}

template <class Edit>
FieldKeypads::Kind TextEditField<Edit>::kind() const
{
    return FieldKeypads::Character;
}

template <class Edit>
Entry TextEditField<Edit>::open(FieldKeypads::Kind)
{
    m_cursor = m_edit->textCursor();
    Entry entry;
    entry.text = m_cursor.block().text();
    return entry;
}

template <class Edit>
Outcome TextEditField<Edit>::write(const QString &text)
{
    if (text == m_cursor.block().text())
        return Written;
    replaceLine(&m_cursor, text);
    if (m_edit)
        m_edit->setTextCursor(m_cursor);
    return Written;
}

template class TextEditField<QTextEdit>;
template class TextEditField<QPlainTextEdit>;

} // namespace Fields
