// SPDX-License-Identifier: MIT
#include "CharacterDriver.h"
#include "DictionaryFile.h"
#include "support/DarkScheme.h"
#include "support/MessageLog.h"
#include "support/QtDifferences.h"

#include <QFontInfo>
#include <QIntValidator>
#include <QSignalMapper>

// The keypad as it stands: its face in four key sets, its wiring, its binding, its life. What the
// keys do is in tst_CharacterContent and tst_Pinyin.

namespace {

/* How each key set is reached from a new keypad, and what it shows. */
struct KeySet
{
    const char *name;
    const char *taps;
    const char *letters; // separated by blanks
    const char *modeLabel;
    const char *languageLabel;
    const char *symbolLabel;
    bool modeKeyEnabled;
    bool digitsShown;
};

const KeySet keySets[] = {
    { "English", "", "q w e r t y u i o p a s d f g h j k l z x c v b n m", "caps", "CN", "*#",
      true, true },
    { "capitals", "caps", "Q W E R T Y U I O P A S D F G H J K L Z X C V B N M", "CAPS", "CN", "*#",
      true, true },
    { "symbols", "*#", "+ - * / ( ) [ ] = % ! @ # $ ? ; : ' \" < > | && \\ { }", "~", "<<", "_",
      true, true },
    { "Chinese", "CN", "q w e r t y u i o p a s d f g h j k l z x c v b n m", "", "EN", "*#", false,
      false }
};

void addKeySets()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < 4; ++i)
        QTest::newRow(keySets[i].name) << i;
}

/* Every key and candidate label whose clicks are content. */
QList<QWidget *> clickableWidgets(const CharacterKeypad &keypad)
{
    QList<QWidget *> widgets;
    const QList<QToolButton *> keys = keypad.findChildren<QToolButton *>();
    for (int i = 0; i < keys.size(); ++i)
        widgets << keys.at(i);
    const QList<ClickLabel *> labels = keypad.findChildren<ClickLabel *>();
    for (int i = 0; i < labels.size(); ++i)
        widgets << labels.at(i);
    return widgets;
}

QString label(const QWidget *widget)
{
    return widget->property("text").toString();
}

} // namespace

class tst_CharacterKeypad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itIsMadeOfKnownParts();
    void itIsAFramelessDialogOfItsKind();
    void theGridHasTwentyColumns();
    void eachPartHasItsCells_data();
    void eachPartHasItsCells();
    void eachKeySetHasItsLabels_data();
    void eachKeySetHasItsLabels();
    void everyKeyHasRoom_data();
    void everyKeyHasRoom();
    void onePanelTakesTheOthersLine_data();
    void onePanelTakesTheOthersLine();
    void eachClickSendsTheLabelOnce_data();
    void eachClickSendsTheLabelOnce();
    void relabellingDoesNotConnectAgain();
    void fontsComeFromTheDialog();
    void coloursFollowThePanelTypeOfItsConstruction_data();
    void coloursFollowThePanelTypeOfItsConstruction();
    void theBlankKeyKeepsTheStylesDisabledText();
    void itCoversTheViewInEveryMode_data();
    void itCoversTheViewInEveryMode();
    void bindingLeavesTheKeySetAlone();
    void deletingItIsSilent_data();
    void deletingItIsSilent();
    void itCanBeBuiltAgain();
};

void tst_CharacterKeypad::itIsMadeOfKnownParts()
{
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
    for (int i = 0; i < keys.size(); ++i) {
        keysOfTheDialog += keys.at(i)->parentWidget() == &keypad ? 1 : 0;
        QVERIFY(keys.at(i)->sizePolicy()
                == QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding));
    }
    QCOMPARE(keysOfTheDialog, 26 + 9);

    const KeyBoardLineEdit *line = editLine(&keypad);
    QCOMPARE(int(line->alignment()), int(Qt::AlignRight | Qt::AlignVCenter));
    QCOMPARE(line->contextMenuPolicy(), Qt::NoContextMenu);
    QVERIFY(line->sizePolicy() == QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding));
    QCOMPARE(line->text(), QString());
    QCOMPARE(digitPanel(keypad)->parentWidget(), static_cast<QWidget *>(&keypad));
    QCOMPARE(candidatePanel(keypad)->parentWidget(), static_cast<QWidget *>(&keypad));
}

void tst_CharacterKeypad::itIsAFramelessDialogOfItsKind()
{
    CharacterKeypad plain(nullptr, Qt::WindowFlags());
    QVERIFY(plain.windowFlags() & Qt::FramelessWindowHint);
    QCOMPARE(plain.metaObject()->className(), "CharacterKeypad");
    QVERIFY(plain.metaObject()->indexOfSignal("signal_kTypeKeyPressed(int)") >= 0);
    const int slot = plain.metaObject()->indexOfSlot("sendContent(QString)");
    QVERIFY(slot >= 0);
    QCOMPARE(plain.metaObject()->method(slot).access(), QMetaMethod::Private);
}

void tst_CharacterKeypad::theGridHasTwentyColumns()
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

void tst_CharacterKeypad::eachPartHasItsCells_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("columnSpan");
    QTest::addColumn<QString>("text");

    QTest::newRow("edit line") << 0 << 0 << 20 << "";
    QTest::newRow("candidates") << 1 << 0 << 20 << "";
    QTest::newRow("digits") << 2 << 0 << 20 << "";
    static const char *const letterRows[] = { "qwertyuiop", "asdfghjkl", "zxcvbnm" };
    static const int firstColumns[] = { 0, 1, 3 };
    for (int row = 0; row < 3; ++row) {
        for (int i = 0; letterRows[row][i]; ++i) {
            const QString letter(QLatin1Char(letterRows[row][i]));
            QTest::newRow(qPrintable(letter))
                << 3 + row << firstColumns[row] + 2 * i << 2 << letter;
        }
    }
    QTest::newRow("mode") << 5 << 0 << 3 << "caps";
    QTest::newRow("delete") << 5 << 17 << 3 << "Del";
    QTest::newRow("symbols") << 6 << 0 << 2 << "*#";
    QTest::newRow("comma") << 6 << 2 << 2 << ",";
    QTest::newRow("space") << 6 << 4 << 4 << "Space";
    QTest::newRow("period") << 6 << 8 << 2 << ".";
    QTest::newRow("language") << 6 << 10 << 4 << "CN";
    QTest::newRow("escape") << 6 << 14 << 2 << "Esc";
    QTest::newRow("enter") << 6 << 16 << 4 << "Enter";
}

void tst_CharacterKeypad::eachPartHasItsCells()
{
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(int, columnSpan);
    QFETCH(QString, text);
    CharacterKeypad keypad(nullptr, Qt::WindowFlags());
    QGridLayout *grid = qobject_cast<QGridLayout *>(keypad.layout());
    QLayoutItem *item = grid->itemAtPosition(row, column);
    QVERIFY(item);
    QCOMPARE(label(item->widget()), text);

    int itsRow, itsColumn, itsRowSpan, itsColumnSpan;
    grid->getItemPosition(grid->indexOf(item->widget()), &itsRow, &itsColumn, &itsRowSpan,
                          &itsColumnSpan);
    QCOMPARE(itsRow, row);
    QCOMPARE(itsColumn, column);
    QCOMPARE(itsRowSpan, 1);
    QCOMPARE(itsColumnSpan, columnSpan);
}

void tst_CharacterKeypad::eachKeySetHasItsLabels_data()
{
    addKeySets();
}

void tst_CharacterKeypad::eachKeySetHasItsLabels()
{
    QFETCH(int, index);
    const KeySet &set = keySets[index];
    CharacterKeypad keypad(nullptr, Qt::WindowFlags());
    press(keypad, set.taps);

    const QStringList letters = u(set.letters).split(QLatin1Char(' '));
    const QList<QToolButton *> keys = letterKeys(keypad);
    QCOMPARE(keys.size(), letters.size());
    for (int i = 0; i < keys.size(); ++i) {
        QCOMPARE(keys.at(i)->text(), letters.at(i));
        QVERIFY(keys.at(i)->isEnabled());
    }
    QCOMPARE(modeKey(keypad)->text(), u(set.modeLabel));
    QCOMPARE(modeKey(keypad)->isEnabled(), set.modeKeyEnabled);
    QCOMPARE(languageKey(keypad)->text(), u(set.languageLabel));
    QCOMPARE(symbolKey(keypad)->text(), u(set.symbolLabel));
    QVERIFY(symbolKey(keypad)->isEnabled());
    QCOMPARE(digitPanel(keypad)->isVisibleTo(&keypad), set.digitsShown);
    QCOMPARE(candidatePanel(keypad)->isVisibleTo(&keypad), !set.digitsShown);
    static const int others[][2] = {
        { 5, 17 }, { 6, 2 }, { 6, 4 }, { 6, 8 }, { 6, 14 }, { 6, 16 }
    };
    QStringList labels;
    for (int i = 0; i < 6; ++i)
        labels << keyAt(keypad, others[i][0], others[i][1])->text();
    QCOMPARE(labels.join(QLatin1String(" ")), u("Del , Space . Esc Enter"));
}

void tst_CharacterKeypad::everyKeyHasRoom_data()
{
    addKeySets();
}

/* On the smallest panel too, no key is squeezed to nothing, covered by another or cut off. */
void tst_CharacterKeypad::everyKeyHasRoom()
{
    QFETCH(int, index);
    CharacterStage stage(10, QSize(480, 272));
    stage.keypad.show();
    press(stage.keypad, keySets[index].taps);
    QApplication::processEvents();
    const QList<QWidget *> widgets = clickableWidgets(stage.keypad);
    QList<QRect> taken;
    for (int i = 0; i < widgets.size(); ++i) {
        const QWidget *widget = widgets.at(i);
        if (!widget->isVisible())
            continue;
        const QRect rect(widget->mapTo(&stage.keypad, QPoint(0, 0)), widget->size());
        QVERIFY2(rect.width() >= 16 && rect.height() >= 16, qPrintable(label(widget)));
        QVERIFY2(stage.keypad.rect().contains(rect), qPrintable(label(widget)));
        for (int other = 0; other < taken.size(); ++other)
            QVERIFY2(!rect.intersects(taken.at(other)), qPrintable(label(widget)));
        taken << rect;
    }
    QCOMPARE(int(taken.size()), 26 + 9 + (keySets[index].digitsShown ? 10 : 7));
}

void tst_CharacterKeypad::onePanelTakesTheOthersLine_data()
{
    addKeySets();
}

void tst_CharacterKeypad::onePanelTakesTheOthersLine()
{
    QFETCH(int, index);
    CharacterStage stage;
    stage.keypad.show();
    press(stage.keypad, keySets[index].taps);
    QApplication::processEvents();
    const QWidget *panel = keySets[index].digitsShown
        ? static_cast<QWidget *>(digitPanel(stage.keypad))
        : candidatePanel(stage.keypad);
    QVERIFY(panel->isVisible());
    QCOMPARE(panel->geometry().top(), editLine(&stage.keypad)->geometry().bottom() + 2);
    QCOMPARE(keyAt(stage.keypad, 3, 0)->geometry().top(), panel->geometry().bottom() + 2);
    QCOMPARE(panel->width(), stage.keypad.width());
}

void tst_CharacterKeypad::eachClickSendsTheLabelOnce_data()
{
    addKeySets();
}

void tst_CharacterKeypad::eachClickSendsTheLabelOnce()
{
    QFETCH(int, index);
    DictionaryFile dictionary;
    dictionary.create(everydayWords);
    CharacterStage stage;
    CharacterKeypad &keypad = stage.keypad;
    keypad.show();
    press(keypad, keySets[index].taps);
    QApplication::processEvents();
    if (!keySets[index].digitsShown)
        press(keypad, "z h u > <");

    // Deaf to its mapper, the keypad keeps its labels while all of them are clicked.
    QSignalMapper *mapper = keypad.findChild<QSignalMapper *>();
    QVERIFY(QObject::disconnect(mapper, nullptr, &keypad, nullptr));
    QSignalSpy sent(mapper, HMI_MAPPED_SIGNAL);
    const QList<QWidget *> widgets = clickableWidgets(keypad);
    QCOMPARE(widgets.size(), 52);
    for (int i = 0; i < widgets.size(); ++i) {
        sent.clear();
        if (!widgets.at(i)->isEnabled()) {
            qobject_cast<QToolButton *>(widgets.at(i))->click();
            QCOMPARE(sent.count(), 0);
            continue;
        }
        QTest::mouseClick(widgets.at(i), Qt::LeftButton);
        QCOMPARE(sent.count(), 1);
        QCOMPARE(sent.at(0).at(0).toString(), label(widgets.at(i)));
    }
}

void tst_CharacterKeypad::relabellingDoesNotConnectAgain()
{
    CharacterKeypad keypad(nullptr, Qt::WindowFlags());
    for (int i = 0; i < 20; ++i)
        press(keypad, "caps CAPS CN EN *# << CN *# << EN");
    QCOMPARE(face(keypad), u("caps CN *# q digits"));
    press(keypad, "q 1 , Space .");
    QCOMPARE(editLine(&keypad)->text(), u("q1, ."));
}

void tst_CharacterKeypad::fontsComeFromTheDialog()
{
    CharacterKeypad keypad(nullptr, Qt::WindowFlags());
    QCOMPARE(keypad.font().pixelSize(), 32);
    QCOMPARE(keypad.font().family(), QFontInfo(QFont(u("simsun"))).family());
    QList<QWidget *> widgets = clickableWidgets(keypad);
    widgets << editLine(&keypad) << candidatePanel(keypad)->getPinyinLabel();
    for (int i = 0; i < widgets.size(); ++i) {
        QCOMPARE(widgets.at(i)->font().pixelSize(), 32);
        QCOMPARE(widgets.at(i)->font().family(), keypad.font().family());
    }
}

void tst_CharacterKeypad::coloursFollowThePanelTypeOfItsConstruction_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("dark");

    QTest::newRow("type 13") << 13 << true;
    QTest::newRow("type 1") << 1 << false;
    QTest::newRow("type 10") << 10 << false;
    QTest::newRow("type 14") << 14 << false;
}

void tst_CharacterKeypad::coloursFollowThePanelTypeOfItsConstruction()
{
    QFETCH(int, type);
    QFETCH(bool, dark);
    HMIDeviceInfo::setDeviceInfo(type, QSize(640, 480));
    CharacterKeypad keypad(nullptr, Qt::WindowFlags());
    HMIDeviceInfo::setDeviceInfo(dark ? 1 : 13, QSize(640, 480));

    CHECKED(DarkScheme::verify(&keypad, dark));
    CHECKED(DarkScheme::verify(editLine(&keypad), dark));
    const QList<QToolButton *> keys = keypad.findChildren<QToolButton *>();
    for (const QToolButton *key : keys)
        CHECKED(DarkScheme::verify(key, dark));
    const QList<QLabel *> labels = keypad.findChildren<QLabel *>();
    QCOMPARE(labels.size(), 6);
    for (const QLabel *label : labels)
        CHECKED(DarkScheme::verify(label, dark));
    HMIDeviceInfo::setDeviceInfo(1, QSize());
}

void tst_CharacterKeypad::theBlankKeyKeepsTheStylesDisabledText()
{
    CharacterStage stage(13);
    press(stage.keypad, "CN");
    const QToolButton *blank = modeKey(stage.keypad);
    QVERIFY(!blank->isEnabled());
    QCOMPARE(blank->palette().currentColorGroup(), QPalette::Disabled);
    CHECKED(DarkScheme::verify(blank, true));
    QVERIFY(blank->palette().color(QPalette::ButtonText) != DarkScheme::green);
}

void tst_CharacterKeypad::itCoversTheViewInEveryMode_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("framed");

    QTest::newRow("480x272") << QSize(480, 272) << true;
    QTest::newRow("480x272, no frame") << QSize(480, 272) << false;
    QTest::newRow("640x480") << QSize(640, 480) << true;
    QTest::newRow("800x600") << QSize(800, 600) << true;
    QTest::newRow("800x600, no frame") << QSize(800, 600) << false;
}

void tst_CharacterKeypad::itCoversTheViewInEveryMode()
{
    QFETCH(QSize, size);
    QFETCH(bool, framed);
    DictionaryFile dictionary;
    dictionary.create(everydayWords);
    PanelView view(10, size, framed ? PanelView::Framed : PanelView::Frameless);
    CharacterKeypad keypad(&view, Qt::WindowFlags());
    keypad.show();
    QCOMPARE(keypad.geometry(), view.coveredRect());
    static const char *const steps[] = { "caps", "*#", "_ <<", "CN", "s k j c", "z h u > <", "EN" };
    for (int i = 0; i < 7; ++i) {
        press(keypad, steps[i]);
        QApplication::processEvents();
        QCOMPARE(keypad.geometry(), view.coveredRect());
        QCOMPARE(keyAt(keypad, 6, 16)->geometry().bottomRight(), keypad.rect().bottomRight());
    }
}

void tst_CharacterKeypad::bindingLeavesTheKeySetAlone()
{
    CharacterStage stage;
    const QIntValidator digits(0, 999, nullptr);
    stage.keypad.setValidator(&digits);
    press(stage.keypad, "CN n");
    QLineEdit other(u("untouched"));
    stage.keypad.setObject(&other);
    QCOMPARE(face(stage.keypad), u("blank EN *# q candidates"));
    QVERIFY(!modeKey(stage.keypad)->isEnabled());
    QCOMPARE(shownPinyin(stage.keypad), u("n"));
    QCOMPARE(editLine(&stage.keypad)->validator(), static_cast<const QValidator *>(&digits));
    QCOMPARE(other.text(), u("untouched"));
}

void tst_CharacterKeypad::deletingItIsSilent_data()
{
    QTest::addColumn<bool>("withDictionary");
    QTest::addColumn<bool>("withView"); // it is the view that is deleted
    QTest::addColumn<QString>("taps");

    QTest::newRow("new") << true << false << "";
    QTest::newRow("new, no dictionary") << false << false << "";
    QTest::newRow("composing") << true << false << "CN n i >";
    QTest::newRow("composing, no dictionary") << false << false << "CN n i >";
    QTest::newRow("composing, with its view") << true << true << "CN n i >";
    QTest::newRow("with its view, no dictionary") << false << true << "CN n i >";
}

void tst_CharacterKeypad::deletingItIsSilent()
{
    QFETCH(bool, withDictionary);
    QFETCH(bool, withView);
    QFETCH(QString, taps);
    DictionaryFile dictionary;
    if (withDictionary)
        dictionary.create(everydayWords);

    MessageLog log;
    PanelView *view = new PanelView(1);
    QPointer<CharacterKeypad> keypad(new CharacterKeypad(view, Qt::WindowFlags()));
    QVERIFY(QSqlDatabase::contains(u("pinyin")));
    press(*keypad, qPrintable(taps));
    if (withView)
        delete view;
    else
        delete keypad.data();
    QVERIFY(!keypad);
    QVERIFY(!QSqlDatabase::contains(u("pinyin")));
    if (!withView)
        delete view;
    QCOMPARE(log.messages(), QStringList());
}

void tst_CharacterKeypad::itCanBeBuiltAgain()
{
    DictionaryFile dictionary;
    dictionary.create(everydayWords);
    MessageLog log;
    for (int i = 0; i < 3; ++i) {
        CharacterStage stage;
        press(stage.keypad, "CN z h u z h o u");
        QCOMPARE(candidateLine(stage.keypad), u("主轴"));
        QCOMPARE(QSqlDatabase::database(u("pinyin")).databaseName(), DictionaryFile::path());
    }
    QCOMPARE(log.messages(), QStringList());
}

QTEST_MAIN(tst_CharacterKeypad)
#include "tst_CharacterKeypad.moc"
