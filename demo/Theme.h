// SPDX-License-Identifier: MIT
#ifndef THEME_H
#define THEME_H

#include <QString>

class QApplication;

// Gives the application the style and palette of the panel model, which the keypads take over
// where the library sets no colours of its own.
void applyTheme(QApplication *application);

// The style sheet of the machine screen. It must not be set on the graphics view: the keypads are
// the view's children and would inherit it.
QString screenStyleSheet();

#endif
