// SPDX-License-Identifier: MIT
#include "ElidedLabel.h"
#include "MachineScreen.h"
#include "Panel.h"
#include "PanelState.h"
#include "TouchField.h"
#include "support/Text.h"

#include <QApplication>
#include <QFontInfo>
#include <QtTest>

// What the machine screen does by itself.

namespace {

const QSize lineSize(160, 30);

QImage drawn(QLabel *label, const QString &text)
{
    label->resize(lineSize);
    label->setText(text);
    return label->grab().toImage();
}

} // namespace

class tst_MachineScreen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aMessageThatFitsIsWhole();
    void aMessageThatDoesNotFitEndsInAnEllipsis();
    void theMessageOnTheScreenIsElided();
    void keypadsHaveTheScreensLetters();
    void arrowKeysLeadFromFieldToField();
    void aStateIsRestored();
    void theScreenFillsAViewOfAnotherSize();
};

void tst_MachineScreen::aMessageThatFitsIsWhole()
{
    ElidedLabel elided(nullptr);
    QLabel plain;
    QCOMPARE(drawn(&elided, u("X = 1 & 2")), drawn(&plain, u("X = 1 & 2")));
}

void tst_MachineScreen::aMessageThatDoesNotFitEndsInAnEllipsis()
{
    const QString text = u("不接受 Not accepted. -9999.999 … 9999.999 mm/min");
    ElidedLabel elided(nullptr);
    QLabel plain;
    plain.setTextFormat(Qt::PlainText);
    elided.setMaximumSize(lineSize);
    const QString shown = elided.fontMetrics().elidedText(text, Qt::ElideRight, lineSize.width());
    QVERIFY(shown.endsWith(u("…")) && shown.length() < text.length());
    QCOMPARE(drawn(&elided, text), drawn(&plain, shown));
    QCOMPARE(elided.text(), text);
}

void tst_MachineScreen::theMessageOnTheScreenIsElided()
{
    PanelSetup setup;
    setup.type = 9;
    Panel panel(setup);
    panel.show();
    panel.screen()->showMessage(QString(200, QLatin1Char('W')));
    QCOMPARE(panel.screen()->message().length(), 200);
    QVERIFY(panel.screen()->findChild<ElidedLabel *>(u("message")));
    QCOMPARE(panel.screen()->width(), 480);
}

void tst_MachineScreen::keypadsHaveTheScreensLetters()
{
    const Panel panel((PanelSetup()));
    QCOMPARE(QFontInfo(QFont(u("simsun"))).family(), QFontInfo(QApplication::font()).family());
    QVERIFY(QFontInfo(QApplication::font()).family().length() > 0);
}

void tst_MachineScreen::arrowKeysLeadFromFieldToField()
{
    Panel panel((PanelSetup()));
    panel.show();
    TouchField *x = panel.screen()->field(u("X"));
    TouchField *y = panel.screen()->field(u("Y"));
    x->setFocus();
    QTest::keyClick(x, Qt::Key_Down);
    QCOMPARE(panel.view()->focusWidget(), y);
    QTest::keyClick(y, Qt::Key_Up);
    QCOMPARE(panel.view()->focusWidget(), x);
    QTest::keyClick(x, Qt::Key_F5);
    QCOMPARE(panel.screen()->page(), u("SYSTEM"));
}

void tst_MachineScreen::aStateIsRestored()
{
    PanelState state;
    {
        const Panel panel((PanelSetup()));
        panel.screen()->field(u("Y"))->setText(u("1.5"));
        panel.screen()->field(u("parts"))->setText(u("7"));
        panel.screen()->openPage(u("PROG"));
        panel.screen()->showMessage(u("hello"));
        state = readState(*panel.screen());
    }
    PanelSetup setup;
    setup.type = 13;
    const Panel panel(setup);
    QVERIFY(!(readState(*panel.screen()) == state));
    restoreState(panel.screen(), state);
    QVERIFY(readState(*panel.screen()) == state);
    QCOMPARE(panel.screen()->field(u("parts"))->text(), u("7"));
    QCOMPARE(panel.screen()->page(), u("PROG"));
}

// As where the platform has no windows: the view is as large as the display.
void tst_MachineScreen::theScreenFillsAViewOfAnotherSize()
{
    PanelSetup setup;
    setup.frame = true;
    Panel panel(setup);
    panel.view()->resize(700, 500);
    panel.view()->show();
    QCOMPARE(panel.screen()->size(), panel.view()->viewport()->size());
    QCOMPARE(panel.view()->viewport()->geometry(), QRect(4, 4, 692, 492));
}

QTEST_MAIN(tst_MachineScreen)

#include "tst_MachineScreen.moc"
