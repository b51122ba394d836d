// SPDX-License-Identifier: MIT
#include "Faces.h"
#include "PaintedText.h"
#include "Sheets.h"

#include <QFontMetrics>
#include <QLabel>

// The line for limits has the room that its text needs, as long as the keys keep enough.

namespace {

const char *const texts[] = { "0 ... 6000",
                              "Min: 0\nMax: 6000",
                              "Min: 0\nMax: 6000\nrpm",
                              "<b>Min</b> 0 <font color=red>Max</font> 1",
                              "Min: 0<br>Max: 1",
                              "<p>Min: 0<br><i>Max</i>: 1<br>mm" };

const int leastKeyHeight = 20; // pixels

// Shows \a text and asserts that the line shows it in its full size.
void showInFull(FaceStage &stage, const char *text, const QMargins &around)
{
    stage.keypad.setLimitToolTip(u(text));
    QApplication::processEvents();
    QLabel *label = tipLabel(stage.dialog());
    const QScopedPointer<QLabel> twin(newTwin(label));
    QVERIFY(label->width() >= twin->sizeHint().width());
    QVERIFY(label->height() >= twin->sizeHint().height());
    QCOMPARE(complaintAbout(label, around), QString());
}

} // namespace

class tst_LimitLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void whatFitsIsShownInFull_data();
    void whatFitsIsShownInFull();
    void aStyleSheetsRoomIsAdded_data();
    void aStyleSheetsRoomIsAdded();
    void manyLinesLeaveTheKeysTheirRoom_data();
    void manyLinesLeaveTheKeysTheirRoom();
    void asksForTwelveLinesAndInsistsOnThree();
};

void tst_LimitLine::initTestCase_data()
{
    addKeypadRows(FixedFace);
}

void tst_LimitLine::whatFitsIsShownInFull_data()
{
    addPanelRows();
}

void tst_LimitLine::whatFitsIsShownInFull()
{
    FaceStage stage;
    for (const char *text : texts)
        CHECKED(showInFull(stage, text, QMargins()));
    QCOMPARE(stage.dialog()->size(), stage.view.size());
}

void tst_LimitLine::aStyleSheetsRoomIsAdded_data()
{
    addSheetRows("QLabel", QMargins(), SidesChange);
}

void tst_LimitLine::aStyleSheetsRoomIsAdded()
{
    QFETCH(QMargins, around);
    const CurrentSheet sheet;
    FaceStage stage(8, QSize(640, 480));
    for (const char *text : texts)
        CHECKED(showInFull(stage, text, around));
}

void tst_LimitLine::manyLinesLeaveTheKeysTheirRoom_data()
{
    addPanelRows();
}

void tst_LimitLine::manyLinesLeaveTheKeysTheirRoom()
{
    FaceStage stage;

    QStringList lines;
    for (int i = 0; i < 8; ++i)
        lines << u("Min: 0, Max: 6000");
    stage.keypad.setLimitToolTip(lines.join(u("\n")));
    QApplication::processEvents();
    QCOMPARE(complaintAbout(tipLabel(stage.dialog()), QMargins()), QString());
    const QList<QToolButton *> keys = stage.shownKeys();
    for (const QToolButton *key : keys)
        QVERIFY(key->height() >= leastKeyHeight);
    QVERIFY(stage.line()->height() >= leastKeyHeight);
    QCOMPARE(stage.dialog()->size(), stage.view.size());
}

void tst_LimitLine::asksForTwelveLinesAndInsistsOnThree()
{
    FaceStage stage(8, QSize(640, 480));
    QStringList lines;
    for (int i = 0; i < 20; ++i)
        lines << u("Max: 6000");
    stage.keypad.setLimitToolTip(lines.join(u("\n")));
    const QLabel *label = tipLabel(stage.dialog());
    const int lineHeight = label->fontMetrics().size(0, u("x")).height();
    QCOMPARE(label->sizeHint().height(), 12 * lineHeight);
    QCOMPARE(label->minimumSizeHint(), QSize(0, 3 * lineHeight));
}

QTEST_MAIN(tst_LimitLine)

#include "tst_LimitLine.moc"
