// SPDX-License-Identifier: MIT
#include "Sheets.h"

#include "support/Text.h"

#include <QApplication>
#include <QtTest>

namespace {

struct Sheet
{
    const char *name;
    const char *rules; // %1 is the class
    int left, top, right, bottom;
};

// clang-format off
const Sheet sheets[] = {
    { "none", "", 1, 1, 1, 1 },
    { "colours", "%1 { color: red }", 1, 1, 1, 1 },
    { "background", "%1 { background: yellow }", 1, 1, 1, 1 },
    { "padding", "%1 { padding: 3px 6px }", 7, 4, 7, 4 },
    { "padding of each side", "%1 { border: none; padding: 3px 12px 7px 2px }", 2, 3, 12, 7 },
    { "border", "%1 { border: 5px solid green }", 5, 5, 5, 5 },
    { "all around", "%1 { border: 2px solid green; padding: 3px; margin: 5px 1px 0px 4px }", 9, 10, 6, 5 },
    { "large font", "%1 { font: bold 30px; padding: 4px }", 5, 5, 5, 5 },
    { "larger font", "%1 { font-size: 60px; border: 1px solid red }", 1, 1, 1, 1 },
    { "colours of states",
      "%1 { font-size: 60px; border: 1px solid red; color: red }"
      "%1:pressed { color: green } %1:disabled { color: blue }", 1, 1, 1, 1 }
};
// clang-format on

} // namespace

QMargins stylesFrame()
{
    return QMargins(1, 1, 1, 1);
}

QMargins mirrored(const QMargins &margins)
{
    return QMargins(margins.right(), margins.top(), margins.left(), margins.bottom());
}

void addSheetRows(const char *className)
{
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<QMargins>("around");
    for (const Sheet &sheet : sheets) {
        QString rules = u(sheet.rules);
        rules.replace(u("%1"), u(className));
        QTest::newRow(sheet.name) << rules
                                  << QMargins(sheet.left, sheet.top, sheet.right, sheet.bottom);
    }
}

CurrentSheet::CurrentSheet()
{
    QFETCH(QString, sheet);
    qApp->setStyleSheet(sheet);
}

CurrentSheet::~CurrentSheet()
{
    qApp->setStyleSheet(QString());
}
