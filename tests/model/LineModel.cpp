// SPDX-License-Identifier: MIT
#include "LineModel.h"

#include <QValidator>

namespace {

QString firstOf(const QString &text, int count)
{
    return count < 0 ? text : text.left(count);
}

// Control characters are shown as blanks.
bool isBlank(QChar character)
{
    return character.isSpace() || character < QLatin1Char(' ');
}

bool separatesWords(QChar character)
{
    return QString::fromLatin1(".,?!@#$:;-<>[](){}=/+%&^*'\"`~|\\").contains(character);
}

} // namespace

LineModel::LineModel()
    : m_validator(nullptr)
    , m_longest(32767)
    , m_hidden(false)
    , m_isRight(true)
    , m_cursor(0)
    , m_selectionStart(0)
    , m_selectionEnd(0)
{
}

QString LineModel::selectedText() const
{
    return m_text.mid(m_selectionStart, m_selectionEnd - m_selectionStart);
}

void LineModel::setMaxLength(int length)
{
    m_longest = length;
    setText(m_text);
}

void LineModel::setValidator(const QValidator *validator)
{
    m_validator = validator;
}

void LineModel::setHidden(bool hidden)
{
    m_hidden = hidden;
}

void LineModel::setText(const QString &text)
{
    become(text, -1);
}

// As any edit, this may be refused.
void LineModel::clear()
{
    const Content before = content();
    m_selectionStart = 0;
    m_selectionEnd = int(m_text.size());
    if (!hasSelection())
        return;
    removeSelection();
    checkAgainst(before, false);
}

void LineModel::selectAll()
{
    select(0, int(m_text.size()));
}

void LineModel::select(int start, int length)
{
    m_selectionStart = qMin(start, start + length);
    m_selectionEnd = qMax(start, start + length);
    m_cursor = start + length;
}

// Where there is no such place the cursor stays, and with it a selection.
void LineModel::setCursor(int position)
{
    if (position <= m_text.size())
        moveCursor(qMax(0, position), false);
}

void LineModel::moveCursor(int position, bool selecting)
{
    int fixedEnd = position;
    if (selecting) {
        fixedEnd = m_cursor;
        if (hasSelection())
            fixedEnd = m_cursor == m_selectionStart ? m_selectionEnd : m_selectionStart;
    }
    m_selectionStart = qMin(fixedEnd, position);
    m_selectionEnd = qMax(fixedEnd, position);
    m_cursor = position;
}

void LineModel::insert(const QString &text)
{
    const Content before = content();
    const bool removed = hasSelection();
    removeSelection();
    const int room = m_longest - int(m_text.size());
    const QString fitting = firstOf(text, room);
    m_text.insert(m_cursor, fitting);
    m_cursor += int(fitting.size());
    if (removed || room != 0)
        checkAgainst(before, !fitting.isEmpty());
}

void LineModel::selectWordAt(int position)
{
    const int start = wordBefore(qMin(position + 1, int(m_text.size())));
    int end = wordAfter(start);
    while (end > position && m_text.at(end - 1).isSpace())
        --end;
    moveCursor(start, false);
    moveCursor(end, true);
}

void LineModel::backspace()
{
    if (!hasSelection() && m_cursor == 0)
        return;
    const Content before = content();
    if (!hasSelection())
        moveCursor(m_cursor - 1, true);
    removeSelection();
    checkAgainst(before, false);
}

void LineModel::erase()
{
    if (!hasSelection() && m_cursor == m_text.size())
        return;
    const Content before = content();
    if (!hasSelection())
        moveCursor(m_cursor + 1, true);
    removeSelection();
    checkAgainst(before, false);
}

void LineModel::toggleSign()
{
    const bool wasSelected = hasSelection();
    const int cursor = m_cursor;
    const bool negative = m_text.startsWith(QLatin1Char('-'));
    QString toggled;
    for (int i = 0; i < m_text.size(); ++i) {
        if (!negative || m_text.at(i) != QLatin1Char('-'))
            toggled += m_text.at(i);
    }
    setText(negative ? toggled : QLatin1Char('-') + toggled);
    setCursor(negative ? cursor - 1 : cursor + 1);
    if (wasSelected)
        selectAll();
}

bool LineModel::press(const HardKey &key)
{
    const bool shift = (key.modifiers & Qt::ShiftModifier) != 0;
    const bool other = (key.modifiers & (Qt::AltModifier | Qt::MetaModifier)) != 0;
    if (key.modifiers & Qt::ControlModifier)
        return pressWithControl(key, shift);
    switch (other ? 0 : key.code) {
    case Qt::Key_Left:
        moveCursor(qMax(0, m_cursor - 1), shift);
        return true;
    case Qt::Key_Right:
        moveCursor(qMin(int(m_text.size()), m_cursor + 1), shift);
        return true;
    case Qt::Key_Home:
        moveCursor(0, shift);
        return true;
    case Qt::Key_End:
        moveCursor(int(m_text.size()), shift);
        return true;
    case Qt::Key_Backspace:
        backspace();
        return true;
    case Qt::Key_Delete:
        erase();
        return true;
    default:
        break;
    }
    if (key.text.isEmpty() || !key.text.at(0).isPrint())
        return false;
    insert(key.text);
    return true;
}

bool LineModel::pressWithControl(const HardKey &key, bool shift)
{
    if (key.code == Qt::Key_Up || key.code == Qt::Key_Down)
        return true; // for texts to choose from, of which a keypad has none
    if (key.modifiers & (Qt::AltModifier | Qt::MetaModifier))
        return false;
    switch (key.code) {
    case Qt::Key_A:
        selectAll();
        return true;
    case Qt::Key_Left:
        moveCursor(wordBefore(m_cursor), shift);
        return true;
    case Qt::Key_Right:
        moveCursor(wordAfter(m_cursor), shift);
        return true;
    case Qt::Key_Backspace:
        moveCursor(wordBefore(m_cursor), true);
        if (shift)
            erase();
        else
            backspace();
        return true;
    case Qt::Key_Delete:
        moveCursor(wordAfter(m_cursor), true);
        erase();
        return true;
    default:
        return false;
    }
}

LineModel::Content LineModel::content() const
{
    return { m_text, m_cursor, m_selectionStart, m_selectionEnd };
}

// Nobody refuses a text that is set whole, but a validator may write it otherwise.
void LineModel::become(const QString &text, int cursor)
{
    const QString before = m_text;
    m_text = firstOf(text, m_longest);
    m_cursor = cursor < 0 || cursor > m_text.size() ? int(m_text.size()) : cursor;
    m_selectionStart = m_selectionEnd = 0;
    if (m_text == before || !m_validator) {
        m_isRight = m_isRight || m_text != before;
        return;
    }
    QString rewritten = m_text;
    int place = m_cursor;
    m_isRight = m_validator->validate(rewritten, place) != QValidator::Invalid;
    if (m_isRight && rewritten != m_text)
        become(rewritten, place);
    else if (m_isRight)
        m_cursor = place;
}

void LineModel::takeBack(const Content &before)
{
    m_text = before.text;
    m_cursor = before.cursor;
    m_selectionStart = before.selectionStart;
    m_selectionEnd = before.selectionEnd;
}

// An edit that makes a right text wrong is taken back, but in a password: there Qt undoes only what
// was inserted.
void LineModel::checkAgainst(const Content &before, bool inserted)
{
    const bool wasRight = m_isRight;
    m_isRight = true;
    if (!m_validator)
        return;
    QString rewritten = m_text;
    int place = m_cursor;
    m_isRight = m_validator->validate(rewritten, place) != QValidator::Invalid;
    if (m_isRight && rewritten != m_text) {
        become(rewritten, place);
    } else if (m_isRight) {
        m_cursor = place;
    } else if (wasRight) {
        m_isRight = true;
        if (!m_hidden || inserted)
            takeBack(before);
    }
}

void LineModel::removeSelection()
{
    if (!hasSelection())
        return;
    m_text.remove(m_selectionStart, m_selectionEnd - m_selectionStart);
    m_cursor = m_selectionStart;
    m_selectionStart = m_selectionEnd = 0;
}

// A hidden text is one word.
int LineModel::wordBefore(int position) const
{
    if (m_hidden)
        return 0;
    while (position > 0 && isBlank(m_text.at(position - 1)))
        --position;
    if (position > 0 && separatesWords(m_text.at(position - 1))) {
        while (position > 0 && separatesWords(m_text.at(position - 1)))
            --position;
        return position;
    }
    while (position > 0 && !isBlank(m_text.at(position - 1))
           && !separatesWords(m_text.at(position - 1)))
        --position;
    return position;
}

int LineModel::wordAfter(int position) const
{
    const int end = int(m_text.size());
    if (m_hidden)
        return end;
    if (position < end && separatesWords(m_text.at(position))) {
        while (position < end && separatesWords(m_text.at(position)))
            ++position;
    } else {
        while (position < end && !isBlank(m_text.at(position))
               && !separatesWords(m_text.at(position)))
            ++position;
    }
    while (position < end && isBlank(m_text.at(position)))
        ++position;
    return position;
}
