// SPDX-License-Identifier: MIT
#include "Faces.h"

#include <HMIDevice/ClickLabel.h>

#include <QFile>
#include <QFontInfo>

// No key is smaller than the manual's table says.

namespace {

// What the manual measured with. Keys get what the edit line leaves them, which is as high as the
// font wants it.
const char fontFamily[] = "WenQuanYi Micro Hei";

const QSize screens[] = { QSize(480, 272), QSize(640, 480), QSize(800, 480), QSize(800, 600),
                          QSize(272, 480), QSize(480, 640), QSize(480, 800), QSize(600, 800) };

QString sizeText(const QSize &size)
{
    return u("%1×%2").arg(size.width()).arg(size.height());
}

// The cells of the manual's row for a screen, or those of the row with the keypads' names.
QStringList rowInManual(const QString &firstCell)
{
    QFile page(u(HMI_PANELS_PAGE));
    if (!page.open(QIODevice::ReadOnly))
        return QStringList();
    const QStringList lines = QString::fromUtf8(page.readAll()).split(QLatin1Char('\n'));
    const QStringList table = lines.mid(lines.indexOf(u("## Touch targets")));
    for (const QString &line : table) {
        if (line.startsWith(u("| %1 |").arg(firstCell)))
            return line.split(QLatin1Char('|'));
    }
    return QStringList();
}

QString cellInManual(const QString &firstCell)
{
    const int column =
        rowInManual(u("Screen")).indexOf(u(" `%1` ").arg(u(currentKind().className)));
    return column < 0 ? QString() : rowInManual(firstCell).value(column).trimmed();
}

template <class Key>
void addSizes(const QWidget *keypad, QSize *least)
{
    const QList<Key *> keys = keypad->findChildren<Key *>();
    for (const Key *key : keys) {
        if (key->isVisible())
            *least = least->boundedTo(key->size());
    }
}

// The least width and the least height of what can be tapped on the face that is shown.
QSize leastKey(const QWidget *keypad)
{
    QSize least(10000, 10000);
    addSizes<QToolButton>(keypad, &least);
    addSizes<ClickLabel>(keypad, &least);
    return least;
}

} // namespace

class tst_TouchTargets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { addKeypadRows(); }
    void initTestCase();
    void keysAreAsLargeAsTheManualSays_data();
    void keysAreAsLargeAsTheManualSays();
};

void tst_TouchTargets::initTestCase()
{
    QFont::insertSubstitution(u("simsun"), u(fontFamily));
    const QString family = QFontInfo(QFont(u("simsun"))).family();
    if (family != u(fontFamily))
        HMI_SKIP("the manual measured with another font");
}

void tst_TouchTargets::keysAreAsLargeAsTheManualSays_data()
{
    QTest::addColumn<QSize>("size");
    for (const QSize &screen : screens)
        QTest::newRow(qPrintable(sizeText(screen))) << screen;
}

void tst_TouchTargets::keysAreAsLargeAsTheManualSays()
{
    QFETCH(QSize, size);
    FaceStage stage(8, size);
    QSize least = leastKey(stage.dialog());
    while (stage.showNextFace())
        least = least.boundedTo(leastKey(stage.dialog()));
    stage.fillLabels(u("主")); // candidates, or limits
    const QSize filled = leastKey(stage.dialog());

    QString measured = sizeText(least.boundedTo(currentKind().has(FixedFace) ? least : filled));
    if (currentKind().has(FixedFace))
        measured += u(" / %1").arg(filled.height());
    QCOMPARE(measured, cellInManual(sizeText(size)));
}

QTEST_MAIN(tst_TouchTargets)
#include "tst_TouchTargets.moc"
