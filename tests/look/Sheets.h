// SPDX-License-Identifier: MIT
#ifndef SHEETS_H
#define SHEETS_H

#include <QMargins>
#include <QMetaType>

// Style sheets that leave a text less room.

Q_DECLARE_METATYPE(QMargins)

// What the tests' style keeps of each side of a button.
QMargins stylesFrame();

QMargins mirrored(const QMargins &margins);

// The columns "sheet", rules for \a className, and "around", what they keep of each side.
void addSheetRows(const char *className);

// The application has the row's sheet while this lives.
class CurrentSheet
{
public:
    CurrentSheet();
    ~CurrentSheet();
};

#endif
