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
    bool keepsBorder;  // that of the style
    int left, top, right, bottom;
};

// clang-format off
const Sheet sheets[] = {
    { "none",                 "",                                                 true,  0, 0, 0, 0 },
    { "colours",              "%1 { color: red }",                                true,  0, 0, 0, 0 },
    { "background",           "%1 { background: yellow }",                        true,  0, 0, 0, 0 },
    { "padding",              "%1 { padding: 3px 6px }",                          true,  6, 3, 6, 3 },
    { "padding of each side", "%1 { border: none; padding: 3px 12px 7px 2px }",   false, 2, 3, 12, 7 },
    { "border",               "%1 { border: 5px solid green }",                   false, 5, 5, 5, 5 },
    { "all around",           "%1 { border: 2px solid green; padding: 3px; margin: 5px 1px 0px 4px }",
                                                                                  false, 9, 10, 6, 5 },
    { "large font",           "%1 { font: bold 30px; padding: 4px }",             true,  4, 4, 4, 4 },
    { "larger font",          "%1 { font-size: 60px; border: 1px solid red }",    false, 1, 1, 1, 1 },
    { "colours of states",    "%1 { font-size: 60px; border: 1px solid red; color: red }"
                              "%1:pressed { color: green } %1:disabled { color: blue }",
                                                                                  false, 1, 1, 1, 1 }
};
// clang-format on

QMargins mirrored(const QMargins &margins)
{
    return QMargins(margins.right(), margins.top(), margins.left(), margins.bottom());
}

} // namespace

QMargins stylesFrame()
{
    return QMargins(1, 1, 1, 1);
}

void addSheetRows(const char *className, const QMargins &frame, SheetRule rule)
{
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<int>("direction");
    QTest::addColumn<QMargins>("around");
    for (const Sheet &sheet : sheets) {
        QString rules = u(sheet.rules);
        rules.replace(u("%1"), u(className));
        const QMargins border = sheet.keepsBorder ? frame : QMargins();
        const QMargins around(sheet.left + border.left(), sheet.top + border.top(),
                              sheet.right + border.right(), sheet.bottom + border.bottom());
        QTest::newRow(sheet.name) << rules << int(Qt::LeftToRight) << around;
        QTest::newRow(qPrintable(u(sheet.name) + u(", right to left")))
            << rules << int(Qt::RightToLeft) << (rule == SidesChange ? mirrored(around) : around);
    }
}

CurrentSheet::CurrentSheet()
{
    QFETCH(QString, sheet);
    QFETCH(int, direction);
    qApp->setLayoutDirection(Qt::LayoutDirection(direction));
    qApp->setStyleSheet(sheet);
}

CurrentSheet::~CurrentSheet()
{
    qApp->setStyleSheet(QString());
    qApp->setLayoutDirection(Qt::LeftToRight);
}
