// SPDX-License-Identifier: MIT
#include "support/AnyKeypad.h"
#include "support/QtDifferences.h"

#include <HMIDevice/KeyBoardLineEdit.h>

#include <QMetaMethod>

// What a keypad is to Qt: its meta-object, its window, its parent.

namespace {

const char *const members[][2] = {
    { "NumericKeypad",
      "signal signal_kTypeKeyPressed(int) key|private slot slot_toolButton_clicked()" },
    { "GCodeKeypad",
      "signal signal_kTypeKeyPressed(int) key|private slot slot_toolButton_clicked()" },
    { "vondKeypad",
      "signal signal_kTypeKeyPressed(int) key|private slot slot_toolButton_clicked()" },
    { "DateTimeKeypad",
      "private slot slot_toolButtonClicked()|private slot slot_valueChanged(int) |"
      "private slot slot_editingFinished()" },
    { "CharacterKeypad",
      "signal signal_kTypeKeyPressed(int) key|private slot sendContent(QString) text" },
};

QByteArray described(const QMetaMethod &method)
{
    QByteArray text = method.methodType() == QMetaMethod::Signal ? "signal " : "slot ";
    if (method.methodType() == QMetaMethod::Slot && method.access() == QMetaMethod::Private)
        text = "private slot ";
    text += QtDifferences::methodSignature(method);
    const QList<QByteArray> names = method.parameterNames();
    for (const QByteArray &name : names)
        text += ' ' + name;
    return text;
}

} // namespace

class tst_KeypadClass : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void metaObjectHasExactlyThePromisedMembers();
    void hasOneEditLine();
    void isAFramelessDialogWithTheFlagsGiven();
    void isAChildOfItsParentAndModalWhileItRuns();
};

void tst_KeypadClass::initTestCase_data()
{
    addKeypadRows();
}

void tst_KeypadClass::metaObjectHasExactlyThePromisedMembers()
{
    AnyStage stage;
    const QMetaObject *meta = stage.dialog()->metaObject();
    QCOMPARE(meta->className(), currentKind().className);
    QCOMPARE(meta->superClass()->className(), "QDialog");
    QVERIFY(stage.dialog()->qt_metacast(currentKind().className) == stage.dialog());

    QByteArray expected;
    for (const auto &row : members) {
        if (qstrcmp(row[0], meta->className()) == 0)
            expected = row[1];
    }
    QByteArray found;
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i)
        found += (found.isEmpty() ? "" : "|") + described(meta->method(i));
    QCOMPARE(found, expected);
    QCOMPARE(meta->propertyCount(), meta->propertyOffset());
}

void tst_KeypadClass::hasOneEditLine()
{
    AnyStage stage;
    QCOMPARE(int(stage.dialog()->findChildren<KeyBoardLineEdit *>().size()), 1);
}

void tst_KeypadClass::isAFramelessDialogWithTheFlagsGiven()
{
    PanelView view(1);
    const Qt::WindowFlags flags[] = { Qt::WindowFlags(), Qt::WindowStaysOnTopHint,
                                      Qt::WindowStaysOnTopHint | Qt::WindowSystemMenuHint };
    for (const Qt::WindowFlags &given : flags) {
        QScopedPointer<AnyKeypad> keypad(currentKind().create(&view, given));
        const QDialog plain(&view, given | Qt::FramelessWindowHint);
        QCOMPARE(int(keypad->dialog()->windowFlags()), int(plain.windowFlags()));
        QVERIFY(keypad->dialog()->windowFlags() & Qt::FramelessWindowHint);
        QVERIFY(keypad->dialog()->windowType() == Qt::Dialog);
    }
}

void tst_KeypadClass::isAChildOfItsParentAndModalWhileItRuns()
{
    AnyStage stage;
    QVERIFY(stage.dialog()->parentWidget() == &stage.view);
    QVERIFY(stage.dialog()->isWindow());
    QVERIFY(!stage.dialog()->isVisible());

    Qt::WindowModality modality = Qt::NonModal;
    CHECKED(execWhile(
        stage.dialog(), [&] { modality = stage.dialog()->windowModality(); }, StaysOpen));
    QCOMPARE(int(modality), int(Qt::ApplicationModal));
}

QTEST_MAIN(tst_KeypadClass)

#include "tst_KeypadClass.moc"
