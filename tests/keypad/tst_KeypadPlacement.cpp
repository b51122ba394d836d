// SPDX-License-Identifier: MIT
#include "support/AnyKeypad.h"

#include <HMIDevice/KeyBoardLineEdit.h>

#include <QApplication>

// Where a keypad lies on each panel, and that what it shows has room there.

Q_DECLARE_METATYPE(PanelView::Frame)

namespace {

// For a target that is a window: its rectangle, counted from the viewport's corner.
QRect targetRect(const QGraphicsView *view, const QWidget &target)
{
    return target.geometry().translated(view->viewport()->mapToGlobal(QPoint(0, 0)));
}

QRect expectedRect(const QGraphicsView *view, const QWidget &target)
{
    return currentKind().has(CoversTarget) ? targetRect(view, target) : rectCovering(view);
}

QRect rectWhileOpen(QDialog *keypad)
{
    QRect rect;
    execWhile(
        keypad, [&] { rect = keypad->geometry(); }, StaysOpen);
    return rect;
}

} // namespace

class tst_KeypadPlacement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void coversExactlyWhatItShould_data();
    void coversExactlyWhatItShould();
    void everyKeyHasRoomInside_data();
    void everyKeyHasRoomInside();
    void followsTheViewAtEveryShow();
    void followsTheViewThatIsRegisteredNow();
    void staysWhereItIsWithoutAView();
    void aNewKeypadIsNotMovedWithoutAView();
};

void tst_KeypadPlacement::initTestCase_data()
{
    addKeypadRows();
}

static void addPanelRows()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<PanelView::Frame>("frame");
    QTest::addColumn<bool>("limits");

    const QSize sizes[] = { QSize(480, 272), QSize(640, 480), QSize(800, 480), QSize(800, 600) };
    for (const QSize &size : sizes) {
        for (int framed = 0; framed < 2; ++framed) {
            for (int limits = 0; limits < 2; ++limits) {
                const QString name = QString::fromLatin1("%1x%2 %3 %4")
                                         .arg(size.width())
                                         .arg(size.height())
                                         .arg(QLatin1String(framed ? "framed" : "frameless"))
                                         .arg(QLatin1String(limits ? "with limits" : ""));
                QTest::newRow(qPrintable(name.trimmed()))
                    << size << (framed ? PanelView::Framed : PanelView::Frameless) << (limits == 1);
            }
        }
    }
}

void tst_KeypadPlacement::coversExactlyWhatItShould_data()
{
    addPanelRows();
}

void tst_KeypadPlacement::coversExactlyWhatItShould()
{
    QFETCH(QSize, size);
    QFETCH(PanelView::Frame, frame);
    QFETCH(bool, limits);
    if (limits && !currentKind().has(FixedFace))
        HMI_SKIP("this keypad has no line for limits");
    AnyStage stage(10, size, frame);
    QLineEdit target;
    target.setGeometry(QRect(QPoint(20, 30), size / 2));
    stage.keypad.setObject(&target);
    if (limits)
        stage.keypad.setLimitToolTip(u("-99999.999 … 99999.999"));

    const QRect expected = expectedRect(&stage.view, target);
    if (!currentKind().has(CoversTarget)) {
        const QPoint shift(stage.view.frameWidth(), stage.view.frameWidth());
        QCOMPARE(stage.view.viewport()->pos(), shift);
    }
    QCOMPARE(rectWhileOpen(stage.dialog()), expected);
}

void tst_KeypadPlacement::everyKeyHasRoomInside_data()
{
    addPanelRows();
}

void tst_KeypadPlacement::everyKeyHasRoomInside()
{
    QFETCH(QSize, size);
    QFETCH(PanelView::Frame, frame);
    QFETCH(bool, limits);
    if (limits && !currentKind().has(FixedFace))
        HMI_SKIP("this keypad has no line for limits");
    AnyStage stage(10, size, frame);
    QLineEdit target;
    target.setGeometry(QRect(QPoint(0, 0), size));
    stage.keypad.setObject(&target);
    if (limits)
        stage.keypad.setLimitToolTip(u("-99999.999 … 99999.999"));

    QStringList cramped;
    int visible = 0;
    CHECKED(execWhile(
        stage.dialog(),
        [&] {
            const QList<QToolButton *> keys = stage.dialog()->findChildren<QToolButton *>();
            QRegion taken(QRect(QPoint(0, 0), stage.line()->size())
                              .translated(stage.line()->mapTo(stage.dialog(), QPoint(0, 0))));
            for (const QToolButton *key : keys) {
                if (!key->isVisible())
                    continue;
                ++visible;
                const QRect rect(key->mapTo(stage.dialog(), QPoint(0, 0)), key->size());
                const bool inside = stage.dialog()->rect().contains(rect);
                if (!inside || rect.width() < 8 || rect.height() < 8 || taken.intersects(rect))
                    cramped << key->text();
                taken += rect;
            }
        },
        StaysOpen));
    QVERIFY(visible >= 15);
    QCOMPARE(cramped, QStringList());
}

void tst_KeypadPlacement::followsTheViewAtEveryShow()
{
    AnyStage stage(10, QSize(800, 480));
    QLineEdit target;
    target.setGeometry(5, 6, 300, 100);
    stage.keypad.setObject(&target);
    QCOMPARE(rectWhileOpen(stage.dialog()), expectedRect(&stage.view, target));

    stage.view.setGeometry(60, 70, 480, 272);
    target.setGeometry(7, 8, 400, 90);
    QApplication::processEvents();
    const QRect moved = expectedRect(&stage.view, target);
    QCOMPARE(rectWhileOpen(stage.dialog()), moved);

    stage.view.setFrameShape(QFrame::NoFrame);
    QApplication::processEvents();
    const QRect frameless = expectedRect(&stage.view, target);
    QVERIFY(frameless != moved);
    QCOMPARE(rectWhileOpen(stage.dialog()), frameless);
}

void tst_KeypadPlacement::followsTheViewThatIsRegisteredNow()
{
    AnyStage stage(10, QSize(640, 480));
    QLineEdit target;
    target.setGeometry(5, 6, 300, 100);
    stage.keypad.setObject(&target);

    QGraphicsView other;
    other.setGeometry(30, 40, 320, 240);
    other.show();
    QApplication::processEvents();
    HMIDeviceInfo::setGraphicsView(&other);
    QCOMPARE(rectWhileOpen(stage.dialog()), expectedRect(&other, target));
    QVERIFY(stage.dialog()->parentWidget() == &stage.view);
}

static AnyKeypad *newKeypadWithoutView()
{
    HMIDeviceInfo::setGraphicsView(nullptr);
    return currentKind().create(nullptr, Qt::WindowFlags());
}

void tst_KeypadPlacement::staysWhereItIsWithoutAView()
{
    if (qstrcmp(currentKind().className, "vondKeypad") == 0)
        HMI_SKIP("this keypad is shown with a view only");
    QScopedPointer<AnyKeypad> keypad(newKeypadWithoutView());
    QVERIFY(!keypad->dialog()->parentWidget());
    const QRect rect(37, 41, 410, 330);
    keypad->dialog()->setGeometry(rect);
    QObject target; // no widget, which the G-code keypad would lie over
    keypad->setObject(&target);
    QCOMPARE(rectWhileOpen(keypad->dialog()), rect);
    QCOMPARE(rectWhileOpen(keypad->dialog()), rect);
}

// A dialog that was never moved is centred by QDialog::showEvent(), which the keypads that cover
// the view leave out when there is none.
void tst_KeypadPlacement::aNewKeypadIsNotMovedWithoutAView()
{
    if (qstrcmp(currentKind().className, "vondKeypad") == 0)
        HMI_SKIP("this keypad is shown with a view only");
    QDialog plain(nullptr, Qt::FramelessWindowHint);
    plain.resize(320, 240);
    const QRect before = plain.geometry();
    plain.show();
    const QRect centred = plain.geometry();
    plain.hide();
    QVERIFY(centred != before);

    QScopedPointer<AnyKeypad> keypad(newKeypadWithoutView());
    if (currentKind().has(FixedFace))
        QCOMPARE(keypad->dialog()->size(), QSize(320, 240));
    else
        keypad->dialog()->resize(320, 240);
    QCOMPARE(keypad->dialog()->geometry(), before);
    keypad->dialog()->show();
    QCOMPARE(keypad->dialog()->geometry(), currentKind().has(CoversTarget) ? centred : before);
}

QTEST_MAIN(tst_KeypadPlacement)

#include "tst_KeypadPlacement.moc"
