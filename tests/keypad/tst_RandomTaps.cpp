// SPDX-License-Identifier: MIT
#include "support/OpenKeypad.h"
#include "support/QtDifferences.h"

#include <HMIDevice/NumericKeypad.h>
#include <HMIDevice/vondKeypad.h>

#include <QValidator>

#include <random>

// Thousands of taps, and after each the edit line holds what a small model of it holds.

namespace {

const int steps = 4000;

/* At most one point, and a minus sign only in front. */
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

/* An edit line as a sequence of cells with a caret, everything or nothing being selected. */
class Model
{
public:
    Model()
        : longest(32767)
        , checked(false)
        , caret(0)
        , selected(false)
    {
    }

    int longest;
    bool checked; // by the validator above

    QString text() const { return cells.join(QString()); }
    int caretPosition() const { return caret; }
    bool isSelected() const { return selected; }

    void show(const QString &text)
    {
        setCells(text);
        caret = cells.size();
        selected = !cells.isEmpty();
    }

    void tap(const QString &label)
    {
        if (label == u("←"))
            moveLeft();
        else if (label == u("→"))
            moveRight();
        else if (label == u("BSP"))
            erase();
        else if (label == u("+/-") || label == u("-"))
            toggleSign();
        else
            type(label.length() > 1 ? u(" ") : label);
    }

private:
    void setCells(const QString &text)
    {
        cells.clear();
        for (int i = 0; i < qMin(int(text.length()), longest); ++i)
            cells << text.mid(i, 1);
    }

    void moveLeft()
    {
        caret = qMax(0, caret - 1);
        selected = false;
    }

    void moveRight()
    {
        if (caret == cells.size())
            return; // there is nowhere to go, and a selection stays
        ++caret;
        selected = false;
    }

    /* What was right before is not made wrong; what was wrong may be worked on. */
    void become(const QStringList &newCells, int newCaret)
    {
        if (checked && isNumberLike(text()) && !isNumberLike(newCells.join(QString())))
            return;
        cells = newCells;
        caret = newCaret;
        selected = false;
    }

    void erase()
    {
        QStringList left = cells;
        if (selected)
            become(QStringList(), 0);
        else if (caret > 0) {
            left.removeAt(caret - 1);
            become(left, caret - 1);
        }
    }

    void type(const QString &character)
    {
        QStringList typed = selected ? QStringList() : cells;
        int at = selected ? 0 : caret;
        if (typed.size() < longest)
            typed.insert(at++, character);
        become(typed, at);
    }

    void toggleSign()
    {
        const bool negative = !cells.isEmpty() && cells.first() == u("-");
        const int wanted = qMax(0, caret + (negative ? -1 : 1));
        QStringList toggled;
        if (!negative)
            toggled << u("-");
        for (int i = 0; i < cells.size(); ++i) {
            if (!negative || cells.at(i) != u("-"))
                toggled << cells.at(i);
        }
        setCells(toggled.join(QString()));
        caret = qMin(wanted, int(cells.size()));
        if (selected)
            caret = cells.size();
        selected = selected && !cells.isEmpty();
    }

    QStringList cells;
    int caret;
    bool selected;
};

QString described(const Model &model)
{
    return QString::fromLatin1("\"%1\" at %2%3")
        .arg(model.text())
        .arg(model.caretPosition())
        .arg(QLatin1String(model.isSelected() ? ", selected" : ""));
}

QString described(const KeyBoardLineEdit *line)
{
    const bool all = line->hasSelectedText() && line->selectedText() == line->text();
    return QString::fromLatin1("\"%1\" at %2%3")
        .arg(line->text())
        .arg(line->cursorPosition())
        .arg(QLatin1String(all                           ? ", selected"
                               : line->hasSelectedText() ? ", partly selected"
                                                         : ""));
}

/* Taps and now and then a new text; editing keys come up as often as all others together. */
template <class Keypad>
void tapAtRandom(const char *typing, const char *editing, unsigned seed, int longest, bool checked)
{
    const QStringList typingLabels = labelList(typing);
    const QStringList editingLabels = labelList(editing);
    const QStringList texts = labelList("0 -12.5 3.14159 X-5 -X-5 1-2-3 99999999 -");
    const NumberLikeValidator validator;
    OpenKeypad<Keypad> open;
    Model model;
    model.longest = longest;
    model.checked = checked;
    open.keypad.setMaxLength(longest);
    open.keypad.setValidator(checked ? &validator : nullptr);

    std::mt19937 random(seed);
    QStringList history;
    for (int step = 0; step < steps; ++step) {
        if (random() % 50 == 0) {
            const QString text = texts.at(int(random() % unsigned(texts.size())));
            history = QStringList(QString::fromLatin1("set ") + text);
            open.keypad.setText(text);
            model.show(text);
        } else {
            const QStringList &labels = random() % 2 == 0 ? typingLabels : editingLabels;
            const QString label = labels.at(int(random() % unsigned(labels.size())));
            history << label;
            tap(&open.keypad, label);
            model.tap(label);
        }
        const QString after = history.join(QLatin1String(" "));
        QVERIFY2(described(open.line()) == described(model),
                 qPrintable(QString::fromLatin1("step %1, after %2: %3, not %4")
                                .arg(step)
                                .arg(after)
                                .arg(described(open.line()))
                                .arg(described(model))));
    }
    QVERIFY(open.keypad.isVisible());
    QCOMPARE(open.target.text(), QString());
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

static void addRows()
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
    tapAtRandom<NumericKeypad>("0 1 2 3 4 5 6 7 8 9 A B C D E F .", "← → BSP +/-", unsigned(seed),
                               longest, checked);
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
    tapAtRandom<vondKeypad>("F G 7 8 9 U A X 4 5 6 V B Y 1 2 3 W C Z 0 . └─┘", "← → BSP -",
                            unsigned(seed + 100), longest, checked);
}

QTEST_MAIN(tst_RandomTaps)

#include "tst_RandomTaps.moc"
