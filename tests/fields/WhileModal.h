// SPDX-License-Identifier: MIT
#ifndef WHILEMODAL_H
#define WHILEMODAL_H

#include "MachineProgram.h"
#include "Operator.h"

#include <QApplication>
#include <QObject>
#include <QTabBar>
#include <QTabWidget>
#include <QWindow>
#include <QtTest>

#include <functional>

// Does \a action while a modal dialog of the program is open, and closes the dialog.
class WhileModal : public QObject
{
public:
    explicit WhileModal(const std::function<void(QWidget *dialog)> &action)
        : m_action(action)
        , m_timer(startTimer(0))
    {
    }

    bool isDone() const { return m_timer == 0; }

protected:
    void timerEvent(QTimerEvent *) override
    {
        SettingsDialog *dialog = qobject_cast<SettingsDialog *>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isActiveWindow() || !dialog->windowHandle()->isExposed())
            return;
        killTimer(m_timer);
        m_timer = 0;
        m_action(dialog);
        dialog->reject();
    }

private:
    const std::function<void(QWidget *)> m_action;
    int m_timer;
};

// Brings \a field to the front by a tap on the tab of its page.
inline void tapTabOf(const QWidget *field)
{
    QTabWidget *tabs = field->window()->findChild<QTabWidget *>();
    const int page = tabs->indexOf(field->parentWidget());
    Operator::tap(tabs->tabBar(), tabs->tabBar()->tabRect(page).center());
    QCOMPARE(tabs->currentIndex(), page);
}

#endif
