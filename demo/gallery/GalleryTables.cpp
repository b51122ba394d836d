// SPDX-License-Identifier: MIT
#include "GalleryTables.h"

#include <HMIDevice/CharacterKeypad.h>
#include <HMIDevice/DateTimeKeypad.h>
#include <HMIDevice/GCodeKeypad.h>
#include <HMIDevice/NumericKeypad.h>
#include <HMIDevice/vondKeypad.h>

namespace {

const QSize sizes[] = { QSize(480, 272), QSize(640, 480), QSize(800, 480), QSize(800, 600) };

template <class KeypadWithKeys>
void adjust(KeypadWithKeys *keypad, const Face &face)
{
    keypad->setEditMode(face.base);
    keypad->setPasswordEchoMode(face.masked);
    keypad->setLimitToolTip(QString::fromUtf8(face.limits));
}

void adjust(DateTimeKeypad *keypad, const Face &face)
{
    keypad->setMaxLength(face.length);
}

void adjust(CharacterKeypad *keypad, const Face &face)
{
    keypad->setPasswordEchoMode(face.masked);
}

// Not the one of the process, which keeps the colours and the language that it was built with.
template <class AnyKeypad>
QDialog *create(QWidget *view, QObject *target, const Face &face)
{
    AnyKeypad *keypad = new AnyKeypad(view, Qt::WindowFlags());
    keypad->setObject(target);
    adjust(keypad, face);
    keypad->setText(QString::fromUtf8(face.text));
    return keypad;
}

// clang-format off
const QVector<Face> numericFaces = {
    // name           title                      text        base length masked
    //     limits                       taps                  isChinese
    { "decimal",     "A decimal number",        "-12.5",      10, 0, false,
           "",                          "",                   false },
    { "limits",      "With limits",             "2500",       10, 0, false,
           "0 … 8000 r/min",            "",                   false },
    { "hexadecimal", "A hexadecimal number",    "C0FE",       16, 0, false,
           "",                          "",                   false },
    { "binary",      "A binary number",         "10100101",    2, 0, false,
           "",                          "",                   false },
    { "password",    "A password",              "31415",      10, 0, true,
           "",                          "",                   false }
};

const QVector<Face> gCodeFaces = {
    { "block",       "A block of a program",    "N30 G01 X5.", 10, 0, false,
           "",                          "",                   false },
    { "limits",      "With a line for limits",  "N30 G01 X5.", 10, 0, false,
           "G00 … G99, X -500 … 500",   "",                   false },
    { "password",    "A password",              "G31",        10, 0, true,
           "",                          "",                   false }
};

const QVector<Face> axisFaces = {
    { "word",        "An axis word",            "Z25.5",      10, 0, false,
           "",                          "",                   false },
    { "limits",      "With limits",             "-X100.",     10, 0, false,
           "-500.000 … 500.000 mm",     "",                   false },
    { "password",    "A password",              "X31",        10, 0, true,
           "",                          "",                   false }
};

const QVector<Face> dateTimeFaces = {
    { "both",        "Date and time",           "2024-07-01 08:00:00", 10, 19, false,
           "",                          "",                   false },
    { "date",        "A date",                  "2024-02-29", 10, 10, false,
           "",                          "",                   false },
    { "time",        "A time",                  "08:45:00",   10, 8, false,
           "",                          "",                   false },
    { "marked",      "A field that is no value yet", "08:30:00", 10, 8, false,
           "",                          "minuteField backspaceKey", false }
};

const QVector<Face> characterFaces = {
    { "english",     "English",                 "rough & finish #1", 10, 0, false,
           "",                          "",                   false },
    { "capitals",    "Capitals",                "Late Shift", 10, 0, false,
           "",                          "capsKey",            false },
    { "symbols",     "Symbols",                 "rough & finish #1", 10, 0, false,
           "",                          "symbolsKey",         false },
    { "chinese",     "Chinese",                 "",           10, 0, false,
           "",                          "languageKey",        false },
    { "candidates",  "Chinese, with candidates for a pinyin", "数控机床", 10, 0, false,
           "",             "languageKey keyZ keyH keyU",      true },
    { "more",        "Chinese, with further candidates",      "主轴", 10, 0, false,
           "",             "languageKey keyZ keyH keyU nextPageKey", true },
    { "password",    "A password",              "secret",     10, 0, true,
           "",                          "",                   false }
};

const QVector<KeypadKind> keypads = {
    { "numeric",   "Numbers: NumericKeypad",        create<NumericKeypad>,   numericFaces },
    { "gcode",     "G-code: GCodeKeypad",           create<GCodeKeypad>,     gCodeFaces },
    { "axis",      "Axis words: vondKeypad",        create<vondKeypad>,      axisFaces },
    { "datetime",  "Date and time: DateTimeKeypad", create<DateTimeKeypad>,  dateTimeFaces },
    { "character", "Characters: CharacterKeypad",   create<CharacterKeypad>, characterFaces }
};

const QVector<Look> looks = {
    { "plain",  "All types but 13", 8 },
    { "type13", "Type 13", 13 }
};

const QVector<Language> languages = {
    { "en",    "English", false },
    { "zh_CN", "中文",    true }
};
// clang-format on

} // namespace

const QVector<KeypadKind> &galleryKeypads()
{
    return keypads;
}

const QVector<Look> &galleryLooks()
{
    return looks;
}

const QVector<Language> &galleryLanguages()
{
    return languages;
}

QVector<QSize> gallerySizes(bool upright)
{
    QVector<QSize> turned;
    for (const QSize &size : sizes)
        turned.append(upright ? size.transposed() : size);
    return turned;
}
