// SPDX-License-Identifier: MIT
#include "support/AnyKeypad.h"
#include "support/Translators.h"

#include <QColor>
#include <QFile>
#include <QImage>
#include <QStringList>
#include <QToolButton>

// Every part of a keypad has the object name that the manual tells.

namespace {

// What stands between backticks.
QStringList quoted(const QString &text)
{
    QStringList names;
    const QStringList pieces = text.split(QLatin1Char('`'));
    for (int i = 1; i < pieces.size(); i += 2)
        names << pieces.at(i);
    return names;
}

// The names that the manual's table has for a keypad, sorted.
QStringList namesInManual(const QString &className)
{
    QFile page(u(HMI_STYLE_PAGE));
    QStringList names;
    if (!page.open(QIODevice::ReadOnly))
        return names;
    const QStringList lines = QString::fromUtf8(page.readAll()).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        const QStringList cells = line.split(QLatin1Char('|'));
        if (cells.size() == 5 && quoted(cells.at(3)).contains(className))
            names << quoted(cells.at(1));
    }
    names.sort();
    return names;
}

// The object names of a keypad's parts, without those inside a spin box, sorted.
QStringList namesOf(const QDialog *keypad)
{
    QStringList names;
    const QList<QWidget *> parts = keypad->findChildren<QWidget *>();
    for (const QWidget *part : parts) {
        if (!part->objectName().startsWith(u("qt_")))
            names << part->objectName();
    }
    names.sort();
    return names;
}

QString accessibleName(const QDialog *keypad, const char *name)
{
    const QWidget *part = keypad->findChild<QWidget *>(u(name));
    return part ? part->accessibleName() : QString();
}

// Parts whose labels say too little, and the context in which their names are translated.
const struct
{
    const char *name, *context, *accessible;
} signs[] = { { "leftKey", "Keypad", "Cursor left" },
              { "rightKey", "Keypad", "Cursor right" },
              { "spaceKey", "Keypad", "Space" },
              { "signKey", "Keypad", "Sign" },
              { "backspaceKey", "Keypad", "Backspace" },
              { "plusKey", "Keypad", "Increase" },
              { "previousPageKey", "Keypad", "Previous page" },
              { "nextPageKey", "Keypad", "Next page" },
              { "yearField", "DateTimeKeypad", "year:" } };

} // namespace

class tst_ObjectNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { addKeypadRows(); }
    void everyPartHasTheNameInTheManual();
    void aSheetReachesAKeyByItsName();
    void signsHaveAccessibleNames();
    void accessibleNamesAreTranslated();
};

void tst_ObjectNames::everyPartHasTheNameInTheManual()
{
    AnyStage stage;
    const QStringList names = namesOf(stage.dialog());
    QVERIFY(!names.isEmpty());
    QCOMPARE(names, namesInManual(u(currentKind().className)));
}

void tst_ObjectNames::aSheetReachesAKeyByItsName()
{
    AnyStage stage;
    QToolButton *enter = stage.dialog()->findChild<QToolButton *>(u("enterKey"));
    QVERIFY(enter);
    QCOMPARE(enter->text(), u(currentKind().confirmLabel));
    stage.dialog()->setStyleSheet(u("#enterKey { background: #123456; border: none }"));
    stage.open();
    QImage picture(enter->size(), QImage::Format_RGB32);
    enter->render(&picture);
    QCOMPARE(QColor(picture.pixel(1, 1)).name(), u("#123456"));
}

void tst_ObjectNames::signsHaveAccessibleNames()
{
    AnyStage stage;
    for (const auto &sign : signs) {
        if (stage.dialog()->findChild<QWidget *>(u(sign.name)))
            QCOMPARE(accessibleName(stage.dialog(), sign.name), u(sign.accessible));
    }
}

void tst_ObjectNames::accessibleNamesAreTranslated()
{
    ContextTranslator translator;
    AnyStage stage;
    for (const auto &sign : signs) {
        if (stage.dialog()->findChild<QWidget *>(u(sign.name)))
            QCOMPARE(accessibleName(stage.dialog(), sign.name),
                     u("%1/%2").arg(u(sign.context), u(sign.accessible)));
    }
}

QTEST_MAIN(tst_ObjectNames)
#include "tst_ObjectNames.moc"
