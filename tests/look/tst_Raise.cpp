// SPDX-License-Identifier: MIT
#include "support/AnyKeypad.h"
#include "support/RealPointer.h"

#include <QEvent>

// A keypad that opens is above whatever was shown since it was used last. Only an X server knows.

namespace {

const QSize panelSize(640, 480);

// Notes that a window, or a part of it, was painted: the server has put it on the screen by then.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget *window)
        : m_painted(false)
    {
        window->installEventFilter(this);
    }

    bool wait() const
    {
        return comesTrue([this] { return m_painted; });
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        m_painted = m_painted || event->type() == QEvent::Paint;
        return false;
    }

private:
    bool m_painted;
};

// Opens the keypad, which has to close when its cancel key is clicked where it is.
void useOnce(AnyStage &stage)
{
    QDialog *keypad = stage.dialog();
    const PaintWatch watch(keypad);
    const auto cancelByPointer = [&] {
        watch.wait(); // in vain where the keypad is covered: then the click does not reach it
        const QToolButton *cancel = key(keypad, u(currentKind().cancelLabel));
        CHECKED(clickReally(cancel->mapToGlobal(cancel->rect().center())));
        comesTrue([keypad] { return !keypad->isVisible(); });
    };
    execWhile(keypad, cancelByPointer, Rejects);
}

} // namespace

class tst_Raise : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void aKeypadOpensAboveWhatWasShownSince_data();
    void aKeypadOpensAboveWhatWasShownSince();

private:
    void coverPanel(QDialog *dialog);
};

void tst_Raise::initTestCase_data()
{
    addKeypadRows();
}

void tst_Raise::aKeypadOpensAboveWhatWasShownSince_data()
{
    QTest::addColumn<bool>("modal");
    QTest::addColumn<bool>("ofTheView");
    QTest::newRow("a modal dialog of the view") << true << true;
    QTest::newRow("a modal dialog of its own") << true << false;
    QTest::newRow("a window") << false << false;
}

void tst_Raise::aKeypadOpensAboveWhatWasShownSince()
{
    QFETCH(bool, modal);
    QFETCH(bool, ofTheView);
    AnyStage stage(8, panelSize, PanelView::Frameless);
    stage.target.resize(panelSize); // which the G-code keypad covers
    CHECKED(useOnce(stage));

    QDialog dialog(ofTheView ? &stage.view : nullptr);
    dialog.setModal(modal);
    CHECKED(coverPanel(&dialog));
    CHECKED(useOnce(stage));
    QVERIFY(dialog.isVisible());
    CHECKED(useOnce(stage)); // above it still
}

void tst_Raise::coverPanel(QDialog *dialog)
{
    const PaintWatch watch(dialog);
    dialog->setGeometry(QRect(QPoint(0, 0), panelSize));
    dialog->show();
    QVERIFY(watch.wait());
}

QTEST_MAIN(tst_Raise)

#include "tst_Raise.moc"
