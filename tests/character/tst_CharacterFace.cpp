// SPDX-License-Identifier: MIT
#include "CharacterDriver.h"
#include "support/DarkScheme.h"
#include "support/DictionaryFile.h"

#include <QApplication>
#include <QFontInfo>
#include <QGridLayout>
#include <QLabel>
#include <QSignalMapper>

// The keypad as an operator sees it: its parts, its four faces, its colours and its place.

namespace {

bool intersects(const QRect &rect, const QList<QRect> &others)
{
    for (const QRect &other : others) {
        if (rect.intersects(other))
            return true;
    }
    return false;
}

} // namespace

class tst_CharacterFace : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void itIsMadeOfKnownParts();
    void theGridHasTwentyColumns();
    void eachPartHasItsCells_data();
    void eachPartHasItsCells();
    void eachFaceHasItsLabels_data();
    void eachFaceHasItsLabels();
    void facesEnableTheirKeys();
    void everyKeyHasRoom_data();
    void everyKeyHasRoom();
    void onePanelTakesTheOthersLine_data();
    void onePanelTakesTheOthersLine();
    void fontsComeFromTheDialog();
    void coloursFollowThePanelTypeOfItsConstruction_data();
    void coloursFollowThePanelTypeOfItsConstruction();
    void theBlankKeyKeepsTheStylesDisabledText();
    void itCoversTheViewInEveryMode_data();
    void itCoversTheViewInEveryMode();
};

void tst_CharacterFace::cleanup()
{
    HMIDeviceInfo::setDeviceInfo(1, QSize());
}

void tst_CharacterFace::itIsMadeOfKnownParts()
{
    const QSizePolicy expanding(QSizePolicy::Expanding, QSizePolicy::Expanding);
    CharacterKeypad keypad(nullptr, Qt::WindowFlags());
    QCOMPARE(keypad.findChildren<KeyBoardLineEdit *>().size(), 1);
    QCOMPARE(keypad.findChildren<QLineEdit *>().size(), 1);
    QCOMPARE(keypad.findChildren<ChnPanel *>().size(), 1);
    QCOMPARE(keypad.findChildren<NumPanel *>().size(), 1);
    QCOMPARE(keypad.findChildren<QSignalMapper *>().size(), 1);
    QCOMPARE(keypad.findChild<QSignalMapper *>()->parent(), static_cast<QObject *>(&keypad));
    QCOMPARE(keypad.findChildren<ClickLabel *>().size(), 5);
    QCOMPARE(keypad.findChildren<QToolButton *>().size(), 26 + 9 + 10 + 2);
    int keysOfTheDialog = 0;
    const QList<QToolButton *> keys = keypad.findChildren<QToolButton *>();
    for (const QToolButton *key : keys) {
        keysOfTheDialog += key->parentWidget() == &keypad ? 1 : 0;
        QVERIFY(key->sizePolicy() == expanding);
    }
    QCOMPARE(keysOfTheDialog, 26 + 9);

    const KeyBoardLineEdit *line = editLine(&keypad);
    QCOMPARE(int(line->alignment()), int(Qt::AlignRight | Qt::AlignVCenter));
    QCOMPARE(line->contextMenuPolicy(), Qt::NoContextMenu);
    QVERIFY(line->sizePolicy() == expanding);
    QCOMPARE(line->text(), QString());
    QCOMPARE(digitPanel(keypad)->parentWidget(), static_cast<QWidget *>(&keypad));
    QCOMPARE(candidatePanel(keypad)->parentWidget(), static_cast<QWidget *>(&keypad));
}

void tst_CharacterFace::theGridHasTwentyColumns()
{
    CharacterKeypad keypad(nullptr, Qt::WindowFlags());
    QGridLayout *grid = qobject_cast<QGridLayout *>(keypad.layout());
    QVERIFY(grid);
    QCOMPARE(grid->columnCount(), 20);
    QCOMPARE(grid->rowCount(), 7);
    QCOMPARE(grid->horizontalSpacing(), 1);
    QCOMPARE(grid->verticalSpacing(), 1);
    QCOMPARE(grid->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(grid->count(), 3 + 26 + 9);
    QCOMPARE(grid->itemAtPosition(0, 0)->widget(), static_cast<QWidget *>(editLine(&keypad)));
    QCOMPARE(grid->itemAtPosition(1, 0)->widget(), static_cast<QWidget *>(candidatePanel(keypad)));
    QCOMPARE(grid->itemAtPosition(2, 0)->widget(), static_cast<QWidget *>(digitPanel(keypad)));
}

void tst_CharacterFace::eachPartHasItsCells_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("columnSpan");
    QTest::addColumn<QString>("text");

    static const char *const letterRows[] = { "qwertyuiop", "asdfghjkl", "zxcvbnm" };
    static const int firstColumns[] = { 0, 1, 3 };
    for (int row = 0; row < 3; ++row) {
        for (int i = 0; letterRows[row][i]; ++i) {
            const QString letter(QLatin1Char(letterRows[row][i]));
            QTest::newRow(qPrintable(letter))
                << 3 + row << firstColumns[row] + 2 * i << 2 << letter;
        }
    }
    static const struct
    {
        const char *name;
        int row, column, columnSpan;
        const char *text;
    } others[] = { { "edit line", 0, 0, 20, "" }, { "candidates", 1, 0, 20, "" },
                   { "digits", 2, 0, 20, "" },    { "mode", 5, 0, 3, "caps" },
                   { "delete", 5, 17, 3, "Del" }, { "symbols", 6, 0, 2, "*#" },
                   { "comma", 6, 2, 2, "," },     { "space", 6, 4, 4, "Space" },
                   { "period", 6, 8, 2, "." },    { "language", 6, 10, 4, "CN" },
                   { "escape", 6, 14, 2, "Esc" }, { "enter", 6, 16, 4, "Enter" } };
    for (const auto &part : others)
        QTest::newRow(part.name) << part.row << part.column << part.columnSpan << u(part.text);
}

void tst_CharacterFace::eachPartHasItsCells()
{
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(int, columnSpan);
    QFETCH(QString, text);
    CharacterKeypad keypad(nullptr, Qt::WindowFlags());
    QGridLayout *grid = qobject_cast<QGridLayout *>(keypad.layout());
    QLayoutItem *item = grid->itemAtPosition(row, column);
    QVERIFY(item);
    QCOMPARE(labelOf(item->widget()), text);

    int itsRow, itsColumn, itsRowSpan, itsColumnSpan;
    grid->getItemPosition(grid->indexOf(item->widget()), &itsRow, &itsColumn, &itsRowSpan,
                          &itsColumnSpan);
    QCOMPARE(itsRow, row);
    QCOMPARE(itsColumn, column);
    QCOMPARE(itsRowSpan, 1);
    QCOMPARE(itsColumnSpan, columnSpan);
}

void tst_CharacterFace::eachFaceHasItsLabels_data()
{
    addFaceRows();
}

void tst_CharacterFace::eachFaceHasItsLabels()
{
    QFETCH(int, face);
    CharacterKeypad keypad(nullptr, Qt::WindowFlags());
    CHECKED(press(keypad, faces[face].taps));
    QCOMPARE(shownFace(keypad), u(faces[face].shown));
    QCOMPARE(modeKey(keypad)->isEnabled(), face != Chinese);
    QVERIFY(symbolKey(keypad)->isEnabled());

    QStringList letters;
    const QList<QToolButton *> keys = letterKeys(keypad);
    for (const QToolButton *key : keys) {
        letters << key->text();
        QVERIFY(key->isEnabled());
    }
    QCOMPARE(letters, labelList(faces[face].letters));

    static const int others[][2] = {
        { 5, 17 }, { 6, 2 }, { 6, 4 }, { 6, 8 }, { 6, 14 }, { 6, 16 }
    };
    QStringList labels;
    for (const int(&cell)[2] : others)
        labels << keyAt(keypad, cell[0], cell[1])->text();
    QCOMPARE(labels.join(u(" ")), u("Del , Space . Esc Enter"));
}

void tst_CharacterFace::facesEnableTheirKeys()
{
    CharacterKeypad keypad(nullptr, Qt::WindowFlags());
    symbolKey(keypad)->setEnabled(false);
    modeKey(keypad)->setEnabled(false);
    QVERIFY(sendContent(keypad, u("*#")));
    QVERIFY(!symbolKey(keypad)->isEnabled());
    QVERIFY(modeKey(keypad)->isEnabled());
    modeKey(keypad)->setEnabled(false);
    QVERIFY(sendContent(keypad, u("<<")));
    QVERIFY(symbolKey(keypad)->isEnabled());
    QVERIFY(modeKey(keypad)->isEnabled());
}

void tst_CharacterFace::everyKeyHasRoom_data()
{
    addFaceRows();
}

// On the smallest panel too, no key is squeezed to nothing, covered by another or cut off.
void tst_CharacterFace::everyKeyHasRoom()
{
    QFETCH(int, face);
    CharacterStage stage(10, QSize(480, 272));
    stage.keypad.show();
    CHECKED(press(stage.keypad, faces[face].taps));
    QApplication::processEvents();
    const QList<QWidget *> widgets = clickableWidgets(stage.keypad);
    QList<QRect> taken;
    for (const QWidget *widget : widgets) {
        if (!widget->isVisible())
            continue;
        const QRect rect(widget->mapTo(&stage.keypad, QPoint(0, 0)), widget->size());
        QVERIFY2(rect.width() >= 16 && rect.height() >= 16, qPrintable(labelOf(widget)));
        QVERIFY2(stage.keypad.rect().contains(rect), qPrintable(labelOf(widget)));
        QVERIFY2(!intersects(rect, taken), qPrintable(labelOf(widget)));
        taken << rect;
    }
    QCOMPARE(int(taken.size()), 26 + 9 + (face != Chinese ? 10 : 7));
}

void tst_CharacterFace::onePanelTakesTheOthersLine_data()
{
    addFaceRows();
}

void tst_CharacterFace::onePanelTakesTheOthersLine()
{
    QFETCH(int, face);
    CharacterStage stage;
    stage.keypad.show();
    CHECKED(press(stage.keypad, faces[face].taps));
    QApplication::processEvents();
    const QWidget *panel = face != Chinese ? static_cast<QWidget *>(digitPanel(stage.keypad))
                                           : candidatePanel(stage.keypad);
    QVERIFY(panel->isVisible());
    QCOMPARE(panel->geometry().top(), stage.line()->geometry().bottom() + 2);
    QCOMPARE(keyAt(stage.keypad, 3, 0)->geometry().top(), panel->geometry().bottom() + 2);
    QCOMPARE(panel->width(), stage.keypad.width());
}

void tst_CharacterFace::fontsComeFromTheDialog()
{
    CharacterKeypad keypad(nullptr, Qt::WindowFlags());
    QCOMPARE(keypad.font().pixelSize(), 32);
    QCOMPARE(keypad.font().family(), QFontInfo(QFont(u("simsun"))).family());
    const QList<QWidget *> widgets = clickableWidgets(keypad)
        << editLine(&keypad) << candidatePanel(keypad)->getPinyinLabel();
    for (const QWidget *widget : widgets) {
        QCOMPARE(widget->font().pixelSize(), 32);
        QCOMPARE(widget->font().family(), keypad.font().family());
    }
}

void tst_CharacterFace::coloursFollowThePanelTypeOfItsConstruction_data()
{
    DarkScheme::addPanelTypeRows();
}

void tst_CharacterFace::coloursFollowThePanelTypeOfItsConstruction()
{
    QFETCH(int, type);
    QFETCH(int, typeLater);
    QFETCH(bool, dark);
    HMIDeviceInfo::setDeviceInfo(type, QSize(640, 480));
    CharacterKeypad keypad(nullptr, Qt::WindowFlags());
    HMIDeviceInfo::setDeviceInfo(typeLater, QSize(640, 480));

    CHECKED(DarkScheme::verify(&keypad, dark));
    CHECKED(DarkScheme::verify(editLine(&keypad), dark));
    const QList<QToolButton *> keys = keypad.findChildren<QToolButton *>();
    for (const QToolButton *key : keys)
        CHECKED(DarkScheme::verify(key, dark));
    const QList<QLabel *> labels = keypad.findChildren<QLabel *>();
    QCOMPARE(labels.size(), 6);
    for (const QLabel *label : labels)
        CHECKED(DarkScheme::verify(label, dark));
}

void tst_CharacterFace::theBlankKeyKeepsTheStylesDisabledText()
{
    CharacterStage stage(13);
    CHECKED(press(stage.keypad, "CN"));
    const QToolButton *blank = modeKey(stage.keypad);
    QVERIFY(!blank->isEnabled());
    QCOMPARE(blank->palette().currentColorGroup(), QPalette::Disabled);
    CHECKED(DarkScheme::verify(blank, true));
    QVERIFY(blank->palette().color(QPalette::ButtonText) != DarkScheme::green);
}

void tst_CharacterFace::itCoversTheViewInEveryMode_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("framed");

    QTest::newRow("480x272") << QSize(480, 272) << true;
    QTest::newRow("480x272, no frame") << QSize(480, 272) << false;
    QTest::newRow("640x480") << QSize(640, 480) << true;
    QTest::newRow("800x600") << QSize(800, 600) << true;
    QTest::newRow("800x600, no frame") << QSize(800, 600) << false;
}

void tst_CharacterFace::itCoversTheViewInEveryMode()
{
    QFETCH(QSize, size);
    QFETCH(bool, framed);
    DictionaryFile dictionary;
    CHECKED(dictionary.create(everydayWords()));
    PanelView view(10, size, framed ? PanelView::Framed : PanelView::Frameless);
    CharacterKeypad keypad(&view, Qt::WindowFlags());
    keypad.show();
    QCOMPARE(keypad.geometry(), view.coveredRect());
    static const char *const steps[] = { "caps", "*#", "_ <<", "CN", "s k j c", "z h u > <", "EN" };
    for (const char *step : steps) {
        CHECKED(press(keypad, step));
        QApplication::processEvents();
        QCOMPARE(keypad.geometry(), view.coveredRect());
        QCOMPARE(keyAt(keypad, 6, 16)->geometry().bottomRight(), keypad.rect().bottomRight());
    }
}

QTEST_MAIN(tst_CharacterFace)
#include "tst_CharacterFace.moc"
