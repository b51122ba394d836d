// SPDX-License-Identifier: MIT
#include "CharacterDriver.h"
#include "support/DarkScheme.h"

#include <QHBoxLayout>
#include <QSignalMapper>

// The strip of candidates as it is built. What it shows is in tst_CandidatePaging.

class tst_ChnPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void theStripStandsInOrder();
    void itIsBornHiddenEmptyAndWithoutFrame();
    void elementsAreFoundByIndex_data();
    void elementsAreFoundByIndex();
    void markupIsShownAsItStands();
    void noTextAsksForMoreThanALine();
    void partsKeepALittleRoom();
    void coloursFollowThePanelTypeOfItsConstruction_data();
    void coloursFollowThePanelTypeOfItsConstruction();
};

void tst_ChnPanel::cleanup()
{
    HMIDeviceInfo::setDeviceInfo(1, QSize());
}

void tst_ChnPanel::theStripStandsInOrder()
{
    ChnPanel panel(nullptr);
    QList<QWidget *> expected;
    expected << panel.getToolButton(0) << panel.getPinyinLabel();
    for (short i = 0; i < 5; ++i)
        expected << panel.getClickLabel(i);
    expected << panel.getToolButton(1);

    QHBoxLayout *layout = qobject_cast<QHBoxLayout *>(panel.layout());
    QVERIFY(layout);
    QCOMPARE(layout->count(), int(expected.size()));
    for (int i = 0; i < expected.size(); ++i) {
        QCOMPARE(layout->itemAt(i)->widget(), expected.at(i));
        QCOMPARE(expected.at(i)->parentWidget(), static_cast<QWidget *>(&panel));
        QCOMPARE(layout->stretch(i), 0);
        QVERIFY(expected.at(i)->sizePolicy()
                == QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding));
    }
    QWidget bare;
    QHBoxLayout bareLayout(&bare);
    QCOMPARE(layout->spacing(), bareLayout.spacing());
    QCOMPARE(layout->contentsMargins(), bareLayout.contentsMargins());
}

void tst_ChnPanel::itIsBornHiddenEmptyAndWithoutFrame()
{
    QWidget parent;
    parent.setFont(QFont(parent.font().family(), 31));
    ChnPanel panel(&parent);
    QVERIFY(panel.isHidden());
    QVERIFY(panel.windowFlags() & Qt::FramelessWindowHint);
    QVERIFY(!panel.isWindow());
    QCOMPARE(panel.parentWidget(), &parent);
    QCOMPARE(panel.metaObject()->className(), "ChnPanel");
    QCOMPARE(panel.getPinyinLabel()->text(), QString());
    QCOMPARE(panel.getToolButton(0)->text(), u("<"));
    QCOMPARE(panel.getToolButton(1)->text(), u(">"));
    for (short i = 0; i < 5; ++i) {
        QCOMPARE(panel.getClickLabel(i)->text(), QString());
        QCOMPARE(int(panel.getClickLabel(i)->alignment()), int(Qt::AlignCenter));
        QCOMPARE(panel.getClickLabel(i)->font().pointSize(), 31);
    }
}

void tst_ChnPanel::elementsAreFoundByIndex_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("isCandidate");
    QTest::addColumn<bool>("isButton");

    QTest::newRow("smallest short") << -32768 << false << false;
    QTest::newRow("-1") << -1 << false << false;
    QTest::newRow("0") << 0 << true << true;
    QTest::newRow("1") << 1 << true << true;
    QTest::newRow("2") << 2 << true << false;
    QTest::newRow("4") << 4 << true << false;
    QTest::newRow("5") << 5 << false << false;
    QTest::newRow("6") << 6 << false << false;
    QTest::newRow("largest short") << 32767 << false << false;
}

void tst_ChnPanel::elementsAreFoundByIndex()
{
    QFETCH(int, index);
    QFETCH(bool, isCandidate);
    QFETCH(bool, isButton);
    ChnPanel panel(nullptr);
    QCOMPARE(panel.getClickLabel(short(index)) != nullptr, isCandidate);
    QCOMPARE(panel.getToolButton(short(index)) != nullptr, isButton);
}

void tst_ChnPanel::markupIsShownAsItStands()
{
    const QString text = u("<b>bold</b> & <img src=\"x\">");
    QSignalMapper mapper;
    ChnPanel panel(nullptr);
    panel.setNewPinYin(QStringList(text), &mapper);
    QCOMPARE(panel.getClickLabel(0)->text(), text);
    QCOMPARE(int(panel.getClickLabel(0)->textFormat()), int(Qt::PlainText));
}

void tst_ChnPanel::noTextAsksForMoreThanALine()
{
    QSignalMapper mapper;
    ChnPanel panel(nullptr);
    panel.setNewPinYin(QStringList() << u("a") << u("a\nb\nc"), &mapper);
    const int oneLine = panel.getClickLabel(0)->sizeHint().height();
    QVERIFY(oneLine >= panel.getClickLabel(0)->fontMetrics().height());
    QCOMPARE(panel.getClickLabel(1)->sizeHint().height(), oneLine);
}

// However long the candidates are.
void tst_ChnPanel::partsKeepALittleRoom()
{
    QSignalMapper mapper;
    ChnPanel panel(nullptr);
    const QString text(300, QLatin1Char('W'));
    panel.setNewPinYin(QStringList() << text << text << text << text << text, &mapper);
    panel.getPinyinLabel()->setText(text);
    panel.resize(480, 40);
    panel.show();
    for (short i = 0; i < 5; ++i)
        QVERIFY(panel.getClickLabel(i)->width() >= 20);
    for (short i = 0; i < 2; ++i)
        QVERIFY(panel.getToolButton(i)->width() >= 24);
    QVERIFY(panel.getPinyinLabel()->width() >= 48);
}

void tst_ChnPanel::coloursFollowThePanelTypeOfItsConstruction_data()
{
    DarkScheme::addPanelTypeRows();
}

void tst_ChnPanel::coloursFollowThePanelTypeOfItsConstruction()
{
    QFETCH(int, type);
    QFETCH(int, typeLater);
    QFETCH(bool, dark);
    HMIDeviceInfo::setDeviceInfo(type, QSize(640, 480));
    ChnPanel panel(nullptr);
    HMIDeviceInfo::setDeviceInfo(typeLater, QSize(640, 480));

    CHECKED(DarkScheme::verify(panel.getToolButton(0), dark));
    CHECKED(DarkScheme::verify(panel.getToolButton(1), dark));
    CHECKED(DarkScheme::verify(panel.getPinyinLabel(), dark));
    for (short i = 0; i < 5; ++i)
        CHECKED(DarkScheme::verify(panel.getClickLabel(i), dark));
}

QTEST_MAIN(tst_ChnPanel)
#include "tst_ChnPanel.moc"
