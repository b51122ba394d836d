// SPDX-License-Identifier: MIT
#include "Faces.h"
#include "PaintedText.h"
#include "Sheets.h"

#include <QSet>

// Every label of a field, every line for limits, the pinyin and every candidate show their text, as
// a plain label does where they have room.

namespace {

QSet<QRgb> coloursOf(const QImage &picture)
{
    QSet<QRgb> colours;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            colours << picture.pixel(x, y);
    }
    return colours;
}

} // namespace

class tst_PaintedLabels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void everyLabelShowsItsText_data();
    void everyLabelShowsItsText();
    void theLongestPinyinIsWhole_data();
    void theLongestPinyinIsWhole();
    void sizesFollowTheKeypads();
    void oneCharacterIsDrawnApartFromWords();
    void everyStateShows_data();
    void everyStateShows();
    void whateverTheText_data();
    void whateverTheText();
    void howeverItIsSetUp_data();
    void howeverItIsSetUp();
    void smallRichTextHasItsColours_data();
    void smallRichTextHasItsColours();
    void richTextDoesNotGrowWhereOthersShrink();
};

void tst_PaintedLabels::initTestCase_data()
{
    addKeypadRows();
}

void tst_PaintedLabels::everyLabelShowsItsText_data()
{
    addScreenRows();
}

void tst_PaintedLabels::everyLabelShowsItsText()
{
    FaceStage stage;
    stage.fillLabels(u("主轴"));
    const QList<QLabel *> labels = stage.shownLabels();
    QCOMPARE(int(labels.size()), currentKind().has(FixedFace) ? 1 : 6);
    for (QLabel *label : labels) {
        QCOMPARE(complaintAbout(label, QMargins()), QString());
        QVERIFY2(isWhole(label), qPrintable(label->objectName()));
    }
}

void tst_PaintedLabels::theLongestPinyinIsWhole_data()
{
    addScreenRows();
}

void tst_PaintedLabels::theLongestPinyinIsWhole()
{
    if (currentKind().has(FixedFace) || !currentKind().has(TypesText))
        return; // there is no pinyin
    FaceStage stage;
    stage.fillLabels(u("床前明月光")); // which takes all the room that it is left
    QLabel *pinyin = stage.dialog()->findChild<QLabel *>(u("pinyinLabel"));
    pinyin->setText(u("zhuang"));
    QApplication::processEvents();
    QCOMPARE(complaintAbout(pinyin, QMargins()), QString());
    QVERIFY(isWhole(pinyin));
}

void tst_PaintedLabels::sizesFollowTheKeypads()
{
    FaceStage stage(8, QSize(240, 320));
    stage.fillLabels(u("主轴"));
    const QList<QLabel *> labels = stage.shownLabels();
    for (const QSize &size : { QSize(240, 320), QSize(800, 480), QSize(320, 240) }) {
        stage.dialog()->resize(size);
        QApplication::processEvents();
        for (QLabel *label : labels)
            QCOMPARE(complaintAbout(label, QMargins()), QString());
    }
}

void tst_PaintedLabels::oneCharacterIsDrawnApartFromWords()
{
    FaceStage stage(8, QSize(240, 320));
    stage.fillLabels(u("Sekunden und Minuten"));
    const QList<QLabel *> labels = stage.shownLabels();
    QLabel *character = labels.first();
    character->setText(u("I"));
    QApplication::processEvents();
    QVERIFY(character->QLabel::sizeHint().width() <= character->width());
    for (QLabel *label : labels)
        QCOMPARE(complaintAbout(label, QMargins()), QString());
}

void tst_PaintedLabels::everyStateShows_data()
{
    addSheetRows("QLabel", QMargins(), SidesChange);
}

void tst_PaintedLabels::everyStateShows()
{
    QFETCH(QMargins, around);
    const CurrentSheet sheet;
    FaceStage stage(8, QSize(480, 272));
    stage.fillLabels(u("shuang"));
    const QList<QLabel *> labels = stage.shownLabels();
    for (QLabel *label : labels) {
        QCOMPARE(complaintAbout(label, around), QString());
        label->setEnabled(false);
        QCOMPARE(complaintAbout(label, around), QString());
    }
}

void tst_PaintedLabels::whateverTheText_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("a word") << u("Drehzahl");
    QTest::newRow("a sentence") << u("from the lowest value that is permitted to the highest");
    QTest::newRow("no end") << QString(3000, QLatin1Char('W'));
    QTest::newRow("two lines") << u("Min: 0\nMax: 6000");
    QTest::newRow("three lines") << u("Min: 0\nMax: 6000\nUnit: rpm");
    QTest::newRow("blanks") << u("  0 ...  1  ");
    QTest::newRow("ampersands") << u("this & that && more");
    QTest::newRow("Chinese") << u("最小值：零，最大值：六千");
    QTest::newRow("Hebrew") << u("ערך מרבי");
    QTest::newRow("a long Hebrew text") << u("הערך המרבי המותר הוא 6000 והערך המזערי הוא 0 תמיד");
    QTest::newRow("rich") << u("<b>Min</b> 0 <font color=red>Max</font> 1");
    QTest::newRow("rich, two lines") << u("Min: 0<br>Max: 1");
    QTest::newRow("rich, long") << u("<b>Min</b> the lowest value that is permitted "
                                     "<font color=red>Max</font> the highest");
    QTest::newRow("rich, high") << u("<font size=7>6000</font><br>one<br>two<br>three<br>four");
    QTest::newRow("rich, Hebrew") << u("<b>ערך</b> מרבי");
}

void tst_PaintedLabels::whateverTheText()
{
    QFETCH(QString, text);
    FaceStage stage(8, QSize(480, 272));
    stage.fillLabels(u("0"));
    const QList<QLabel *> labels = stage.shownLabels();
    for (QLabel *label : labels)
        label->setText(text);
    QApplication::processEvents();
    for (QLabel *label : labels)
        QCOMPARE(complaintAbout(label, QMargins()), QString());
}

void tst_PaintedLabels::howeverItIsSetUp_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("alignment");
    QTest::addColumn<int>("margin");
    QTest::addColumn<int>("indent");
    QTest::addColumn<int>("frame");
    const struct
    {
        const char *name;
        const char *text;
    } texts[] = { { "short", "1" },
                  { "long", "from the lowest value that is permitted to the highest" },
                  { "rich", "<i>1</i>" },
                  { "rich and long",
                    "<b>from the lowest</b> value that is permitted to the highest" } };
    const struct
    {
        const char *name;
        Qt::Alignment alignment;
        int margin, indent, frame;
    } setUps[] = {
        { "centred", Qt::AlignCenter, 0, -1, QFrame::NoFrame },
        { "right", Qt::AlignRight | Qt::AlignVCenter, 0, -1, QFrame::NoFrame },
        { "top", Qt::AlignLeft | Qt::AlignTop, 0, -1, QFrame::NoFrame },
        { "margin", Qt::AlignLeft | Qt::AlignVCenter, 6, -1, QFrame::NoFrame },
        { "indent", Qt::AlignLeft | Qt::AlignVCenter, 0, 9, QFrame::NoFrame },
        { "indent at the top", Qt::AlignHCenter | Qt::AlignTop, 0, 9, QFrame::NoFrame },
        { "indent at the right", Qt::AlignRight | Qt::AlignVCenter, 0, 9, QFrame::NoFrame },
        { "indent at the bottom", Qt::AlignRight | Qt::AlignBottom, 0, 9, QFrame::NoFrame },
        { "frame", Qt::AlignLeft | Qt::AlignBottom, 0, 0, QFrame::Box }
    };
    for (const auto &text : texts) {
        for (const auto &setUp : setUps)
            QTest::newRow(qPrintable(u(text.name) + u(", ") + u(setUp.name)))
                << u(text.text) << int(setUp.alignment) << setUp.margin << setUp.indent
                << setUp.frame;
    }
}

void tst_PaintedLabels::howeverItIsSetUp()
{
    QFETCH(QString, text);
    QFETCH(int, alignment);
    QFETCH(int, margin);
    QFETCH(int, indent);
    QFETCH(int, frame);
    FaceStage stage(8, QSize(480, 272));
    stage.fillLabels(text);
    const QList<QLabel *> labels = stage.shownLabels();
    for (QLabel *label : labels) {
        label->setText(text);
        label->setAlignment(Qt::Alignment(alignment));
        label->setMargin(margin);
        label->setIndent(indent);
        label->setFrameStyle(frame);
    }
    QApplication::processEvents();
    const int around = margin + (frame == QFrame::NoFrame ? 0 : 1);
    for (QLabel *label : labels)
        QCOMPARE(complaintAbout(label, QMargins(around, around, around, around)), QString());
}

void tst_PaintedLabels::smallRichTextHasItsColours_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("the style's") << 8 << true;
    QTest::newRow("the style's, disabled") << 8 << false;
    QTest::newRow("the panel's") << 13 << true;
    QTest::newRow("the panel's, disabled") << 13 << false;
}

void tst_PaintedLabels::smallRichTextHasItsColours()
{
    QFETCH(int, type);
    QFETCH(bool, enabled);
    FaceStage stage(type, QSize(480, 272));
    stage.fillLabels(u("0"));
    const QString blocks = u("█").repeated(currentKind().has(FixedFace) ? 40 : 5);
    QLabel *label = stage.shownLabels().first();
    label->setTextFormat(Qt::RichText);
    label->setText(blocks + u("<font color=\"#ff0040\">") + blocks + u("</font>"));
    label->setEnabled(enabled);
    QVERIFY(label->QLabel::sizeHint().width() > label->width());
    const QSet<QRgb> colours = coloursOf(inkOf(label).picture);
    QVERIFY(colours.contains(qRgb(255, 0, 64)));
    QVERIFY(colours.contains(label->palette().color(label->foregroundRole()).rgb()));
}

void tst_PaintedLabels::richTextDoesNotGrowWhereOthersShrink()
{
    FaceStage stage(8, QSize(272, 480));
    stage.fillLabels(u("month:"));
    const QList<QLabel *> labels = stage.shownLabels();
    QLabel *rich = labels.first();
    rich->setText(u("<i>1</i>"));
    rich->setMinimumWidth(60);
    QApplication::processEvents();
    const QScopedPointer<QLabel> twin(newTwin(rich));
    const QSize painted = inkOf(rich).rect.size();
    QVERIFY(!painted.isEmpty());
    QCOMPARE(painted.boundedTo(inkOf(twin.data()).rect.size()), painted);
}

QTEST_MAIN(tst_PaintedLabels)

#include "tst_PaintedLabels.moc"
