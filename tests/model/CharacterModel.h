// SPDX-License-Identifier: MIT
#ifndef CHARACTERMODEL_H
#define CHARACTERMODEL_H

#include "KeypadModel.h"

#include "support/DictionaryFile.h"

// The dictionary that keypad and model have: words of several pages, and some that read as keys do.
QList<DictionaryRow> modelWords();

class CharacterModel : public KeypadModel
{
public:
    explicit CharacterModel(World *world);

    // In the order of the keys: ten digits, 26 letters, those below, two to page, five candidates.
    enum Place {
        Digits = 0,
        Letters = 10,
        ModeKey = 36,
        DelKey,
        SymbolKey,
        CommaKey,
        SpaceKey,
        PeriodKey,
        LanguageKey,
        EscKey,
        EnterKey,
        PreviousKey,
        NextKey,
        Candidates,
        KeyCount = Candidates + 5
    };

    Seen seen() override;
    int likelyKey(int choice) const override;

protected:
    void act(int key) override;
    void confirm() override; // by a hard key

private:
    enum Mode { English = 0, Symbols = 1, Chinese = 2 };

    void sendEnglish(const QString &label);
    void sendSymbol(const QString &label);
    void sendChinese(const QString &label);
    void sendEditing(const QString &label);
    void deleteOne();

    void showEnglish();
    void showCapitals();
    void showSymbols();
    void showChinese();
    void showFace(const QStringList &letters, const char *mode, const char *language,
                  const char *symbol, bool candidates);
    void goTo(Mode mode, Mode from);

    void compose(const QString &pinyin);
    void showPage(int page);
    void forget();

    Mode m_mode, m_lastMode;
    QString m_pinyin;
    QStringList m_candidates;
    int m_page, m_pages;
};

#endif
