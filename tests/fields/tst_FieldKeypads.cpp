// SPDX-License-Identifier: MIT
#include "support/Text.h"

#include <HMIDevice/FieldKeypads.h>

#include <QSpinBox>
#include <QtTest>

class tst_FieldKeypads : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTheKindThatWasSet();
};

void tst_FieldKeypads::keepsTheKindThatWasSet()
{
    QSpinBox box;
    FieldKeypads keypads(&box);
    keypads.setKind(&box, FieldKeypads::Axis);
    QCOMPARE(keypads.kind(&box), FieldKeypads::Axis);
}

QTEST_MAIN(tst_FieldKeypads)
#include "tst_FieldKeypads.moc"
