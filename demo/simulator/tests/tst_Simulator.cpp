// SPDX-License-Identifier: MIT
#include "Chooser.h"
#include "HardKey.h"
#include "HardKeys.h"
#include "ScreenView.h"
#include "SimulatorStage.h"
#include "support/Text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QSpinBox>
#include <QTreeWidget>

// The simulator with its panel process, worked by its window alone.

namespace {

QImage pictureOf(const SimulatorStage &stage)
{
    return stage.panel().picture();
}

// The second half of a double click, as a window gets it.
void doubleClick(QWidget *widget, const QPoint &place)
{
    QMouseEvent event(QEvent::MouseButtonDblClick, place, widget->mapToGlobal(place),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
    QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, place);
}

} // namespace

class tst_Simulator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsEveryModel();
    void showsThePanel_data();
    void showsThePanel();
    void choosesByEveryPart();
    void anotherModelGoesOnWhereTheFormerOneWas();
    void aTapOnAFieldOpensAKeypadThatWritesIt();
    void quickTapsAreAllTyped();
    void theChooserIsLockedWhileAKeypadIsOpen();
    void aHardKeyReachesAnOpenKeypad();
    void aPanelWithoutTouchScreenIsWorkedByItsKeysAlone();
    void theComputersKeysReachThePanel();
    void aChangeOfTheSameSizeLeavesTheWindow();
    void aChangeOfSizeFitsTheWindow();
    void ctrlQClosesTheWindow();
    void everyKeyThatIsHandedOnIsMarked();
    void aModelWithoutKeysHasNone();
    void aHandedOnKeyClosesTheKeypad();
    void aTargetThatCannotBeWrittenIsTold();
    void aMaskedTextIsNotTold();
    void aFrameShiftsTheKeypad();
};

void tst_Simulator::listsEveryModel()
{
    const SimulatorStage stage;
    const QTreeWidget *list = stage.part<QTreeWidget>("models");
    QCOMPARE(list->topLevelItemCount(), 21);
    const struct
    {
        int type;
        const char *size, *input;
    } rows[] = { { 1, "800 × 600", "hard keys" },  { 8, "800 × 480", "touch and keys" },
                 { 9, "480 × 272", "touch" },      { 10, "free", "touch" },
                 { 12, "640 × 480", "not known" }, { 21, "800 × 480", "touch and keys" } };
    for (const auto &row : rows) {
        const QTreeWidgetItem *item = list->topLevelItem(row.type - 1);
        QCOMPARE(item->text(0), QString::number(row.type));
        QCOMPARE(item->text(1), u(row.size));
        QCOMPARE(item->text(2), u(row.input));
    }
}

void tst_Simulator::showsThePanel_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("rotation");
    QTest::addColumn<bool>("light");
    QTest::addColumn<bool>("frame");
    QTest::addColumn<QSize>("size");
    QTest::newRow("800x600") << 1 << 0 << false << false << QSize(800, 600);
    QTest::newRow("800x480, light") << 6 << 180 << true << false << QSize(800, 480);
    QTest::newRow("480x272, with a frame") << 9 << 0 << false << true << QSize(480, 272);
    QTest::newRow("free size, upright") << 10 << 90 << false << false << QSize(600, 1024);
    QTest::newRow("type 13, upright") << 13 << 270 << true << false << QSize(480, 800);
}

void tst_Simulator::showsThePanel()
{
    QFETCH(int, type);
    QFETCH(int, rotation);
    QFETCH(bool, light);
    QFETCH(bool, frame);
    QFETCH(QSize, size);
    PanelSetup setup = panelOf(type, rotation);
    setup.style = light ? Style::Light : Style::Dark;
    setup.frame = frame;
    const SimulatorStage stage(setup);
    WAIT_FOR(stage.isReady());
    QCOMPARE(pictureOf(stage).size(), size);
    QCOMPARE(stage.screen()->size(), size);
    ReferencePanel reference(setup);
    WAIT_FOR(pictureOf(stage) == reference.picture(PanelState()));
}

void tst_Simulator::choosesByEveryPart()
{
    const SimulatorStage stage(panelOf(10));
    WAIT_FOR(stage.isReady());
    stage.part<QSpinBox>("width")->setValue(400);
    stage.part<QSpinBox>("height")->setValue(300);
    stage.part<QComboBox>("rotation")->setCurrentIndex(1);
    WAIT_FOR(pictureOf(stage).size() == QSize(300, 400));

    stage.part<QComboBox>("style")->setCurrentIndex(1);
    WAIT_FOR(stage.panel().setup().style == Style::Light);
    stage.part<QCheckBox>("frame")->setChecked(true);
    WAIT_FOR(stage.panel().setup().frame);
    ReferencePanel reference(stage.panel().setup());
    WAIT_FOR(pictureOf(stage) == reference.picture(PanelState()));

    QComboBox *language = stage.part<QComboBox>("language");
    language->setCurrentIndex(language->count() - 1);
    WAIT_FOR(stage.panel().setup().language == language->currentData().toString());
    QTreeWidget *list = stage.part<QTreeWidget>("models");
    list->setCurrentItem(list->topLevelItem(13 - 1));
    WAIT_FOR(stage.panel().setup().type == 13);
    QVERIFY(!stage.part<QSpinBox>("width")->isEnabled());
    QVERIFY(!stage.part<QComboBox>("style")->isEnabled());
}

void tst_Simulator::anotherModelGoesOnWhereTheFormerOneWas()
{
    SimulatorStage stage(panelOf(8));
    WAIT_FOR(stage.isReady());
    ReferencePanel reference(panelOf(8));
    stage.openPage(reference, "PARAM");
    stage.openKeypad(reference, "mask");
    stage.pressHardKeys("1 0 1 ENTER");
    WAIT_FOR(stage.text(u("mask")) == u("101"));
    WAIT_FOR(!stage.panel().isKeypadOpen());
    const PanelState before = stage.panel().state();
    QVERIFY(!before.message.isEmpty());

    stage.choose(panelOf(9));
    WAIT_FOR(stage.panel().setup().type == 9);
    QCOMPARE(pictureOf(stage).size(), QSize(480, 272));
    QVERIFY(stage.panel().state() == before);
    ReferencePanel smallReference(panelOf(9));
    WAIT_FOR(pictureOf(stage) == smallReference.picture(before));
}

void tst_Simulator::aTapOnAFieldOpensAKeypadThatWritesIt()
{
    SimulatorStage stage;
    WAIT_FOR(stage.isReady());
    ReferencePanel reference((PanelSetup()));
    const QImage before = pictureOf(stage);
    stage.openKeypad(reference, "Y");
    WAIT_FOR(pictureOf(stage).pixel(400, 470) != before.pixel(400, 470)); // what the keypad covers
    stage.tapKeys(reference, "key1 key2 pointKey key5 signKey enterKey");
    WAIT_FOR(stage.text(u("Y")) == u("-12.5"));
    WAIT_FOR(!stage.panel().isKeypadOpen());
    const QStringList told = { u("NumericKeypad: accepted()"), u("NumericKeypad: finished(1)"),
                               u("NumericKeypad: exec() = Accepted"), u("Y = -12.5") };
    QStringList log = stage.log();
    QVERIFY(log.takeFirst().startsWith(u("panel: type 8, 800x480, after ")));
    QCOMPARE(log, told);
    WAIT_FOR(pictureOf(stage) == reference.picture(stage.panel().state()));
}

void tst_Simulator::quickTapsAreAllTyped()
{
    SimulatorStage stage;
    WAIT_FOR(stage.isReady());
    ReferencePanel reference((PanelSetup()));
    stage.openKeypad(reference, "spindle");
    const QPoint place = reference.key(u("key1"));
    stage.tap(place);
    doubleClick(stage.screen(), place);
    stage.tapKeys(reference, "enterKey");
    WAIT_FOR(stage.text(u("spindle")) == u("11"));
}

void tst_Simulator::theChooserIsLockedWhileAKeypadIsOpen()
{
    SimulatorStage stage;
    WAIT_FOR(stage.isReady());
    const QLabel *hint = stage.part<QLabel>("lockHint");
    QVERIFY(!hint->isVisible());
    QVERIFY(stage.part<QTreeWidget>("models")->isEnabled());
    ReferencePanel reference((PanelSetup()));
    stage.tap(reference.field(u("X")));
    WAIT_FOR(hint->isVisible());
    QVERIFY(!stage.part<QTreeWidget>("models")->isEnabled());
    QVERIFY(!stage.part<QComboBox>("language")->isEnabled());
    stage.tapKeys(reference, "escKey");
    WAIT_FOR(!hint->isVisible());
    QVERIFY(stage.part<QTreeWidget>("models")->isEnabled());
    QCOMPARE(stage.log().last(), u("NumericKeypad: exec() = Rejected"));
    QCOMPARE(stage.text(u("X")), u("125.340"));
}

void tst_Simulator::aHardKeyReachesAnOpenKeypad()
{
    SimulatorStage stage;
    WAIT_FOR(stage.isReady());
    ReferencePanel reference((PanelSetup()));
    stage.openKeypad(reference, "Z");
    stage.pressHardKeys("- 4 0 7 BSP . 5 ENTER");
    WAIT_FOR(stage.text(u("Z")) == u("-40.5"));
}

void tst_Simulator::aPanelWithoutTouchScreenIsWorkedByItsKeysAlone()
{
    SimulatorStage stage(panelOf(1));
    WAIT_FOR(stage.isReady());
    stage.pressHardKeys("↓ ENTER");
    WAIT_FOR(stage.panel().isKeypadOpen());
    stage.pressHardKeys("8 ENTER");
    WAIT_FOR(stage.text(u("Y")) == u("8"));
    stage.pressHardKeys("F4 ENTER");
    WAIT_FOR(stage.panel().isKeypadOpen());
    stage.pressHardKeys("B 0 ENTER");
    WAIT_FOR(stage.text(u("parameter")) == u("B0"));
}

void tst_Simulator::theComputersKeysReachThePanel()
{
    const SimulatorStage stage;
    WAIT_FOR(stage.isReady());
    QTest::keyClick(stage.screen(), Qt::Key_F3);
    WAIT_FOR(stage.panel().state().page == u("OFFSET"));
}

void tst_Simulator::aChangeOfTheSameSizeLeavesTheWindow()
{
    SimulatorStage stage(panelOf(8));
    WAIT_FOR(stage.isReady());
    QWidget *window = stage.screen()->window();
    const QSize fitting = window->size();
    window->resize(fitting - QSize(40, 30));
    PanelSetup light = panelOf(8);
    light.style = Style::Light;
    stage.choose(light);
    WAIT_FOR(stage.panel().setup().style == Style::Light);
    QCOMPARE(window->size(), fitting - QSize(40, 30));
}

void tst_Simulator::aChangeOfSizeFitsTheWindow()
{
    SimulatorStage stage(panelOf(8));
    WAIT_FOR(stage.isReady());
    QWidget *window = stage.screen()->window();
    const QSize fitting = window->size();
    for (const int type : { 9, 1, 11, 8 }) {
        window->resize(fitting - QSize(40, 30));
        stage.choose(panelOf(type));
        WAIT_FOR(stage.panel().setup().type == type);
        QVERIFY2(window->size() != fitting - QSize(40, 30), qPrintable(QString::number(type)));
    }
}

void tst_Simulator::ctrlQClosesTheWindow()
{
    const SimulatorStage stage;
    WAIT_FOR(stage.isReady());
    QWidget *window = stage.screen()->window();
    QApplication::setActiveWindow(window);
    QVERIFY(window->isVisible());
    QTest::keyClick(stage.screen(), Qt::Key_Q, Qt::ControlModifier);
    QVERIFY(!window->isVisible());
}

void tst_Simulator::everyKeyThatIsHandedOnIsMarked()
{
    const SimulatorStage stage(panelOf(13));
    WAIT_FOR(stage.isReady());
    QStringList marked;
    const QList<HardKey *> keys = stage.hardKeys();
    for (const HardKey *key : keys) {
        if (key->isMarked())
            marked << QKeySequence(key->key()).toString();
    }
    marked.sort();
    QStringList expected = u("Up Down F1 F2 F3 F4 F5 F9 F10 F11 F13 F17 F18 F20 F25 F26 F27 F32")
                               .split(QLatin1Char(' '));
    expected.sort();
    QCOMPARE(marked, expected);
    for (const int type : { 8, 14 })
        QVERIFY(!HardKeys::isHandedOn(Qt::Key_F1, type));
}

void tst_Simulator::aModelWithoutKeysHasNone()
{
    SimulatorStage stage(panelOf(5));
    WAIT_FOR(stage.isReady());
    QVERIFY(!stage.hardKeys().isEmpty());
    stage.choose(panelOf(6));
    WAIT_FOR(stage.panel().setup().type == 6);
    QVERIFY(stage.hardKeys().isEmpty());
}

void tst_Simulator::aHandedOnKeyClosesTheKeypad()
{
    SimulatorStage stage(panelOf(13));
    WAIT_FOR(stage.isReady());
    ReferencePanel reference(panelOf(13));
    stage.openKeypad(reference, "feed");
    stage.pressHardKeys("7 F27");
    WAIT_FOR(!stage.panel().isKeypadOpen());
    QVERIFY(stage.log().contains(u("NumericKeypad: signal_kTypeKeyPressed(F27)")));
    QCOMPARE(stage.log().last(), u("NumericKeypad: exec() = Rejected"));
    QCOMPARE(stage.text(u("feed")), u("250.0"));
}

void tst_Simulator::aTargetThatCannotBeWrittenIsTold()
{
    SimulatorStage stage;
    WAIT_FOR(stage.isReady());
    ReferencePanel reference((PanelSetup()));
    stage.openPage(reference, "SYSTEM");
    stage.openKeypad(reference, "parts");
    stage.pressHardKeys("1 2 ENTER");
    WAIT_FOR(!stage.panel().isKeypadOpen());
    QCOMPARE(stage.log().last(),
             u("warning: parts did not take \"12\": its \"text\" property is read-only"));
    QVERIFY(stage.log().contains(u("NumericKeypad: exec() = Accepted")));
    QCOMPARE(stage.text(u("parts")), u("1284"));
}

void tst_Simulator::aMaskedTextIsNotTold()
{
    SimulatorStage stage;
    WAIT_FOR(stage.isReady());
    ReferencePanel reference((PanelSetup()));
    stage.openPage(reference, "PARAM");
    stage.openKeypad(reference, "password");
    stage.pressHardKeys("3 1 4 ENTER");
    WAIT_FOR(stage.text(u("password")) == u("314"));
    QVERIFY(stage.log().last().startsWith(u("password = ")));
    QVERIFY(!stage.log().join(QLatin1Char('\n')).contains(u("314")));
}

// By its own width once more than the view's frame is wide.
void tst_Simulator::aFrameShiftsTheKeypad()
{
    PanelSetup setup = panelOf(8);
    setup.frame = true;
    SimulatorStage stage(setup);
    WAIT_FOR(stage.isReady());
    ReferencePanel reference(setup);
    const QImage before = pictureOf(stage);
    stage.openKeypad(reference, "X");
    const int width = 4;
    WAIT_FOR(pictureOf(stage).pixel(2 * width, 2 * width) != before.pixel(2 * width, 2 * width));
    const QRect strip(0, 0, 2 * width, before.height());
    QCOMPARE(pictureOf(stage).copy(strip), before.copy(strip));
}

int main(int argc, char *argv[])
{
    return runTest<tst_Simulator>(argc, argv);
}

#include "tst_Simulator.moc"
