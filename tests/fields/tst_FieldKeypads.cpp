// SPDX-License-Identifier: MIT
#include "Operator.h"
#include "support/Text.h"

#include <HMIDevice/FieldKeypads.h>

#include "support/KeypadDriver.h"
#include <HMIDevice/KeyBoardLineEdit.h>
#include <QDateEdit>
#include <QLabel>
#include <QSignalSpy>
#include <QSpinBox>
#include <QVBoxLayout>
#include <QtTest>

class tst_FieldKeypads : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void spin();
    void date();
};

void tst_FieldKeypads::spin()
{
    QWidget window;
    window.setGeometry(100, 80, 640, 480);
    QVBoxLayout layout(&window);
    QSpinBox box;
    box.setRange(0, 6000);
    box.setSuffix(u(" rpm"));
    QSpinBox other;
    layout.addWidget(&box);
    layout.addWidget(&other);
    FieldKeypads keypads(&window);
    Operator::show(&window);
    QSignalSpy finished(&box, SIGNAL(editingFinished()));
    QSignalSpy changed(&box, SIGNAL(valueChanged(int)));
    Operator::withKeypad([&] { Operator::tap(box.findChild<QLineEdit *>()); },
                         QList<Operator::Action>() <<
                             [&] {
                                 qDebug() << Operator::keypad()->geometry() << window.geometry()
                                          << window.frameGeometry();
                                 qDebug()
                                     << tipLabel(Operator::keypad())->text()
                                     << editLine(Operator::keypad())->text()
                                     << QApplication::activeWindow() << QApplication::focusWidget();
                                 Operator::tapKeys("7 0 0 0 Enter");
                             } <<
                             [&] {
                                 qDebug() << editLine(Operator::keypad())->text()
                                          << finished.count() << changed.count();
                                 Operator::pressHardKey("1");
                                 Operator::pressHardKey("2");
                                 qDebug() << editLine(Operator::keypad())->text();
                                 Operator::pressHardKey("Return");
                             });
    qDebug() << box.value() << box.text() << finished.count() << changed.count()
             << QApplication::activeWindow() << QApplication::focusWidget();
    qDebug() << Operator::waitUntil([&] { return QApplication::focusWidget(); });
    qDebug() << box.value() << box.text() << finished.count() << changed.count()
             << QApplication::activeWindow() << QApplication::focusWidget();
}

void tst_FieldKeypads::date()
{
    QWidget window;
    window.setGeometry(100, 80, 640, 480);
    QVBoxLayout layout(&window);
    QDateEdit box(QDate(2024, 2, 29));
    layout.addWidget(&box);
    FieldKeypads keypads(&window);
    Operator::show(&window);
    QSignalSpy finished(&box, SIGNAL(editingFinished()));
    QSignalSpy changed(&box, SIGNAL(dateChanged(QDate)));
    Operator::withKeypad([&] { Operator::tap(box.findChild<QLineEdit *>()); },
                         QList<Operator::Action>() <<
                             [&] {
                                 qDebug() << QApplication::focusWidget()
                                          << Operator::keypad()->focusWidget();
                                 Operator::tapKeys("+ Ok");
                             });
    qDebug() << box.text() << finished.count() << changed.count();
}

QTEST_MAIN(tst_FieldKeypads)
#include "tst_FieldKeypads.moc"
