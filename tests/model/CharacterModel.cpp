// SPDX-License-Identifier: MIT
#include "CharacterModel.h"

#include "support/Text.h"

namespace {

const int pageSize = 5;
const int longestPinyin = 11;

const char smallLetters[] = "qwertyuiopasdfghjklzxcvbnm";
const char capitalLetters[] = "QWERTYUIOPASDFGHJKLZXCVBNM";
const char symbols[] = "+ - * / ( ) [ ] = % ! @ # $ ? ; : ' \" < > | && \\ { }";

// clang-format off
const DictionaryRow words[] = {
    { "a", "啊" }, { "n", "嗯" }, { "a", "阿" }, { "n", "那" },
    { "ni", "你" }, { "ni", "尼" }, { "ni", "泥" }, { "ni", "拟" }, { "ni", "逆" },
    { "nin", "您" },
    { "ni", "倪" }, { "ni", "妮" }, { "ni", "腻" }, { "ni", "匿" }, { "ni", "溺" },
    { "ni", "呢" }, { "ni", "睨" },
    { "nihao", "你好" },
    { "hao", "好" }, { "hao", "号" }, { "hao", "毫" }, { "hao", "豪" }, { "hao", "耗" },
    { "zhu", "主" }, { "zhu", "住" }, { "zhu", "注" }, { "zhu", "祝" }, { "zhu", "柱" },
    { "zhu", "铸" },
    { "h", "h" }, { "h", "" }, { "h", "和 他" }, { "h", "河" },
    // Words that are also what keys say.
    { "o", "Del" }, { "o", "Space" }, { "o", "EN" }, { "o", "<" }, { "o", ">" }, { "o", "*#" },
    { "o", "&&" }, { "o", "<<" }, { "o", "a" }, { "o", "CN" },
    { "shuangzhuan", "双转" }, { "shuangzhuang", "双桩" }, { "", "没有" }
};
// clang-format on

QStringList letterList(const char *letters)
{
    QStringList list;
    for (const char *letter = letters; *letter; ++letter)
        list << QString(QLatin1Char(*letter));
    return list;
}

QStringList wordsFor(const QString &pinyin)
{
    QStringList list;
    for (const DictionaryRow &row : words) {
        if (u(row.pinyin) == pinyin)
            list << u(row.word);
    }
    return list;
}

} // namespace

QList<DictionaryRow> modelWords()
{
    QList<DictionaryRow> list;
    for (const DictionaryRow &row : words)
        list << row;
    return list;
}

CharacterModel::CharacterModel(World *world)
    : KeypadModel(world)
    , m_mode(English)
    , m_lastMode(English)
    , m_page(0)
    , m_pages(0)
{
    for (int digit = 0; digit < 10; ++digit)
        addKey(QString::number(digit));
    const QStringList blank = letterList(smallLetters);
    for (const QString &letter : blank)
        addKey(letter);
    const char *const others[] = { "", "Del", "", ",", "Space", ".", "", "Esc", "Enter", "<", ">" };
    for (const char *label : others)
        addKey(u(label));
    for (int i = 0; i < pageSize; ++i)
        addKey(QString());
    showEnglish();
}

Seen CharacterModel::seen()
{
    Seen seen = KeypadModel::seen();
    seen.parts << m_pinyin << u(m_keys.at(Candidates).shown ? "candidates" : "digits");
    return seen;
}

// In Chinese mostly a letter that leads to a word: else nothing would ever be found.
int CharacterModel::likelyKey(int choice) const
{
    if (m_mode != Chinese)
        return choice % 3 == 0 ? int(LanguageKey) : int(DelKey);
    if (choice % 8 == 7 || (m_pages > 1 && choice % 8 > 3))
        return choice / 8 % 3 == 0 ? PreviousKey : NextKey;
    QStringList next;
    for (const DictionaryRow &row : words) {
        const QString pinyin = u(row.pinyin);
        if (pinyin.size() > m_pinyin.size() && pinyin.startsWith(m_pinyin))
            next << pinyin.mid(int(m_pinyin.size()), 1);
    }
    if (next.isEmpty())
        return Candidates + choice % pageSize;
    const QString letter = next.at(choice / 8 % int(next.size()));
    return Letters + int(letterList(smallLetters).indexOf(letter));
}

// Every key sends what it says.
void CharacterModel::act(int key)
{
    const QString label = m_keys.at(key).label;
    if (label.isEmpty())
        return;
    if (m_mode == Symbols)
        sendSymbol(label);
    else if (m_mode == Chinese)
        sendChinese(label);
    else
        sendEnglish(label);
}

void CharacterModel::confirm()
{
    act(EnterKey);
}

void CharacterModel::sendEnglish(const QString &label)
{
    if (label == u("CN")) {
        showChinese();
        goTo(Chinese, English);
    } else if (label == u("*#")) {
        showSymbols();
        goTo(Symbols, English);
    } else if (label == u("caps")) {
        showCapitals();
    } else if (label == u("CAPS")) {
        showEnglish();
    } else {
        sendEditing(label);
    }
}

void CharacterModel::sendSymbol(const QString &label)
{
    if (label != u("<<")) {
        sendEditing(label == u("&&") ? u("&") : label);
    } else if (m_lastMode == English) {
        showEnglish();
        goTo(English, Symbols);
    } else if (m_lastMode == Chinese) {
        showChinese();
        goTo(Chinese, Symbols);
    }
}

void CharacterModel::sendChinese(const QString &label)
{
    if (label == u("EN")) {
        forget();
        showEnglish();
        goTo(English, Chinese);
    } else if (label == u("*#")) {
        forget();
        showSymbols();
        goTo(Symbols, Chinese);
    } else if (label == u("Del") && !m_pinyin.isEmpty()) {
        compose(m_pinyin.left(m_pinyin.size() - 1));
    } else if (label == u("Del") || label == u("Space")) {
        sendEditing(label);
    } else if (u(smallLetters).contains(label)) {
        if (m_pinyin.size() < longestPinyin)
            compose(m_pinyin + label);
    } else if (label == u(">")) {
        if (m_page + 1 < m_pages)
            showPage(m_page + 1);
    } else if (label == u("<")) {
        if (m_page > 0)
            showPage(m_page - 1);
    } else {
        forget();
        sendEditing(label);
    }
}

void CharacterModel::sendEditing(const QString &label)
{
    if (label == u("Del"))
        deleteOne();
    else if (label == u("Esc"))
        cancel();
    else if (label == u("Enter"))
        KeypadModel::confirm();
    else
        m_line.insert(label == u("Space") ? u(" ") : label);
}

// A field for dates and times has its text cut and set whole; before the first character that is
// the last one.
void CharacterModel::deleteOne()
{
    const bool special = m_line.validator() && target() != noTarget
        && world()->targets.at(target()).isDateTimeField && !m_line.hasSelection();
    if (!special)
        return m_line.backspace();
    const int cursor = m_line.cursor();
    QString text = m_line.text();
    const int cut = cursor > 0 ? cursor - 1 : int(text.size()) - 1;
    if (cut >= 0)
        text = text.left(cut) + text.mid(cut + 1);
    m_line.backspace();
    m_line.setText(text);
    m_line.setCursor(cursor - 1);
}

void CharacterModel::showEnglish()
{
    showFace(letterList(smallLetters), "caps", "CN", "*#", false);
}

void CharacterModel::showCapitals()
{
    showFace(letterList(capitalLetters), "CAPS", "CN", "*#", false);
}

void CharacterModel::showSymbols()
{
    showFace(u(symbols).split(QLatin1Char(' ')), "~", "<<", "_", false);
}

void CharacterModel::showChinese()
{
    showFace(letterList(smallLetters), "", "EN", "*#", true);
}

void CharacterModel::showFace(const QStringList &letters, const char *mode, const char *language,
                              const char *symbol, bool candidates)
{
    for (int i = 0; i < letters.size(); ++i)
        m_keys[Letters + i].label = letters.at(i);
    m_keys[ModeKey].label = u(mode);
    setKeyEnabled(ModeKey, *mode != '\0');
    m_keys[LanguageKey].label = u(language);
    m_keys[SymbolKey].label = u(symbol);
    for (int i = 0; i < Letters; ++i)
        m_keys[i].shown = !candidates;
    for (int i = PreviousKey; i < KeyCount; ++i)
        m_keys[i].shown = candidates;
}

void CharacterModel::goTo(Mode mode, Mode from)
{
    m_mode = mode;
    m_lastMode = from;
}

void CharacterModel::compose(const QString &pinyin)
{
    if (pinyin.isEmpty())
        return forget();
    const QStringList found = wordsFor(pinyin);
    if (found.isEmpty())
        forget();
    m_pinyin = pinyin;
    m_candidates = found;
    m_page = 0;
    m_pages = (int(found.size()) + pageSize - 1) / pageSize;
    for (int i = 0; i < pageSize && i < found.size(); ++i)
        m_keys[Candidates + i].label = found.at(i); // others keep what they show
}

void CharacterModel::showPage(int page)
{
    m_page = page;
    for (int i = 0; i < pageSize; ++i)
        m_keys[Candidates + i].label = m_candidates.value(page * pageSize + i);
}

void CharacterModel::forget()
{
    m_pinyin.clear();
    m_candidates.clear();
    m_page = m_pages = 0;
    for (int i = 0; i < pageSize; ++i)
        m_keys[Candidates + i].label.clear();
}
