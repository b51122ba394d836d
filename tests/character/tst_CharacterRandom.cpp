// SPDX-License-Identifier: MIT
#include "OperatorModel.h"
#include "support/DictionaryFile.h"
#include "support/MessageLog.h"

#include <random>

// Long random operation of the keypad beside a model of what an operator has to see.

namespace {

const int steps = 4000;
const int fewestCompositions = 300; // with candidates; fewer would prove nothing

// The widget to be tapped.
QWidget *widgetOf(const CharacterKeypad &keypad, const Tap &tap)
{
    static const int cells[][2] = { { 5, 0 }, { 5, 17 }, { 6, 0 },  { 6, 2 }, { 6, 4 },
                                    { 6, 8 }, { 6, 10 }, { 6, 14 }, { 6, 16 } };
    switch (tap.kind) {
    case LetterKey:
        return letterKeys(keypad).at(tap.index);
    case DigitKey:
        return digitPanel(keypad)->getToolButton(short(tap.index));
    case Candidate:
        return candidatePanel(keypad)->getClickLabel(short(tap.index));
    case PagingKey:
        return candidatePanel(keypad)->getToolButton(short(tap.index));
    default:
        return keyAt(keypad, cells[tap.kind - ModeKey][0], cells[tap.kind - ModeKey][1]);
    }
}

} // namespace

class tst_CharacterRandom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keypadAndModelAgree_data();
    void keypadAndModelAgree();

private:
    unsigned below(unsigned limit) { return m_random() % limit; }
    bool oneIn(unsigned chances) { return below(chances) == 0; }
    Tap nextTap(const OperatorModel &model);
    int likelyLetter(const OperatorModel &model);
    void applicationActs(CharacterStage *stage, EditLineModel *line);

    std::mt19937 m_random;
};

// In Chinese mode mostly letters that lead to words, else nothing would ever be found.
int tst_CharacterRandom::likelyLetter(const OperatorModel &model)
{
    const QStringList pinyins = model.words.keys();
    QStringList longer;
    for (const QString &pinyin : pinyins) {
        if (pinyin.startsWith(model.pinyin) && pinyin != model.pinyin)
            longer << pinyin;
    }
    if (longer.isEmpty() || oneIn(10))
        return int(below(26));
    const QString wanted = longer.at(int(below(unsigned(longer.size()))));
    const QStringList letters = labelList(faces[Chinese].letters);
    return int(letters.indexOf(wanted.mid(int(model.pinyin.size()), 1)));
}

Tap tst_CharacterRandom::nextTap(const OperatorModel &model)
{
    const bool chinese = model.face == Chinese;
    Tap tap = { LetterKey, 0 };
    const unsigned dice = below(24);
    if (dice < 12)
        tap.index = chinese ? likelyLetter(model) : int(below(26));
    else if (dice < 13)
        tap = { chinese ? Candidate : DigitKey, int(below(chinese ? 5 : 10)) };
    else if (dice == 13 && !chinese)
        tap.kind = LanguageKey;
    else if (dice < 18 && chinese)
        tap = { PagingKey, int(below(3) > 0) };
    else
        tap.kind = TapKind(ModeKey + int(below(9)));
    if ((tap.kind == EscKey || tap.kind == EnterKey) && !oneIn(4))
        tap.kind = DelKey;
    if (chinese && (tap.kind == LanguageKey || tap.kind == SymbolKey) && !oneIn(4))
        tap = { LetterKey, likelyLetter(model) };
    return tap;
}

// What comes from the application, or from a finger on the edit line.
void tst_CharacterRandom::applicationActs(CharacterStage *stage, EditLineModel *line)
{
    const int size = int(line->text().size());
    const QString text = u("G01 X主轴").left(int(below(9)));
    const int start = int(below(unsigned(size) + 1));
    const int length = int(below(unsigned(size - start) + 1));
    const int longest = qMax(size, int(4 + below(40)));
    switch (below(5)) {
    case 0:
        stage->keypad.setText(text);
        line->show(text);
        break;
    case 1:
        stage->line()->setCursorPosition(start);
        line->select(start, 0);
        break;
    case 2:
        stage->line()->setSelection(start, length);
        line->select(start, length);
        break;
    case 3:
        stage->keypad.setMaxLength(longest);
        line->setMaxLength(longest);
        break;
    default:
        stage->keypad.setObject(&stage->target);
        line->setMaxLength(32767);
        break;
    }
}

void tst_CharacterRandom::keypadAndModelAgree_data()
{
    QTest::addColumn<int>("seed");
    QTest::newRow("seed 1") << 1;
    QTest::newRow("seed 2") << 2;
    QTest::newRow("seed 3") << 3;
    QTest::newRow("seed 4") << 4;
}

void tst_CharacterRandom::keypadAndModelAgree()
{
    QFETCH(int, seed);
    m_random.seed(unsigned(seed));
    DictionaryFile dictionary;
    CHECKED(dictionary.create(everydayWords()));
    MessageLog log;
    CharacterStage stage;
    stage.keypad.show();
    QSignalSpy accepted(&stage.keypad, SIGNAL(accepted()));
    QSignalSpy rejected(&stage.keypad, SIGNAL(rejected()));
    OperatorModel model;
    int found = 0;
    QString before = model.seen();
    for (int step = 0; step < steps; ++step) {
        if (oneIn(40))
            applicationActs(&stage, &model.line);
        const Tap tap = nextTap(model);
        QWidget *widget = widgetOf(stage.keypad, tap);
        QVERIFY(widget && widget->isVisibleTo(&stage.keypad));
        if (widget->isEnabled())
            QTest::mouseClick(widget, Qt::LeftButton);
        model.tap(tap);
        found += model.candidates.isEmpty() ? 0 : 1;

        const QString now =
            seen(stage.keypad, stage.target.text(), int(accepted.count()), int(rejected.count()));
        QVERIFY2(now == model.seen(),
                 qPrintable(QString::fromLatin1("step %1, key %2/%3\n  before %4\n  keypad %5\n"
                                                "  model  %6")
                                .arg(step)
                                .arg(tap.kind)
                                .arg(tap.index)
                                .arg(before, now, model.seen())));
        before = now;
        if (!stage.keypad.isVisible())
            stage.keypad.show();
    }
    QVERIFY2(found >= fewestCompositions, "too few compositions to prove anything");
    QCOMPARE(log.messages(), QStringList());
}

QTEST_MAIN(tst_CharacterRandom)
#include "tst_CharacterRandom.moc"
