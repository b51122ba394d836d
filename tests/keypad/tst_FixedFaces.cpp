// SPDX-License-Identifier: MIT
#include "support/AnyKeypad.h"
#include "support/QtDifferences.h"
#include "support/Translators.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QIntValidator>

// The keypads whose keys never change: where each key lies, what it does, and the line for limits
// above them. Every function runs for each.

namespace {

struct Face
{
    const char *className;
    const char *created; // the keys in the order of their creation
    const char *typing;  // those that type; each its label, the last perhaps a space
    const char *rows[5]; // a label for every cell; "_" for an empty one
};

// clang-format off
const Face faces[] = {
    { "NumericKeypad",
      "A 1 2 3 ESC B 4 5 6 BSP C 7 8 9 +/- D E F 0 . ← → Enter",
      "A 1 2 3 B 4 5 6 C 7 8 9 D E F 0 .",
      { "A 1 2 3 ESC",
        "B 4 5 6 BSP",
        "C 7 8 9 +/-",
        "D E F 0 .",
        "← → _ Enter Enter" } },
    { "GCodeKeypad",
      "I J K L M F G 7 8 9 H R T P U A X 4 5 6 O D E Q V B Y 1 2 3 , $ N S W C Z 0 . - "
      "ESC BSP ← → Enter └──┘",
      "I J K L M F G 7 8 9 H R T P U A X 4 5 6 O D E Q V B Y 1 2 3 , $ N S W C Z 0 . - └──┘",
      { "I I J J K K L L M M F F G G 7 7 8 8 9 9",
        "H H R R T T P P U U A A X X 4 4 5 5 6 6",
        "O O D D E E Q Q V V B B Y Y 1 1 2 2 3 3",
        ", , $ $ N N S S W W C C Z Z 0 0 . . - -",
        "ESC ESC ESC ← ← → → └──┘ └──┘ └──┘ └──┘ └──┘ BSP BSP BSP BSP Enter Enter Enter Enter" } },
    { "vondKeypad",
      "F G 7 8 9 U A X 4 5 6 V B Y 1 2 3 W C Z 0 . - ← → ESC BSP └─┘ Enter",
      "F G 7 8 9 U A X 4 5 6 V B Y 1 2 3 W C Z 0 . └─┘",
      { "_ F G 7 8 9",
        "U A X 4 5 6",
        "V B Y 1 2 3",
        "W C Z 0 . -",
        "← → ESC BSP └─┘ Enter" } }
};
// clang-format on

const Face &currentFace()
{
    const Face *current = faces;
    while (qstrcmp(current->className, currentKind().className) != 0)
        ++current;
    return *current;
}

QGridLayout *gridOf(const QDialog *keypad)
{
    return keypad->findChild<QGridLayout *>();
}

// The labels of the keys in a row, one for each cell.
QString shownRow(const QGridLayout *grid, int row)
{
    QStringList labels;
    for (int column = 0; column < grid->columnCount(); ++column) {
        QLayoutItem *item = grid->itemAtPosition(row, column);
        labels << (item ? item->widget()->property("text").toString() : u("_"));
    }
    return labels.join(u(" "));
}

} // namespace

class tst_FixedFaces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void initTestCase();
    void keysAreCreatedInOrder();
    void everyCellHoldsItsKey();
    void columnsShareTheWidthEqually();
    void theFaceIsStackedUnderTheLimits();
    void theFirstSizeIs320x240();
    void onlyTheArrowsAreTranslated();

    void typingKeysTypeTheirLabel();
    void editingKeysMoveAndErase_data();
    void editingKeysMoveAndErase();
    void theValidatorRefusesKeys();
    void theMaximumLengthEndsTheEntry();
    void hardKeysTypeIntoTheSameLine();
    void confirmingWritesWhatWasTyped();
    void cancellingKeepsWhatWasTypedInTheLine();
    void aCallWithoutKeyDoesNothing();

    void limitsAreShownUntilTheyAreEmpty();
    void limitsOutlastTheBinding();
};

void tst_FixedFaces::initTestCase_data()
{
    addKeypadRows(FixedFace);
}

void tst_FixedFaces::initTestCase()
{
    QtDifferences::readLiteralsAsGbk();
}

void tst_FixedFaces::keysAreCreatedInOrder()
{
    AnyStage stage;
    QCOMPARE(keyLabels(stage.dialog()), labelList(currentFace().created));
}

void tst_FixedFaces::everyCellHoldsItsKey()
{
    AnyStage stage;
    const QGridLayout *grid = gridOf(stage.dialog());
    QCOMPARE(grid->rowCount(), 5);
    for (int row = 0; row < 5; ++row)
        QCOMPARE(shownRow(grid, row), u(currentFace().rows[row]));
    QCOMPARE(grid->count(), int(labelList(currentFace().created).size())); // a key is one item
    for (int i = 0; i < grid->count(); ++i)
        QCOMPARE(int(grid->itemAt(i)->alignment()), 0);
}

void tst_FixedFaces::columnsShareTheWidthEqually()
{
    AnyStage stage;
    stage.open();
    const QGridLayout *grid = gridOf(stage.dialog());
    const QRect first = grid->cellRect(0, 0);
    for (int column = 0; column < grid->columnCount(); ++column) {
        QCOMPARE(grid->columnStretch(column), 0);
        const int difference = grid->cellRect(0, column).width() - first.width();
        QVERIFY2(qAbs(difference) <= 1, qPrintable(QString::number(difference)));
    }
}

void tst_FixedFaces::theFaceIsStackedUnderTheLimits()
{
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
}

void tst_FixedFaces::theFirstSizeIs320x240()
{
    AnyStage stage;
    QCOMPARE(stage.dialog()->size(), QSize(320, 240));
}

void tst_FixedFaces::onlyTheArrowsAreTranslated()
{
    const ContextTranslator translator;
    AnyStage stage;
    QStringList expected = labelList(currentFace().created);
    expected.replaceInStrings(u("←"), u("/←"));
    expected.replaceInStrings(u("→"), u("/→"));
    QCOMPARE(keyLabels(stage.dialog()), expected);
}

void tst_FixedFaces::typingKeysTypeTheirLabel()
{
    const QStringList labels = labelList(currentFace().typing);
    for (const QString &label : labels) {
        const QString typed = label.size() > 1 ? u(" ") : label;
        AnyStage stage;
        stage.open(u("12"));
        CHECKED(tap(stage.dialog(), label)); // replaces the selection
        QCOMPARE(stage.line()->text(), typed);
        CHECKED(tap(stage.dialog(), label));
        CHECKED(tapAll(stage.dialog(), u("← 1")));
        QCOMPARE(stage.line()->text(), typed + u("1") + typed);
        QCOMPARE(stage.line()->cursorPosition(), 2);
        QCOMPARE(stage.target.text(), QString());
    }
}

void tst_FixedFaces::editingKeysMoveAndErase_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("cursor");
    // All begin with 123, selected.
    QTest::newRow("left of a selection") << u("←") << u("123") << 2;
    QTest::newRow("left twice") << u("← ←") << u("123") << 1;
    QTest::newRow("left stops at the start") << u("← ← ← ← ←") << u("123") << 0;
    QTest::newRow("right stops at the end") << u("← → → →") << u("123") << 3;
    QTest::newRow("erase a selection") << u("BSP") << u("") << 0;
    QTest::newRow("erase from empty") << u("BSP BSP") << u("") << 0;
    QTest::newRow("erase the last") << u("← → BSP") << u("12") << 2;
    QTest::newRow("erase in the middle") << u("← BSP") << u("13") << 1;
    QTest::newRow("erase at the start") << u("← ← ← BSP") << u("123") << 0;
    QTest::newRow("type in the middle") << u("← 9 .") << u("129.3") << 4;
    QTest::newRow("two points") << u("← . .") << u("12..3") << 4;
    QTest::newRow("erase what was typed") << u("← 9 BSP BSP 7") << u("173") << 2;
}

void tst_FixedFaces::editingKeysMoveAndErase()
{
    QFETCH(QString, keys);
    AnyStage stage;
    stage.open(u("123"));
    CHECKED(tapAll(stage.dialog(), keys));
    QTEST(stage.line()->text(), "text");
    QTEST(stage.line()->cursorPosition(), "cursor");
    QVERIFY(!stage.line()->hasSelectedText());
}

void tst_FixedFaces::theValidatorRefusesKeys()
{
    AnyStage stage;
    QIntValidator validator(0, 99, nullptr);
    validator.setLocale(QLocale::c()); // a point groups digits elsewhere
    stage.keypad.setValidator(&validator);
    stage.open(u("5"));
    stage.line()->setCursorPosition(1);
    CHECKED(tapAll(stage.dialog(), u("A .")));
    QCOMPARE(stage.line()->text(), u("5"));
    CHECKED(tapAll(stage.dialog(), u("7 8")));
    QCOMPARE(stage.line()->text(), u("57"));
    stage.keypad.setValidator(nullptr);
    CHECKED(tapAll(stage.dialog(), u("8 A")));
    QCOMPARE(stage.line()->text(), u("578A"));
}

void tst_FixedFaces::theMaximumLengthEndsTheEntry()
{
    AnyStage stage;
    stage.keypad.setMaxLength(3);
    stage.open(u("12345"));
    QCOMPARE(stage.line()->text(), u("123"));
    stage.line()->setCursorPosition(3);
    CHECKED(tap(stage.dialog(), u("4")));
    QCOMPARE(stage.line()->text(), u("123"));
    CHECKED(tapAll(stage.dialog(), u("BSP 9 8")));
    QCOMPARE(stage.line()->text(), u("129"));
}

void tst_FixedFaces::hardKeysTypeIntoTheSameLine()
{
    AnyStage stage(5);
    stage.keypad.setText(u("7"));
    CHECKED(execWhile(
        stage.dialog(),
        [&] {
            stage.activate();
            QVERIFY(stage.dialog()->focusWidget() == stage.line());
            QTest::keyClicks(stage.line(), u("42"));
            CHECKED(tap(stage.dialog(), u(".")));
            pressHardKey(stage.dialog(), Qt::Key_Return);
        },
        Accepts));
    QCOMPARE(stage.target.text(), u("42."));
}

void tst_FixedFaces::confirmingWritesWhatWasTyped()
{
    AnyStage stage;
    stage.keypad.setText(u("old"));
    CHECKED(execWhile(
        stage.dialog(), [&] { CHECKED(tapAll(stage.dialog(), u("1 2 . 5 BSP 7 Enter"))); },
        Accepts));
    QCOMPARE(stage.target.text(), u("12.7"));
}

void tst_FixedFaces::cancellingKeepsWhatWasTypedInTheLine()
{
    AnyStage stage;
    stage.keypad.setText(u("7"));
    CHECKED(execWhile(
        stage.dialog(), [&] { CHECKED(tapAll(stage.dialog(), u("8 ESC"))); }, Rejects));
    QCOMPARE(stage.target.text(), QString());
    CHECKED(execWhile(
        stage.dialog(), [&] { CHECKED(tapAll(stage.dialog(), u("9 Enter"))); }, Accepts));
    QCOMPARE(stage.target.text(), u("89"));
}

void tst_FixedFaces::aCallWithoutKeyDoesNothing()
{
    AnyStage stage;
    stage.open(u("12"));
    QVERIFY(QMetaObject::invokeMethod(stage.dialog(), "slot_toolButton_clicked"));
    QVERIFY(stage.dialog()->isVisible());
    QCOMPARE(stage.line()->text(), u("12"));
    QCOMPARE(stage.line()->selectedText(), u("12"));
    QCOMPARE(stage.target.text(), QString());
}

void tst_FixedFaces::limitsAreShownUntilTheyAreEmpty()
{
    AnyStage stage;
    const QLabel *label = tipLabel(stage.dialog());
    QVERIFY(label->isHidden());
    QCOMPARE(label->text(), QString());
    stage.keypad.setLimitToolTip(u("0 … 100"));
    QCOMPARE(label->text(), u("0 … 100"));

    stage.open();
    QVERIFY(label->isVisible());
    stage.keypad.setLimitToolTip(QString());
    QVERIFY(!label->isVisible());
    QCOMPARE(label->text(), u("0 … 100")); // an empty text only hides the label
    stage.keypad.setLimitToolTip(u("1 … 9"));
    QVERIFY(label->isVisible());
    QCOMPARE(label->text(), u("1 … 9"));
}

void tst_FixedFaces::limitsOutlastTheBinding()
{
    AnyStage stage;
    QLabel other;
    stage.keypad.setLimitToolTip(u("0 to 9"));
    stage.keypad.setObject(&other);
    QCOMPARE(tipLabel(stage.dialog())->text(), u("0 to 9"));
    QVERIFY(!tipLabel(stage.dialog())->isHidden());
}

QTEST_MAIN(tst_FixedFaces)

#include "tst_FixedFaces.moc"
