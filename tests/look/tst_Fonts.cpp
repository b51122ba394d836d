// SPDX-License-Identifier: MIT
#include "SheetStage.h"

#include <QSpinBox>

// The application's font does not reach the keypads; one that is set on a keypad or on a part does.

namespace {

// A font that differs in everything from the keypads'.
QFont oddFont()
{
    QFont font(u("DejaVu Sans Mono"), 40, QFont::Bold, true);
    font.setStyleName(u("Bold Oblique"));
    font.setUnderline(true);
    font.setOverline(true);
    font.setStrikeOut(true);
    font.setKerning(false);
    font.setStretch(150);
    font.setCapitalization(QFont::AllUppercase);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 5);
    font.setWordSpacing(7);
    font.setStyleHint(QFont::TypeWriter, QFont::NoAntialias);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

// A font for one class, or for all where this is null, as long as it lives.
class ApplicationFont
{
public:
    explicit ApplicationFont(const char *className)
        : m_former(QApplication::font())
    {
        QApplication::setFont(oddFont(), className);
    }
    ~ApplicationFont()
    {
        QApplication::setFont(oddFont()); // forgets those for classes
        QApplication::setFont(m_former);
    }

private:
    Q_DISABLE_COPY(ApplicationFont)

    QFont m_former;
};

void addClassRows()
{
    QTest::addColumn<QByteArray>("className");
    const char *const classes[] = { "QWidget",   "QDialog",  "QToolButton",      "QAbstractButton",
                                    "QLineEdit", "QSpinBox", "KeyBoardLineEdit", "QLabel" };
    QTest::newRow("all") << QByteArray();
    for (const char *name : classes)
        QTest::newRow(name) << QByteArray(name);
}

const char *currentClass()
{
    QFETCH(QByteArray, className);
    static QByteArray name;
    name = className;
    return name.isEmpty() ? nullptr : name.constData();
}

bool isOfAField(const QWidget *widget)
{
    return qobject_cast<const QAbstractSpinBox *>(widget->parentWidget());
}

} // namespace

class tst_Fonts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void theApplicationsFontBefore_data() { addClassRows(); }
    void theApplicationsFontBefore();
    void theApplicationsFontAfter_data() { addClassRows(); }
    void theApplicationsFontAfter();
    void theApplicationsFontUnderAStyleSheet();
    void theKeypadsFontReachesItsParts_data();
    void theKeypadsFontReachesItsParts();
    void aFontOfAPartStays();
    void aStyleSheetLeavesTheFontsThatAreSet();
};

void tst_Fonts::initTestCase_data()
{
    addKeypadRows();
}

void tst_Fonts::theApplicationsFontBefore()
{
    const QStringList expected = plainFonts();
    const ApplicationFont font(currentClass());
    QCOMPARE(plainFonts(), expected);
}

void tst_Fonts::theApplicationsFontAfter()
{
    const QStringList expected = plainFonts();
    AnyStage stage;
    stage.open();
    const ApplicationFont font(currentClass());
    QApplication::processEvents();
    QCOMPARE(fontsOf(stage.dialog()), expected);
}

void tst_Fonts::theApplicationsFontUnderAStyleSheet()
{
    const QStringList expected = plainFonts();
    SheetStage stage(u("* { color: red }"), OnApplication, BeforeKeypad);
    const ApplicationFont font(nullptr);
    QApplication::processEvents();
    QCOMPARE(fontsOf(stage.dialog()), expected);
    stage.removeSheet();
    QCOMPARE(fontsOf(stage.dialog()), expected);
}

void tst_Fonts::theKeypadsFontReachesItsParts_data()
{
    QTest::addColumn<bool>("shown");
    QTest::newRow("before it is shown") << false;
    QTest::newRow("while it is shown") << true;
}

// But not the line for limits, which has one of its own.
void tst_Fonts::theKeypadsFontReachesItsParts()
{
    QFETCH(bool, shown);
    AnyStage stage;
    if (shown)
        stage.open();
    const bool fixedFace = currentKind().has(FixedFace);
    const QString limitFont = fixedFace ? fontOf(tipLabel(stage.dialog())) : QString();
    const QFont fonts[] = { oddFont(), QFont(u("DejaVu Sans"), 11) };
    for (const QFont &font : fonts) {
        stage.dialog()->setFont(font);
        QApplication::processEvents();
        const QWidgetList widgets = widgetsOf(stage.dialog());
        for (const QWidget *widget : widgets) {
            if (fixedFace && widget == tipLabel(stage.dialog()))
                QCOMPARE(fontOf(widget), limitFont);
            else
                QCOMPARE(fontOf(widget), fontOf(stage.dialog()));
        }
        QCOMPARE(stage.dialog()->font().pointSize(), font.pointSize());
    }
}

void tst_Fonts::aFontOfAPartStays()
{
    AnyStage stage;
    const QWidgetList widgets = widgetsOf(stage.dialog());
    for (QWidget *widget : widgets) {
        if (widget != stage.dialog() && !isOfAField(widget))
            widget->setFont(oddFont());
    }
    stage.open();
    const QStringList expected = fontsOf(stage.dialog()).mid(1);
    stage.dialog()->setFont(QFont(u("DejaVu Sans"), 11));
    QCOMPARE(stage.dialog()->font().pointSize(), 11);
    QCOMPARE(fontsOf(stage.dialog()).mid(1), expected);
    for (const QWidget *widget : widgets.mid(1))
        QCOMPARE(fontOf(widget), fontOf(widgets.at(1)));
}

void tst_Fonts::aStyleSheetLeavesTheFontsThatAreSet()
{
    AnyStage stage;
    stage.dialog()->setFont(oddFont());
    QFont own = oddFont();
    own.setPointSize(11);
    editLine(stage.dialog())->setFont(own);
    stage.open();
    const QStringList expected = fontsOf(stage.dialog());
    qApp->setStyleSheet(u("* { color: red }"));
    const QStringList found = fontsOf(stage.dialog());
    qApp->setStyleSheet(QString());
    QCOMPARE(found, expected);
    QCOMPARE(fontsOf(stage.dialog()), expected);
}

QTEST_MAIN(tst_Fonts)

#include "tst_Fonts.moc"
