// SPDX-License-Identifier: MIT
#include "SheetStage.h"

#include <QSpinBox>

// Style sheets, whenever and wherever they come: one that says nothing of fonts leaves the keypads
// theirs, and one that names a font wins.

namespace {

const int sheetPixels = 19;

} // namespace

class tst_StyleSheets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void theKeypadsSizes();
    void withoutFonts_data();
    void withoutFonts();
    void withAFont_data();
    void withAFont();
    void withAFontForOneName();
};

void tst_StyleSheets::initTestCase_data()
{
    addKeypadRows();
}

// What the other tests compare with.
void tst_StyleSheets::theKeypadsSizes()
{
    AnyStage stage;
    const QWidgetList widgets = widgetsOf(stage.dialog());
    for (const QWidget *widget : widgets) {
        const bool isLimitLine =
            currentKind().has(FixedFace) && qobject_cast<const QLabel *>(widget);
        QCOMPARE(widget->font().pixelSize(),
                 !currentKind().has(FixedFace) ? 32
                     : isLimitLine             ? 27
                                               : 37);
    }
}

void tst_StyleSheets::withoutFonts_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<int>("time");
    QTest::addColumn<QString>("sheet");
    const char *const sheets[] = { "QPushButton { color: red }",
                                   "* { color: red }",
                                   "QToolButton { border: 1px solid red; padding: 2px }",
                                   "QDialog { background: black } QLabel { margin: 1px }",
                                   "QAbstractSpinBox, QLineEdit { background: yellow }",
                                   "#enterKey { color: green }" };
    for (const char *sheet : sheets)
        addSheetTimeRows(sheet, [sheet](QTestData &row) { row << u(sheet); });
}

void tst_StyleSheets::withoutFonts()
{
    QFETCH(QString, sheet);
    const QStringList expected = plainFonts();
    SheetStage stage(sheet, currentPlace(), currentTime());
    QCOMPARE(fontsOf(stage.dialog()), expected);
    stage.removeSheet();
    QCOMPARE(fontsOf(stage.dialog()), expected);
}

void tst_StyleSheets::withAFont_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<int>("time");
    QTest::addColumn<QString>("selector");
    const char *const selectors[] = { "QToolButton", "QLabel",  "QLineEdit", "QAbstractSpinBox",
                                      "QSpinBox",    "QDialog", "*" };
    for (const char *selector : selectors)
        addSheetTimeRows(selector, [selector](QTestData &row) { row << u(selector); });
}

void tst_StyleSheets::withAFont()
{
    QFETCH(QString, selector);
    const QByteArray className = selector == u("*") ? QByteArray("QWidget") : selector.toLatin1();
    const QStringList expected = plainFonts();
    SheetStage stage(selector + u(" { font: italic 19px }"), currentPlace(), currentTime());
    const QWidgetList widgets = widgetsOf(stage.dialog());
    const QStringList fonts = fontsOf(stage.dialog());
    for (int i = 0; i < widgets.size(); ++i) {
        const QWidget *spinBox = qobject_cast<QAbstractSpinBox *>(widgets.at(i)->parentWidget());
        const QWidget *named = spinBox ? spinBox : widgets.at(i); // the line inside follows
        if (named->inherits(className.constData()))
            QCOMPARE(widgets.at(i)->font().pixelSize(), sheetPixels);
        else
            QCOMPARE(fonts.at(i), expected.at(i));
    }
    stage.removeSheet();
    QCOMPARE(fontsOf(stage.dialog()), expected);
}

void tst_StyleSheets::withAFontForOneName()
{
    SheetStage stage(u("#enterKey { font-size: 19px }"), OnApplication, BeforeKeypad);
    const QWidgetList widgets = widgetsOf(stage.dialog());
    const QWidget *enter = key(stage.dialog(), u(currentKind().confirmLabel));
    for (int i = 0; i < widgets.size(); ++i)
        QCOMPARE(widgets.at(i)->font().pixelSize() == sheetPixels, widgets.at(i) == enter);
}

QTEST_MAIN(tst_StyleSheets)

#include "tst_StyleSheets.moc"
