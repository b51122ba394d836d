// SPDX-License-Identifier: MIT
#include "NumberFieldModel.h"

NumberFieldModel::Range::Range(int least, int most)
    : QValidator(nullptr)
    , minimum(least)
    , maximum(most)
{
}

// Blanks around a number are dropped. None of the ranges has numbers below zero.
QValidator::State NumberFieldModel::Range::validate(QString &input, int &cursor) const
{
    const QString trimmed = input.trimmed();
    cursor -= int(input.size() - trimmed.size());
    input = trimmed;
    if (input.isEmpty() || input == QLatin1String("+"))
        return Intermediate;
    if (input.startsWith(QLatin1Char('-')))
        return Invalid;
    bool isNumber = false;
    const int number = input.toInt(&isNumber);
    if (!isNumber || number > maximum)
        return Invalid;
    return number >= minimum ? Acceptable : Intermediate;
}

NumberFieldModel::NumberFieldModel(Listener *listener, int minimum, int maximum)
    : m_listener(listener)
    , m_range(minimum, maximum)
    , m_number(minimum)
    , m_enabled(true)
    , m_marked(false)
    , m_pending(false)
{
    m_line.setText(QString::number(minimum));
    m_line.setCursor(0);
    m_line.setValidator(&m_range);
}

void NumberFieldModel::setNumber(int number)
{
    become(number, WhenChanged, true);
}

void NumberFieldModel::setRange(int minimum, int maximum)
{
    m_range.minimum = minimum;
    m_range.maximum = maximum;
    const int bounded = qBound(minimum, m_number, maximum);
    if (bounded != m_number)
        setNumber(bounded);
}

void NumberFieldModel::step(int count)
{
    const int before = m_number;
    Telling telling = WhenChanged;
    bool stays = false;
    if (m_pending) {
        QString text = m_line.text();
        int cursor = m_line.cursor();
        stays = m_range.validate(text, cursor) != QValidator::Acceptable;
        interpret(Never);
        if (m_number != before)
            telling = Always;
    }
    if (!stays)
        become(m_number + count, telling, true);
    else if (telling == Always)
        m_listener->numberChanged();
    selectAll();
}

bool NumberFieldModel::press(const HardKey &key)
{
    switch (key.code) {
    case Qt::Key_Up:
        pressStep(key, 1);
        return true;
    case Qt::Key_Down:
        pressStep(key, -1);
        return true;
    case Qt::Key_PageUp:
        pressStep(HardKey { key.code, key.text, 0 }, 10);
        return true;
    case Qt::Key_PageDown:
        pressStep(HardKey { key.code, key.text, 0 }, -10);
        return true;
    case Qt::Key_A:
        if (!(key.modifiers & Qt::ControlModifier))
            break;
        selectAll();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        interpret(Always);
        selectAll();
        m_listener->editingFinished(this);
        return false;
    case Qt::Key_Home:
    case Qt::Key_End:
        if (pressEnd(key))
            return true;
        break;
    default:
        break;
    }
    const QString before = m_line.text();
    const bool taken = m_line.press(key);
    if (m_line.text() != before)
        textChanged();
    return taken;
}

void NumberFieldModel::commit(const QString &text)
{
    const QString before = m_line.text();
    m_line.insert(text);
    if (m_line.text() != before)
        textChanged();
}

void NumberFieldModel::selectAll()
{
    const int size = int(m_line.text().size());
    m_line.select(size, -size);
}

void NumberFieldModel::leave(bool toOtherField)
{
    if (m_pending)
        interpret(WhenChanged);
    if (toOtherField)
        deselect();
    showNumber();
    m_listener->editingFinished(this);
}

QString NumberFieldModel::seen() const
{
    return QString::fromLatin1("%1-%2 %3 \"%4\" at %5, selected \"%6\"%7%8")
        .arg(m_range.minimum)
        .arg(m_range.maximum)
        .arg(m_number)
        .arg(m_line.text())
        .arg(m_line.cursor())
        .arg(m_line.selectedText(), QLatin1String(m_enabled ? "" : " disabled"),
             QLatin1String(m_marked ? " orange" : ""));
}

void NumberFieldModel::become(int number, Telling telling, bool showIt)
{
    const int before = m_number;
    m_number = qBound(m_range.minimum, number, m_range.maximum);
    m_pending = false;
    if (showIt)
        showNumber();
    if (telling == Always || (telling == WhenChanged && m_number != before))
        m_listener->numberChanged();
}

// The cursor keeps its place, and a selection its length.
void NumberFieldModel::showNumber()
{
    const QString text = QString::number(m_number);
    if (text == m_line.text())
        return;
    const bool wasEmpty = m_line.text().isEmpty();
    const int selected = int(m_line.selectedText().size());
    const int cursor = qMin(m_line.cursor(), int(text.size()));
    m_line.setText(text);
    if (selected > 0)
        m_line.select(cursor, qMin(selected, int(text.size()) - cursor));
    else
        m_line.setCursor(wasEmpty ? 0 : cursor);
}

// Every text that is a number of the range is one at once.
void NumberFieldModel::textChanged()
{
    QString text = m_line.text();
    int cursor = m_line.cursor();
    if (m_range.validate(text, cursor) == QValidator::Acceptable)
        become(text.toInt(), WhenChanged, text != m_line.text());
    else
        m_pending = true;
}

void NumberFieldModel::interpret(Telling telling)
{
    QString text = m_line.text();
    int cursor = m_line.cursor();
    const bool isNumber = m_range.validate(text, cursor) == QValidator::Acceptable;
    become(isNumber ? text.toInt() : m_number, telling, true);
}

// At the end of the range nothing happens.
void NumberFieldModel::pressStep(const HardKey &key, int count)
{
    const bool atEnd = count > 0 ? m_number >= m_range.maximum : m_number <= m_range.minimum;
    if (!atEnd)
        step(key.modifiers & Qt::ControlModifier ? 10 * count : count);
}

// Shift selects from the cursor on, whatever was selected before.
bool NumberFieldModel::pressEnd(const HardKey &key)
{
    const int others = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    const bool shift = (key.modifiers & Qt::ShiftModifier) != 0;
    if (!shift && (key.modifiers & others))
        return false;
    const bool home = key.code == Qt::Key_Home;
    const int end = home ? 0 : int(m_line.text().size());
    if (!shift)
        m_line.setCursor(end);
    else if (m_line.cursor() == end)
        return false;
    else
        m_line.select(m_line.cursor(), end - m_line.cursor());
    return true;
}
