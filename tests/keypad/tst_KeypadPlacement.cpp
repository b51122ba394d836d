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

// Without a view a keypad leaves QDialog::showEvent() out, in which Qt places a dialog that nobody
// has moved; the G-code keypad never does.
class BareDialog : public QDialog
{
public:
    explicit BareDialog(bool placesItself)
        : QDialog(nullptr, Qt::FramelessWindowHint)
        , m_placesItself(placesItself)
    {
    }

protected:
    void showEvent(QShowEvent *event) override
    {
        if (m_placesItself)
            QDialog::showEvent(event);
    }

private:
    bool m_placesItself;
};

void addPanelRows()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<PanelView::Frame>("frame");
    const QSize sizes[] = { QSize(480, 272), QSize(640, 480), QSize(800, 480), QSize(800, 600) };
    for (const QSize &size : sizes) {
        const QString name = QString::fromLatin1("%1x%2").arg(size.width()).arg(size.height());
        QTest::newRow(qPrintable(name)) << size << PanelView::Frameless;
        QTest::newRow(qPrintable(name + u(" framed"))) << size << PanelView::Framed;
    }
}

// The labels of visible keys that are too small to be tapped, or lie outside or over another part.
QStringList crampedKeys(AnyStage *stage)
{
    QStringList labels;
    QDialog *keypad = stage->dialog();
    QRegion taken(QRect(stage->line()->mapTo(keypad, QPoint(0, 0)), stage->line()->size()));
    const QList<QToolButton *> keys = keypad->findChildren<QToolButton *>();
    for (const QToolButton *key : keys) {
        if (!key->isVisible())
            continue;
        const QRect rect(key->mapTo(keypad, QPoint(0, 0)), key->size());
        const bool inside = keypad->rect().contains(rect);
        if (!inside || rect.width() < 8 || rect.height() < 8 || taken.intersects(rect))
            labels << key->text();
        taken += rect;
    }
    return labels;
}

// A keypad of the current kind, and no view registered.
AnyKeypad *newKeypadWithoutView()
{
    HMIDeviceInfo::setGraphicsView(nullptr);
    return currentKind().create(nullptr, Qt::WindowFlags());
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
    void staysWhereItIsWithoutAView_data();
    void staysWhereItIsWithoutAView();
    void aNewKeypadLiesWhereQtPutsItWithoutAView();
};

void tst_KeypadPlacement::initTestCase_data()
{
    addKeypadRows();
}

void tst_KeypadPlacement::coversExactlyWhatItShould_data()
{
    addPanelRows();
}

void tst_KeypadPlacement::coversExactlyWhatItShould()
{
    QFETCH(QSize, size);
    QFETCH(PanelView::Frame, frame);
    AnyStage stage(10, size, frame);
    stage.target.setGeometry(QRect(QPoint(20, 30), size / 2));
    const QRect expected = expectedRect(&stage.view, stage.target);
    const QPoint shift(stage.view.frameWidth(), stage.view.frameWidth());
    QCOMPARE(stage.view.viewport()->pos(), shift);
    QCOMPARE(rectWhileShown(stage.dialog()), expected);
    if (currentKind().has(FixedFace)) {
        stage.keypad.setLimitToolTip(u("-99999.999 … 99999.999"));
        QCOMPARE(rectWhileShown(stage.dialog()), expected);
    }
}

void tst_KeypadPlacement::everyKeyHasRoomInside_data()
{
    addPanelRows();
}

void tst_KeypadPlacement::everyKeyHasRoomInside()
{
    QFETCH(QSize, size);
    QFETCH(PanelView::Frame, frame);
    AnyStage stage(10, size, frame);
    stage.target.setGeometry(QRect(QPoint(0, 0), size));
    stage.open();
    QVERIFY(key(stage.dialog(), u(currentKind().confirmLabel))->isVisible());
    QCOMPARE(crampedKeys(&stage), QStringList());
    if (currentKind().has(FixedFace)) {
        stage.keypad.setLimitToolTip(u("-99999.999 … 99999.999"));
        QApplication::processEvents(); // the layout makes room for the line
        QVERIFY(tipLabel(stage.dialog())->height() > 0);
        QCOMPARE(crampedKeys(&stage), QStringList());
    }
}

void tst_KeypadPlacement::followsTheViewAtEveryShow()
{
    AnyStage stage(10, QSize(800, 480));
    stage.target.setGeometry(5, 6, 300, 100);
    QCOMPARE(rectWhileShown(stage.dialog()), expectedRect(&stage.view, stage.target));

    stage.view.setGeometry(60, 70, 480, 272);
    stage.target.setGeometry(7, 8, 400, 90);
    QApplication::processEvents();
    const QRect moved = expectedRect(&stage.view, stage.target);
    QCOMPARE(rectWhileShown(stage.dialog()), moved);

    stage.view.setFrameShape(QFrame::NoFrame);
    QApplication::processEvents();
    const QRect frameless = expectedRect(&stage.view, stage.target);
    QVERIFY(frameless != moved);
    QCOMPARE(rectWhileShown(stage.dialog()), frameless);
}

void tst_KeypadPlacement::followsTheViewThatIsRegisteredNow()
{
    AnyStage stage(10, QSize(640, 480));
    stage.target.setGeometry(5, 6, 300, 100);

    QGraphicsView other;
    other.setGeometry(30, 40, 320, 240);
    other.show();
    QApplication::processEvents();
    HMIDeviceInfo::setGraphicsView(&other);
    QCOMPARE(rectWhileShown(stage.dialog()), expectedRect(&other, stage.target));
    QVERIFY(stage.dialog()->parentWidget() == &stage.view);
}

void tst_KeypadPlacement::staysWhereItIsWithoutAView_data()
{
    QTest::addColumn<bool>("isWidget");
    QTest::newRow("for a widget") << true;
    QTest::newRow("for another object") << false;
}

void tst_KeypadPlacement::staysWhereItIsWithoutAView()
{
    QFETCH(bool, isWidget);
    const QScopedPointer<AnyKeypad> keypad(newKeypadWithoutView());
    QVERIFY(!keypad->dialog()->parentWidget());
    const QRect rect(37, 41, 410, 330);
    keypad->dialog()->setGeometry(rect);
    QLineEdit widget;
    widget.setGeometry(100, 50, 200, 80);
    QObject object;
    keypad->setObject(isWidget ? &widget : &object);
    QCOMPARE(rectWhileShown(keypad->dialog()), rect);
    QCOMPARE(rectWhileShown(keypad->dialog()), rect);
}

void tst_KeypadPlacement::aNewKeypadLiesWhereQtPutsItWithoutAView()
{
    BareDialog bare(currentKind().has(CoversTarget));
    bare.resize(320, 240);
    const QScopedPointer<AnyKeypad> keypad(newKeypadWithoutView());
    keypad->dialog()->resize(320, 240);
    QCOMPARE(rectWhileShown(keypad->dialog()), rectWhileShown(&bare));
}

QTEST_MAIN(tst_KeypadPlacement)

#include "tst_KeypadPlacement.moc"
