// SPDX-License-Identifier: MIT
#include "BareKeypad.h"

#include <QBoxLayout>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QStyle>
#include <QToolButton>

namespace {

int ownSpacing(const QLayout *layout, const QWidget *owner)
{
    const int ofStyle = owner->style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing);
    return layout->spacing() == ofStyle ? -1 : layout->spacing();
}

} // namespace

BareKeypad::BareKeypad(const QWidget &keypad)
    : m_dialog(read(&keypad))
{
}

BareKeypad::Part BareKeypad::read(const QWidget *widget)
{
    Part part = {};
    part.policy = widget->sizePolicy();
    part.isHidden = widget->isHidden();
    part.isEnabled = widget->isEnabled();
    part.font = widget->font();
    if (const auto *key = qobject_cast<const QToolButton *>(widget)) {
        part.kind = Key;
        part.text = key->text();
    } else if (const auto *label = qobject_cast<const QLabel *>(widget)) {
        part.kind = Label;
        part.text = label->text();
    } else if (const auto *line = qobject_cast<const QLineEdit *>(widget)) {
        part.kind = Line;
        part.alignment = line->alignment();
    } else if (const auto *field = qobject_cast<const QSpinBox *>(widget)) {
        part.kind = Field;
        part.minimum = field->minimum();
        part.maximum = field->maximum();
        part.buttonSymbols = field->buttonSymbols();
    } else {
        part.kind = Panel;
        part.children.push_back(read(widget->layout()));
    }
    return part;
}

BareKeypad::Part BareKeypad::read(QLayout *layout)
{
    Part part = {};
    part.kind = qobject_cast<QGridLayout *>(layout) ? Grid : Box;
    if (part.kind == Box)
        part.direction = static_cast<QBoxLayout *>(layout)->direction();
    part.spacing = ownSpacing(layout, layout->parentWidget());
    part.isTight = qobject_cast<QWidget *>(layout->parent()) && layout->contentsMargins().isNull();
    part.constraint = layout->sizeConstraint();
    for (int i = 0; i < layout->count(); ++i)
        part.children.push_back(readItem(layout, i));
    return part;
}

BareKeypad::Part BareKeypad::readItem(QLayout *layout, int index)
{
    QLayoutItem *item = layout->itemAt(index);
    Part part = item->widget() ? read(item->widget()) : read(item->layout());
    if (const auto *grid = qobject_cast<QGridLayout *>(layout))
        grid->getItemPosition(index, &part.row, &part.column, &part.rows, &part.columns);
    else
        part.stretch = static_cast<QBoxLayout *>(layout)->stretch(index);
    return part;
}

QDialog *BareKeypad::create() const
{
    QDialog *dialog = new QDialog(nullptr, Qt::FramelessWindowHint);
    createLayout(m_dialog.children.front(), dialog, dialog);
    return dialog;
}

QWidget *BareKeypad::create(const Part &part, QWidget *parent)
{
    QWidget *widget = nullptr;
    switch (part.kind) {
    case Key: {
        QToolButton *key = new QToolButton(parent);
        key->setText(part.text);
        widget = key;
        break;
    }
    case Label:
        widget = new QLabel(part.text, parent);
        break;
    case Line:
        widget = new QLineEdit(parent);
        break;
    case Field:
        widget = new QSpinBox(parent);
        break;
    default:
        widget = new QWidget(parent);
        createLayout(part.children.front(), widget, widget);
        break;
    }
    widget->setSizePolicy(part.policy);
    if (part.isHidden)
        widget->hide();
    return widget;
}

// Of \a owner, or to be put into another layout where that is null. \a parent has the widgets.
QLayout *BareKeypad::createLayout(const Part &part, QWidget *owner, QWidget *parent)
{
    QLayout *layout = nullptr;
    if (part.kind == Grid)
        layout = new QGridLayout(owner);
    else
        layout = new QBoxLayout(QBoxLayout::Direction(part.direction), owner);
    if (part.spacing >= 0)
        layout->setSpacing(part.spacing);
    if (part.isTight)
        layout->setContentsMargins(0, 0, 0, 0);
    if (part.constraint != QLayout::SetDefaultConstraint)
        layout->setSizeConstraint(QLayout::SizeConstraint(part.constraint));
    fill(layout, part, parent);
    return layout;
}

void BareKeypad::fill(QLayout *layout, const Part &part, QWidget *parent)
{
    QGridLayout *grid = part.kind == Grid ? static_cast<QGridLayout *>(layout) : nullptr;
    QBoxLayout *box = grid ? nullptr : static_cast<QBoxLayout *>(layout);
    for (const Part &child : part.children) {
        const bool isLayout = child.kind == Grid || child.kind == Box;
        QLayout *inner = isLayout ? createLayout(child, nullptr, parent) : nullptr;
        QWidget *widget = isLayout ? nullptr : create(child, parent);
        if (grid && inner)
            grid->addLayout(inner, child.row, child.column, child.rows, child.columns);
        else if (grid)
            grid->addWidget(widget, child.row, child.column, child.rows, child.columns);
        else if (inner)
            box->addLayout(inner, child.stretch);
        else
            box->addWidget(widget, child.stretch);
    }
}

void BareKeypad::dress(const QDialog *dialog) const
{
    dress(dialog->layout(), m_dialog.children.front());
}

void BareKeypad::dress(QLayout *layout, const Part &part)
{
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem *item = layout->itemAt(i);
        if (item->layout())
            dress(item->layout(), part.children[size_t(i)]);
        else
            dress(item->widget(), part.children[size_t(i)]);
    }
}

void BareKeypad::dress(QWidget *widget, const Part &part)
{
    widget->setFont(part.font);
    widget->setEnabled(part.isEnabled);
    switch (part.kind) {
    case Line:
        static_cast<QLineEdit *>(widget)->setAlignment(part.alignment);
        break;
    case Field:
        static_cast<QSpinBox *>(widget)->setRange(part.minimum, part.maximum);
        static_cast<QSpinBox *>(widget)->setButtonSymbols(
            QAbstractSpinBox::ButtonSymbols(part.buttonSymbols));
        break;
    case Panel:
        dress(widget->layout(), part.children.front());
        break;
    default:
        break;
    }
}
