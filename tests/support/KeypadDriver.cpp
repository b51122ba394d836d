// SPDX-License-Identifier: MIT
#include "KeypadDriver.h"

#include <HMIDevice/KeyBoardLineEdit.h>

#include <QApplication>
#include <QGridLayout>
#include <QPointer>
#include <QTimerEvent>

namespace {

// clang-format off
const int hardKeys[] = {
    Qt::Key_Up, Qt::Key_Down,
    Qt::Key_F1, Qt::Key_F2, Qt::Key_F3, Qt::Key_F4, Qt::Key_F5,
    Qt::Key_F9, Qt::Key_F10, Qt::Key_F11, Qt::Key_F13,
    Qt::Key_F17, Qt::Key_F18, Qt::Key_F20,
    Qt::Key_F25, Qt::Key_F26, Qt::Key_F27, Qt::Key_F32
};
// clang-format on

const char *const outcomeNames[] = { "accepts", "rejects", "stays open" };

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
    for (QToolButton *key : keys) {
        if (key->text() == label)
            return key;
    }
    return nullptr;
}

QStringList keyLabels(const QWidget *keypad)
{
    QStringList labels;
    const QList<QToolButton *> keys = keypad->findChildren<QToolButton *>();
    for (const QToolButton *key : keys)
        labels << key->text();
    return labels;
}

QStringList enabledKeyLabels(const QWidget *keypad)
{
    QStringList labels;
    const QList<QToolButton *> keys = keypad->findChildren<QToolButton *>();
    for (const QToolButton *key : keys) {
        if (key->isEnabled())
            labels << key->text();
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
    for (const QString &label : list)
        CHECKED(tap(keypad, label));
}

void pressHardKey(QWidget *keypad, int key)
{
    QWidget *receiver = keypad->focusWidget();
    QTest::keyClick(receiver ? receiver : keypad, Qt::Key(key));
}

QList<int> applicationKeys()
{
    QList<int> list;
    for (int key : hardKeys)
        list << key;
    return list;
}

QRect rectWhileShown(QDialog *dialog)
{
    dialog->show();
    const QRect rect = dialog->geometry();
    dialog->hide();
    return rect;
}

void execWhile(QDialog *keypad, const std::function<void()> &actions, Outcome expected)
{
    DuringExec during(keypad, actions);
    const int result = keypad->exec();
    if (QTest::currentTestFailed())
        return; // in the actions, which is why the keypad may be open
    const Outcome found = result == QDialog::Accepted ? Accepts
        : during.leftOpen()                           ? StaysOpen
                                                      : Rejects;
    QVERIFY2(found == expected,
             qPrintable(QString::fromLatin1("the keypad %1 where it %2")
                            .arg(QLatin1String(outcomeNames[found]))
                            .arg(QLatin1String(outcomeNames[expected]))));
}
