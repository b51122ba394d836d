// SPDX-License-Identifier: MIT
#include "support/AnyKeypad.h"

#include <HMIDevice/KeyBoardLineEdit.h>

#include <QBoxLayout>
#include <QFontInfo>
#include <QGridLayout>

// Colours, fonts, first sizes and the layouts around the keys.

namespace {

const QColor darkBlue(15, 15, 70);
const QColor green(0, 255, 0);
const QColor yellow(255, 255, 0);

enum Part { Dialog, LimitLine, EditLine, Keys };

struct PartColour
{
    Part part;
    QPalette::ColorGroup group;
    QPalette::ColorRole role;
    QColor colour;
};

// clang-format off
const PartColour darkScheme[] = {
    { Dialog,    QPalette::Active,   QPalette::Window,          darkBlue },
    { Dialog,    QPalette::Inactive, QPalette::Window,          darkBlue },
    { Dialog,    QPalette::Disabled, QPalette::Window,          darkBlue },
    { LimitLine, QPalette::Active,   QPalette::WindowText,      green },
    { LimitLine, QPalette::Inactive, QPalette::WindowText,      green },
    { LimitLine, QPalette::Disabled, QPalette::WindowText,      green },
    { EditLine,  QPalette::Active,   QPalette::Base,            darkBlue },
    { EditLine,  QPalette::Inactive, QPalette::Base,            darkBlue },
    { EditLine,  QPalette::Disabled, QPalette::Base,            darkBlue },
    { EditLine,  QPalette::Active,   QPalette::Text,            yellow },
    { EditLine,  QPalette::Inactive, QPalette::Text,            yellow },
    { EditLine,  QPalette::Disabled, QPalette::Text,            yellow },
    { EditLine,  QPalette::Active,   QPalette::Highlight,       yellow },
    { EditLine,  QPalette::Inactive, QPalette::Highlight,       yellow },
    { EditLine,  QPalette::Disabled, QPalette::Highlight,       yellow },
    { EditLine,  QPalette::Active,   QPalette::HighlightedText, darkBlue },
    { EditLine,  QPalette::Inactive, QPalette::HighlightedText, darkBlue },
    { EditLine,  QPalette::Disabled, QPalette::HighlightedText, darkBlue },
    { Keys,      QPalette::Active,   QPalette::ButtonText,      green },
    { Keys,      QPalette::Inactive, QPalette::ButtonText,      green },
    { Keys,      QPalette::Active,   QPalette::Button,          darkBlue },
    { Keys,      QPalette::Inactive, QPalette::Button,          darkBlue },
    { Keys,      QPalette::Disabled, QPalette::Button,          darkBlue }
};

const char *const partNames[] = { "dialog", "line for limits", "edit line", "keys" };
// clang-format on

/* The widgets of one part of a keypad. */
QList<QWidget *> widgetsOf(Part part, QDialog *keypad)
{
    QList<QWidget *> widgets;
    const QList<QToolButton *> keys = keypad->findChildren<QToolButton *>();
    switch (part) {
    case Dialog:
        return widgets << keypad;
    case LimitLine:
        return currentKind().has(FixedFace) ? widgets << tipLabel(keypad) : widgets;
    case EditLine:
        return widgets << editLine(keypad);
    case Keys:
        for (QToolButton *key : keys)
            widgets << key;
        return widgets;
    }
    return widgets;
}

/* The same widgets as the style alone has them, in a dialog of the same window colour. */
class PlainDialog : public QDialog
{
public:
    explicit PlainDialog(QWidget *parent, bool dark)
        : QDialog(parent)
    {
        if (dark) {
            QPalette palette(this->palette());
            palette.setColor(QPalette::All, QPalette::Window, darkBlue);
            setPalette(palette);
        }
        m_widgets << this << new QLabel(this) << new QLineEdit(this) << new QToolButton(this);
    }

    const QPalette &palette(Part part) const { return m_widgets.at(part)->palette(); }
    using QDialog::palette;

private:
    QList<QWidget *> m_widgets;
};

/* Qt derives some roles from others, so colours are set as a whole and compared one by one. */
QPalette darkened(Part part, QPalette palette)
{
    for (const PartColour &row : darkScheme) {
        if (row.part == part)
            palette.setColor(row.group, row.role, row.colour);
    }
    return palette;
}

bool hasDarkScheme(DeviceType type)
{
    return type == 13 && currentKind().has(TypesText);
}

QString keypadFamily()
{
    return QFontInfo(QFont(QLatin1String("simsun"))).family();
}

} // namespace

Q_DECLARE_METATYPE(QPalette::ColorGroup)
Q_DECLARE_METATYPE(QPalette::ColorRole)

class tst_KeypadLook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void typeThirteenIsDark_data();
    void typeThirteenIsDark();
    void everyOtherColourIsTheStyles_data();
    void everyOtherColourIsTheStyles();
    void aDisabledKeyKeepsTheStylesTextColour();
    void coloursAreThoseOfTheTypeWhenBuilt();
    void fontsAreSetInPixels();
    void aFixedFaceStartsAt320x240();
    void layoutsImposeNothingOnTheDialog();
    void aFixedFaceStacksLimitsEditLineAndKeys();
    void theEditLineTypesFromTheRight();
    void keysExpandBothWays();
};

void tst_KeypadLook::initTestCase_data()
{
    addKeypadRows();
}

void tst_KeypadLook::typeThirteenIsDark_data()
{
    QTest::addColumn<int>("row");
    const int count = int(sizeof(darkScheme) / sizeof(darkScheme[0]));
    for (int i = 0; i < count; ++i) {
        const QString name = QString::fromLatin1("%1, group %2, role %3")
                                 .arg(QLatin1String(partNames[darkScheme[i].part]))
                                 .arg(int(darkScheme[i].group))
                                 .arg(int(darkScheme[i].role));
        QTest::newRow(qPrintable(name)) << i;
    }
}

void tst_KeypadLook::typeThirteenIsDark()
{
    QFETCH(int, row);
    const PartColour &expected = darkScheme[row];
    KeypadStage stage(13);
    const QList<QWidget *> widgets = widgetsOf(expected.part, stage.dialog());
    if (widgets.isEmpty())
        HMI_SKIP("this keypad has no line for limits");
    for (const QWidget *widget : widgets) {
        const QBrush brush = widget->palette().brush(expected.group, expected.role);
        QCOMPARE(brush.color() == expected.colour, hasDarkScheme(13));
        QCOMPARE(int(brush.style()), int(Qt::SolidPattern));
        QCOMPARE(brush.color().alpha(), 255);
    }
}

void tst_KeypadLook::everyOtherColourIsTheStyles_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("part");
    const DeviceType types[] = { 0, 1, 9, 10, 12, 13, 14, 21 };
    for (DeviceType type : types) {
        for (int part = Dialog; part <= Keys; ++part) {
            const QString name =
                QString::fromLatin1("type %1, %2").arg(type).arg(QLatin1String(partNames[part]));
            QTest::newRow(qPrintable(name)) << type << part;
        }
    }
}

void tst_KeypadLook::everyOtherColourIsTheStyles()
{
    QFETCH(int, type);
    QFETCH(int, part);
    KeypadStage stage(type);
    const bool dark = hasDarkScheme(type);
    const PlainDialog plain(stage.view(), dark);
    const QPalette style = plain.palette(Part(part));
    const QPalette expected = dark ? darkened(Part(part), style) : style;
    const QList<QWidget *> widgets = widgetsOf(Part(part), stage.dialog());
    for (const QWidget *widget : widgets) {
        for (int g = 0; g < QPalette::NColorGroups; ++g) {
            for (int r = 0; r < QPalette::NColorRoles; ++r) {
                const QPalette::ColorGroup group = QPalette::ColorGroup(g);
                const QPalette::ColorRole role = QPalette::ColorRole(r);
                QCOMPARE(widget->palette().color(group, role), expected.color(group, role));
            }
        }
    }
}

void tst_KeypadLook::aDisabledKeyKeepsTheStylesTextColour()
{
    KeypadStage stage(13);
    const PlainDialog plain(stage.view(), hasDarkScheme(13));
    const QColor dimmed = plain.palette(Keys).color(QPalette::Disabled, QPalette::ButtonText);
    QVERIFY(dimmed != green);
    const QList<QWidget *> keys = widgetsOf(Keys, stage.dialog());
    for (const QWidget *key : keys)
        QCOMPARE(key->palette().color(QPalette::Disabled, QPalette::ButtonText), dimmed);
}

void tst_KeypadLook::coloursAreThoseOfTheTypeWhenBuilt()
{
    KeypadStage dark(13);
    const QPalette before = key(dark.dialog(), u(currentKind().confirmLabel))->palette();
    HMIDeviceInfo::setDeviceInfo(1, QSize());
    execWhile(dark.dialog(), [] { QApplication::processEvents(); });
    const QPalette after = key(dark.dialog(), u(currentKind().confirmLabel))->palette();
    QVERIFY(after == before);
    QCOMPARE(after.color(QPalette::Active, QPalette::ButtonText) == green, hasDarkScheme(13));
}

void tst_KeypadLook::fontsAreSetInPixels()
{
    KeypadStage stage;
    const int pixels = currentKind().has(FixedFace) ? 37 : 32;
    QCOMPARE(stage.dialog()->font().family(), keypadFamily());
    QCOMPARE(stage.dialog()->font().pixelSize(), pixels);
    QCOMPARE(stage.line()->font().family(), keypadFamily());
    QCOMPARE(stage.line()->font().pixelSize(), pixels);
    const QList<QToolButton *> keys = stage.dialog()->findChildren<QToolButton *>();
    for (const QToolButton *key : keys) {
        QCOMPARE(key->font().family(), keypadFamily());
        QCOMPARE(key->font().pixelSize(), pixels);
    }
    if (currentKind().has(FixedFace)) {
        QCOMPARE(tipLabel(stage.dialog())->font().family(), keypadFamily());
        QCOMPARE(tipLabel(stage.dialog())->font().pixelSize(), 27);
    }
}

void tst_KeypadLook::aFixedFaceStartsAt320x240()
{
    KeypadStage stage;
    const bool is320x240 = stage.dialog()->size() == QSize(320, 240);
    QCOMPARE(is320x240, currentKind().has(FixedFace));
}

void tst_KeypadLook::layoutsImposeNothingOnTheDialog()
{
    KeypadStage stage;
    QCOMPARE(int(stage.dialog()->layout()->sizeConstraint()), int(QLayout::SetNoConstraint));
    QCOMPARE(stage.dialog()->minimumSize(), QSize(0, 0));
    const QMargins margins = stage.dialog()->layout()->contentsMargins();
    QVERIFY(margins == QMargins(0, 0, 0, 0));
}

void tst_KeypadLook::aFixedFaceStacksLimitsEditLineAndKeys()
{
    if (!currentKind().has(FixedFace))
        HMI_SKIP("laid out otherwise, and tested with its own keypad");
    KeypadStage stage;
    const QVBoxLayout *box = qobject_cast<QVBoxLayout *>(stage.dialog()->layout());
    QVERIFY(box);
    QCOMPARE(box->spacing(), 0);
    QCOMPARE(box->count(), 3);
    QVERIFY(box->itemAt(0)->widget() == tipLabel(stage.dialog()));
    QVERIFY(box->itemAt(1)->widget() == stage.line());
    const QGridLayout *grid = qobject_cast<QGridLayout *>(box->itemAt(2)->layout());
    QVERIFY(grid);
    for (int i = 0; i < box->count(); ++i) {
        QCOMPARE(box->stretch(i), 0);
        QCOMPARE(int(box->itemAt(i)->alignment()), 0);
    }
    QCOMPARE(grid->horizontalSpacing(), 1);
    QCOMPARE(grid->verticalSpacing(), 1);
    QVERIFY(grid->contentsMargins() == QMargins(0, 0, 0, 0));
    QCOMPARE(grid->count(), int(stage.dialog()->findChildren<QToolButton *>().size()));
}

void tst_KeypadLook::theEditLineTypesFromTheRight()
{
    if (!currentKind().has(TypesText))
        HMI_SKIP("a centred display, tested with its own keypad");
    KeypadStage stage;
    QCOMPARE(int(stage.line()->alignment()), int(Qt::AlignRight | Qt::AlignVCenter));
    QCOMPARE(int(stage.line()->contextMenuPolicy()), int(Qt::NoContextMenu));
    QVERIFY(stage.line()->isEnabled());
    QVERIFY(!stage.line()->isReadOnly());
    QVERIFY(stage.line()->parentWidget() == stage.dialog());
    QVERIFY(!stage.line()->validator());
    QCOMPARE(stage.line()->text(), QString());
}

void tst_KeypadLook::keysExpandBothWays()
{
    if (!currentKind().has(TypesText))
        HMI_SKIP("keys of other size policies, tested with their own keypad");
    KeypadStage stage;
    const QList<QToolButton *> keys = stage.dialog()->findChildren<QToolButton *>();
    QVERIFY(!keys.isEmpty());
    for (const QToolButton *key : keys) {
        const QSizePolicy policy = key->sizePolicy();
        QCOMPARE(int(policy.horizontalPolicy()), int(QSizePolicy::Expanding));
        QCOMPARE(int(policy.verticalPolicy()), int(QSizePolicy::Expanding));
    }
}

QTEST_MAIN(tst_KeypadLook)

#include "tst_KeypadLook.moc"
