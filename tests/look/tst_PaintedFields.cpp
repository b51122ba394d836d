// SPDX-License-Identifier: MIT
#include "Faces.h"
#include "PaintedText.h"

#include <HMIDevice/DateTimeKeypad.h>
#include <HMIDevice/KeyBoardLineEdit.h>

#include <QFontMetrics>
#include <QSpinBox>
#include <QStyle>
#include <QStyleOptionFrame>

// The date-time keypad's values can be read on every panel: those in its fields, which draw nothing
// smaller, and the composed one above them.

namespace {

const char value[] = "2024-12-28 20:48:59";

// A keypad over all of a panel, which shows that value.
class ValueStage : public KeypadStage<DateTimeKeypad>
{
public:
    ValueStage(DeviceType type, const QSize &size)
        : KeypadStage<DateTimeKeypad>(type, size, PanelView::Frameless)
    {
        keypad.setObject(&target);
        keypad.setMaxLength(19);
        open(u(value));
        QApplication::processEvents();
    }
};

// The pixels of the text on \a line.
Ink inkOfLine(QLineEdit *line)
{
    const QString text = line->text();
    const bool blocked = line->blockSignals(true);
    const QImage withText = pictureOf(line);
    line->setText(QString());
    const QImage withoutText = pictureOf(line);
    line->setText(text);
    line->blockSignals(blocked);
    return inkBetween(withText, withoutText);
}

// A line of Qt's own that tells what of its width is frame.
class MeasuredLine : public QLineEdit
{
public:
    QSize frame() const
    {
        QStyleOptionFrame option;
        initStyleOption(&option);
        return size() - style()->subElementRect(QStyle::SE_LineEditContents, &option, this).size();
    }
};

int largestPixelSize(QFont font, const QString &text, int room)
{
    int pixels = font.pixelSize();
    while (pixels > 0 && QFontMetrics(font).size(0, text).width() > room)
        font.setPixelSize(qMax(1, --pixels));
    return pixels;
}

// The same of a line of Qt's own that has as much room as it wants.
Ink inkOfPlainLine(const QLineEdit *line, int pixels)
{
    QLineEdit plain(line->text(), line->parentWidget());
    QFont font(line->font());
    font.setPixelSize(pixels);
    plain.setFont(font);
    plain.setPalette(line->palette());
    plain.setEchoMode(line->echoMode());
    plain.setEnabled(line->isEnabled());
    plain.resize(2000, 200);
    plain.ensurePolished();
    return inkOfLine(&plain);
}

// The size of the text on \a line in pixels of its font; 0 where it is no plain line's at any size.
int pixelSizeOf(QLineEdit *line)
{
    const QSize size = inkOfLine(line).rect.size();
    for (int pixels = line->font().pixelSize(); pixels > 0; --pixels) {
        if (inkOfPlainLine(line, pixels).rect.size() == size)
            return pixels;
    }
    return 0;
}

} // namespace

class tst_PaintedFields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFieldShowsAllDigits_data();
    void everyFieldShowsAllDigits();
    void theDisplayShowsTheWholeValue_data();
    void theDisplayShowsTheWholeValue();
    void theDisplayLooksAsAnyLine_data();
    void theDisplayLooksAsAnyLine();
    void aMaskedValueStaysMasked();
    void anEnabledDisplayIsAnyLine();
    void theDisplayIsAPlainLineAsLongAsItsTextFits();
    void theDisplayIsAsLargeAsItCanBe();
};

void tst_PaintedFields::everyFieldShowsAllDigits_data()
{
    addScreenRows();
}

void tst_PaintedFields::everyFieldShowsAllDigits()
{
    QFETCH(int, type);
    QFETCH(QSize, size);
    ValueStage stage(type, size);
    const QList<QSpinBox *> fields = stage.keypad.findChildren<QSpinBox *>();
    QCOMPARE(int(fields.size()), 6);
    for (const QSpinBox *field : fields) {
        QLineEdit *line = field->findChild<QLineEdit *>();
        line->clearFocus();
        line->deselect();
        QCOMPARE(pixelSizeOf(line), line->font().pixelSize());
    }
}

void tst_PaintedFields::theDisplayShowsTheWholeValue_data()
{
    addScreenRows();
}

void tst_PaintedFields::theDisplayShowsTheWholeValue()
{
    QFETCH(int, type);
    QFETCH(QSize, size);
    ValueStage stage(type, size);
    QLineEdit *display = stage.line();
    QCOMPARE(display->text(), u(value));
    const int pixels = pixelSizeOf(display);
    const int mostPixels = display->font().pixelSize();
    const int borders = 16; // on both sides, with what a line keeps free
    QVERIFY(pixels > 0);
    QVERIFY(display->rect().adjusted(1, 1, -1, -1).contains(inkOfLine(display).rect));
    QVERIFY(pixels == mostPixels
            || inkOfPlainLine(display, pixels + 1).rect.width() > display->width() - borders);
}

void tst_PaintedFields::theDisplayLooksAsAnyLine_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("sheet");
    for (int width : { 240, 480 }) {
        const struct
        {
            const char *name, *sheet;
        } sheets[] = {
            { "no sheet", "" },
            { "colours", "QLineEdit { color: #ff0040; background: #102030 }" },
            { "border", "QLineEdit { border: 3px solid #00ff00; padding: 4px }" },
        };
        for (const auto &sheet : sheets) {
            const QString name = QString::fromLatin1("%1 pixels, %2").arg(width).arg(u(sheet.name));
            QTest::newRow(qPrintable(name)) << width << u(sheet.sheet);
        }
    }
}

void tst_PaintedFields::theDisplayLooksAsAnyLine()
{
    QFETCH(int, width);
    QFETCH(QString, sheet);
    ValueStage stage(8, QSize(width, 320));
    stage.keypad.setStyleSheet(sheet);
    QApplication::processEvents();
    QLineEdit *display = stage.line();
    const int pixels = pixelSizeOf(display);
    QVERIFY((pixels == display->font().pixelSize()) == (width == 480));
    QVERIFY(inkOfLine(display).picture == inkOfPlainLine(display, pixels).picture);

    QLineEdit empty(display->parentWidget());
    empty.setEnabled(false);
    empty.resize(display->size());
    empty.ensurePolished();
    display->clear();
    QVERIFY(pictureOf(display) == pictureOf(&empty));
}

void tst_PaintedFields::aMaskedValueStaysMasked()
{
    ValueStage stage(8, QSize(240, 320));
    const QImage clear = inkOfLine(stage.line()).picture;
    stage.keypad.setPasswordEchoMode(true);
    QVERIFY(inkOfLine(stage.line()).picture != clear);
    QVERIFY(pixelSizeOf(stage.line()) > 0);
}

// What can be edited scrolls.
void tst_PaintedFields::anEnabledDisplayIsAnyLine()
{
    ValueStage stage(8, QSize(240, 320));
    stage.line()->setEnabled(true);
    QLineEdit plain(stage.line()->text(), &stage.keypad);
    plain.setFont(stage.line()->font());
    plain.setAlignment(stage.line()->alignment());
    plain.resize(stage.line()->size());
    plain.ensurePolished();
    QVERIFY(pictureOf(stage.line()) == pictureOf(&plain));
}

// A line keeps two pixels free on both sides of its text.
void tst_PaintedFields::theDisplayIsAPlainLineAsLongAsItsTextFits()
{
    KeyBoardLineEdit display(nullptr);
    MeasuredLine plain;
    QLineEdit *const lines[] = { &display, &plain };
    const QSize least = plain.fontMetrics().size(0, u(value)) + plain.frame() + QSize(4, 0);
    const QSize sizes[] = { least, least - QSize(1, 0), least - QSize(0, 1) };
    for (const QSize &size : sizes) {
        for (QLineEdit *line : lines) {
            line->setText(u(value));
            line->setEnabled(false);
            line->resize(size);
        }
        QCOMPARE(pictureOf(&display) == pictureOf(&plain), size == least);
    }
}

// Widths do not quite follow the size of a font: one that looks too large may fit.
void tst_PaintedFields::theDisplayIsAsLargeAsItCanBe()
{
    KeyBoardLineEdit display(nullptr);
    display.setText(u("A"));
    display.setEnabled(false);
    for (int pixels = 16; pixels <= 40; ++pixels) {
        QFont font(u("DejaVu Serif"));
        font.setPixelSize(pixels);
        display.setFont(font);
        for (int room = 9; room <= 24; ++room) {
            display.resize(room + MeasuredLine().frame().width() + 4, 80);
            const int largest = largestPixelSize(font, display.text(), room);
            if (largest < 8)
                continue;
            QCOMPARE(inkOfLine(&display).rect.size(),
                     inkOfPlainLine(&display, largest).rect.size());
        }
    }
}

QTEST_MAIN(tst_PaintedFields)

#include "tst_PaintedFields.moc"
