// SPDX-License-Identifier: MIT
#include "Theme.h"

#include <HMIDevice/HMIDeviceInfo.h>

#include <QApplication>
#include <QPalette>

namespace {

struct Theme
{
    // The palette
    const char *window, *windowText, *button, *buttonText, *dimmedText, *base, *text;
    const char *lockedBase, *lockedText, *highlight;
    // The machine screen
    const char *screen, *bar, *card, *border, *label, *field, *value, *accent, *softKey;
};

// The fields of the date-time keypad turn white while they are edited, whatever the palette says,
// so their text must be dark, in the dark themes, too.

// clang-format off
const Theme dark = {
    "#222a32", "#e6ecf1", "#3b4753", "#f4f7fa", "#75828e", "#f4f7fa", "#10181f",
    "#39444e", "#d5dde4", "#2f7fb8",
    "#1c232a", "#11161b", "#27313a", "#3d4a56", "#c3ced8", "#0d1216", "#63e6be", "#ffb938",
    "#36434f"
};

const Theme light = {
    "#c3cad1", "#14202b", "#eef1f4", "#14202b", "#9aa5af", "#ffffff", "#14202b",
    "#d9dfe4", "#14202b", "#2f7fb8",
    "#dbe1e6", "#c3ccd4", "#f1f4f6", "#a9b5bf", "#2a3843", "#ffffff", "#00563a", "#b25000",
    "#e6ebef"
};

// Panels of type 13 have green and yellow on dark blue everywhere, as their keypads do.
const Theme darkBlue = {
    "#0f0f46", "#00ff00", "#0f0f46", "#00ff00", "#66709c", "#ffffff", "#0f0f46",
    "#0f0f46", "#ffff00", "#3c3cb4",
    "#0f0f46", "#08082c", "#16165a", "#3c3c96", "#00e000", "#0a0a34", "#ffff00", "#ffffff",
    "#20207a"
};
// clang-format on

Style chosenStyle = Style::Dark;

const Theme &theme()
{
    if (HMIDeviceInfo::deviceType() == 13)
        return darkBlue;
    return chosenStyle == Style::Dark ? dark : light;
}

QColor colour(const char *name)
{
    return QColor(QLatin1String(name));
}

QPalette palette(const Theme &theme)
{
    QPalette palette(colour(theme.button), colour(theme.window));
    palette.setColor(QPalette::WindowText, colour(theme.windowText));
    palette.setColor(QPalette::ButtonText, colour(theme.buttonText));
    palette.setColor(QPalette::Base, colour(theme.base));
    palette.setColor(QPalette::Text, colour(theme.text));
    palette.setColor(QPalette::Highlight, colour(theme.highlight));
    palette.setColor(QPalette::HighlightedText, QColor(Qt::white));
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, colour(theme.dimmedText));
    // What the date-time keypad shows without letting it be edited: its display, the locked half.
    palette.setColor(QPalette::Disabled, QPalette::Base, colour(theme.lockedBase));
    palette.setColor(QPalette::Disabled, QPalette::Text, colour(theme.lockedText));
    return palette;
}

const char styleSheet[] = R"(
MachineScreen { background: $screen; }
#bar { background: $bar; }
#pageTitle { color: $accent; }
#message { color: $label; }
#mode { color: $screen; background: $value; border-radius: 3px; padding: 0 6px; }
#card { background: $card; border: 1px solid $border; border-radius: 4px; }
#card QLabel { color: $label; }
#card #axisName { color: $accent; }
#listing { color: $label; background: $card; }
TouchField { color: $value; background: $field; border: 1px solid $border; border-radius: 3px;
             padding: 0 4px; selection-background-color: $field; selection-color: $value; }
TouchField:focus { border-color: $accent; }
QPushButton { color: $label; background: $softKey; border: 1px solid $border; border-radius: 4px; }
QPushButton:checked { color: $bar; background: $accent; border-color: $accent; }
QPushButton:focus { border-color: $accent; }
QProgressBar { background: $field; border: none; }
QProgressBar::chunk { background: $accent; }
)";

} // namespace

void applyTheme(Style style)
{
    chosenStyle = style;
    QApplication::setStyle(QLatin1String("Fusion"));
    QApplication::setPalette(palette(theme()));
}

QString screenStyleSheet()
{
    const struct
    {
        const char *name, *colour;
    } colours[] = { { "$screen", theme().screen },  { "$bar", theme().bar },
                    { "$card", theme().card },      { "$border", theme().border },
                    { "$label", theme().label },    { "$field", theme().field },
                    { "$value", theme().value },    { "$accent", theme().accent },
                    { "$softKey", theme().softKey } };
    QString sheet = QLatin1String(styleSheet);
    for (const auto &entry : colours)
        sheet.replace(QLatin1String(entry.name), QLatin1String(entry.colour));
    return sheet;
}
