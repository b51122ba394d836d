// SPDX-License-Identifier: MIT
#include "SheetStage.h"

#include "support/DarkScheme.h"

// The colours of panel type 13 and those of an application: a style sheet that says nothing of
// colours leaves them, one that names a colour wins, and the application's palette is for what the
// scheme leaves open.

namespace {

const int panelTypes[] = { 8, 13 };

// The colours in which a widget is drawn, if it is one that the scheme is about.
QList<QPalette::ColorRole> rolesOf(const QWidget *widget)
{
    QList<QPalette::ColorRole> roles;
    if (qobject_cast<const QDialog *>(widget))
        roles << QPalette::Window;
    else if (qobject_cast<const QLabel *>(widget))
        roles << QPalette::WindowText;
    else if (qobject_cast<const QToolButton *>(widget))
        roles << QPalette::Button << QPalette::ButtonText;
    else if (qobject_cast<const QLineEdit *>(widget))
        roles << QPalette::Base << QPalette::Text << QPalette::Highlight
              << QPalette::HighlightedText;
    return roles;
}

// A line for each widget.
QStringList coloursOf(QDialog *keypad)
{
    const QPalette::ColorGroup groups[] = { QPalette::Active, QPalette::Inactive,
                                            QPalette::Disabled };
    QStringList lines;
    const QWidgetList widgets = widgetsOf(keypad);
    for (const QWidget *widget : widgets) {
        QStringList line(widget->objectName());
        const QList<QPalette::ColorRole> roles = rolesOf(widget);
        for (QPalette::ColorRole role : roles) {
            for (QPalette::ColorGroup group : groups)
                line << widget->palette().color(group, role).name();
        }
        lines << line.join(u(" "));
    }
    return lines;
}

QStringList plainColours(DeviceType type)
{
    AnyStage stage(type);
    stage.open();
    return coloursOf(stage.dialog());
}

void addSheetRows(const char *const (&sheets)[3])
{
    QTest::addColumn<int>("place");
    QTest::addColumn<int>("time");
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<int>("type");
    for (int type : panelTypes) {
        for (const char *sheet : sheets) {
            const QString name = QString::fromLatin1("type %1, %2").arg(type).arg(u(sheet));
            addSheetTimeRows(qPrintable(name),
                             [sheet, type](QTestData &row) { row << u(sheet) << type; });
        }
    }
}

// What the test sets is for this one's life.
class ApplicationPalette
{
public:
    ApplicationPalette()
        : m_former(QApplication::palette())
    {
    }
    ~ApplicationPalette() { QApplication::setPalette(m_former); }

private:
    Q_DISABLE_COPY(ApplicationPalette)

    QPalette m_former;
};

} // namespace

class tst_Colours : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void aSheetWithoutColoursLeavesThem_data();
    void aSheetWithoutColoursLeavesThem();
    void aSheetWithAColourWins_data();
    void aSheetWithAColourWins();
    void theApplicationsPalette_data();
    void theApplicationsPalette();
};

void tst_Colours::initTestCase_data()
{
    addKeypadRows();
}

void tst_Colours::aSheetWithoutColoursLeavesThem_data()
{
    const char *const sheets[] = { "QPushButton { color: red }", "* { font-size: 19px }",
                                   "QToolButton, QLabel, QLineEdit { padding: 2px }" };
    addSheetRows(sheets);
}

void tst_Colours::aSheetWithoutColoursLeavesThem()
{
    QFETCH(QString, sheet);
    QFETCH(int, type);
    const QStringList expected = plainColours(type);
    SheetStage stage(sheet, currentPlace(), currentTime(), type);
    QCOMPARE(coloursOf(stage.dialog()), expected);
    stage.removeSheet();
    QCOMPARE(coloursOf(stage.dialog()), expected);
}

void tst_Colours::aSheetWithAColourWins_data()
{
    const char *const sheets[] = { "QToolButton { color: #102030 }", "QWidget { color: #102030 }",
                                   "#enterKey { color: #102030 }" };
    addSheetRows(sheets);
}

void tst_Colours::aSheetWithAColourWins()
{
    QFETCH(QString, sheet);
    QFETCH(int, type);
    const QColor colour(0x10, 0x20, 0x30);
    const QStringList expected = plainColours(type);
    SheetStage stage(sheet, currentPlace(), currentTime(), type);
    const QToolButton *enter = key(stage.dialog(), u(currentKind().confirmLabel));
    QCOMPARE(enter->palette().color(QPalette::ButtonText), colour);
    const QColor textColour = editLine(stage.dialog())->palette().color(QPalette::Text);
    QCOMPARE(textColour == colour, sheet.startsWith(u("QWidget")));
    stage.removeSheet();
    QCOMPARE(coloursOf(stage.dialog()), expected);
}

void tst_Colours::theApplicationsPalette_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("before");
    QTest::newRow("before the keypad") << 8 << true;
    QTest::newRow("after it") << 8 << false;
    QTest::newRow("before the keypad of type 13") << 13 << true;
    QTest::newRow("after that") << 13 << false;
}

void tst_Colours::theApplicationsPalette()
{
    QFETCH(int, type);
    QFETCH(bool, before);
    const ApplicationPalette palette;
    QPalette odd(QColor(200, 100, 50), QColor(50, 100, 200));
    // On Qt 5 a role that is set in one group stays as it is in all.
    odd.setColor(QPalette::Disabled, QPalette::ButtonText,
                 QApplication::palette().color(QPalette::Disabled, QPalette::ButtonText));
    if (before)
        QApplication::setPalette(odd);
    AnyStage stage(type);
    stage.open();
    QApplication::setPalette(odd);
    QApplication::processEvents();
    const QWidgetList widgets = widgetsOf(stage.dialog());
    for (const QWidget *widget : widgets) {
        if (!rolesOf(widget).isEmpty())
            CHECKED(DarkScheme::verify(widget, type == 13 && currentKind().has(TypesText)));
    }
}

QTEST_MAIN(tst_Colours)

#include "tst_Colours.moc"
