// SPDX-License-Identifier: MIT
#include "Operator.h"

#include "support/KeypadDriver.h"

#include <QAbstractNativeEventFilter>
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

// Counts how often the windows of the program hear that the mouse button is released.
class ReleaseCount : public QObject
{
public:
    ReleaseCount()
        : releases(0)
    {
        qApp->installEventFilter(this);
    }

    int releases;

protected:
    bool eventFilter(QObject *receiver, QEvent *event) override
    {
        if (receiver->isWindowType() && event->type() == QEvent::MouseButtonRelease)
            ++releases;
        return false;
    }
};

// Counts how often the display says that a key is released. A filter of Qt's events would not see
// those that a keypad keeps to itself.
class KeyReleaseCount : public QAbstractNativeEventFilter
{
public:
    KeyReleaseCount()
        : releases(0)
    {
        qApp->installNativeEventFilter(this);
    }

    int releases;

    bool nativeEventFilter(const QByteArray &, void *message, HMI_NATIVE_RESULT *) override
    {
        const int keyRelease = 3; // of the X protocol
        if ((*static_cast<const uchar *>(message) & 0x7f) == keyRelease)
            ++releases;
        return false;
    }
};

// Whether the windowing system has done with \a window what it does when it is shown.
bool isSettled(const QWidget *window)
{
    return window->windowHandle()->isExposed() && window->isActiveWindow();
}

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
        if (!open || !isSettled(open) || m_isBusy)
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

// Where a window is only the display knows: Qt may be wrong when a window manager has taken it.
void clickDisplay(const QWidget *widget, const QPoint &place, int times)
{
    const QWidget *window = widget->window();
    const QPoint inWindow = widget->mapTo(window, place);
    ReleaseCount count;
    CHECKED(xdotool(QStringList() << u("mousemove") << u("--window")
                                  << QString::number(window->winId())
                                  << QString::number(inWindow.x()) << QString::number(inWindow.y())
                                  << u("click") << u("--repeat") << QString::number(times)
                                  << u("--delay") << u("40") << u("1")));
    QVERIFY(waitUntil([&] { return count.releases >= times; }));
}

void pressOnDisplay(const char *name)
{
    KeyReleaseCount count;
    CHECKED(xdotool(QStringList() << u("key") << u(name)));
    QVERIFY(waitUntil([&] { return count.releases > 0; }));
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
    QVERIFY(waitUntil([=] { return isSettled(window); }));
}

void tap(QWidget *widget, const QPoint &place)
{
    const QPoint inside = placeIn(widget, place);
    if (hasDisplay())
        clickDisplay(widget, inside, 1);
    else
        clickWindow(widget, inside);
    QCoreApplication::processEvents();
}

void doubleTap(QWidget *widget, const QPoint &place)
{
    const QPoint inside = placeIn(widget, place);
    if (hasDisplay())
        clickDisplay(widget, inside, 2);
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
