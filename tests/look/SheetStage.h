// SPDX-License-Identifier: MIT
#ifndef SHEETSTAGE_H
#define SHEETSTAGE_H

#include "support/AnyKeypad.h"

// A keypad in a window of an application that has a style sheet somewhere.

enum SheetPlace { OnApplication, OnWindow, OnView, OnKeypad };

// When a sheet comes, told by what there is of the keypad.
enum SheetTime { BeforeKeypad, BeforeShow, AfterShow };

// The columns "place" and "time", named behind \a name, with \a addValues for the rest of each row.
template <class AddValues>
void addSheetTimeRows(const char *name, const AddValues &addValues)
{
    const char *const places[] = { "application", "window", "view", "keypad" };
    const char *const times[] = { "before the keypad", "before show", "after show" };
    for (int place = OnApplication; place <= OnKeypad; ++place) {
        for (int time = place == OnKeypad ? BeforeShow : BeforeKeypad; time <= AfterShow; ++time) {
            const QString row = QString::fromLatin1("%1, on the %2 %3")
                                    .arg(u(name), u(places[place]), u(times[time]));
            addValues(QTest::newRow(qPrintable(row)) << place << time);
        }
    }
}

// Those of the current row.
SheetPlace currentPlace();
SheetTime currentTime();

class SheetStage
{
public:
    // Builds and shows a keypad of the current kind, sets \a sheet at \a place meanwhile.
    SheetStage(const QString &sheet, SheetPlace place, SheetTime time, DeviceType type = 8);
    ~SheetStage();

    QDialog *dialog() { return m_keypad->dialog(); }
    void removeSheet() { setSheet(QString()); }

private:
    void setSheet(const QString &sheet);

    QWidget m_window; // of which the view is a part
    PanelView m_view;
    QScopedPointer<AnyKeypad> m_keypad;
    SheetPlace m_place;
};

// The widgets of a keypad, itself first.
QWidgetList widgetsOf(QDialog *keypad);

// Everything of a widget's font that can be seen.
QString fontOf(const QWidget *widget);

// A line for each widget of a keypad, with what fontOf() tells.
QStringList fontsOf(QDialog *keypad);

// The same of a new keypad of the current kind; where nothing is set, what the keypads have.
QStringList plainFonts();

#endif
