// SPDX-License-Identifier: MIT
#include "EditLineModel.h"

#include <QLineEdit>

namespace {

bool anyText(const QString &)
{
    return true;
}

QString described(const QString &text, int cursor, const QString &selectedText)
{
    return QString::fromLatin1("\"%1\" at %2, selected \"%3\"")
        .arg(text, QString::number(cursor), selectedText);
}

} // namespace

EditLineModel::EditLineModel()
    : m_isRight(anyText)
    , m_longest(32767)
    , m_cursor(0)
    , m_selectionStart(0)
    , m_selectionLength(0)
{
}

void EditLineModel::setMaxLength(int length)
{
    m_longest = length;
    m_text = m_text.left(length);
    select(int(m_text.size()), 0);
}

void EditLineModel::setRule(const std::function<bool(const QString &)> &isRight)
{
    m_isRight = isRight;
}

void EditLineModel::show(const QString &text)
{
    m_text = text.left(m_longest);
    select(0, int(m_text.size()));
}

void EditLineModel::select(int start, int length)
{
    m_selectionStart = start;
    m_selectionLength = length;
    m_cursor = start + length;
}

void EditLineModel::insert(const QString &text)
{
    const int at = m_selectionLength > 0 ? m_selectionStart : m_cursor;
    QString left = m_text;
    left.remove(m_selectionStart, m_selectionLength);
    const QString fitting = text.left(qMax(0, m_longest - int(left.size())));
    become(left.insert(at, fitting), at + int(fitting.size()));
}

void EditLineModel::erase()
{
    if (m_selectionLength > 0)
        insert(QString());
    else if (m_cursor > 0)
        become(m_text.left(m_cursor - 1) + m_text.mid(m_cursor), m_cursor - 1);
}

void EditLineModel::moveLeft()
{
    select(qMax(0, m_cursor - 1), 0);
}

void EditLineModel::moveRight()
{
    if (m_cursor < m_text.size()) // else there is nowhere to go, and a selection stays
        select(m_cursor + 1, 0);
}

// Passes by the rule, and cuts what does not fit.
void EditLineModel::toggleSign()
{
    const bool negative = m_text.left(1) == QLatin1String("-");
    const bool wasSelected = m_selectionLength > 0;
    const int cursor = m_cursor + (negative ? -1 : 1);
    QString toggled = QLatin1String(negative ? "" : "-");
    for (int i = 0; i < m_text.size(); ++i) {
        if (!negative || m_text.at(i) != QLatin1Char('-'))
            toggled += m_text.at(i);
    }
    show(toggled);
    if (!wasSelected)
        select(qBound(0, cursor, int(m_text.size())), 0);
}

void EditLineModel::become(const QString &text, int cursor)
{
    if (m_isRight(m_text) && !m_isRight(text))
        return;
    m_text = text;
    select(cursor, 0);
}

QString described(const EditLineModel &model)
{
    return described(model.text(), model.cursor(), model.selectedText());
}

QString described(const QLineEdit *line)
{
    return described(line->text(), line->cursorPosition(), line->selectedText());
}
