// SPDX-License-Identifier: MIT
#ifndef DARKSCHEME_H
#define DARKSCHEME_H

#include <QPalette>
#include <QWidget>
#include <QtTest>

// What panel type 13 makes of a widget's palette.

namespace DarkScheme {

inline QColor darkBlue()
{
    return QColor(15, 15, 70, 255);
}

inline QColor green()
{
    return QColor(0, 255, 0, 255);
}

inline QColor yellow()
{
    return QColor(255, 255, 0, 255);
}

inline QPalette dialog(QPalette palette)
{
    palette.setColor(QPalette::All, QPalette::Window, darkBlue());
    return palette;
}

inline QPalette label(QPalette palette)
{
    palette.setColor(QPalette::All, QPalette::WindowText, green());
    return palette;
}

inline QPalette key(QPalette palette)
{
    palette.setColor(QPalette::Active, QPalette::ButtonText, green());
    palette.setColor(QPalette::Inactive, QPalette::ButtonText, green());
    palette.setColor(QPalette::All, QPalette::Button, darkBlue());
    return palette;
}

inline QPalette editLine(QPalette palette)
{
    palette.setColor(QPalette::All, QPalette::Base, darkBlue());
    palette.setColor(QPalette::All, QPalette::Text, yellow());
    palette.setColor(QPalette::All, QPalette::Highlight, yellow());
    palette.setColor(QPalette::All, QPalette::HighlightedText, darkBlue());
    return palette;
}

/* The palette of a bare \a Widget in the same place. */
template <class Widget>
QPalette barePalette(QWidget *parent)
{
    Widget bare(parent);
    bare.ensurePolished();
    return bare.palette();
}

/* The columns "type" of a panel's construction, "typeLater", and whether it is "dark" then. */
inline void addPanelTypeRows()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("typeLater");
    QTest::addColumn<bool>("dark");

    QTest::newRow("type 13") << 13 << 13 << true;
    QTest::newRow("type 13, later 1") << 13 << 1 << true;
    QTest::newRow("type 1") << 1 << 1 << false;
    QTest::newRow("type 1, later 13") << 1 << 13 << false;
    QTest::newRow("type 12") << 12 << 12 << false;
    QTest::newRow("type 14") << 14 << 14 << false;
    QTest::newRow("unknown type") << 0 << 0 << false;
}

} // namespace DarkScheme

#endif
