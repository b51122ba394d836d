// SPDX-License-Identifier: MIT
#ifndef PAINTEDTEXT_H
#define PAINTEDTEXT_H

#include <QImage>
#include <QLabel>
#include <QMargins>
#include <QToolButton>

// What a person sees of the text on a key or a label.

QImage pictureOf(QWidget *widget);

// The pixels that a text changes: where they are, and the picture there.
struct Ink
{
    QRect rect; // null for none
    QImage picture;
};

Ink inkBetween(const QImage &withText, const QImage &withoutText);

template <class Widget>
Ink inkOf(Widget *widget)
{
    const QString text = widget->text();
    const QImage withText = pictureOf(widget);
    widget->setText(QLatin1String(" ")); // not nothing, which a disabled key shows by itself
    const QImage withoutText = pictureOf(widget);
    widget->setText(text);
    return inkBetween(withText, withoutText);
}

// A button or label of Qt's own beside \a widget, hidden, with its place and all of it that can be
// seen, but without rules that make a text smaller.
QToolButton *newTwin(const QToolButton *key);
QLabel *newTwin(const QLabel *label);

// What is wrong with the way in which a text is drawn; nothing is where this is empty. It has to be
// the twin's text to the pixel where that has room, and else whole, off the border, and no smaller
// than it must be, or than the labels that share its size must be. \a around is what border, padding
// and margin take of each side.
QString complaintAbout(QToolButton *key, const QMargins &around);
QString complaintAbout(QLabel *label, const QMargins &around);

// Whether no letter is left out.
bool isWhole(const QToolButton *key, const QMargins &around);
bool isWhole(const QLabel *label); // that is set up as the keypads' own

#endif
