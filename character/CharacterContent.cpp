// SPDX-License-Identifier: MIT
//
// What the keys of the character keypad do, by mode.

#include "CharacterKeypad.h"

#include "CharacterKeys_p.h"
#include "ChnPanel.h"
#include "KeyBoardLineEdit.h"
#include "KeypadRules_p.h"
#include "PinyinDictionary_p.h"

#include <QLabel>

using namespace CharacterKeys;

namespace {

const int longestPinyin = 11; // letters
const int longText = 1000;    // characters

// What the edit line will take of a long text. It copies that part of a longer one again for each
// character in it: a candidate of a megabyte would hold a slow panel up for seconds.
QString fittingPart(const QLineEdit *line, const QString &text)
{
    if (text.size() <= longText || !line->inputMask().isEmpty())
        return text;
    const int kept = int(line->text().size() - line->selectedText().size());
    return text.left(line->maxLength() - kept);
}

} // namespace

void CharacterKeypad::sendContent(const QString &text)
{
    if (text.isEmpty())
        return;
    // The mapper may replace the string while it is worked on: candidates are mapped anew.
    const QString key = text;
    switch (m_mode) {
    case SymbolMode:
        sendSpecialSymbols(key);
        break;
    case ChineseMode:
        sendChnContent(key);
        break;
    default:
        sendEnContent(key);
        break;
    }
}

void CharacterKeypad::setModes(Mode last, Mode current)
{
    m_lastMode = last;
    m_mode = current;
}

void CharacterKeypad::sendEnContent(const QString &text)
{
    if (text == QLatin1String(chineseLabel)) {
        setUpChanese();
        setModes(EnglishMode, ChineseMode);
    } else if (text == QLatin1String(symbolsLabel)) {
        setUpSpecialSymbols();
        setModes(EnglishMode, SymbolMode);
    } else if (text == QLatin1String(capsLabel)) {
        setUpEnglishCaps();
    } else if (text == QLatin1String(lowerCaseLabel)) {
        setUpEnglish();
    } else {
        editText(text);
    }
}

void CharacterKeypad::sendSpecialSymbols(const QString &text)
{
    if (text != QLatin1String(backLabel)) {
        editText(text == QLatin1String(ampersandLabel) ? QString(QLatin1Char('&')) : text);
    } else if (m_lastMode == EnglishMode) {
        setUpEnglish();
        setModes(SymbolMode, EnglishMode);
    } else if (m_lastMode == ChineseMode) {
        setUpChanese();
        setModes(SymbolMode, ChineseMode);
    }
}

void CharacterKeypad::sendChnContent(const QString &text)
{
    if (text == QLatin1String(englishLabel)) {
        clearComposition();
        setUpEnglish();
        setModes(ChineseMode, EnglishMode);
    } else if (text == QLatin1String(symbolsLabel)) {
        clearComposition();
        setUpSpecialSymbols();
        setModes(ChineseMode, SymbolMode);
    } else if (text == QLatin1String(delLabel) && !pinyin().isEmpty()) {
        compose(pinyin().left(pinyin().length() - 1));
    } else if (text == QLatin1String(delLabel) || text == QLatin1String(spaceLabel)) {
        editText(text);
    } else if (letters().contains(text)) {
        if (pinyin().length() < longestPinyin)
            compose(pinyin() + text);
    } else if (text == QLatin1String(nextPageLabel)) {
        m_chnPanel->nextPage(m_candidates, m_signalMapper);
    } else if (text == QLatin1String(previousPageLabel)) {
        m_chnPanel->prePage(m_candidates, m_signalMapper);
    } else {
        clearComposition();
        editText(text);
    }
}

void CharacterKeypad::editText(const QString &key)
{
    if (key == QLatin1String(delLabel))
        deleteCharacter();
    else if (key == QLatin1String(escLabel))
        reject();
    else if (key == QLatin1String(enterLabel))
        Keypad::confirm(this, m_object, m_lineEdit);
    else if (key == QLatin1String(spaceLabel))
        m_lineEdit->insert(QString(QLatin1Char(' ')));
    else
        m_lineEdit->insert(fittingPart(m_lineEdit, key));
}

void CharacterKeypad::deleteCharacter()
{
    if (!m_lineEdit->validator() || !targetIsDateTimeField() || m_lineEdit->hasSelectedText()) {
        m_lineEdit->backspace();
        return;
    }
    // A validator that knows only whole dates may refuse backspace(), which is still tried so that
    // the edit line tells of an edit; the shorter text is then set whole.
    const int cursor = m_lineEdit->cursorPosition();
    QString text = m_lineEdit->text();
    text.remove(cursor - 1, 1);
    m_lineEdit->backspace();
    m_lineEdit->setText(text);
    m_lineEdit->setCursorPosition(cursor - 1);
}

bool CharacterKeypad::targetIsDateTimeField() const
{
    return m_object && m_object->inherits("DateTimeField");
}

// Pinyin

QString CharacterKeypad::pinyin() const
{
    return m_chnPanel->getPinyinLabel()->text();
}

void CharacterKeypad::compose(const QString &pinyin)
{
    if (pinyin.isEmpty()) {
        clearComposition();
        return;
    }
    m_chnPanel->getPinyinLabel()->setText(pinyin);
    m_candidates = PinyinDictionary::candidates(m_dictionary, pinyin);
    if (m_candidates.isEmpty())
        m_chnPanel->clearPinYin(m_signalMapper, 0);
    else
        m_chnPanel->setNewPinYin(m_candidates, m_signalMapper);
}

void CharacterKeypad::clearComposition()
{
    m_candidates.clear();
    m_chnPanel->clearPinYin(m_signalMapper, 1);
}
