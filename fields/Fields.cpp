// SPDX-License-Identifier: MIT
#include "FieldAccess_p.h"

#include "CellField_p.h"
#include "DateTimeEditField_p.h"
#include "LineEditField_p.h"
#include "SpinBoxField_p.h"
#include "TextEditField_p.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTextEdit>
#include <QVariant>

#include <memory>

namespace Fields {

const char kindProperty[] = "keypad";
const char limitsProperty[] = "keypadLimits";
const char returnProperty[] = "keypadReturn";

namespace {

FieldAccess *newAccess(QWidget *field)
{
    if (QDateTimeEdit *edit = qobject_cast<QDateTimeEdit *>(field))
        return new DateTimeEditField(edit);
    if (QAbstractSpinBox *box = qobject_cast<QAbstractSpinBox *>(field))
        return accessToSpinBox(box);
    if (QLineEdit *edit = qobject_cast<QLineEdit *>(field))
        return new LineEditField(edit, edit);
    if (QComboBox *box = qobject_cast<QComboBox *>(field))
        return box->lineEdit() ? new LineEditField(box, box->lineEdit()) : nullptr;
    if (QTextEdit *edit = qobject_cast<QTextEdit *>(field))
        return new TextEditField<QTextEdit>(edit);
    if (QPlainTextEdit *edit = qobject_cast<QPlainTextEdit *>(field))
        return new TextEditField<QPlainTextEdit>(edit);
    if (QAbstractItemView *view = qobject_cast<QAbstractItemView *>(field))
        return new CellField(view, view->currentIndex());
    return nullptr;
}

bool hasText(const QAbstractScrollArea *area)
{
    return qobject_cast<const QTextEdit *>(area) || qobject_cast<const QPlainTextEdit *>(area);
}

} // namespace

FieldAccess *accessTo(QWidget *field)
{
    std::unique_ptr<FieldAccess> access(newAccess(field));
    return access && access->isEditable() ? access.release() : nullptr;
}

QWidget *fieldOf(QWidget *widget)
{
    QWidget *parent = widget->parentWidget();
    if (qobject_cast<QLineEdit *>(widget)) {
        QAbstractSpinBox *box = qobject_cast<QAbstractSpinBox *>(parent);
        QComboBox *comboBox = qobject_cast<QComboBox *>(parent);
        if (box && lineEditOf(box) == widget)
            return box;
        return comboBox && comboBox->lineEdit() == widget ? parent : widget;
    }
    QAbstractScrollArea *area = qobject_cast<QAbstractScrollArea *>(parent);
    const bool isViewport = area && area->viewport() == widget;
    return isViewport && (hasText(area) || qobject_cast<QAbstractItemView *>(area)) ? area
                                                                                    : nullptr;
}

void finishTyping(QWidget *field, QWidget *edit)
{
    const QPointer<QWidget> written(edit);
    QWidget *finished = qobject_cast<QAbstractSpinBox *>(field) ? field : edit;
    const QPointer<QWidget> finishing(finished);
    if (written && field->property(returnProperty).toBool())
        QMetaObject::invokeMethod(written, "returnPressed");
    if (finishing)
        QMetaObject::invokeMethod(finishing, "editingFinished");
}

} // namespace Fields
