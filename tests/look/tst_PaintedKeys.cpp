// SPDX-License-Identifier: MIT
#include "Faces.h"
#include "PaintedText.h"
#include "Sheets.h"

#include <QIcon>
#include <QPixmap>
#include <QScopedPointer>

// Every key of every keypad shows its label, as a plain button does where it has room.

namespace {

// Looks at a widget until it is painted.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget *widget)
        : m_isPainted(false)
    {
        widget->installEventFilter(this);
    }

    // Qt paints later what is to be painted once more because another widget was.
    bool isPainted() const
    {
        for (int turns = 0; turns < 1000 && !m_isPainted; ++turns)
            QTest::qWait(10);
        return m_isPainted;
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            m_isPainted = true;
        return false;
    }

private:
    bool m_isPainted;
};

// A label that a key can only show in letters that are hardly readable.
QString longLabelFor(const QToolButton *key)
{
    return QString(key->width() / 6, QLatin1Char('n'));
}

// The largest difference to the background in any of the three colours.
int contrast(const QImage &picture, const QColor &background)
{
    int most = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor colour(picture.pixel(x, y));
            most = qMax(most, qAbs(colour.red() - background.red()));
            most = qMax(most, qAbs(colour.green() - background.green()));
            most = qMax(most, qAbs(colour.blue() - background.blue()));
        }
    }
    return most;
}

} // namespace

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
    void theOthersFollowALabelThatGrows();
    void theOthersFollowAKeyThatGoes();
    void theOthersDoWithoutAKeyThatIsTakenOut();
    void theOthersFollowTheFirstKeyAndTheLast();
    void aKeyInsistsOnItsHeightAlone();
    void aKeyWithoutRoomIsNoMeasure();
    void sizesFollowFontAndSheet();
    void sizesFollowWhatIsEnabled();
    void aPressedKeyKeepsItsLabelInside();
    void aDisabledKeyWithoutLabelIsPale_data();
    void aDisabledKeyWithoutLabelIsPale();
    void anIconTakesTheLabelsPlace_data();
    void anIconTakesTheLabelsPlace();
};

void tst_PaintedKeys::initTestCase_data()
{
    addKeypadRows();
}

void tst_PaintedKeys::everyKeyShowsItsLabel_data()
{
    addScreenRows();
}

void tst_PaintedKeys::everyKeyShowsItsLabel()
{
    FaceStage stage;
    do {
        const QList<QToolButton *> keys = stage.shownKeys();
        QVERIFY(keys.size() > 10);
        for (QToolButton *key : keys) {
            QCOMPARE(complaintAbout(key, stylesFrame()), QString());
            QVERIFY2(isWhole(key, stylesFrame()), qPrintable(key->text()));
        }
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

void tst_PaintedKeys::theOthersFollowALabelThatGrows()
{
    FaceStage stage(8, QSize(480, 272));
    QToolButton *other = ::key(stage.dialog(), u(currentKind().cancelLabel));
    QToolButton *changed = ::key(stage.dialog(), u(currentKind().confirmLabel));
    const QString label = changed->text();
    const QImage picture = pictureOf(other);
    for (const QString &text : { longLabelFor(changed), label }) {
        PaintWatch watch(other);
        changed->setText(text);
        QVERIFY(watch.isPainted());
        QCOMPARE(pictureOf(other) == picture, text == label);
        QCOMPARE(complaintAbout(other, stylesFrame()), QString());
    }
}

void tst_PaintedKeys::theOthersFollowAKeyThatGoes()
{
    FaceStage stage(8, QSize(480, 272));
    QToolButton *other = ::key(stage.dialog(), u(currentKind().cancelLabel));
    QToolButton *changed = ::key(stage.dialog(), u(currentKind().confirmLabel));
    changed->setText(longLabelFor(changed));
    QCOMPARE(complaintAbout(other, stylesFrame()), QString());
    QApplication::processEvents();
    PaintWatch watch(other), watchOfFirst(stage.shownKeys().first());
    delete changed;
    QVERIFY(watch.isPainted());
    QVERIFY(watchOfFirst.isPainted());
    QCOMPARE(complaintAbout(other, stylesFrame()), QString());
}

void tst_PaintedKeys::theOthersDoWithoutAKeyThatIsTakenOut()
{
    FaceStage stage(8, QSize(480, 272));
    QToolButton *other = ::key(stage.dialog(), u(currentKind().cancelLabel));
    QScopedPointer<QToolButton> taken(::key(stage.dialog(), u(currentKind().confirmLabel)));
    taken->setText(longLabelFor(taken.data()));
    QApplication::processEvents();
    taken->setParent(nullptr);
    taken->show();
    QApplication::processEvents();
    QCOMPARE(complaintAbout(other, stylesFrame()), QString());
}

void tst_PaintedKeys::theOthersFollowTheFirstKeyAndTheLast()
{
    FaceStage stage(8, QSize(480, 272));
    const QList<QToolButton *> keys = stage.shownKeys();
    for (QToolButton *changed : { keys.first(), keys.last() }) {
        const QString label = changed->text();
        changed->setText(longLabelFor(changed));
        QApplication::processEvents();
        for (QToolButton *key : keys)
            QCOMPARE(complaintAbout(key, stylesFrame()), QString());
        changed->setText(label);
    }
}

void tst_PaintedKeys::aKeyInsistsOnItsHeightAlone()
{
    FaceStage stage(8, QSize(480, 272));
    const QList<QToolButton *> keys = stage.shownKeys();
    for (const QToolButton *key : keys)
        QCOMPARE(key->minimumSizeHint(), QSize(0, 20));
}

void tst_PaintedKeys::aKeyWithoutRoomIsNoMeasure()
{
    FaceStage stage(8, QSize(640, 480));
    const QList<QToolButton *> keys = stage.shownKeys();
    QToolButton *other = keys.at(1);
    const QImage picture = pictureOf(other);
    keys.at(2)->setStyleSheet(u("padding: 400px"));
    QApplication::processEvents();
    QVERIFY(pictureOf(other) == picture);
}

void tst_PaintedKeys::sizesFollowFontAndSheet()
{
    FaceStage stage(8, QSize(480, 272));
    const QList<QToolButton *> keys = stage.shownKeys();
    for (QToolButton *key : keys)
        QCOMPARE(complaintAbout(key, stylesFrame()), QString());

    QFont font(stage.dialog()->font());
    font.setPixelSize(10);
    keys.first()->setFont(font);
    QCOMPARE(complaintAbout(keys.first(), stylesFrame()), QString());
    keys.first()->setFont(stage.dialog()->font());

    font.setPixelSize(60);
    stage.dialog()->setFont(font);
    for (QToolButton *key : keys)
        QCOMPARE(complaintAbout(key, stylesFrame()), QString());

    const int border = 9;
    stage.dialog()->setStyleSheet(
        QString::fromLatin1("QToolButton { border: %1px solid red }").arg(border));
    for (QToolButton *key : keys)
        QCOMPARE(complaintAbout(key, QMargins(border, border, border, border)), QString());
}

void tst_PaintedKeys::sizesFollowWhatIsEnabled()
{
    FaceStage stage(8, QSize(480, 272));
    stage.dialog()->setStyleSheet(u("QToolButton { border: 1px solid red }"
                                    "QToolButton:disabled { border: 6px solid red }"));
    const QList<QToolButton *> keys = stage.shownKeys();
    QToolButton *other = keys.at(0);
    const QImage picture = pictureOf(other);
    keys.at(1)->setEnabled(false);
    QVERIFY(pictureOf(other) != picture);
    keys.at(1)->setEnabled(true);
    QVERIFY(pictureOf(other) == picture);
}

void tst_PaintedKeys::aPressedKeyKeepsItsLabelInside()
{
    const int border = 14;
    FaceStage stage(8, QSize(480, 272));
    stage.dialog()->setStyleSheet(u("QToolButton { border: 1px solid red }"
                                    "QToolButton:pressed { border: %1px solid red }")
                                      .arg(border));
    const QList<QToolButton *> keys = stage.shownKeys();
    for (QToolButton *key : keys) {
        key->setDown(true);
        const QRect ink = inkOf(key).rect;
        QVERIFY(!ink.isEmpty());
        QVERIFY(key->rect().adjusted(border, border, -border, -border).contains(ink));
        key->setDown(false);
    }
}

void tst_PaintedKeys::aDisabledKeyWithoutLabelIsPale_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("the style's colours") << 8;
    QTest::newRow("the panel's colours") << 13;
}

void tst_PaintedKeys::aDisabledKeyWithoutLabelIsPale()
{
    QFETCH(int, type);
    FaceStage stage(type, QSize(480, 272));
    const QColor background = stage.dialog()->palette().color(QPalette::Window);
    QToolButton *key = ::key(stage.dialog(), u(currentKind().confirmLabel));
    key->setText(QString());
    const int enabled = contrast(pictureOf(key), background);
    key->setEnabled(false);
    const int disabled = contrast(pictureOf(key), background);
    QVERIFY2(disabled > 0 && 2 * disabled < enabled,
             qPrintable(QString::fromLatin1("%1 instead of %2").arg(disabled).arg(enabled)));
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
