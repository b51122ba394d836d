// SPDX-License-Identifier: MIT
#ifndef SHEETS_H
#define SHEETS_H

#include <QMargins>
#include <QMetaType>

// Style sheets that leave a text less room.

Q_DECLARE_METATYPE(QMargins)

// What the tests' style keeps of each side of a button.
QMargins stylesFrame();

// Whether the left side of a widget becomes the right one where text runs from right to left.
enum SheetRule { SidesStay, SidesChange };

// The columns "sheet", rules for \a className, "direction", and "around", what the rules keep of
// each side together with the style's \a frame where they leave that.
void addSheetRows(const char *className, const QMargins &frame, SheetRule rule);

// The application has the row's sheet and direction while this lives.
class CurrentSheet
{
public:
    CurrentSheet();
    ~CurrentSheet();
};

#endif
