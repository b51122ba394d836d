// SPDX-License-Identifier: MIT
#include "support/AnyKeypad.h"
#include "support/DarkScheme.h"

#include <QFontInfo>
#include <QLayout>

// Colours, fonts, and what every keypad's parts have in common.

namespace {

// The keypad's dialog and every edit line, label and key of it.
QWidgetList colouredWidgets(QDialog *keypad)
{
    QWidgetList widgets;
    widgets << keypad << editLine(keypad);
    const QList<QLabel *> labels = keypad->findChildren<QLabel *>();
    for (QLabel *label : labels)
        widgets << label;
    const QList<QToolButton *> keys = keypad->findChildren<QToolButton *>();
    for (QToolButton *key : keys)
        widgets << key;
    return widgets;
}

} // namespace

class tst_KeypadLook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void coloursFollowTheTypeOfTheConstruction_data();
    void coloursFollowTheTypeOfTheConstruction();
    void aDisabledKeyKeepsTheStylesTextColour();
    void fontsAreSetInPixels();
    void layoutsImposeNothingOnTheDialog();
    void theEditLineIsForTypingOrForDisplay();
    void keysExpand();
};

void tst_KeypadLook::initTestCase_data()
{
    addKeypadRows();
}

void tst_KeypadLook::coloursFollowTheTypeOfTheConstruction_data()
{
    DarkScheme::addPanelTypeRows();
}

void tst_KeypadLook::coloursFollowTheTypeOfTheConstruction()
{
    QFETCH(int, type);
    QFETCH(int, typeLater);
    QFETCH(bool, dark);
    AnyStage stage(type);
    HMIDeviceInfo::setDeviceInfo(typeLater, QSize());
    stage.open();
    QApplication::processEvents();
    const QWidgetList widgets = colouredWidgets(stage.dialog());
    for (const QWidget *widget : widgets)
        CHECKED(DarkScheme::verify(widget, dark && currentKind().has(TypesText)));
}

void tst_KeypadLook::aDisabledKeyKeepsTheStylesTextColour()
{
    AnyStage stage(13);
    QToolButton bare(stage.dialog());
    bare.ensurePolished();
    const QColor dimmed = bare.palette().color(QPalette::Disabled, QPalette::ButtonText);
    QVERIFY(dimmed != DarkScheme::green);
    QToolButton *confirm = key(stage.dialog(), u(currentKind().confirmLabel));
    confirm->setEnabled(false);
    QCOMPARE(confirm->palette().color(QPalette::ButtonText), dimmed);
}

void tst_KeypadLook::fontsAreSetInPixels()
{
    AnyStage stage;
    const bool fixedFace = currentKind().has(FixedFace);
    const QString family = QFontInfo(QFont(u("simsun"))).family();
    QWidgetList widgets = stage.dialog()->findChildren<QWidget *>();
    widgets << stage.dialog();
    if (fixedFace) {
        QCOMPARE(int(widgets.removeAll(tipLabel(stage.dialog()))), 1);
        QCOMPARE(tipLabel(stage.dialog())->font().family(), family);
        QCOMPARE(tipLabel(stage.dialog())->font().pixelSize(), 27);
    }
    const QWidgetList others = widgets;
    for (const QWidget *widget : others) {
        QCOMPARE(widget->font().family(), family);
        QCOMPARE(widget->font().pixelSize(), fixedFace ? 37 : 32);
    }
}

void tst_KeypadLook::layoutsImposeNothingOnTheDialog()
{
    AnyStage stage;
    QCOMPARE(int(stage.dialog()->layout()->sizeConstraint()), int(QLayout::SetNoConstraint));
    QCOMPARE(stage.dialog()->minimumSize(), QSize(0, 0));
    const QMargins margins = stage.dialog()->layout()->contentsMargins();
    QVERIFY(margins == QMargins(0, 0, 0, 0));
}

void tst_KeypadLook::theEditLineIsForTypingOrForDisplay()
{
    AnyStage stage;
    const bool types = currentKind().has(TypesText);
    const Qt::Alignment alignment = types ? Qt::AlignRight | Qt::AlignVCenter : Qt::AlignCenter;
    QCOMPARE(int(stage.line()->alignment()), int(alignment));
    QCOMPARE(stage.line()->isEnabled(), types);
    if (types)
        QCOMPARE(int(stage.line()->contextMenuPolicy()), int(Qt::NoContextMenu));
    QVERIFY(!stage.line()->isReadOnly());
    QVERIFY(stage.line()->parentWidget() == stage.dialog());
    QVERIFY(!stage.line()->validator());
    QCOMPARE(stage.line()->text(), QString());
}

void tst_KeypadLook::keysExpand()
{
    AnyStage stage;
    const QSizePolicy::Policy vertical =
        currentKind().has(TypesText) ? QSizePolicy::Expanding : QSizePolicy::Ignored;
    const QList<QToolButton *> keys = stage.dialog()->findChildren<QToolButton *>();
    QVERIFY(!keys.isEmpty());
    for (const QToolButton *key : keys) {
        QCOMPARE(int(key->sizePolicy().horizontalPolicy()), int(QSizePolicy::Expanding));
        QCOMPARE(int(key->sizePolicy().verticalPolicy()), int(vertical));
    }
}

QTEST_MAIN(tst_KeypadLook)

#include "tst_KeypadLook.moc"
