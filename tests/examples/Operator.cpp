// SPDX-License-Identifier: MIT
//
// Linked into an example, works it as an operator does. HMI_EXAMPLE_STEPS says how, separated by
// ";":
//   tap NAME                      a click on the widget of that object name
//   tap-cell NAME ROW,COLUMN      a double click into a cell of an item view
//   expect-cell NAME ROW,COLUMN VALUE    what the cell shows then
//   hard F1                       a hard key, one of F1 to F35
//   expect NAME PROPERTY VALUE    what the widget has then
//   expect-at NAME X,Y WxH        where its keypad lies in the registered view
// The program ends after the last step, with 1 if a step cannot be done.

#include <HMIDevice/HMIDeviceInfo.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QGraphicsView>
#include <QStringList>
#include <QTimerEvent>
#include <QVariant>
#include <QWidget>
#include <QWindow>
#include <QtTest>

#include <cstdio>
#include <cstdlib>

namespace {

const int mostTurns = 5000;          // of the event loop, until what a step needs has come up
const int turnsToBecomeActive = 100; // after which a dialog will not

QWidget *shown(const QString &name)
{
    const QWidget *modal = QApplication::activeModalWidget();
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        if (widget->objectName() == name && widget->isVisible()
            && (!modal || widget->window() == modal)) {
            return widget;
        }
    }
    return nullptr;
}

bool isAwaiting()
{
    const QWidget *modal = QApplication::activeModalWidget();
    return modal && !modal->isActiveWindow();
}

void fail(const QString &complaint)
{
    std::printf("%s\n", qPrintable(complaint));
    std::fflush(stdout);
    std::_Exit(1);
}

void expect(const QString &what, const QString &value, const QString &expected)
{
    if (value != expected)
        fail(QString::fromLatin1("%1 is \"%2\", not \"%3\"").arg(what, value, expected));
}

QString place(const QWidget *widget)
{
    const QPoint corner =
        HMIDeviceInfo::graphicsView()->mapFromGlobal(widget->mapToGlobal(QPoint(0, 0)));
    return QString::fromLatin1("%1,%2 %3x%4")
        .arg(corner.x())
        .arg(corner.y())
        .arg(widget->width())
        .arg(widget->height());
}

// A finger meets the innermost part there, such as the line edit of a spin box.
void tap(QWidget *widget)
{
    QWidget *inner = widget->childAt(widget->rect().center());
    QTest::mouseClick(inner ? inner : widget, Qt::LeftButton);
}

QModelIndex cell(QWidget *widget, const QString &place)
{
    const QAbstractItemView *view = qobject_cast<QAbstractItemView *>(widget);
    return view->model()->index(place.section(QLatin1Char(','), 0, 0).toInt(),
                                place.section(QLatin1Char(','), 1, 1).toInt());
}

void tapCell(QWidget *widget, const QString &place)
{
    const QAbstractItemView *view = qobject_cast<QAbstractItemView *>(widget);
    const QPoint spot = view->visualRect(cell(widget, place)).center();
    QTest::mouseDClick(view->window()->windowHandle(), Qt::LeftButton, Qt::KeyboardModifiers(),
                       view->viewport()->mapTo(view->window(), spot));
}

class Operator : public QObject
{
public:
    explicit Operator(QObject *parent)
        : QObject(parent)
        , m_steps(QString::fromLocal8Bit(qgetenv("HMI_EXAMPLE_STEPS")).split(QLatin1Char(';')))
        , m_turns(0)
    {
        startTimer(1);
    }

protected:
    // A step may run an event loop of its own, in which only a new timer goes on.
    void timerEvent(QTimerEvent *event) override
    {
        const QStringList step = m_steps.first().trimmed().split(QLatin1Char(' '));
        QWidget *widget = step.first() == QLatin1String("hard") ? QApplication::activeModalWidget()
                                                                : shown(step.value(1));
        if (!widget || (isAwaiting() && m_turns < turnsToBecomeActive)) {
            if (++m_turns == mostTurns)
                fail(QLatin1String("no such widget: ") + m_steps.first());
            return;
        }
        killTimer(event->timerId());
        m_steps.removeFirst();
        m_turns = 0;
        if (!m_steps.isEmpty())
            startTimer(1);
        perform(step, widget);
        if (m_steps.isEmpty())
            QCoreApplication::quit();
    }

private:
    static void perform(const QStringList &step, QWidget *widget)
    {
        const QString what = QStringList(step.mid(1, 2)).join(QLatin1String(" "));
        if (step.first() == QLatin1String("tap"))
            tap(widget);
        else if (step.first() == QLatin1String("tap-cell"))
            tapCell(widget, step.at(2));
        else if (step.first() == QLatin1String("expect-cell"))
            expect(what, cell(widget, step.at(2)).data().toString(),
                   QStringList(step.mid(3)).join(QLatin1String(" ")));
        else if (step.first() == QLatin1String("hard"))
            QTest::keyClick(widget, Qt::Key(Qt::Key_F1 + step.at(1).mid(1).toInt() - 1));
        else if (step.first() == QLatin1String("expect"))
            expect(what, widget->property(step.at(2).toLatin1()).toString(),
                   QStringList(step.mid(3)).join(QLatin1String(" ")));
        else if (step.first() == QLatin1String("expect-at"))
            expect(what, place(widget->window()),
                   QStringList(step.mid(2)).join(QLatin1String(" ")));
        else
            fail(QLatin1String("no such step: ") + step.first());
    }

    QStringList m_steps;
    int m_turns;
};

void start()
{
    new Operator(QCoreApplication::instance());
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(start)
