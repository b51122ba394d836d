// SPDX-License-Identifier: MIT
#include "Operator.h"

#include "support/KeypadDriver.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeySequence>
#include <QMouseEvent>
#include <QPointer>
#include <QProcess>
#include <QTimerEvent>
#include <QWindow>

namespace Operator {

namespace {

const int longestWait = 20000; // milliseconds, after which what is awaited will not come

// Counts what the windows of the program hear of the mouse.
class MouseCount : public QObject
{
public:
    MouseCount()
        : releases(0)
        , moves(0)
    {
        qApp->installEventFilter(this);
    }

    int releases;
    int moves;

protected:
    bool eventFilter(QObject *receiver, QEvent *event) override
    {
        if (receiver->isWindowType() && event->type() == QEvent::MouseButtonRelease)
            ++releases;
        if (receiver->isWindowType() && event->type() == QEvent::MouseMove)
            ++moves;
        return false;
    }
};

// Does one entry each time that a keypad opens, in the keypad's own event loop.
class AtEachOpening : public QObject
{
public:
    explicit AtEachOpening(const QList<Action> &entries)
        : m_entries(entries)
        , m_openings(0)
        , m_isBusy(false)
    {
        startTimer(0);
    }

    int openings() const { return m_openings; }
    QString complaint() const { return m_complaint; }

protected:
    void timerEvent(QTimerEvent *) override
    {
        const QDialog *open = keypad();
        if (!open || !open->isActiveWindow() || !open->windowHandle()->isExposed() || m_isBusy)
            return;
        m_isBusy = true;
        if (++m_openings <= m_entries.size())
            m_entries.at(m_openings - 1)();
        else
            m_complaint = u("a keypad opened once more");
        m_isBusy = false;
        close();
    }

private:
    void close()
    {
        if (keypad() && m_complaint.isEmpty())
            m_complaint = u("a keypad was left open");
        while (QDialog *open = keypad())
            open->reject();
    }

    const QList<Action> m_entries;
    int m_openings;
    bool m_isBusy;
    QString m_complaint;
};

void xdotool(const QStringList &arguments)
{
    QCOMPARE(QProcess::execute(u("xdotool"), arguments), 0);
}

QStringList moveTo(const QPoint &place)
{
    return QStringList() << u("mousemove") << QString::number(place.x())
                         << QString::number(place.y());
}

void clickDisplay(const QPoint &place, int times)
{
    MouseCount count;
    QStringList arguments = moveTo(place);
    arguments << u("click") << u("--repeat") << QString::number(times) << u("--delay") << u("40")
              << u("1");
    CHECKED(xdotool(arguments));
    QVERIFY(waitUntil([&] { return count.releases >= times; }));
}

// The display hands on what it got in order: when the mouse has moved, the key has come.
void pressOnDisplay(const char *name)
{
    MouseCount count;
    CHECKED(xdotool(QStringList() << u("key") << u(name) << u("mousemove_relative") << u("1")
                                  << u("1")));
    QVERIFY(waitUntil([&] { return count.moves > 0; }));
}

void clickWindow(QWidget *widget, const QPoint &place)
{
    QWindow *window = widget->window()->windowHandle();
    QTest::mouseClick(window, Qt::LeftButton, Qt::NoModifier,
                      widget->mapTo(widget->window(), place));
}

Qt::Key keyNamed(const char *name)
{
    return QtDifferences::keyOf(QKeySequence(u(name)));
}

QPoint placeIn(const QWidget *widget, const QPoint &place)
{
    return place.isNull() ? widget->rect().center() : place;
}

} // namespace

bool hasDisplay()
{
    return QGuiApplication::platformName() == u("xcb");
}

bool waitUntil(const std::function<bool()> &condition)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.hasExpired(longestWait))
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }
    return true;
}

void show(QWidget *window)
{
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window));
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window));
}

void tap(QWidget *widget, const QPoint &place)
{
    const QPoint inside = placeIn(widget, place);
    if (hasDisplay())
        clickDisplay(widget->mapToGlobal(inside), 1);
    else
        clickWindow(widget, inside);
    QCoreApplication::processEvents();
}

void doubleTap(QWidget *widget, const QPoint &place)
{
    const QPoint inside = placeIn(widget, place);
    if (hasDisplay())
        clickDisplay(widget->mapToGlobal(inside), 2);
    else
        QTest::mouseDClick(widget->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                           widget->mapTo(widget->window(), inside));
    QCoreApplication::processEvents();
}

void tapKeys(const char *labels)
{
    const QStringList list = labelList(labels);
    for (const QString &label : list) {
        QDialog *open = keypad();
        QVERIFY2(open, qPrintable(QString::fromLatin1("no keypad for \"%1\"").arg(label)));
        QToolButton *button = key(open, label);
        QVERIFY2(button, qPrintable(QString::fromLatin1("no key \"%1\"").arg(label)));
        CHECKED(tap(button));
    }
}

void pressHardKey(const char *name)
{
    if (hasDisplay())
        CHECKED(pressOnDisplay(name));
    else
        QTest::keyClick(QGuiApplication::focusWindow(), keyNamed(name));
    QCoreApplication::processEvents();
}

QDialog *keypad()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        QDialog *dialog = qobject_cast<QDialog *>(window);
        if (dialog && dialog->isVisible() && editLine(dialog))
            return dialog;
    }
    return nullptr;
}

void withKeypad(const Action &opening, const QList<Action> &entries)
{
    AtEachOpening at(entries);
    CHECKED(opening());
    QVERIFY2(waitUntil([&] { return at.openings() >= entries.size() && !keypad(); }),
             qPrintable(u("keypads that opened: %1; %2").arg(at.openings()).arg(at.complaint())));
    QCoreApplication::processEvents();
    QVERIFY2(at.complaint().isEmpty(), qPrintable(at.complaint()));
}

void withoutKeypad(const Action &opening)
{
    withKeypad(opening, QList<Action>());
}

} // namespace Operator
