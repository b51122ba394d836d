// SPDX-License-Identifier: MIT
#ifndef DATETIMEMODEL_H
#define DATETIMEMODEL_H

#include "KeypadModel.h"
#include "NumberFieldModel.h"

#include <QSharedPointer>

class DateTimeModel : public KeypadModel, private NumberFieldModel::Listener
{
public:
    explicit DateTimeModel(World *world);

    void setText(const QString &text) override;
    void setMaxLength(int length) override;
    void open(const ViewPlace &view, const TargetPlace &target) override;
    void lostTheKeyboard() override;
    void pointAt(int, bool) override { } // the display is not to be edited
    void pointTwiceAt(int) override { }
    void pointIntoField(int field, int position) override;
    Seen seen() override;
    int likelyKey(int choice) const override;

protected:
    void act(int key) override;
    int fieldCount() const override { return FieldCount; }
    bool isFieldEnabled(int field) const override { return m_fields.at(field)->isEnabled(); }
    bool pressInField(const HardKey &key) override { return m_fields[focus()]->press(key); }
    void commitInField(const QString &text) override { m_fields[focus()]->commit(text); }
    void fieldGotKeyboard() override { m_fields[focus()]->selectAll(); }
    void fieldLostKeyboard() override { m_fields[focus()]->leave(true); }
    void pressElsewhere(const HardKey &key) override;

private:
    enum { Year, Month, Day, Hour, Minute, Second, FieldCount };
    enum { Plus = 10, Minus, Delete, Ok, Cancel };

    void numberChanged() override;
    void editingFinished(NumberFieldModel *field) override;
    QString composed() const;
    void work(int key);
    bool isValid(int field) const;
    void setFieldEnabled(int field, bool enabled);
    int number(int field) const { return m_fields.at(field)->number(); }

    QVector<QSharedPointer<NumberFieldModel>> m_fields;
    int m_formatLength;
};

#endif
