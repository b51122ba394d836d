// SPDX-License-Identifier: MIT
#ifndef BAREKEYPAD_H
#define BAREKEYPAD_H

#include <QFont>
#include <QSizePolicy>
#include <QString>

#include <vector>

class QDialog;
class QLayout;
class QWidget;

// The floor under a keypad: a frameless dialog with the same number of bare QToolButtons,
// QLineEdits, QLabels and QSpinBoxes, which have the same labels and size policies and lie in the
// same cells of the same layouts. It has no connections, names, colours, fonts or rules.
class BareKeypad
{
public:
    // Reads off what a keypad is made of, and lays out nothing yet.
    explicit BareKeypad(const QWidget &keypad);

    QDialog *create() const;

    // Gives a dialog of create() what decides how much there is to paint: the fonts of the keypad,
    // what is disabled, ranges and alignments.
    void dress(const QDialog *dialog) const;

private:
    enum Kind { Key, Line, Label, Field, Panel, Grid, Box };

    struct Part
    {
        Kind kind;
        QString text;
        QSizePolicy policy;
        bool isHidden;
        bool isEnabled;
        QFont font;
        Qt::Alignment alignment; // of a line
        int minimum, maximum;    // of a field
        int buttonSymbols;
        int row, column, rows, columns; // in a grid
        int stretch, direction;         // of a box
        int spacing;                    // negative: the style's
        bool isTight;                   // without margins
        int constraint;
        std::vector<Part> children;
    };

    static Part read(const QWidget *widget);
    static Part read(QLayout *layout);
    static Part readItem(QLayout *layout, int index);
    static QWidget *create(const Part &part, QWidget *parent);
    static QLayout *createLayout(const Part &part, QWidget *owner, QWidget *parent);
    static void dress(QLayout *layout, const Part &part);
    static void dress(QWidget *widget, const Part &part);
    static void fill(QLayout *layout, const Part &part, QWidget *parent);

    Part m_dialog;
};

#endif
