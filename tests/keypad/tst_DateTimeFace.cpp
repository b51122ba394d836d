// SPDX-License-Identifier: MIT
#include "DateTimeStage.h"
#include "support/Translators.h"

#include <QFile>
#include <QGridLayout>

// The date-time keypad's parts, their places and their texts.

namespace {

const char keysInOrder[] = "1 2 3 4 5 6 7 8 9 0 + - Delete Ok Cancel";

QStringList fieldLabels(const QWidget *keypad)
{
    QStringList texts;
    const QList<QLabel *> labels = keypad->findChildren<QLabel *>();
    for (const QLabel *label : labels)
        texts << label->text();
    return texts;
}

// What the keypad is made of, without the parts inside a spin box.
QWidgetList parts(const QWidget *keypad)
{
    QWidgetList widgets;
    const QObjectList children = keypad->children();
    for (QObject *child : children) {
        if (child->isWidgetType())
            widgets << static_cast<QWidget *>(child);
    }
    return widgets;
}

template <class Layout>
Layout *layoutAt(const QWidget *keypad, int position)
{
    return qobject_cast<Layout *>(keypad->layout()->itemAt(position)->layout());
}

} // namespace

class tst_DateTimeFace : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void partsAreCreatedInMemberOrder();
    void threeLayoutsShareTheHeight();
    void displaySpansTheTenDigits();
    void everyFieldIsInItsCell_data();
    void everyFieldIsInItsCell();
    void fieldsStartAtTheirMinimum_data();
    void fieldsStartAtTheirMinimum();
    void fieldsLookAsTheStyleHasThem_data();
    void fieldsLookAsTheStyleHasThem();
    void cancelIsLaidOutBeforeOk();
    void sizePolicies();
    void labelsInsistOnALine();
    void partsFitThePanel_data();
    void partsFitThePanel();
    void textsAreTranslatedInItsContext();
    void textsAreChinese();
};

void tst_DateTimeFace::partsAreCreatedInMemberOrder()
{
    DateTimeStage stage;
    QStringList classes;
    const QWidgetList widgets = parts(&stage.keypad);
    for (const QWidget *part : widgets) {
        if (!qobject_cast<const QLabel *>(part))
            classes << QString::fromLatin1(part->metaObject()->className());
    }
    QCOMPARE(classes.first(), u("KeyBoardLineEdit"));
    for (int i = 1; i <= FieldCount; ++i)
        QCOMPARE(classes.at(i), u("QSpinBox"));
    QCOMPARE(int(classes.count(u("QSpinBox"))), int(FieldCount));
    QCOMPARE(keyLabels(&stage.keypad), labelList(keysInOrder));
}

void tst_DateTimeFace::threeLayoutsShareTheHeight()
{
    DateTimeStage stage;
    const QVBoxLayout *layout = qobject_cast<QVBoxLayout *>(stage.keypad.layout());
    QVERIFY(layout);
    QCOMPARE(layout->count(), 3);
    const int stretches[] = { 2, 3, 1 };
    stage.open();
    const int shared = stage.keypad.height() - 2 * layout->spacing();
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(layout->stretch(i), stretches[i]);
        const int height = layout->itemAt(i)->geometry().height();
        QVERIFY(qAbs(height - shared * stretches[i] / 6) <= 2);
    }
    QVERIFY(layoutAt<QGridLayout>(&stage.keypad, 0));
    QVERIFY(layoutAt<QGridLayout>(&stage.keypad, 1));
    QVERIFY(layoutAt<QHBoxLayout>(&stage.keypad, 2));
    const QList<QLayout *> layouts = stage.keypad.findChildren<QLayout *>();
    for (const QLayout *each : layouts) {
        QVERIFY(each->contentsMargins() == QMargins(0, 0, 0, 0));
        QCOMPARE(each->spacing(), 1);
    }
}

void tst_DateTimeFace::displaySpansTheTenDigits()
{
    DateTimeStage stage;
    QGridLayout *grid = layoutAt<QGridLayout>(&stage.keypad, 0);
    QCOMPARE(grid->count(), 11);
    int row, column, rowSpan, columnSpan;
    grid->getItemPosition(grid->indexOf(stage.line()), &row, &column, &rowSpan, &columnSpan);
    QCOMPARE(QRect(column, row, columnSpan, rowSpan), QRect(0, 0, 10, 1));
    for (int i = 0; i < 10; ++i) {
        QToolButton *digit = key(&stage.keypad, QString::number((i + 1) % 10));
        QVERIFY(grid->itemAtPosition(1, i)->widget() == digit);
    }
}

void tst_DateTimeFace::everyFieldIsInItsCell_data()
{
    addFieldRows();
}

void tst_DateTimeFace::everyFieldIsInItsCell()
{
    QFETCH(int, number);
    const FieldRow &expected = fieldRows[number];
    DateTimeStage stage;
    const QGridLayout *grid = layoutAt<QGridLayout>(&stage.keypad, 1);
    QCOMPARE(grid->count(), 2 * FieldCount);

    QWidget *widget = grid->itemAtPosition(expected.row, expected.column)->widget();
    const QLabel *label = qobject_cast<QLabel *>(widget);
    QVERIFY(label);
    QCOMPARE(label->text(), u(expected.label));
    QVERIFY(grid->itemAtPosition(expected.row, expected.column + 1)->widget()
            == stage.field(number));
}

void tst_DateTimeFace::fieldsStartAtTheirMinimum_data()
{
    addFieldRows();
}

void tst_DateTimeFace::fieldsStartAtTheirMinimum()
{
    QFETCH(int, number);
    DateTimeStage stage;
    QCOMPARE(stage.field(number)->minimum(), fieldRows[number].minimum);
    QCOMPARE(stage.field(number)->maximum(), fieldRows[number].maximum);
    QCOMPARE(stage.field(number)->value(), fieldRows[number].minimum);
    QVERIFY(stage.field(number)->isEnabled());
    QCOMPARE(int(stage.field(number)->buttonSymbols()), int(QAbstractSpinBox::NoButtons));
}

void tst_DateTimeFace::fieldsLookAsTheStyleHasThem_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("type 1") << 1;
    QTest::newRow("type 13") << 13;
}

void tst_DateTimeFace::fieldsLookAsTheStyleHasThem()
{
    QFETCH(int, type);
    HMIDeviceInfo::setDeviceInfo(type, QSize());
    const DateTimeKeypad keypad(nullptr, Qt::WindowFlags());
    HMIDeviceInfo::setDeviceInfo(1, QSize());
    const QWidgetList widgets = parts(&keypad);
    for (const QWidget *part : widgets)
        QVERIFY(!part->testAttribute(Qt::WA_SetPalette));
}

void tst_DateTimeFace::cancelIsLaidOutBeforeOk()
{
    DateTimeStage stage;
    QStringList labels;
    const QLayout *row = layoutAt<QHBoxLayout>(&stage.keypad, 2);
    for (int i = 0; i < row->count(); ++i)
        labels << qobject_cast<QToolButton *>(row->itemAt(i)->widget())->text();
    QCOMPARE(labels, labelList("+ - Delete Cancel Ok"));

    stage.open();
    for (int i = 1; i < labels.size(); ++i)
        QVERIFY(key(&stage.keypad, labels.at(i - 1))->x() < key(&stage.keypad, labels.at(i))->x());
}

void tst_DateTimeFace::sizePolicies()
{
    DateTimeStage stage;
    const QWidgetList widgets = parts(&stage.keypad);
    for (const QWidget *part : widgets) {
        const bool isLabel = qobject_cast<const QLabel *>(part);
        QCOMPARE(int(part->sizePolicy().horizontalPolicy()),
                 int(isLabel ? QSizePolicy::Fixed : QSizePolicy::Expanding));
        QCOMPARE(int(part->sizePolicy().verticalPolicy()), int(QSizePolicy::Ignored));
    }
}

void tst_DateTimeFace::labelsInsistOnALine()
{
    DateTimeStage stage;
    const QList<QLabel *> labels = stage.keypad.findChildren<QLabel *>();
    QCOMPARE(labels.size(), 6);
    for (const QLabel *label : labels)
        QVERIFY(label->minimumSizeHint().height() >= label->fontMetrics().height());
}

void tst_DateTimeFace::partsFitThePanel_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("480x272") << QSize(480, 272);
    QTest::newRow("640x480") << QSize(640, 480);
    QTest::newRow("800x600") << QSize(800, 600);
}

void tst_DateTimeFace::partsFitThePanel()
{
    QFETCH(QSize, size);
    DateTimeStage stage;
    const PanelView view(10, size, PanelView::Frameless);
    stage.open();
    QCOMPARE(stage.keypad.size(), size);

    const QWidgetList widgets = parts(&stage.keypad);
    QCOMPARE(int(widgets.size()), 1 + 2 * FieldCount + 15);
    QRegion taken;
    for (const QWidget *widget : widgets) {
        QVERIFY(stage.keypad.rect().contains(widget->geometry()));
        QVERIFY(!widget->size().isEmpty());
        QVERIFY(!taken.intersects(widget->geometry()));
        taken += widget->geometry();
    }
}

void tst_DateTimeFace::textsAreTranslatedInItsContext()
{
    const ContextTranslator translator;
    DateTimeStage stage;
    const QString context = u("DateTimeKeypad/");
    const QStringList labels = labelList(keysInOrder);
    for (const QString &label : labels)
        QVERIFY2(key(&stage.keypad, context + label), qPrintable(label));
    for (const FieldRow &row : fieldRows)
        QVERIFY2(fieldLabels(&stage.keypad).contains(context + u(row.label)), row.label);
}

void tst_DateTimeFace::textsAreChinese()
{
    const QString file = QString::fromLocal8Bit(HMI_CHINESE_TRANSLATION);
    if (!QFile::exists(file))
        HMI_SKIP("The translations are not built.");
    QTranslator chinese;
    QVERIFY(chinese.load(file));
    QApplication::installTranslator(&chinese);

    DateTimeStage stage;
    QCOMPARE(fieldLabels(&stage.keypad), labelList("年： 月： 日： 时： 分： 秒："));
    QCOMPARE(keyLabels(&stage.keypad), labelList("1 2 3 4 5 6 7 8 9 0 + - 删除 确定 取消"));
}

QTEST_MAIN(tst_DateTimeFace)

#include "tst_DateTimeFace.moc"
