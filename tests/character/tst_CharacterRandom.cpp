// SPDX-License-Identifier: MIT
#include "CharacterDriver.h"
#include "DictionaryFile.h"
#include "support/MessageLog.h"

#include <QMap>

#include <random>

// Long random operation of the keypad beside a model of what an operator has to see.

namespace {

const char letters[] = "qwertyuiopasdfghjklzxcvbnm";
const char symbolsTyped[] = "+-*/()[]=%!@#$?;:'\"<>|&\\{}";

enum Kind {
    Letter,
    Digit,
    Candidate,
    Paging,
    CapsKey,
    DelKey,
    SymbolKey,
    CommaKey,
    SpaceKey,
    PeriodKey,
    LanguageKey,
    EscKey,
    EnterKey
};

struct Tap
{
    Kind kind;
    int index;
};

class Model
{
public:
    enum Mode { Lower, Capitals, Symbols, Chinese };

    Model()
        : cursor(0)
        , selectionStart(0)
        , selectionLength(0)
        , longest(32767)
        , mode(Lower)
        , cameFromChinese(false)
        , page(0)
        , pages(0)
        , accepted(0)
        , rejected(0)
    {
        for (size_t i = 0; i < sizeof(everydayWords) / sizeof(everydayWords[0]); ++i)
            words[u(everydayWords[i].pinyin)] << u(everydayWords[i].word);
        forget();
    }

    void tap(const Tap &tap)
    {
        switch (tap.kind) {
        case Letter:
            return tapLetter(tap.index);
        case Digit:
            return type(QString::number(tap.index));
        case Candidate:
            return tapCandidate(tap.index);
        case Paging:
            return turnPage(tap.index == 0 ? -1 : 1);
        case CapsKey:
            return tapCapsKey();
        case DelKey:
            return tapDel();
        case SymbolKey:
            return tapSymbolKey();
        case CommaKey:
            return type(u(","));
        case PeriodKey:
            return type(u("."));
        case SpaceKey:
            return insert(u(" "));
        case LanguageKey:
            return tapLanguageKey();
        case EscKey:
            forget();
            ++rejected;
            return;
        case EnterKey:
            forget();
            written = text;
            ++accepted;
            return;
        }
    }

    void takeText(const QString &newText)
    {
        text = newText.left(longest);
        cursor = int(text.size());
        select(0, cursor);
    }

    void select(int start, int length)
    {
        selectionStart = start;
        selectionLength = length;
        cursor = start + length;
    }

    QString text;
    int cursor, selectionStart, selectionLength, longest;
    Mode mode;
    bool cameFromChinese;
    QString pinyin;
    QStringList candidates, shown;
    int page, pages;
    QString written;
    int accepted, rejected;
    QMap<QString, QStringList> words;

private:
    void tapLetter(int index)
    {
        const QString letter(QLatin1Char(letters[index]));
        if (mode == Symbols)
            insert(QString(QLatin1Char(symbolsTyped[index])));
        else if (mode != Chinese)
            insert(mode == Capitals ? letter.toUpper() : letter);
        else if (pinyin.size() < 11)
            compose(pinyin + letter);
    }

    void tapCandidate(int index)
    {
        const QString candidate = shown.at(index);
        if (!candidate.isEmpty())
            type(candidate);
    }

    void tapCapsKey()
    {
        if (mode == Symbols)
            insert(u("~"));
        else if (mode != Chinese)
            mode = mode == Lower ? Capitals : Lower;
    }

    void tapSymbolKey()
    {
        if (mode == Symbols)
            return insert(u("_"));
        cameFromChinese = mode == Chinese;
        mode = Symbols;
        forget();
    }

    void tapLanguageKey()
    {
        const bool toChinese = mode == Symbols ? cameFromChinese : mode != Chinese;
        mode = toChinese ? Chinese : Lower;
        forget();
    }

    void tapDel()
    {
        if (!pinyin.isEmpty())
            return compose(pinyin.left(pinyin.size() - 1));
        if (selectionLength == 0 && cursor > 0)
            select(cursor - 1, 1);
        insert(QString());
    }

    void compose(const QString &newPinyin)
    {
        if (newPinyin.isEmpty())
            return forget();
        const QStringList found = words.value(newPinyin);
        if (found.isEmpty())
            forget();
        pinyin = newPinyin;
        candidates = found;
        page = 0;
        pages = (int(found.size()) + 4) / 5;
        for (int i = 0; i < 5 && i < found.size(); ++i)
            shown[i] = found.at(i);
    }

    void turnPage(int step)
    {
        if (page + step < 0 || page + step >= pages)
            return;
        page += step;
        for (int i = 0; i < 5; ++i)
            shown[i] = candidates.value(5 * page + i);
    }

    void forget()
    {
        pinyin.clear();
        candidates.clear();
        page = pages = 0;
        shown.clear();
        for (int i = 0; i < 5; ++i)
            shown << QString();
    }

    /* Ends a composition, then inserts. */
    void type(const QString &what)
    {
        forget();
        insert(what);
    }

    void insert(const QString &what)
    {
        if (selectionLength > 0) {
            text.remove(selectionStart, selectionLength);
            cursor = selectionStart;
        }
        const QString fitting = what.left(qMax(0, longest - int(text.size())));
        text.insert(cursor, fitting);
        select(cursor + int(fitting.size()), 0);
    }
};

/* What an operator sees of keypad or model, in one line. */
QString line(const QString &text, int cursor, const QString &selection, const QString &face,
             const QString &pinyin, const QStringList &candidates, const QString &written,
             int accepted, int rejected)
{
    QStringList parts;
    parts << text << QString::number(cursor) << selection << face << pinyin << candidates << written
          << QString::number(accepted) << QString::number(rejected);
    return parts.join(u(" | "));
}

QString seen(const Model &model)
{
    static const char *const faces[] = { "caps CN *# q digits", "CAPS CN *# Q digits",
                                         "~ << _ + digits", "blank EN *# q candidates" };
    return line(model.text, model.cursor,
                model.text.mid(model.selectionStart, model.selectionLength), u(faces[model.mode]),
                model.pinyin, model.shown, model.written, model.accepted, model.rejected);
}

/* The widget to be clicked. */
QWidget *widgetOf(const CharacterKeypad &keypad, const Tap &tap)
{
    static const int cells[][2] = { { 5, 0 }, { 5, 17 }, { 6, 0 },  { 6, 2 }, { 6, 4 },
                                    { 6, 8 }, { 6, 10 }, { 6, 14 }, { 6, 16 } };
    switch (tap.kind) {
    case Letter:
        return letterKeys(keypad).at(tap.index);
    case Digit:
        return digitPanel(keypad)->getToolButton(short(tap.index));
    case Candidate:
        return candidatePanel(keypad)->getClickLabel(short(tap.index));
    case Paging:
        return candidatePanel(keypad)->getToolButton(short(tap.index));
    default:
        return keyAt(keypad, cells[tap.kind - CapsKey][0], cells[tap.kind - CapsKey][1]);
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
    Tap nextTap(const Model &model);
    int likelyLetter(const Model &model);
    void applicationActs(CharacterStage &stage, Model &model);

    std::mt19937 m_random;
};

void tst_CharacterRandom::keypadAndModelAgree_data()
{
    QTest::addColumn<int>("seed");
    QTest::newRow("seed 1") << 1;
    QTest::newRow("seed 2") << 2;
    QTest::newRow("seed 3") << 3;
    QTest::newRow("seed 4") << 4;
}

/* In Chinese mode mostly letters that lead to words, else nothing would ever be found. */
int tst_CharacterRandom::likelyLetter(const Model &model)
{
    QStringList keys = model.words.keys();
    for (int i = int(keys.size()) - 1; i >= 0; --i) {
        if (!keys.at(i).startsWith(model.pinyin) || keys.at(i) == model.pinyin)
            keys.removeAt(i);
    }
    if (keys.isEmpty() || oneIn(10))
        return int(below(26));
    const QString key = keys.at(int(below(unsigned(keys.size()))));
    return int(QString::fromLatin1(letters).indexOf(key.at(model.pinyin.size())));
}

Tap tst_CharacterRandom::nextTap(const Model &model)
{
    const bool chinese = model.mode == Model::Chinese;
    Tap tap = { Letter, 0 };
    const unsigned dice = below(24);
    if (dice < 12)
        tap.index = chinese ? likelyLetter(model) : int(below(26));
    else if (dice < 13)
        tap = { chinese ? Candidate : Digit, int(below(chinese ? 5 : 10)) };
    else if (dice == 13 && !chinese)
        tap.kind = LanguageKey;
    else if (dice < 18 && chinese)
        tap = { Paging, int(below(3) > 0) };
    else
        tap.kind = Kind(CapsKey + int(below(9)));
    if ((tap.kind == EscKey || tap.kind == EnterKey) && !oneIn(4))
        tap.kind = DelKey;
    if (chinese && (tap.kind == LanguageKey || tap.kind == SymbolKey) && !oneIn(4))
        tap = { Letter, likelyLetter(model) };
    return tap;
}

/* What comes from the application, or from a finger on the edit line. */
void tst_CharacterRandom::applicationActs(CharacterStage &stage, Model &model)
{
    KeyBoardLineEdit *edit = editLine(&stage.keypad);
    const int size = int(model.text.size());
    const QString newText = u("G01 X主轴").left(int(below(9)));
    switch (below(5)) {
    case 0:
        stage.keypad.setText(newText);
        model.takeText(newText);
        break;
    case 1:
        model.select(int(below(unsigned(size) + 1)), 0);
        edit->setCursorPosition(model.cursor);
        break;
    case 2:
        if (size > 0) {
            const int start = int(below(unsigned(size)));
            model.select(start, 1 + int(below(unsigned(size - start))));
            edit->setSelection(model.selectionStart, model.selectionLength);
        }
        break;
    case 3:
        model.longest = qMax(size, int(4 + below(40)));
        stage.keypad.setMaxLength(model.longest);
        model.select(size, 0); // a new limit sets the edit line's text again
        break;
    default:
        stage.keypad.setObject(&stage.target);
        model.longest = 32767;
        model.select(size, 0);
        break;
    }
}

void tst_CharacterRandom::keypadAndModelAgree()
{
    QFETCH(int, seed);
    m_random.seed(unsigned(seed));
    DictionaryFile dictionary;
    dictionary.create(everydayWords);
    MessageLog log;
    CharacterStage stage;
    stage.keypad.show();
    QSignalSpy accepted(&stage.keypad, SIGNAL(accepted()));
    QSignalSpy rejected(&stage.keypad, SIGNAL(rejected()));
    Model model;
    int found = 0;
    QString before = seen(model);
    for (int step = 0; step < 4000; ++step) {
        if (oneIn(40))
            applicationActs(stage, model);
        const Tap tap = nextTap(model);
        QWidget *widget = widgetOf(stage.keypad, tap);
        QVERIFY(widget && widget->isVisibleTo(&stage.keypad));
        if (widget->isEnabled())
            QTest::mouseClick(widget, Qt::LeftButton);
        model.tap(tap);
        found += model.candidates.isEmpty() ? 0 : 1;

        const KeyBoardLineEdit *edit = editLine(&stage.keypad);
        const QString now =
            line(edit->text(), edit->cursorPosition(), edit->selectedText(), face(stage.keypad),
                 shownPinyin(stage.keypad), shownCandidates(candidatePanel(stage.keypad)),
                 stage.target.text(), accepted.count(), rejected.count());
        QVERIFY2(now == seen(model),
                 qPrintable(QString::fromLatin1("step %1, key %2/%3\n  before %4\n  keypad %5\n"
                                                "  model  %6")
                                .arg(step)
                                .arg(tap.kind)
                                .arg(tap.index)
                                .arg(before, now, seen(model))));
        before = now;
        if (!stage.keypad.isVisible())
            stage.keypad.show();
    }
    QVERIFY2(found > 300, "too few compositions to prove anything");
    QCOMPARE(log.messages(), QStringList());
}

QTEST_MAIN(tst_CharacterRandom)
#include "tst_CharacterRandom.moc"
