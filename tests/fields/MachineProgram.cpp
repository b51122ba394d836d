// SPDX-License-Identifier: MIT
#include "MachineProgram.h"

#include "support/Text.h"

#include <QApplication>
#include <QComboBox>
#include <QDateEdit>
#include <QDockWidget>
#include <QDoubleSpinBox>
#include <QDoubleValidator>
#include <QFormLayout>
#include <QIntValidator>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QTabWidget>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>

namespace {

const char styleSheet[] = "QWidget { font-size: 13px; }"
                          "QToolButton { border: 2px solid gray; padding: 3px; }"
                          "QAbstractSpinBox, QLineEdit { background: #ffffe0; padding: 2px; }";

template <class Field>
Field *addField(QFormLayout *form, const char *name)
{
    Field *field = new Field;
    field->setObjectName(u(name));
    form->addRow(u(name), field);
    return field;
}

QDoubleSpinBox *addFeed(QFormLayout *form, const char *name)
{
    QDoubleSpinBox *box = addField<QDoubleSpinBox>(form, name);
    box->setRange(0, 9999.999);
    box->setDecimals(3);
    box->setSuffix(u(" mm/min"));
    box->setValue(250);
    return box;
}

QSpinBox *addSpeed(QFormLayout *form, const char *name)
{
    QSpinBox *box = addField<QSpinBox>(form, name);
    box->setRange(100, 6000);
    box->setValue(1200);
    return box;
}

QComboBox *addMaterial(QFormLayout *form, const char *name)
{
    QComboBox *box = addField<QComboBox>(form, name);
    box->addItems(QStringList() << u("ms") << u("va") << u("alu"));
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    return box;
}

QLineEdit *addText(QFormLayout *form, const char *name, const char *text)
{
    QLineEdit *edit = addField<QLineEdit>(form, name);
    edit->setText(u(text));
    return edit;
}

void addLineEdits(QFormLayout *form)
{
    QLineEdit *offset = addText(form, "offset", "0,25");
    offset->setValidator(new QDoubleValidator(-99.9, 99.9, 2, offset));
    QLineEdit *tool = addText(form, "tool", "7");
    tool->setValidator(new QIntValidator(1, 99, tool));
    addText(form, "part", "x")->setMaxLength(8);
    addText(form, "pin", "1234")->setEchoMode(QLineEdit::Password);
}

void addClosedFields(QFormLayout *form)
{
    addText(form, "serial", "4711")->setReadOnly(true);
    addFeed(form, "fastest")->setReadOnly(true);
    addSpeed(form, "idle")->setEnabled(false);
    addMaterial(form, "fixed")->setEnabled(false);
}

} // namespace

ToolDelegate::ToolDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{
}

QWidget *ToolDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                    const QModelIndex &index) const
{
    if (index.column() != LengthColumn)
        return QStyledItemDelegate::createEditor(parent, option, index);
    QDoubleSpinBox *box = new QDoubleSpinBox(parent);
    box->setRange(10, 300);
    box->setDecimals(3);
    return box;
}

JogFilter::JogFilter(QWidget *window)
    : seenKeys(0)
    , jogs(0)
    , m_window(window)
{
    qApp->installEventFilter(this);
}

bool JogFilter::eventFilter(QObject *receiver, QEvent *event)
{
    const bool isPress = event->type() == QEvent::KeyPress;
    if (!isPress && event->type() != QEvent::KeyRelease)
        return false;
    ++seenKeys;
    const int key = static_cast<QKeyEvent *>(event)->key();
    const bool isJog = key == Qt::Key_Left || key == Qt::Key_Right;
    if (!isPress || !isJog || !receiver->isWidgetType() || !m_window->isActiveWindow())
        return false;
    ++jogs;
    return true;
}

SettingsDialog::SettingsDialog(QWidget *parent)
    : QDialog(parent)
{
    QTabWidget *tabs = new QTabWidget(this);
    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->addWidget(tabs);
    QWidget *axes = new QWidget;
    QFormLayout *axesForm = new QFormLayout(axes);
    addFeed(axesForm, "rapid");
    addSpeed(axesForm, "axisSpeed");
    tabs->addTab(axes, u("Axes"));
    QWidget *names = new QWidget;
    QFormLayout *namesForm = new QFormLayout(names);
    addText(namesForm, "machine", "m");
    addMaterial(namesForm, "usual");
    tabs->addTab(names, u("Names"));
}

MachineWindow::MachineWindow()
    : m_tools(2, 4)
    , m_table(nullptr)
    , m_settingsButton(nullptr)
{
    createToolBar();
    createTable();
    createDock();
    setGeometry(30, 40, 740, 560);
}

void MachineWindow::openSettings()
{
    SettingsDialog dialog(this);
    dialog.exec();
}

void MachineWindow::createToolBar()
{
    QToolBar *bar = addToolBar(u("Machine"));
    QAction *settings = bar->addAction(u("Settings"), this, SLOT(openSettings()));
    m_settingsButton = qobject_cast<QToolButton *>(bar->widgetForAction(settings));
}

void MachineWindow::createTable()
{
    for (int row = 0; row < m_tools.rowCount(); ++row) {
        m_tools.setData(m_tools.index(row, NameColumn), u("mill"));
        m_tools.setData(m_tools.index(row, LengthColumn), 120.25);
        m_tools.setData(m_tools.index(row, TeethColumn), 4);
        m_tools.setData(m_tools.index(row, StateColumn), u("worn"));
        m_tools.item(row, StateColumn)->setEditable(false);
    }
    m_table = new QTableView;
    m_table->setModel(&m_tools);
    m_table->setItemDelegate(new ToolDelegate(m_table));
    setCentralWidget(m_table);
}

void MachineWindow::createDock()
{
    QWidget *fields = new QWidget;
    QFormLayout *form = new QFormLayout(fields);
    addFeed(form, "feed");
    addSpeed(form, "speed");
    addLineEdits(form);
    addMaterial(form, "material");
    addField<QDateEdit>(form, "due")->setDate(QDate(2024, 5, 6));
    addClosedFields(form);
    QDockWidget *dock = new QDockWidget(u("Job"));
    dock->setWidget(fields);
    addDockWidget(Qt::RightDockWidgetArea, dock);
}

void dressApplication()
{
    QLocale::setDefault(QLocale(QLocale::German));
    qApp->setStyleSheet(u(styleSheet));
}
