// SPDX-License-Identifier: MIT
#ifndef FACEPAINTER_H
#define FACEPAINTER_H

#include "GalleryTables.h"

#include <QGraphicsView>
#include <QImage>
#include <QLineEdit>
#include <QTranslator>

// Draws keypads as they come to a screen of a given size, look and language.
class FacePainter
{
public:
    FacePainter();
    ~FacePainter();

    // False where this build has no such translation.
    bool setLanguage(const Language &language);

    // Type and colours of the keypads that are drawn from now on.
    void setLook(const Look &look);

    // Shows keypad, and waits until it has the focus.
    static void show(QWidget *keypad);

    QImage draw(const KeypadKind &kind, const Face &face, const QSize &size);

private:
    QGraphicsView m_view;
    QLineEdit m_target; // of no parent, so that the G-code keypad lies where this says
    QTranslator m_translator;
};

#endif
