// SPDX-License-Identifier: MIT
#ifndef THEME_H
#define THEME_H

#include "PanelSetup.h"

#include <QString>

// Gives the application style and palette, which the keypads take over where the library sets no
// colours of its own. A panel of type 13 has one scheme in either style.
void applyTheme(Style style);

// The style sheet of the machine screen. It must not be set on the graphics view: the keypads are
// the view's children and would inherit it.
QString screenStyleSheet();

#endif
