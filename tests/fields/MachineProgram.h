// SPDX-License-Identifier: MIT
#ifndef MACHINEPROGRAM_H
#define MACHINEPROGRAM_H

#include <QDialog>
#include <QMainWindow>
#include <QStandardItemModel>
#include <QStyledItemDelegate>

class QTableView;
class QToolButton;

// A program for a machine tool that knows nothing of keypads. Its fields have object names.

enum ToolColumn { NameColumn, LengthColumn, TeethColumn, StateColumn };

// Edits the length of a tool within limits, and everything else as Qt does.
class ToolDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit ToolDelegate(QObject *parent);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
};

// Jogs the axes by keyboard while its own window is the active one.
class JogFilter : public QObject
{
    Q_OBJECT

public:
    explicit JogFilter(QWidget *window);

    int seenKeys; // presses and releases, wherever they went
    int jogs;

protected:
    bool eventFilter(QObject *receiver, QEvent *event) override;

private:
    QWidget *m_window;
};

// Fields on the pages of a tab widget.
class SettingsDialog : public QDialog
{
    Q_OBJECT

public:
    explicit SettingsDialog(QWidget *parent);
};

class MachineWindow : public QMainWindow
{
    Q_OBJECT

public:
    MachineWindow();

    QTableView *table() const { return m_table; }
    QStandardItemModel *tools() { return &m_tools; }

    // The button of the tool bar that opens the dialog.
    QToolButton *settingsButton() const { return m_settingsButton; }

public Q_SLOTS:
    void openSettings();

private:
    void createToolBar();
    void createTable();
    void createDock();

    QStandardItemModel m_tools;
    QTableView *m_table;
    QToolButton *m_settingsButton;
};

// What the whole program has: a German locale and a style sheet.
void dressApplication();

#endif
