// SPDX-License-Identifier: MIT
#include "Bench.h"
#include "Cases.h"
#include "Dictionary.h"
#include "Kinds.h"

#include <HMIDevice/CharacterKeypad.h>

#include <QTextStream>
#include <QToolButton>

#include <memory>

namespace {

const double mostWithRows = 2.5;
const double mostWithoutRows = 5;
const double mostAmongMany = 1.5;
const int letterRounds = 500;
const int largeRounds = 100;

QToolButton *key(const QWidget &keypad, const QString &label)
{
    const QList<QToolButton *> keys = keypad.findChildren<QToolButton *>();
    for (QToolButton *button : keys) {
        if (button->text() == label)
            return button;
    }
    qFatal("no key %s", qPrintable(label));
    return nullptr;
}

std::unique_ptr<CharacterKeypad> chineseKeypad()
{
    std::unique_ptr<CharacterKeypad> keypad(new CharacterKeypad(nullptr, Qt::WindowFlags()));
    key(*keypad, QLatin1String("CN"))->click();
    return keypad;
}

// The last letter of \a pinyin; "Del" takes it back.
void composeLast(Bench &bench, const QString &pinyin)
{
    const std::unique_ptr<CharacterKeypad> keypad = chineseKeypad();
    PreparedQuery query;
    const QString last = pinyin.right(1);
    const QString others = pinyin.left(pinyin.length() - 1);
    for (const QChar letter : others)
        key(*keypad, QString(letter))->click();
    QToolButton *letter = key(*keypad, last);
    QToolButton *del = key(*keypad, QLatin1String("Del"));
    const int rows = query.candidates(pinyin).size();
    bench.compare({ QString::fromLatin1("\"%1\" after \"%2\" (%3 rows), beside the query")
                        .arg(last, others)
                        .arg(rows),
                    rows > 0 ? mostWithRows : mostWithoutRows, letterRounds },
                  { doNothing, [&] { letter->click(); },
                    [&] {
                        del->click();
                    } },
                  { doNothing, [&] { query.candidates(pinyin); }, doNothing });
}

struct Typist
{
    std::unique_ptr<CharacterKeypad> keypad;
    QToolButton *letter;
};

// A letter on a keypad that was made for the dictionary of \a rows rows, the second time.
Operation letterAmong(int rows, Typist *typist)
{
    const auto prepare = [rows, typist] {
        typist->keypad.reset();
        Dictionary::use(Dictionary::numbered(rows));
        typist->keypad = chineseKeypad();
        typist->letter = key(*typist->keypad, QLatin1String("n"));
        typist->letter->click();
        key(*typist->keypad, QLatin1String("Del"))->click();
    };
    return { prepare, [typist] { typist->letter->click(); },
             [typist] {
                 typist->keypad.reset();
             } };
}

} // namespace

void Cases::compose(Bench &bench)
{
    if (!Dictionary::exists(QLatin1String(Dictionary::general))) {
        QTextStream(stdout) << "No data.db was beside the program: pinyin is not measured\n";
        return;
    }
    Dictionary::use(QLatin1String(Dictionary::general));
    composeLast(bench, QLatin1String("z"));
    composeLast(bench, QLatin1String("zh"));
    composeLast(bench, QLatin1String("zhu"));
    composeLast(bench, QLatin1String("v")); // begins no syllable
}

void Cases::composeAmongMany(Bench &bench)
{
    if (!Dictionary::exists(Dictionary::numbered(manyRows))) {
        QTextStream(stdout) << "No room for a dictionary of " << manyRows << " rows\n";
        return;
    }
    Typist typist;
    bench.compare(
        { QString::fromLatin1("\"n\" among %1 rows, beside %2").arg(manyRows).arg(fewRows),
          mostAmongMany, largeRounds },
        letterAmong(manyRows, &typist), letterAmong(fewRows, &typist));
}
