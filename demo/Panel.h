// SPDX-License-Identifier: MIT
#ifndef PANEL_H
#define PANEL_H

#include "PanelSetup.h"

#include <QGraphicsView>
#include <QObject>
#include <QScopedPointer>
#include <QTranslator>

class FieldEditor;
class MachineScreen;

// The panel as an application makes it: the profile of the model, style, fonts and translation, the
// view with the machine screen on it, and what opens the keypads. One in a process, after the
// QApplication.
class Panel : public QObject
{
    Q_OBJECT

public:
    explicit Panel(const PanelSetup &setup);
    ~Panel() override;

    QGraphicsView *view() { return &m_view; }
    MachineScreen *screen() const { return m_screen; }
    FieldEditor *editor() const { return m_editor; }

    // Full screen where the platform has no windows.
    void show();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    QTranslator m_translator;
    QGraphicsView m_view;
    MachineScreen *m_screen;
    FieldEditor *m_editor;
};

#endif
