// SPDX-License-Identifier: MIT
#include "support/EditLineModel.h"
#include "support/KeypadStage.h"
#include "support/QtDifferences.h"

#include <HMIDevice/NumericKeypad.h>
#include <HMIDevice/vondKeypad.h>

#include <QValidator>

#include <random>

// Thousands of taps, and after each the edit line holds what a small model of it holds.

namespace {

const int steps = 4000;

// At most one point, and a minus sign only in front.
bool isNumberLike(const QString &text)
{
    return text.count(QLatin1Char('.')) <= 1 && text.lastIndexOf(QLatin1Char('-')) <= 0;
}

class NumberLikeValidator : public QValidator
{
public:
    NumberLikeValidator()
        : QValidator(nullptr)
    {
    }

    State validate(QString &input, int &) const override
    {
        return isNumberLike(input) ? Acceptable : Invalid;
    }
};

void tapInModel(EditLineModel *model, const QString &label)
{
    if (label == u("←"))
        model->moveLeft();
    else if (label == u("→"))
        model->moveRight();
    else if (label == u("BSP"))
        model->erase();
    else if (label == u("+/-") || label == u("-"))
        model->toggleSign();
    else
        model->insert(label.length() > 1 ? u(" ") : label);
}

// Taps and now and then a new text; editing keys come up as often as all others together.
template <class Keypad>
void tapAtRandom(const char *typing, const char *editing, unsigned seed, int longest, bool checked)
{
    const QStringList typingLabels = labelList(typing);
    const QStringList editingLabels = labelList(editing);
    const QStringList texts = labelList("0 -12.5 3.14159 X-5 -X-5 1-2-3 99999999 -");
    const NumberLikeValidator validator;
    KeypadStage<Keypad> stage;
    stage.open();
    EditLineModel model;
    model.setMaxLength(longest);
    stage.keypad.setMaxLength(longest);
    if (checked) {
        model.setRule(isNumberLike);
        stage.keypad.setValidator(&validator);
    }

    std::mt19937 random(seed);
    QStringList history;
    for (int step = 0; step < steps; ++step) {
        if (random() % 50 == 0) {
            const QString text = texts.at(int(random() % unsigned(texts.size())));
            history = QStringList(u("set ") + text);
            stage.keypad.setText(text);
            model.show(text);
        } else {
            const QStringList &labels = random() % 2 == 0 ? typingLabels : editingLabels;
            const QString label = labels.at(int(random() % unsigned(labels.size())));
            history << label;
            CHECKED(tap(&stage.keypad, label));
            tapInModel(&model, label);
        }
        QVERIFY2(
            described(stage.line()) == described(model),
            qPrintable(QString::fromLatin1("step %1, after %2: %3, not %4")
                           .arg(step)
                           .arg(history.join(u(" ")), described(stage.line()), described(model))));
    }
    QVERIFY(stage.keypad.isVisible());
    QCOMPARE(stage.target.text(), QString());
}

void addRows()
{
    QTest::addColumn<int>("seed");
    QTest::addColumn<int>("longest");
    QTest::addColumn<bool>("checked");
    QTest::newRow("unlimited") << 1 << 32767 << false;
    QTest::newRow("six characters") << 2 << 6 << false;
    QTest::newRow("one character") << 3 << 1 << false;
    QTest::newRow("nothing") << 4 << 0 << false;
    QTest::newRow("validated") << 5 << 32767 << true;
    QTest::newRow("validated, five characters") << 6 << 5 << true;
}

} // namespace

class tst_RandomTaps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void numericKeypadKeepsToTheModel_data();
    void numericKeypadKeepsToTheModel();
    void axisKeypadKeepsToTheModel_data();
    void axisKeypadKeepsToTheModel();
};

void tst_RandomTaps::initTestCase()
{
    QtDifferences::readLiteralsAsGbk();
}

void tst_RandomTaps::numericKeypadKeepsToTheModel_data()
{
    addRows();
}

void tst_RandomTaps::numericKeypadKeepsToTheModel()
{
    QFETCH(int, seed);
    QFETCH(int, longest);
    QFETCH(bool, checked);
    CHECKED(tapAtRandom<NumericKeypad>("0 1 2 3 4 5 6 7 8 9 A B C D E F .", "← → BSP +/-",
                                       unsigned(seed), longest, checked));
}

void tst_RandomTaps::axisKeypadKeepsToTheModel_data()
{
    addRows();
}

void tst_RandomTaps::axisKeypadKeepsToTheModel()
{
    QFETCH(int, seed);
    QFETCH(int, longest);
    QFETCH(bool, checked);
    CHECKED(tapAtRandom<vondKeypad>("F G 7 8 9 U A X 4 5 6 V B Y 1 2 3 W C Z 0 . └─┘", "← → BSP -",
                                    unsigned(seed + 100), longest, checked));
}

QTEST_MAIN(tst_RandomTaps)

#include "tst_RandomTaps.moc"
