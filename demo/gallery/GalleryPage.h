// SPDX-License-Identifier: MIT
#ifndef GALLERYPAGE_H
#define GALLERYPAGE_H

#include "GalleryTables.h"

#include <QByteArray>
#include <QImage>
#include <QStringList>

struct Picture
{
    QString file;
    QSize size;
    QImage image; // until it is in the file
    Look look;
    QVector<Language> languages; // that it is the same in
};

// All pictures of a face.
struct Exhibit
{
    const KeypadKind *keypad;
    const Face *face;
    bool upright;
    QVector<Picture> pictures;
};

// A picture that is not of a keypad alone, with a section of its own.
struct Plate
{
    const char *id;
    const char *title;
    Picture picture;
};

// The page that lays the pictures side by side. It is XML as well as HTML. notes say what is not
// shown, and why.
QByteArray galleryPage(const QVector<Exhibit> &exhibits, const QVector<Plate> &plates,
                       const QStringList &notes);

#endif
