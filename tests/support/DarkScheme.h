// SPDX-License-Identifier: MIT
#ifndef DARKSCHEME_H
#define DARKSCHEME_H

#include <QColor>

class QWidget;

// What panel type 13 makes of a keypad's colours.

namespace DarkScheme {

const QColor darkBlue(15, 15, 70, 255);
const QColor green(0, 255, 0, 255);
const QColor yellow(255, 255, 0, 255);

// Asserts that \a widget, a keypad, an edit line, a label or a key, has every colour that the style
// gives a bare one in the same place, but those of the scheme if \a dark.
void verify(const QWidget *widget, bool dark);

// The columns "type" of a panel's construction, "typeLater", and whether it is "dark" then.
void addPanelTypeRows();

} // namespace DarkScheme

#endif
