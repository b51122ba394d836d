// SPDX-License-Identifier: MIT
#include "support/KeypadDriver.h"

#include <HMIDevice/KeyBoardLineEdit.h>

#include <QApplication>

// The edit line answers mouse and focus as any other: what QLineEdit itself does at each event.

class tst_KeyBoardLineEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void isALineEditOfItsOwnName();
    void aPressSetsTheCursor();
    void aPressWithShiftSelectsUpToThere();
    void aReleaseEndsADragThatNeverBegan();
    void theTabKeySelectsAllOfIt();
    void theFocusOfAnotherWindowKeepsTheSelection();

private:
    QPoint inside(int x) const { return QPoint(x, m_line->height() / 2); }

    QScopedPointer<KeyBoardLineEdit> m_line;
};

void tst_KeyBoardLineEdit::init()
{
    m_line.reset(new KeyBoardLineEdit(nullptr));
    m_line->setText(u("12345"));
    m_line->show();
    QApplication::setActiveWindow(m_line.data());
}

void tst_KeyBoardLineEdit::cleanup()
{
    m_line.reset();
}

void tst_KeyBoardLineEdit::isALineEditOfItsOwnName()
{
    const QMetaObject *meta = m_line->metaObject();
    QCOMPARE(meta->className(), "KeyBoardLineEdit");
    QCOMPARE(meta->superClass()->className(), "QLineEdit");
    QCOMPARE(meta->methodCount(), meta->methodOffset());
    QCOMPARE(meta->propertyCount(), meta->propertyOffset());
}

void tst_KeyBoardLineEdit::aPressSetsTheCursor()
{
    m_line->selectAll();
    QTest::mousePress(m_line.data(), Qt::LeftButton, Qt::NoModifier, inside(1));
    QVERIFY(!m_line->hasSelectedText());
    QCOMPARE(m_line->cursorPosition(), 0);
}

void tst_KeyBoardLineEdit::aPressWithShiftSelectsUpToThere()
{
    m_line->setCursorPosition(0);
    const QPoint end = inside(m_line->width() - 2);
    QTest::mousePress(m_line.data(), Qt::LeftButton, Qt::ShiftModifier, end);
    QTest::mouseRelease(m_line.data(), Qt::LeftButton, Qt::ShiftModifier, end);
    QCOMPARE(m_line->selectedText(), u("12345"));
}

// A press on a selection may begin a drag of it; a release at the same place takes the selection
// away instead.
void tst_KeyBoardLineEdit::aReleaseEndsADragThatNeverBegan()
{
    m_line->setDragEnabled(true);
    m_line->selectAll();
    QTest::mousePress(m_line.data(), Qt::LeftButton, Qt::NoModifier, inside(8));
    QCOMPARE(m_line->selectedText(), u("12345"));
    QTest::mouseRelease(m_line.data(), Qt::LeftButton, Qt::NoModifier, inside(8));
    QVERIFY(!m_line->hasSelectedText());
}

void tst_KeyBoardLineEdit::theTabKeySelectsAllOfIt()
{
    m_line->clearFocus();
    m_line->deselect();
    m_line->setFocus(Qt::TabFocusReason);
    QVERIFY(m_line->hasFocus());
    QCOMPARE(m_line->selectedText(), u("12345"));
}

void tst_KeyBoardLineEdit::theFocusOfAnotherWindowKeepsTheSelection()
{
    m_line->clearFocus();
    m_line->setSelection(1, 2);
    m_line->setFocus(Qt::ActiveWindowFocusReason);
    QVERIFY(m_line->hasFocus());
    QCOMPARE(m_line->selectedText(), u("23"));
}

QTEST_MAIN(tst_KeyBoardLineEdit)

#include "tst_KeyBoardLineEdit.moc"
