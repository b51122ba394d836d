// SPDX-License-Identifier: MIT
#ifndef OTHERSPINBOXFIELD_P_H
#define OTHERSPINBOXFIELD_P_H

#include "FieldAccess_p.h"

#include <QPointer>
#include <QScopedPointer>

class QAbstractSpinBox;
class QVariant;

namespace Fields {

class NumberShape;

// A spin box that the program derived from QAbstractSpinBox itself. Its number is its property
// "value", with "minimum", "maximum" and "decimals" if it has them; without "value" it has a text.
class OtherSpinBoxField : public FieldAccess
{
public:
    explicit OtherSpinBoxField(QAbstractSpinBox *box);
    ~OtherSpinBoxField() override;

    bool isEditable() const override;
    FieldKeypads::Kind kind() const override;
    Entry open(FieldKeypads::Kind kind) override;
    Outcome write(const QString &text) override;

private:
    int decimals() const;
    bool acceptsNumber(const QVariant &value) const;
    bool enterNumber(const QString &text);

    QPointer<QAbstractSpinBox> m_box;
    bool m_hasNumber;
    QScopedPointer<NumberShape> m_shape;
};

} // namespace Fields

#endif
