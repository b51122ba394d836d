// SPDX-License-Identifier: MIT
#ifndef PANELSETUP_H
#define PANELSETUP_H

#include <QSize>
#include <QString>

enum class Style { Dark, Light };

// Which panel it is. Keypads take all of it over when they are built, once in a process.
struct PanelSetup
{
    int type = 8;
    QSize size = QSize(1024, 600); // of the free-size model, in pixels
    int rotation = 0;              // degrees
    QString language;              // of the keypads, such as "zh_CN"; empty for English
    Style style = Style::Dark;
    bool frame = false; // around the view
};

// The compiled translation of the library into language; empty when this build has none.
QString findTranslation(const QString &language);

#endif
