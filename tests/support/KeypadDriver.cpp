// SPDX-License-Identifier: MIT
#include "KeypadDriver.h"

#include <HMIDevice/KeyBoardLineEdit.h>

#include <QApplication>
#include <QGridLayout>
#include <QPointer>
#include <QTimerEvent>

namespace {

class DuringExec : public QObject
{
public:
    DuringExec(QDialog *keypad, const std::function<void()> &actions)
        : m_keypad(keypad)
        , m_actions(actions)
        , m_timer(startTimer(0))
        , m_leftOpen(false)
    {
    }

    bool leftOpen() const { return m_leftOpen; }

protected:
    void timerEvent(QTimerEvent *) override
    {
        if (!m_keypad || !m_keypad->isVisible())
            return;
        killTimer(m_timer);
        m_actions();
        m_leftOpen = m_keypad && m_keypad->isVisible();
        if (m_leftOpen)
            m_keypad->reject();
    }

private:
    QPointer<QDialog> m_keypad;
    std::function<void()> m_actions;
    int m_timer;
    bool m_leftOpen;
};

} // namespace

QRect rectCovering(const QGraphicsView *view)
{
    const QWidget *viewport = view->viewport();
    const QRect visible(viewport->mapToGlobal(QPoint(0, 0)), viewport->size());
    return visible.translated(viewport->pos());
}

PanelView::PanelView(DeviceType type, const QSize &size, Frame frame)
{
    HMIDeviceInfo::setDeviceInfo(type, size);
    HMIDeviceInfo::setGraphicsView(this);
    if (frame == Frameless)
        setFrameShape(QFrame::NoFrame);
    setGeometry(QRect(QPoint(0, 0), size));
    show();
    QApplication::processEvents();
}

PanelView::~PanelView()
{
    HMIDeviceInfo::setGraphicsView(nullptr);
    HMIDeviceInfo::setDeviceInfo(1, QSize());
}

QToolButton *key(const QWidget *keypad, const QString &label)
{
    const QList<QToolButton *> keys = keypad->findChildren<QToolButton *>();
    for (int i = 0; i < keys.size(); ++i) {
        if (keys.at(i)->text() == label)
            return keys.at(i);
    }
    return nullptr;
}

QStringList keyLabels(const QWidget *keypad)
{
    QStringList labels;
    const QList<QToolButton *> keys = keypad->findChildren<QToolButton *>();
    for (int i = 0; i < keys.size(); ++i)
        labels << keys.at(i)->text();
    return labels;
}

QStringList enabledKeyLabels(const QWidget *keypad)
{
    QStringList labels;
    const QList<QToolButton *> keys = keypad->findChildren<QToolButton *>();
    for (int i = 0; i < keys.size(); ++i) {
        if (keys.at(i)->isEnabled())
            labels << keys.at(i)->text();
    }
    return labels;
}

QRect gridCells(const QWidget *keypad, const QString &label)
{
    QGridLayout *grid = keypad->findChild<QGridLayout *>();
    const int index = grid->indexOf(key(keypad, label));
    if (index < 0)
        return QRect();
    int row, column, rows, columns;
    grid->getItemPosition(index, &row, &column, &rows, &columns);
    return QRect(column, row, columns, rows);
}

KeyBoardLineEdit *editLine(const QWidget *keypad)
{
    return keypad->findChild<KeyBoardLineEdit *>();
}

QLabel *tipLabel(const QWidget *keypad)
{
    return keypad->findChild<QLabel *>();
}

void tap(QWidget *keypad, const QString &label)
{
    QToolButton *button = key(keypad, label);
    QVERIFY2(button, qPrintable(QString::fromLatin1("no key \"%1\"").arg(label)));
    QTest::mouseClick(button, Qt::LeftButton);
}

void tapAll(QWidget *keypad, const QString &labels)
{
    const QStringList list = labels.split(QLatin1Char(' '));
    for (int i = 0; i < list.size(); ++i)
        tap(keypad, list.at(i));
}

void pressHardKey(QWidget *keypad, int key)
{
    QWidget *receiver = keypad->focusWidget();
    QTest::keyClick(receiver ? receiver : keypad, Qt::Key(key));
}

int execWhile(QDialog *keypad, const std::function<void()> &actions, bool *leftOpen)
{
    DuringExec during(keypad, actions);
    const int result = keypad->exec();
    if (leftOpen)
        *leftOpen = during.leftOpen();
    return result;
}
