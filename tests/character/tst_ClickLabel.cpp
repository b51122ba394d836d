// SPDX-License-Identifier: MIT
#include "support/KeypadDriver.h"

#include <HMIDevice/ClickLabel.h>

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>

namespace {

// Counts what reaches it of mouse events.
class Background : public QWidget
{
public:
    Background()
        : mouseEvents(0)
    {
    }

    int mouseEvents;

protected:
    void mousePressEvent(QMouseEvent *) override { ++mouseEvents; }
    void mouseReleaseEvent(QMouseEvent *) override { ++mouseEvents; }
};

// Presses ("p") and releases ("r") a mouse button.
void send(QWidget *widget, const QString &events)
{
    for (const QChar event : events) {
        if (event == QLatin1Char('p'))
            QTest::mousePress(widget, Qt::LeftButton);
        else
            QTest::mouseRelease(widget, Qt::LeftButton);
    }
}

} // namespace

class tst_ClickLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewLabelIsACentredText();
    void pressesAndReleasesMakeClicks_data();
    void pressesAndReleasesMakeClicks();
    void thePlaceOfTheReleaseDoesNotMatter_data();
    void thePlaceOfTheReleaseDoesNotMatter();
    void anyMouseButtonClicks_data();
    void anyMouseButtonClicks();
    void whatLiesBehindSeesNoMouseEvent();
    void eachLabelHasItsOwnPress();
    void aClickMayChangeTheText();
};

void tst_ClickLabel::aNewLabelIsACentredText()
{
    QWidget parent;
    ClickLabel label(u("你好"), &parent);
    QCOMPARE(label.text(), u("你好"));
    QCOMPARE(int(label.alignment()), int(Qt::AlignCenter));
    QCOMPARE(int(label.windowFlags()), int(QLabel(&parent).windowFlags()));
    QCOMPARE(label.parentWidget(), &parent);
    QVERIFY(qobject_cast<QLabel *>(&label));
    QCOMPARE(label.metaObject()->className(), "ClickLabel");
    QVERIFY(label.metaObject()->indexOfSignal("clicked()") >= 0);
}

void tst_ClickLabel::pressesAndReleasesMakeClicks_data()
{
    QTest::addColumn<QString>("events");
    QTest::addColumn<int>("clicks");

    static const struct
    {
        const char *name, *events;
        int clicks;
    } rows[] = { { "nothing", "", 0 },
                 { "press", "p", 0 },
                 { "release of a new label", "r", 0 },
                 { "press and release", "pr", 1 },
                 { "second release", "prr", 1 },
                 { "second press before the release", "ppr", 1 },
                 { "two presses, two releases", "pprr", 1 },
                 { "release first", "rpr", 1 },
                 { "three clicks", "prprpr", 3 },
                 { "click and press", "prp", 1 } };
    for (const auto &row : rows)
        QTest::newRow(row.name) << u(row.events) << row.clicks;
}

void tst_ClickLabel::pressesAndReleasesMakeClicks()
{
    QFETCH(QString, events);
    QFETCH(int, clicks);
    ClickLabel label(u("x"), nullptr);
    QSignalSpy clicked(&label, SIGNAL(clicked()));
    send(&label, events);
    QCOMPARE(clicked.count(), clicks);
}

void tst_ClickLabel::thePlaceOfTheReleaseDoesNotMatter_data()
{
    QTest::addColumn<QPoint>("release");

    QTest::newRow("inside") << QPoint(20, 10);
    QTest::newRow("left of it") << QPoint(-300, 10);
    QTest::newRow("right of it") << QPoint(500, 10);
    QTest::newRow("above it") << QPoint(20, -100);
    QTest::newRow("below it") << QPoint(20, 400);
}

void tst_ClickLabel::thePlaceOfTheReleaseDoesNotMatter()
{
    QFETCH(QPoint, release);
    ClickLabel label(u("x"), nullptr);
    label.resize(40, 20);
    QSignalSpy clicked(&label, SIGNAL(clicked()));
    QTest::mousePress(&label, Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
    QMouseEvent event(QEvent::MouseButtonRelease, release, label.mapToGlobal(release),
                      Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&label, &event);
    QCOMPARE(clicked.count(), 1);
}

void tst_ClickLabel::anyMouseButtonClicks_data()
{
    QTest::addColumn<int>("button");

    QTest::newRow("left") << int(Qt::LeftButton);
    QTest::newRow("right") << int(Qt::RightButton);
    QTest::newRow("middle") << 4; // named differently over the years
}

void tst_ClickLabel::anyMouseButtonClicks()
{
    QFETCH(int, button);
    ClickLabel label(u("x"), nullptr);
    QSignalSpy clicked(&label, SIGNAL(clicked()));
    QTest::mouseClick(&label, Qt::MouseButton(button));
    QCOMPARE(clicked.count(), 1);
}

void tst_ClickLabel::whatLiesBehindSeesNoMouseEvent()
{
    Background background;
    QLabel plain(u("a plain label lets clicks through"), &background);
    QTest::mouseClick(&plain, Qt::LeftButton);
    QCOMPARE(background.mouseEvents, 2);

    ClickLabel label(u("x"), &background);
    QTest::mouseClick(&label, Qt::LeftButton);
    QTest::mouseRelease(&label, Qt::LeftButton);
    QCOMPARE(background.mouseEvents, 2);
}

void tst_ClickLabel::eachLabelHasItsOwnPress()
{
    ClickLabel pressed(u("a"), nullptr);
    ClickLabel other(u("b"), nullptr);
    QSignalSpy pressedClicked(&pressed, SIGNAL(clicked()));
    QSignalSpy otherClicked(&other, SIGNAL(clicked()));
    QTest::mousePress(&pressed, Qt::LeftButton);
    QTest::mouseRelease(&other, Qt::LeftButton);
    QCOMPARE(otherClicked.count(), 0);
    QTest::mouseRelease(&pressed, Qt::LeftButton);
    QCOMPARE(pressedClicked.count(), 1);
}

void tst_ClickLabel::aClickMayChangeTheText()
{
    ClickLabel label(u("candidate"), nullptr);
    connect(&label, SIGNAL(clicked()), &label, SLOT(clear()));
    QTest::mouseClick(&label, Qt::LeftButton);
    QCOMPARE(label.text(), QString());
}

QTEST_MAIN(tst_ClickLabel)
#include "tst_ClickLabel.moc"
