// SPDX-License-Identifier: MIT
#ifndef DATETIMEEDITFIELD_P_H
#define DATETIMEEDITFIELD_P_H

#include "FieldAccess_p.h"

#include <QPointer>

class QDateTimeEdit;

namespace Fields {

// Date, time of day, or both. What the field does not show, as seconds, stays as it is.
class DateTimeEditField : public FieldAccess
{
public:
    explicit DateTimeEditField(QDateTimeEdit *edit);

    bool isEditable() const override;
    FieldKeypads::Kind kind() const override;
    Entry open(FieldKeypads::Kind kind) override;
    Outcome write(const QString &text) override;

private:
    bool enter(const QString &text);

    QPointer<QDateTimeEdit> m_edit;
    FieldKeypads::Kind m_kind;
};

} // namespace Fields

#endif
