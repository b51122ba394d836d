// SPDX-License-Identifier: MIT
#include "CellField_p.h"

#include "DateTimeText_p.h"
#include "NumberText_p.h"
#include "NumberValue_p.h"
#include "QtDifferences_p.h"

#include <QAbstractItemView>
#include <QDoubleSpinBox>
#include <QItemDelegate>
#include <QMetaType>
#include <QStyledItemDelegate>

#include <limits>
#include <typeinfo>

namespace Fields {

namespace {

template <class Delegate>
bool isPlain(const QAbstractItemDelegate *delegate)
{
    return typeid(*delegate) == typeid(Delegate)
        && !static_cast<const Delegate *>(delegate)->itemEditorFactory();
}

// Whether \a delegate is Qt's own, which knows no more of a cell than the type of its data.
bool isQtsOwn(const QAbstractItemDelegate *delegate)
{
    return isPlain<QStyledItemDelegate>(delegate) || isPlain<QItemDelegate>(delegate);
}

// Qt's editor of fractions has no limits, but rounds to two decimals.
bool isQtsEditorOfFractions(const QWidget *editor)
{
    const QDoubleSpinBox *box = qobject_cast<const QDoubleSpinBox *>(editor);
    return box && box->maximum() == std::numeric_limits<double>::max()
        && box->minimum() == -box->maximum();
}

bool isText(const QVariant &data)
{
    return !data.isValid() || data.userType() == QMetaType::QString;
}

// The length of \a data as DateTimeKeypad shows it, 0 when it is neither date nor time.
int dateTimeLength(const QVariant &data)
{
    switch (data.userType()) {
    case QMetaType::QDate:
        return DateLength;
    case QMetaType::QTime:
        return TimeLength;
    case QMetaType::QDateTime:
        return DateTimeLength;
    default:
        return 0;
    }
}

QDateTime dateTimeOf(const QVariant &data)
{
    const int length = dateTimeLength(data);
    if (length == DateLength)
        return QDateTime(data.toDate(), QTime(0, 0));
    return length == TimeLength ? QDateTime(QDate(2000, 1, 1), data.toTime()) : data.toDateTime();
}

QVariant dateTimeLike(const QVariant &data, const QString &text)
{
    const QDateTime value = withText(dateTimeOf(data), text);
    if (!value.isValid())
        return QVariant();
    const int length = dateTimeLength(data);
    if (length == DateLength)
        return value.date();
    return length == TimeLength ? QVariant(value.time()) : QVariant(value);
}

} // namespace

CellField::CellField(QAbstractItemView *view, const QModelIndex &index)
    : m_view(view)
    , m_index(index)
    , m_kind(FieldKeypads::NoKeypad)
    , m_byData(true)
{
    if (index.isValid() && !isQtsOwn(delegate()))
        createEditor();
}

CellField::~CellField()
{
    m_inEditor.reset();
    if (m_editor && m_view)
        delegate()->destroyEditor(m_editor, m_index);
}

bool CellField::isEditable() const
{
    const Qt::ItemFlags needed = Qt::ItemIsEnabled | Qt::ItemIsEditable;
    if (!m_view || !m_view->isEnabled() || (m_index.flags() & needed) != needed)
        return false;
    return m_byData ? kind() != FieldKeypads::NoKeypad : m_inEditor && m_inEditor->isEditable();
}

FieldKeypads::Kind CellField::kind() const
{
    if (!m_byData)
        return m_inEditor->kind();
    const QVariant data = m_index.data(Qt::EditRole);
    if (isNumber(data))
        return FieldKeypads::Numeric;
    if (dateTimeLength(data))
        return FieldKeypads::DateTime;
    return isText(data) ? FieldKeypads::Character : FieldKeypads::NoKeypad;
}

Entry CellField::open(FieldKeypads::Kind kind)
{
    m_kind = kind;
    return m_byData ? openData(kind) : m_inEditor->open(kind);
}

Outcome CellField::write(const QString &text)
{
    return m_byData ? writeData(text) : writeByEditor(text);
}

QAbstractItemDelegate *CellField::delegate() const
{
    return QtDifferences::delegateOf(m_view, m_index);
}

void CellField::createEditor()
{
    QStyleOptionViewItem option;
    option.initFrom(m_view);
    option.rect = m_view->visualRect(m_index);
    m_editor = delegate()->createEditor(m_view->viewport(), option, m_index);
    m_byData = isQtsEditorOfFractions(m_editor);
    if (!m_editor || m_byData)
        return;
    delegate()->setEditorData(m_editor, m_index);
    m_inEditor.reset(accessTo(m_editor));
}

Entry CellField::openData(FieldKeypads::Kind kind)
{
    const QVariant data = m_index.data(Qt::EditRole);
    Entry entry;
    entry.text = data.toString();
    m_locale = notation(entry.text, m_view->locale());
    if (isNumber(data))
        entry.text = keypadNumber(data, -1);
    else if (dateTimeLength(data))
        entry.text = dateTimeText(dateTimeOf(data), dateTimeLength(data));
    else if (kind == FieldKeypads::Numeric)
        entry.text = toKeypad(entry.text, m_locale);

    if (kind == FieldKeypads::DateTime) {
        entry.maxLength = int(entry.text.length());
    } else if (kind == FieldKeypads::Numeric) {
        entry.decimalPoint = !isWhole(data);
        m_shape.reset(new NumberShape(10, isWhole(data) ? 0 : -1, entry.maxLength, m_locale));
        entry.validator = m_shape.data();
    }
    return entry;
}

// What \a text is as data of the cell; invalid when it cannot be.
QVariant CellField::valueOf(const QString &text) const
{
    const QVariant data = m_index.data(Qt::EditRole);
    if (isNumber(data))
        return numberLike(data, text);
    if (dateTimeLength(data))
        return dateTimeLike(data, text);
    return m_kind == FieldKeypads::Numeric ? fromKeypad(text, m_locale) : text;
}

Outcome CellField::writeData(const QString &text)
{
    const QVariant value = valueOf(text);
    if (!value.isValid())
        return Refused;
    const QVariant data = m_index.data(Qt::EditRole);
    if (value == data || (isText(data) && value.toString() == data.toString()))
        return Written;
    const bool taken = m_view->model()->setData(m_index, value, Qt::EditRole);
    return taken ? Written : Refused;
}

// A delegate does not tell whether the model took the value: a model that refused shows what it had
// before, and not what was typed.
Outcome CellField::writeByEditor(const QString &text)
{
    m_editor->blockSignals(true); // nobody has heard of this editor
    if (m_inEditor->write(text) == Refused)
        return Refused;
    const QVariant before = m_index.data(Qt::EditRole);
    const QString typed = editorText();
    delegate()->setModelData(m_editor, m_view->model(), m_index);
    if (!m_view || !m_index.isValid() || m_index.data(Qt::EditRole) != before)
        return Written;
    delegate()->setEditorData(m_editor, m_index);
    return editorText() == typed ? Written : Refused;
}

QString CellField::editorText()
{
    return m_inEditor->open(m_kind).text;
}

} // namespace Fields
