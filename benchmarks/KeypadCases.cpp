// SPDX-License-Identifier: MIT
#include "BareKeypad.h"
#include "Bench.h"
#include "Cases.h"
#include "Dictionary.h"
#include "Kinds.h"

#include <QLineEdit>
#include <QToolButton>

#include <memory>
#include <vector>

namespace {

const double mostOfConstruction = 1.3;
const int constructionRounds = 200;
const int keyRounds = 5000;

class BareDialog
{
public:
    BareDialog(const BareKeypad &shape, bool hasDictionary)
        : m_dialog(shape.create())
        , m_model(hasDictionary ? new BareModel : nullptr)
    {
    }

private:
    std::unique_ptr<QDialog> m_dialog;
    std::unique_ptr<BareModel> m_model;
};

void constructKind(Bench &bench, const Kind &kind)
{
    const BareKeypad shape(*kind.make());
    std::unique_ptr<QDialog> keypad;
    std::unique_ptr<BareDialog> bare;
    const int keys = kind.make()->findChildren<QToolButton *>().size();
    bench.compare({ QString::fromLatin1("%1: new, beside %2 bare keys%3")
                        .arg(QLatin1String(kind.name))
                        .arg(keys)
                        .arg(QLatin1String(kind.hasDictionary ? " and select()" : "")),
                    mostOfConstruction, constructionRounds },
                  { doNothing, [&] { keypad = kind.make(); },
                    [&] {
                        keypad.reset();
                    } },
                  { doNothing, [&] { bare.reset(new BareDialog(shape, kind.hasDictionary)); },
                    [&] {
                        bare.reset();
                    } });
}

void constructAll(Bench &bench)
{
    std::vector<BareKeypad> shapes;
    for (const Kind &kind : kinds)
        shapes.emplace_back(*kind.make());
    std::vector<std::unique_ptr<QDialog>> keypads(shapes.size());
    std::vector<std::unique_ptr<BareDialog>> bare(shapes.size());
    const auto makeKeypads = [&] {
        for (size_t i = 0; i < shapes.size(); ++i)
            keypads[i] = kinds[i].make();
    };
    const auto makeBare = [&] {
        for (size_t i = 0; i < shapes.size(); ++i)
            bare[i].reset(new BareDialog(shapes[i], kinds[i].hasDictionary));
    };
    const auto removeKeypads = [&] {
        for (auto &keypad : keypads)
            keypad.reset();
    };
    const auto removeBare = [&] {
        for (auto &dialog : bare)
            dialog.reset();
    };
    bench.compare({ QLatin1String("all five: new, beside bare dialogs"), mostOfConstruction,
                    constructionRounds },
                  { doNothing, makeKeypads, removeKeypads }, { doNothing, makeBare, removeBare });
}

void pressKind(Bench &bench, const Kind &kind)
{
    const std::unique_ptr<QDialog> keypad = kind.make();
    const std::unique_ptr<QDialog> bare(BareKeypad(*keypad).create());
    connectBareKey(*bare, kind);
    QToolButton *button = keyOf(*keypad, kind);
    QToolButton *bareButton = keyOf(*bare, kind);
    QLineEdit *line = lineOf(*keypad);
    QLineEdit *bareLine = lineOf(*bare);
    bench.compare(
        { QString::fromLatin1("%1: a key, beside click and insertion")
              .arg(QLatin1String(kind.name)),
          0, keyRounds },
        { [line] { line->clear(); }, [button] { button->click(); }, doNothing },
        { [bareLine] { bareLine->clear(); }, [bareButton] { bareButton->click(); }, doNothing });
}

} // namespace

void Cases::construct(Bench &bench)
{
    Dictionary::use(QLatin1String(Dictionary::general));
    for (const Kind &kind : kinds)
        constructKind(bench, kind);
    constructAll(bench);
}

void Cases::press(Bench &bench)
{
    for (const Kind &kind : kinds) {
        if (qstrcmp(kind.key, "+") != 0) // which needs the focus
            pressKind(bench, kind);
    }
}
