// SPDX-License-Identifier: MIT
#include <HMIDevice/HMIDeviceInfo.h>

#include <QGraphicsView>
#include <QtTest>

#include <limits>

namespace {

const QSize freeSize(1024, 768);

// clang-format off
const struct
{
    DeviceType type;
    int width, height;
    int series;
    bool touch, keyboard, formatFont;
} models[] = {
    { -1, 640, 480, 0, false, false, false },
    {  0, 640, 480, 0, false, false, false },
    {  1, 800, 600, 1, false, true,  false },
    {  2, 640, 480, 1, false, true,  false },
    {  3, 640, 480, 1, false, true,  true  },
    {  4, 640, 480, 2, true,  false, true  },
    {  5, 640, 480, 3, true,  true,  true  },
    {  6, 800, 480, 2, true,  false, true  },
    {  7, 800, 600, 2, true,  false, false },
    {  8, 800, 480, 3, true,  true,  true  },
    {  9, 480, 272, 2, true,  false, true  },
    { 10, 1024, 768, 4, true, false, false },
    { 11, 640, 480, 0, false, false, false },
    { 12, 640, 480, 0, false, false, false },
    { 13, 800, 480, 3, true,  true,  true  },
    { 14, 800, 600, 2, true,  true,  false },
    { 15, 800, 480, 3, true,  true,  true  },
    { 16, 640, 480, 0, false, false, false },
    { 17, 640, 480, 0, false, false, false },
    { 18, 640, 480, 0, false, false, false },
    { 19, 800, 480, 2, true,  false, false },
    { 20, 800, 600, 2, true,  false, false },
    { 21, 800, 480, 3, true,  true,  true  },
    { 22, 640, 480, 0, false, false, false },
    { 23, 640, 480, 0, false, false, false },
    { std::numeric_limits<int>::max(), 640, 480, 0, false, false, false },
    { std::numeric_limits<int>::min(), 640, 480, 0, false, false, false }
};
// clang-format on

} // namespace

class tst_HMIDeviceInfo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void everythingFollowsFromTheType_data();
    void everythingFollowsFromTheType();
    void theTypeBeforeLeavesNothingBehind();
    void onlyTypeTenTakesTheSizePassedIn_data();
    void onlyTypeTenTakesTheSizePassedIn();
    void theSameTypeAgainTakesTheNewSize();
    void screenSizeIsSetFromTheStoredType();
    void seriesIsSetFromTheStoredType();
    void rotationSwapsAtExactly90And270_data();
    void rotationSwapsAtExactly90And270();
    void rotationChangesNothingElse();
    void theTypeLeavesRotationAndViewAlone();
    void theViewIsStoredAndNotOwned();
};

void tst_HMIDeviceInfo::cleanup()
{
    HMIDeviceInfo::setScreenRotate(0);
    HMIDeviceInfo::setGraphicsView(nullptr);
    HMIDeviceInfo::setDeviceInfo(1, QSize());
}

void tst_HMIDeviceInfo::everythingFollowsFromTheType_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("series");
    QTest::addColumn<bool>("touch");
    QTest::addColumn<bool>("keyboard");
    QTest::addColumn<bool>("formatFont");
    for (const auto &model : models) {
        const QByteArray name = "type " + QByteArray::number(model.type);
        QTest::newRow(name.constData())
            << model.type << QSize(model.width, model.height) << model.series << model.touch
            << model.keyboard << model.formatFont;
    }
}

void tst_HMIDeviceInfo::everythingFollowsFromTheType()
{
    QFETCH(int, type);
    HMIDeviceInfo::setDeviceInfo(type, freeSize);

    QCOMPARE(HMIDeviceInfo::deviceType(), type);
    QTEST(HMIDeviceInfo::screenSize(), "size");
    QTEST(HMIDeviceInfo::deviceSeries(), "series");
    QTEST(HMIDeviceInfo::isTouchScreen(), "touch");
    QTEST(HMIDeviceInfo::hasKeyboard(), "keyboard");
    QTEST(HMIDeviceInfo::needToFormatFont(), "formatFont");
}

void tst_HMIDeviceInfo::theTypeBeforeLeavesNothingBehind()
{
    for (const auto &before : models) {
        for (const auto &model : models) {
            HMIDeviceInfo::setDeviceInfo(before.type, QSize(1, 2));
            HMIDeviceInfo::setDeviceInfo(model.type, freeSize);
            QCOMPARE(HMIDeviceInfo::deviceType(), model.type);
            QCOMPARE(HMIDeviceInfo::screenSize(), QSize(model.width, model.height));
            QCOMPARE(HMIDeviceInfo::deviceSeries(), model.series);
            QCOMPARE(HMIDeviceInfo::isTouchScreen(), model.touch);
            QCOMPARE(HMIDeviceInfo::hasKeyboard(), model.keyboard);
            QCOMPARE(HMIDeviceInfo::needToFormatFont(), model.formatFont);
        }
    }
}

void tst_HMIDeviceInfo::onlyTypeTenTakesTheSizePassedIn_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QSize>("passed");
    QTest::addColumn<QSize>("expected");

    QTest::newRow("free size") << 10 << QSize(1024, 768) << QSize(1024, 768);
    QTest::newRow("tiny free size") << 10 << QSize(1, 1) << QSize(1, 1);
    QTest::newRow("empty free size") << 10 << QSize(0, 0) << QSize(0, 0);
    QTest::newRow("invalid free size") << 10 << QSize() << QSize(-1, -1);
    QTest::newRow("upright free size") << 10 << QSize(600, 1024) << QSize(600, 1024);
    QTest::newRow("type 9") << 9 << QSize(1024, 768) << QSize(480, 272);
    QTest::newRow("unknown type") << 100 << QSize(1024, 768) << QSize(640, 480);
    QTest::newRow("invalid size for type 7") << 7 << QSize() << QSize(800, 600);
}

void tst_HMIDeviceInfo::onlyTypeTenTakesTheSizePassedIn()
{
    QFETCH(int, type);
    QFETCH(QSize, passed);
    HMIDeviceInfo::setDeviceInfo(type, passed);
    QTEST(HMIDeviceInfo::screenSize(), "expected");
}

void tst_HMIDeviceInfo::theSameTypeAgainTakesTheNewSize()
{
    HMIDeviceInfo::setDeviceInfo(10, QSize(1024, 768));
    HMIDeviceInfo::setDeviceInfo(10, QSize(320, 200));
    QCOMPARE(HMIDeviceInfo::screenSize(), QSize(320, 200));
}

void tst_HMIDeviceInfo::screenSizeIsSetFromTheStoredType()
{
    HMIDeviceInfo::setDeviceInfo(1, QSize());
    HMIDeviceInfo::setScreenSize(QSize(1, 1));
    QCOMPARE(HMIDeviceInfo::screenSize(), QSize(800, 600));

    HMIDeviceInfo::setDeviceInfo(10, QSize(1024, 768));
    HMIDeviceInfo::setScreenSize(QSize(1, 1));
    QCOMPARE(HMIDeviceInfo::screenSize(), QSize(1, 1));
    QCOMPARE(HMIDeviceInfo::deviceSeries(), 4);
}

void tst_HMIDeviceInfo::seriesIsSetFromTheStoredType()
{
    for (const auto &model : models) {
        HMIDeviceInfo::setDeviceInfo(model.type, freeSize);
        HMIDeviceInfo::setDeviceSeries();
        QCOMPARE(HMIDeviceInfo::deviceSeries(), model.series);
        QCOMPARE(HMIDeviceInfo::screenSize(), QSize(model.width, model.height));
    }
}

void tst_HMIDeviceInfo::rotationSwapsAtExactly90And270_data()
{
    QTest::addColumn<int>("degrees");
    QTest::addColumn<QSize>("size");

    const QSize upright(272, 480);
    const QSize lying(480, 272);
    QTest::newRow("0") << 0 << lying;
    QTest::newRow("90") << 90 << upright;
    QTest::newRow("180") << 180 << lying;
    QTest::newRow("270") << 270 << upright;
    QTest::newRow("360") << 360 << lying;
    QTest::newRow("450") << 450 << lying;
    QTest::newRow("630") << 630 << lying;
    QTest::newRow("-90") << -90 << lying;
    QTest::newRow("-270") << -270 << lying;
    QTest::newRow("89") << 89 << lying;
    QTest::newRow("91") << 91 << lying;
    QTest::newRow("271") << 271 << lying;
}

void tst_HMIDeviceInfo::rotationSwapsAtExactly90And270()
{
    QFETCH(int, degrees);
    HMIDeviceInfo::setDeviceInfo(9, QSize());
    HMIDeviceInfo::setScreenRotate(degrees);

    QCOMPARE(HMIDeviceInfo::screenRotate(), degrees);
    QTEST(HMIDeviceInfo::screenSize(), "size");
    QTEST(HMIDeviceInfo::screenSize(), "size"); // asking does not turn it

    HMIDeviceInfo::setScreenRotate(0);
    QCOMPARE(HMIDeviceInfo::screenSize(), QSize(480, 272));
}

void tst_HMIDeviceInfo::rotationChangesNothingElse()
{
    HMIDeviceInfo::setDeviceInfo(14, QSize());
    HMIDeviceInfo::setScreenRotate(90);
    QCOMPARE(HMIDeviceInfo::deviceType(), 14);
    QCOMPARE(HMIDeviceInfo::deviceSeries(), 2);
    QVERIFY(HMIDeviceInfo::isTouchScreen());
    QVERIFY(HMIDeviceInfo::hasKeyboard());
    QVERIFY(!HMIDeviceInfo::needToFormatFont());
}

void tst_HMIDeviceInfo::theTypeLeavesRotationAndViewAlone()
{
    QGraphicsView view;
    HMIDeviceInfo::setGraphicsView(&view);
    HMIDeviceInfo::setScreenRotate(270);
    HMIDeviceInfo::setDeviceInfo(10, QSize(1024, 768));

    QCOMPARE(HMIDeviceInfo::screenRotate(), 270);
    QCOMPARE(HMIDeviceInfo::screenSize(), QSize(768, 1024));
    QVERIFY(HMIDeviceInfo::graphicsView() == &view);
}

void tst_HMIDeviceInfo::theViewIsStoredAndNotOwned()
{
    QGraphicsView *first = new QGraphicsView;
    QGraphicsView second;
    HMIDeviceInfo::setGraphicsView(first);
    QVERIFY(HMIDeviceInfo::graphicsView() == first);
    HMIDeviceInfo::setGraphicsView(&second);
    QVERIFY(HMIDeviceInfo::graphicsView() == &second);
    delete first;
    QVERIFY(HMIDeviceInfo::graphicsView() == &second);
    HMIDeviceInfo::setGraphicsView(nullptr);
    QVERIFY(!HMIDeviceInfo::graphicsView());
}

QTEST_MAIN(tst_HMIDeviceInfo)

#include "tst_HMIDeviceInfo.moc"
