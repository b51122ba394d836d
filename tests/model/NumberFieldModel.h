// SPDX-License-Identifier: MIT
#ifndef NUMBERFIELDMODEL_H
#define NUMBERFIELDMODEL_H

#include "LineModel.h"

#include <QValidator>

// What a field for a whole number holds, worked out apart from any QSpinBox.
class NumberFieldModel
{
public:
    // Told when the number becomes another, or is told once more.
    class Listener
    {
    public:
        virtual ~Listener() { }
        virtual void numberChanged() = 0;
        virtual void editingFinished(NumberFieldModel *field) = 0;
    };

    NumberFieldModel(Listener *listener, int minimum, int maximum);

    void setNumber(int number);
    void setRange(int minimum, int maximum);
    void setEnabled(bool enabled) { m_enabled = enabled; }
    void setMarked(bool marked) { m_marked = marked; }
    void step(int count);
    bool press(const HardKey &key);   // false: the key is none of the field's
    void commit(const QString &text); // by an input method
    void pointAt(int position) { m_line.setCursor(position); }
    void selectAll(); // with the cursor in front
    void deselect() { m_line.setCursor(m_line.cursor()); }
    void leave(bool toOtherField);

    int number() const { return m_number; }
    int minimum() const { return m_range.minimum; }
    QString text() const { return m_line.text(); }
    bool isEnabled() const { return m_enabled; }

    // Range, text, cursor, selection, whether it is enabled and whether it is marked.
    QString seen() const;

private:
    enum Telling { WhenChanged, Always, Never };

    // Lets only digits pass that may become a number of the range.
    class Range : public QValidator
    {
    public:
        Range(int minimum, int maximum);
        State validate(QString &input, int &cursor) const override;

        int minimum, maximum;
    };

    void become(int number, Telling telling, bool showIt);
    void showNumber();
    void textChanged();
    void interpret(Telling telling);
    void pressStep(const HardKey &key, int count);
    bool pressEnd(const HardKey &key);

    Listener *m_listener;
    Range m_range;
    LineModel m_line;
    int m_number;
    bool m_enabled, m_marked;
    bool m_pending; // a text that is no number of the range yet
};

#endif
