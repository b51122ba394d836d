// SPDX-License-Identifier: MIT
#include "support/AnyKeypad.h"
#include "support/EditLineModel.h"
#include "support/QtDifferences.h"

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

// Every key that does not end the entry; editing keys as often as all others together.
QStringList keysToTap(const QDialog *keypad)
{
    QStringList editing = labelList("← → BSP");
    if (currentKind().has(TogglesSign))
        editing << u(currentKind().signLabel);
    QStringList keys;
    const QStringList labels = keyLabels(keypad);
    for (const QString &label : labels) {
        if (label != u("ESC") && label != u("Enter") && !editing.contains(label))
            keys << label;
    }
    const int typing = int(keys.size());
    while (keys.size() < 2 * typing)
        keys << editing;
    return keys;
}

void tapInModel(EditLineModel *model, const QString &label)
{
    if (label == u("←"))
        model->moveLeft();
    else if (label == u("→"))
        model->moveRight();
    else if (label == u("BSP"))
        model->erase();
    else if (label == u(currentKind().signLabel))
        model->toggleSign();
    else
        model->insert(label.length() > 1 ? u(" ") : label);
}

} // namespace

class tst_RandomTaps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void initTestCase();
    void theEditLineKeepsToTheModel_data();
    void theEditLineKeepsToTheModel();

private:
    QString oneOf(const QStringList &list) { return list.at(int(m_random() % list.size())); }

    std::mt19937 m_random;
};

void tst_RandomTaps::initTestCase_data()
{
    addKeypadRows(FixedFace);
}

void tst_RandomTaps::initTestCase()
{
    QtDifferences::readLiteralsAsGbk();
}

void tst_RandomTaps::theEditLineKeepsToTheModel_data()
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

// Taps, and now and then a new text.
void tst_RandomTaps::theEditLineKeepsToTheModel()
{
    QFETCH(int, seed);
    QFETCH(int, longest);
    QFETCH(bool, checked);
    AnyStage stage;
    stage.open();
    EditLineModel model;
    model.setMaxLength(longest);
    stage.keypad.setMaxLength(longest);
    const NumberLikeValidator validator;
    if (checked) {
        model.setRule(isNumberLike);
        stage.keypad.setValidator(&validator);
    }

    const QStringList texts = labelList("0 -12.5 3.14159 X-5 -X-5 1-2-3 99999999 -");
    const QStringList keys = keysToTap(stage.dialog());
    m_random.seed(unsigned(seed));
    QStringList history;
    for (int step = 0; step < steps; ++step) {
        if (m_random() % 50 == 0) {
            const QString text = oneOf(texts);
            history = QStringList(u("set ") + text);
            stage.keypad.setText(text);
            model.show(text);
        } else {
            const QString label = oneOf(keys);
            history << label;
            CHECKED(tap(stage.dialog(), label));
            tapInModel(&model, label);
        }
        const QString shown = described(stage.line());
        QVERIFY2(shown == described(model),
                 qPrintable(QString::fromLatin1("step %1, after %2: %3, not %4")
                                .arg(step)
                                .arg(history.join(u(" ")), shown, described(model))));
    }
    QVERIFY(stage.dialog()->isVisible());
    QCOMPARE(stage.target.text(), QString());
}

QTEST_MAIN(tst_RandomTaps)

#include "tst_RandomTaps.moc"
