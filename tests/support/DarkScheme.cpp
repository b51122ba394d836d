// SPDX-License-Identifier: MIT
#include "DarkScheme.h"

#include "KeypadDriver.h"

#include <QLineEdit>
#include <QPalette>
#include <QScopedPointer>

namespace DarkScheme {

namespace {

enum Part { Dialog, Label, EditLine, Key };

struct PartColour
{
    Part part;
    QPalette::ColorRole role;
    bool ofDisabled; // whether the disabled group has it, too
    QColor colour;
};

// clang-format off
const PartColour partColours[] = {
    { Dialog,   QPalette::Window,          true,  darkBlue },
    { Label,    QPalette::WindowText,      true,  green    },
    { EditLine, QPalette::Base,            true,  darkBlue },
    { EditLine, QPalette::Text,            true,  yellow   },
    { EditLine, QPalette::Highlight,       true,  yellow   },
    { EditLine, QPalette::HighlightedText, true,  darkBlue },
    { Key,      QPalette::ButtonText,      false, green    },
    { Key,      QPalette::Button,          true,  darkBlue }
};
// clang-format on

Part partOf(const QWidget *widget)
{
    if (qobject_cast<const QToolButton *>(widget))
        return Key;
    if (qobject_cast<const QLineEdit *>(widget))
        return EditLine;
    return qobject_cast<const QLabel *>(widget) ? Label : Dialog;
}

QWidget *newBare(Part part, QWidget *parent)
{
    switch (part) {
    case Label:
        return new QLabel(parent);
    case EditLine:
        return new QLineEdit(parent);
    case Key:
        return new QToolButton(parent);
    case Dialog:
        break;
    }
    return new QDialog(parent);
}

QPalette barePalette(Part part, QWidget *parent)
{
    const QScopedPointer<QWidget> bare(newBare(part, parent));
    bare->ensurePolished();
    return bare->palette();
}

QPalette darkened(Part part, QPalette palette)
{
    for (const PartColour &row : partColours) {
        if (row.part != part)
            continue;
        palette.setColor(QPalette::Active, row.role, row.colour);
        palette.setColor(QPalette::Inactive, row.role, row.colour);
        if (row.ofDisabled)
            palette.setColor(QPalette::Disabled, row.role, row.colour);
    }
    return palette;
}

} // namespace

void verify(const QWidget *widget, bool dark)
{
    const Part part = partOf(widget);
    const QPalette bare = barePalette(part, widget->parentWidget());
    const QPalette expected = dark ? darkened(part, bare) : bare;
    for (int g = 0; g < QPalette::NColorGroups; ++g) {
        for (int r = 0; r < QPalette::NColorRoles; ++r) {
            const QPalette::ColorGroup group = QPalette::ColorGroup(g);
            const QPalette::ColorRole role = QPalette::ColorRole(r);
            const QBrush brush = widget->palette().brush(group, role);
            QVERIFY2(brush == expected.brush(group, role),
                     qPrintable(QString::fromLatin1("%1: group %2, role %3 is %4")
                                    .arg(QLatin1String(widget->metaObject()->className()))
                                    .arg(g)
                                    .arg(r)
                                    .arg(brush.color().name())));
        }
    }
}

void addPanelTypeRows()
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
