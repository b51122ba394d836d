// SPDX-License-Identifier: MIT
#ifndef TEXTEDITFIELD_P_H
#define TEXTEDITFIELD_P_H

#include "FieldAccess_p.h"

#include <QPointer>
#include <QTextCursor>

class QPlainTextEdit;
class QTextEdit;

namespace Fields {

// The line of a text edit in which the cursor stands.
template <class Edit>
class TextEditField : public FieldAccess
{
public:
    explicit TextEditField(Edit *edit)
        : m_edit(edit)
    {
    }

    bool isEditable() const override;
    FieldKeypads::Kind kind() const override;
    Entry open(FieldKeypads::Kind kind) override;
    Outcome write(const QString &text) override;

private:
    QPointer<Edit> m_edit;
    QTextCursor m_cursor; // stays in its line when the program changes others
};

extern template class TextEditField<QTextEdit>;
extern template class TextEditField<QPlainTextEdit>;

} // namespace Fields

#endif
