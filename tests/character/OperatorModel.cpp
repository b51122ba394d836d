// SPDX-License-Identifier: MIT
#include "OperatorModel.h"

#include "support/DictionaryFile.h"

namespace {

const int longestPinyin = 11;
const int pageSize = 5;

QString inOneLine(const QString &line, const QString &face, const QString &pinyin,
                  const QStringList &candidates, const QString &written, int accepted, int rejected)
{
    QStringList parts;
    parts << line << face << pinyin << candidates << written << QString::number(accepted)
          << QString::number(rejected);
    return parts.join(u(" | "));
}

} // namespace

OperatorModel::OperatorModel()
    : face(English)
    , m_cameFromChinese(false)
    , m_page(0)
    , m_pages(0)
    , m_accepted(0)
    , m_rejected(0)
{
    const QList<DictionaryRow> rows = everydayWords();
    for (const DictionaryRow &row : rows)
        words[u(row.pinyin)] << u(row.word);
    forget();
}

void OperatorModel::tap(const Tap &tap)
{
    switch (tap.kind) {
    case LetterKey:
        return tapLetter(tap.index);
    case DigitKey:
        return type(QString::number(tap.index));
    case Candidate:
        return tapCandidate(tap.index);
    case PagingKey:
        return turnPage(tap.index == 0 ? -1 : 1);
    case ModeKey:
        return tapModeKey();
    case DelKey:
        return tapDel();
    case SymbolKey:
        return tapSymbolKey();
    case CommaKey:
        return type(u(","));
    case PeriodKey:
        return type(u("."));
    case SpaceKey:
        return line.insert(u(" "));
    case LanguageKey:
        return tapLanguageKey();
    case EscKey:
        forget();
        ++m_rejected;
        return;
    case EnterKey:
        forget();
        m_written = line.text();
        ++m_accepted;
        return;
    }
}

QString OperatorModel::seen() const
{
    return inOneLine(described(line), u(faces[face].shown), pinyin, m_shown, m_written, m_accepted,
                     m_rejected);
}

void OperatorModel::tapLetter(int index)
{
    const QString label = labelList(faces[face].letters).at(index);
    if (face != Chinese)
        line.insert(label == u("&&") ? u("&") : label);
    else if (pinyin.size() < longestPinyin)
        compose(pinyin + label);
}

void OperatorModel::tapCandidate(int index)
{
    const QString candidate = m_shown.at(index);
    if (!candidate.isEmpty())
        type(candidate);
}

void OperatorModel::tapModeKey()
{
    if (face == Symbols)
        line.insert(u("~"));
    else if (face != Chinese)
        face = face == English ? Capitals : English;
}

void OperatorModel::tapSymbolKey()
{
    if (face == Symbols)
        return line.insert(u("_"));
    m_cameFromChinese = face == Chinese;
    face = Symbols;
    forget();
}

void OperatorModel::tapLanguageKey()
{
    const bool toChinese = face == Symbols ? m_cameFromChinese : face != Chinese;
    face = toChinese ? Chinese : English;
    forget();
}

void OperatorModel::tapDel()
{
    if (pinyin.isEmpty())
        line.erase();
    else
        compose(pinyin.left(pinyin.size() - 1));
}

void OperatorModel::compose(const QString &newPinyin)
{
    if (newPinyin.isEmpty())
        return forget();
    const QStringList found = words.value(newPinyin);
    if (found.isEmpty())
        forget();
    pinyin = newPinyin;
    candidates = found;
    m_page = 0;
    m_pages = (int(found.size()) + pageSize - 1) / pageSize;
    for (int i = 0; i < pageSize && i < found.size(); ++i)
        m_shown[i] = found.at(i);
}

void OperatorModel::turnPage(int step)
{
    if (m_page + step < 0 || m_page + step >= m_pages)
        return;
    m_page += step;
    for (int i = 0; i < pageSize; ++i)
        m_shown[i] = candidates.value(pageSize * m_page + i);
}

void OperatorModel::forget()
{
    pinyin.clear();
    candidates.clear();
    m_page = m_pages = 0;
    m_shown.clear();
    for (int i = 0; i < pageSize; ++i)
        m_shown << QString();
}

// Ends a composition, then inserts.
void OperatorModel::type(const QString &text)
{
    forget();
    line.insert(text);
}

QString seen(const CharacterKeypad &keypad, const QString &written, int accepted, int rejected)
{
    return inOneLine(described(editLine(&keypad)), shownFace(keypad), shownPinyin(keypad),
                     shownCandidates(candidatePanel(keypad)), written, accepted, rejected);
}
