// SPDX-License-Identifier: MIT
#include "FieldWindow.h"
#include "Operator.h"
#include "support/KeypadDriver.h"

#include <QHeaderView>
#include <QStandardItemModel>
#include <QTableView>
#include <QTableWidget>
#include <QTreeView>
#include <QtTest>

namespace {

typedef QList<Operator::Action> Entries;

QModelIndex addCell(QStandardItemModel *model, const QVariant &data)
{
    QStandardItem *item = new QStandardItem;
    item->setData(data, Qt::EditRole);
    model->appendRow(item);
    return item->index();
}

QAbstractItemView *newView(bool isTree)
{
    if (isTree)
        return new QTreeView;
    QTableView *table = new QTableView;
    table->horizontalHeader()->setDefaultSectionSize(200);
    return table;
}

// A double tap on \a index of \a view.
void openCell(QAbstractItemView *view, const QModelIndex &index)
{
    Operator::doubleTap(view->viewport(), view->visualRect(index).center());
}

} // namespace

class tst_CellFields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aCellTakesDataOfItsType_data();
    void aCellTakesDataOfItsType();
    void aCellOfATableWidgetIsTaken();
    void cancelLeavesACellAsItIs();
    void aCellThatCannotBeEditedOpensNone();
};

void tst_CellFields::aCellTakesDataOfItsType_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<bool>("isTree");
    QTest::addColumn<QVariant>("data");
    QTest::addColumn<QByteArray>("keys");
    QTest::addColumn<QVariant>("written");
    const QDate day(2023, 5, 17);
    for (const QString &name : programLocales()) {
        for (int tree = 0; tree < 2; ++tree) {
            const QString place = (tree ? u(", tree, ") : u(", table, ")) + name;
            QTest::newRow(qPrintable(u("int") + place))
                << name << bool(tree) << QVariant(12) << QByteArray("7 5 Enter") << QVariant(75);
            QTest::newRow(qPrintable(u("double") + place))
                << name << bool(tree) << QVariant(0.125) << QByteArray("1 . 5 Enter")
                << QVariant(1.5);
            QTest::newRow(qPrintable(u("string") + place))
                << name << bool(tree) << QVariant(u("ab")) << QByteArray("1 2 Enter")
                << QVariant(u("12"));
            QTest::newRow(qPrintable(u("date") + place))
                << name << bool(tree) << QVariant(day) << QByteArray("+ Ok")
                << QVariant(day.addYears(1));
        }
    }
}

void tst_CellFields::aCellTakesDataOfItsType()
{
    QFETCH(QString, locale);
    QFETCH(bool, isTree);
    QFETCH(QVariant, data);
    QFETCH(QByteArray, keys);
    QFETCH(QVariant, written);
    const DefaultLocale inLocale(locale);
    QStandardItemModel model;
    const QModelIndex index = addCell(&model, data);
    QAbstractItemView *view = newView(isTree);
    view->setModel(&model);
    FieldWindow window(view);
    window.log.listenToKnown(&model, "itemChanged(QStandardItem*)");
    CHECKED(Operator::withKeypad([=] { openCell(view, index); },
                                 Entries() <<
                                     [&] {
                                         QCOMPARE(window.log.names(), QString());
                                         CHECKED(Operator::tapKeys(keys.constData()));
                                     }));
    const QVariant taken = index.data(Qt::EditRole);
    QCOMPARE(taken.userType(), written.userType());
    QCOMPARE(taken, written);
    QCOMPARE(window.log.names(), u("itemChanged"));
}

void tst_CellFields::aCellOfATableWidgetIsTaken()
{
    QTableWidget *table = new QTableWidget(2, 1);
    QTableWidgetItem *item = new QTableWidgetItem;
    item->setData(Qt::EditRole, 12);
    table->setItem(1, 0, item);
    FieldWindow window(table, "cellChanged(int,int)");
    CHECKED(Operator::withKeypad([=] { openCell(table, table->model()->index(1, 0)); },
                                 Entries() << [] { CHECKED(Operator::tapKeys("7 5 Enter")); }));
    QCOMPARE(item->data(Qt::EditRole), QVariant(75));
    QCOMPARE(window.log.names(), u("cellChanged"));
}

void tst_CellFields::cancelLeavesACellAsItIs()
{
    QTableWidget *table = new QTableWidget(1, 1);
    table->setItem(0, 0, new QTableWidgetItem(u("ab")));
    FieldWindow window(table, "cellChanged(int,int)");
    CHECKED(Operator::withKeypad([=] { openCell(table, table->model()->index(0, 0)); },
                                 Entries() <<
                                     [] {
                                         CHECKED(Operator::pressHardKey("x"));
                                         CHECKED(Operator::pressHardKey("Escape"));
                                     }));
    QCOMPARE(table->item(0, 0)->text(), u("ab"));
    QCOMPARE(window.log.names(), QString());
}

void tst_CellFields::aCellThatCannotBeEditedOpensNone()
{
    QTableWidget *table = new QTableWidget(1, 1);
    QTableWidgetItem *item = new QTableWidgetItem(u("ab"));
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    table->setItem(0, 0, item);
    FieldWindow window(table);
    CHECKED(Operator::withoutKeypad([=] { openCell(table, table->model()->index(0, 0)); }));
}

QTEST_MAIN(tst_CellFields)
#include "tst_CellFields.moc"
