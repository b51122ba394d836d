// SPDX-License-Identifier: MIT
#include "support/AnyKeypad.h"
#include "support/DarkScheme.h"

#include <HMIDevice/KeyBoardLineEdit.h>

#include <QBoxLayout>
#include <QFontInfo>
#include <QGridLayout>

// Colours, fonts, first sizes and the layouts around the keys.

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

QString keypadFamily()
{
    return QFontInfo(QFont(QLatin1String("simsun"))).family();
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
    CHECKED(execWhile(
        stage.dialog(), [] { QApplication::processEvents(); }, StaysOpen));
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
    AnyStage stage;
    const bool is320x240 = stage.dialog()->size() == QSize(320, 240);
    QCOMPARE(is320x240, currentKind().has(FixedFace));
}

void tst_KeypadLook::layoutsImposeNothingOnTheDialog()
{
    AnyStage stage;
    QCOMPARE(int(stage.dialog()->layout()->sizeConstraint()), int(QLayout::SetNoConstraint));
    QCOMPARE(stage.dialog()->minimumSize(), QSize(0, 0));
    const QMargins margins = stage.dialog()->layout()->contentsMargins();
    QVERIFY(margins == QMargins(0, 0, 0, 0));
}

void tst_KeypadLook::aFixedFaceStacksLimitsEditLineAndKeys()
{
    if (!currentKind().has(FixedFace))
        HMI_SKIP("laid out otherwise, and tested with its own keypad");
    AnyStage stage;
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
    AnyStage stage;
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
    AnyStage stage;
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
