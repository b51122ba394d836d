// SPDX-License-Identifier: MIT
#include "Faces.h"

#include <HMIDevice/NumericKeypad.h>

namespace {

const QSize panelSizes[] = { QSize(480, 272), QSize(640, 480), QSize(800, 480), QSize(800, 600),
                             QSize(272, 480), QSize(480, 640), QSize(480, 800), QSize(600, 800) };

const QSize smallestSizes[] = { QSize(320, 240), QSize(240, 320) };

// How the face after the first, which shows itself, comes.
struct NextFace
{
    const char *className;
    const char *taps;
    int editMode;
};

const NextFace nextFaces[] = { { "NumericKeypad", "", 16 },    { "NumericKeypad", "", 10 },
                               { "NumericKeypad", "", 2 },     { "CharacterKeypad", "caps", 0 },
                               { "CharacterKeypad", "*#", 0 }, { "CharacterKeypad", "<< CN", 0 } };

DeviceType currentType()
{
    QFETCH(int, type);
    return type;
}

QSize currentSize()
{
    QFETCH(QSize, size);
    return size;
}

template <class Widget>
QList<Widget *> shownTexts(const QWidget *keypad)
{
    QList<Widget *> shown;
    const QList<Widget *> all = keypad->findChildren<Widget *>();
    for (Widget *widget : all) {
        if (widget->isVisible() && !widget->text().isEmpty())
            shown << widget;
    }
    return shown;
}

template <int count>
void addRows(const QSize (&sizes)[count])
{
    for (int type : { 8, 13 }) {
        for (const QSize &size : sizes) {
            const QString name = QString::fromLatin1("%1x%2, type %3")
                                     .arg(size.width())
                                     .arg(size.height())
                                     .arg(type);
            QTest::newRow(qPrintable(name)) << type << size;
        }
    }
}

} // namespace

void addPanelRows()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QSize>("size");
    addRows(panelSizes);
}

void addScreenRows()
{
    addPanelRows();
    addRows(smallestSizes);
}

FaceStage::FaceStage()
    : FaceStage(currentType(), currentSize())
{
}

FaceStage::FaceStage(DeviceType type, const QSize &size)
    : AnyStage(type, size, PanelView::Frameless)
    , m_face(0)
{
    target.resize(view.size()); // which the G-code keypad covers
    open();
    QApplication::processEvents();
}

bool FaceStage::showNextFace()
{
    const int count = int(sizeof(nextFaces) / sizeof(nextFaces[0]));
    for (; m_face < count; ++m_face) {
        const NextFace &next = nextFaces[m_face];
        if (QLatin1String(currentKind().className) != QLatin1String(next.className))
            continue;
        ++m_face;
        keypad.setObject(&target);
        if (next.editMode)
            qobject_cast<NumericKeypad *>(dialog())->setEditMode(next.editMode);
        else
            tapAll(dialog(), u(next.taps));
        QApplication::processEvents();
        return true;
    }
    return false;
}

void FaceStage::fillLabels(const QString &text)
{
    while (showNextFace()) { } // Chinese is the last one
    const QList<QLabel *> labels = dialog()->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (label->text().isEmpty() && label->parentWidget()->isVisible()) {
            label->setText(text);
            label->show();
        }
    }
    QApplication::processEvents();
    for (QLabel *label : labels)
        label->updateGeometry(); // once more with the style sheet that it took when it was shown
    QApplication::processEvents();
}

QList<QToolButton *> FaceStage::shownKeys()
{
    return shownTexts<QToolButton>(dialog());
}

QList<QLabel *> FaceStage::shownLabels()
{
    return shownTexts<QLabel>(dialog());
}
