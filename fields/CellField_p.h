// SPDX-License-Identifier: MIT
#ifndef CELLFIELD_P_H
#define CELLFIELD_P_H

#include "FieldAccess_p.h"

#include <QLocale>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QScopedPointer>

class QAbstractItemDelegate;
class QAbstractItemView;
class QVariant;

namespace Fields {

class NumberShape;

// A cell of an item view, written through its model. Where the program has a delegate of its own,
// the delegate's editor, which nobody sees, tells kind and limits and is written first.
class CellField : public FieldAccess
{
public:
    CellField(QAbstractItemView *view, const QModelIndex &index);
    ~CellField() override;

    bool isEditable() const override;
    FieldKeypads::Kind kind() const override;
    Entry open(FieldKeypads::Kind kind) override;
    Outcome write(const QString &text) override;

private:
    QAbstractItemDelegate *delegate() const;
    void createEditor();
    Entry openData(FieldKeypads::Kind kind);
    QVariant valueOf(const QString &text) const;
    Outcome writeData(const QString &text);
    Outcome writeByEditor(const QString &text);
    QString editorText();

    QPointer<QAbstractItemView> m_view;
    QPersistentModelIndex m_index;
    FieldKeypads::Kind m_kind;
    QLocale m_locale;
    QScopedPointer<NumberShape> m_shape;
    QPointer<QWidget> m_editor;
    QScopedPointer<FieldAccess> m_inEditor;
    bool m_byData; // the type of the data alone tells, without an editor
};

} // namespace Fields

#endif
