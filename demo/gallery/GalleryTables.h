// SPDX-License-Identifier: MIT
#ifndef GALLERYTABLES_H
#define GALLERYTABLES_H

#include <HMIDevice/HMIDeviceInfo.h>

#include <QSize>
#include <QString>
#include <QVector>

class QDialog;
class QObject;
class QWidget;

// What the gallery shows: every face of every keypad, in every look, size and language.

// A keypad in one of its modes. Texts are UTF-8.
struct Face
{
    const char *name;   // part of the picture's name
    const char *title;  // what the page calls it
    const char *text;   // that is being edited
    int base;           // of the numeric keypad
    int length;         // of the text, which is the format of the date-time keypad; 0 means any
    bool masked;        // as a password is
    const char *limits; // on the line for them; may be empty
    const char *taps;   // object names of what the operator taps, separated by blanks
    bool isChinese;     // shows what only the dictionary has
};

struct KeypadKind
{
    const char *name;
    const char *title;
    // Builds a keypad that edits the face's text, as a child of view, for target.
    QDialog *(*create)(QWidget *view, QObject *target, const Face &face);
    QVector<Face> faces;
};

// The panel types whose keypads look alike.
struct Look
{
    const char *name;
    const char *title;
    DeviceType type;
};

struct Language
{
    const char *name; // of the library's translation, and of the page's mark-up
    const char *title;
    bool isTranslation;
};

const QVector<KeypadKind> &galleryKeypads();
const QVector<Look> &galleryLooks();
const QVector<Language> &galleryLanguages();

// The sizes of the models' screens, or what a quarter of a turn makes of them.
QVector<QSize> gallerySizes(bool upright);

#endif
