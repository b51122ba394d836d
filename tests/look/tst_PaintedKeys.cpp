// SPDX-License-Identifier: MIT
#include "Faces.h"
#include "PaintedText.h"
#include "Sheets.h"

#include <QIcon>
#include <QPixmap>

// Every key of every keypad shows its label, as a plain button does where it has room.

class tst_PaintedKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void everyKeyShowsItsLabel_data();
    void everyKeyShowsItsLabel();
    void everyStateShows_data();
    void everyStateShows();
    void whateverAnApplicationCallsIt_data();
    void whateverAnApplicationCallsIt();
    void anIconTakesTheLabelsPlace_data();
    void anIconTakesTheLabelsPlace();
};

void tst_PaintedKeys::initTestCase_data()
{
    addKeypadRows();
}

void tst_PaintedKeys::everyKeyShowsItsLabel_data()
{
    addPanelRows();
}

void tst_PaintedKeys::everyKeyShowsItsLabel()
{
    FaceStage stage;
    do {
        const QList<QToolButton *> keys = stage.shownKeys();
        QVERIFY(keys.size() > 10);
        for (QToolButton *key : keys)
            QCOMPARE(complaintAbout(key, stylesFrame()), QString());
    } while (stage.showNextFace());
}

void tst_PaintedKeys::everyStateShows_data()
{
    addSheetRows("QToolButton", stylesFrame(), SidesStay);
}

void tst_PaintedKeys::everyStateShows()
{
    QFETCH(QMargins, around);
    const CurrentSheet sheet;
    FaceStage stage(8, QSize(480, 272));
    const QList<QToolButton *> keys = stage.shownKeys();
    for (QToolButton *key : keys) {
        key->setEnabled(true);
        QCOMPARE(complaintAbout(key, around), QString());
        key->setDown(true);
        QCOMPARE(complaintAbout(key, around), QString());
        key->setDown(false);
        key->setEnabled(false);
        QCOMPARE(complaintAbout(key, around), QString());
    }
}

void tst_PaintedKeys::whateverAnApplicationCallsIt_data()
{
    QTest::addColumn<QString>("label");
    QTest::newRow("a word") << u("Bestätigen");
    QTest::newRow("a long word") << u("Geschwindigkeitsbegrenzung");
    QTest::newRow("a sentence") << QString(400, QLatin1Char('W'));
    QTest::newRow("two lines") << u("Zeile\nzwei");
    QTest::newRow("a shortcut") << u("&Write it");
    QTest::newRow("an ampersand") << u("this && that");
    QTest::newRow("Chinese") << u("确认修改内容");
    QTest::newRow("Hebrew") << u("שמירת שינויים");
    QTest::newRow("marks that are no rich text") << u("<b>b</b>");
}

void tst_PaintedKeys::whateverAnApplicationCallsIt()
{
    QFETCH(QString, label);
    FaceStage stage(8, QSize(480, 272));
    const QList<QToolButton *> keys = stage.shownKeys();
    for (QToolButton *key : keys) {
        key->setText(label);
        QCOMPARE(complaintAbout(key, stylesFrame()), QString());
    }
}

void tst_PaintedKeys::anIconTakesTheLabelsPlace_data()
{
    QTest::addColumn<int>("arrow");
    QTest::newRow("icon") << int(Qt::NoArrow);
    QTest::newRow("arrow") << int(Qt::LeftArrow);
}

void tst_PaintedKeys::anIconTakesTheLabelsPlace()
{
    QFETCH(int, arrow);
    FaceStage stage(8, QSize(480, 272));
    QPixmap pixmap(16, 16);
    pixmap.fill(QColor(200, 0, 0, 100));
    QToolButton *key = ::key(stage.dialog(), u(currentKind().confirmLabel));
    key->setText(u("Bestätigen und weiter"));
    if (arrow == Qt::NoArrow)
        key->setIcon(QIcon(pixmap));
    key->setArrowType(Qt::ArrowType(arrow));
    const QScopedPointer<QToolButton> twin(newTwin(key));
    twin->setIcon(key->icon());
    twin->setArrowType(key->arrowType());
    QVERIFY(pictureOf(key) == pictureOf(twin.data()));
}

QTEST_MAIN(tst_PaintedKeys)

#include "tst_PaintedKeys.moc"
