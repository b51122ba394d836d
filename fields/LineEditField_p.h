// SPDX-License-Identifier: MIT
#ifndef LINEEDITFIELD_P_H
#define LINEEDITFIELD_P_H

#include "FieldAccess_p.h"

#include <QLocale>
#include <QPointer>
#include <QScopedPointer>

class QDoubleValidator;
class QIntValidator;
class QLineEdit;

namespace Fields {

class NumberShape;

// A line edit, also that of an editable combo box.
class LineEditField : public FieldAccess
{
public:
    // \a field is \a edit or the widget that it is a part of.
    LineEditField(QWidget *field, QLineEdit *edit);
    ~LineEditField() override;

    bool isEditable() const override;
    FieldKeypads::Kind kind() const override;
    Entry open(FieldKeypads::Kind kind) override;
    Outcome write(const QString &text) override;

private:
    void openNumber(Entry *entry);
    void limitByInt(Entry *entry, const QIntValidator *validator);
    void limitByDouble(Entry *entry, const QDoubleValidator *validator);
    bool accept(QString *text) const;
    bool complete(QString *text) const;

    QPointer<QWidget> m_field;
    QPointer<QLineEdit> m_edit;
    FieldKeypads::Kind m_kind;
    QLocale m_locale;
    QScopedPointer<NumberShape> m_shape;
};

} // namespace Fields

#endif
