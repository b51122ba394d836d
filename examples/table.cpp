// SPDX-License-Identifier: MIT
//
// A double tap on a cell of a table opens the keypad that its data ask for; what is confirmed goes
// through the model.

#include <HMIDevice/FieldKeypads.h>

#include <QApplication>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>
#include <QWidget>

namespace {

QStandardItem *item(const QVariant &value)
{
    QStandardItem *item = new QStandardItem;
    item->setData(value, Qt::EditRole);
    return item;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);

    QStandardItemModel tools;
    tools.setHorizontalHeaderLabels(QStringList() << QLatin1String("Tool") << QLatin1String("Name")
                                                  << QLatin1String("Length"));
    tools.appendRow(QList<QStandardItem *>()
                    << item(1) << item(QLatin1String("mill")) << item(120.25));
    tools.appendRow(QList<QStandardItem *>()
                    << item(2) << item(QLatin1String("drill")) << item(98.7));

    QWidget window;
    window.resize(640, 480);
    QTableView *table = new QTableView;
    table->setObjectName(QLatin1String("tools"));
    table->setModel(&tools);
    (new QVBoxLayout(&window))->addWidget(table);

    FieldKeypads keypads(&window);
    window.show();
    return application.exec();
}
