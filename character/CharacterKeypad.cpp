// SPDX-License-Identifier: MIT
#include "CharacterKeypad.h"

#include "ChnPanel.h"
#include "ClickLabel.h"
#include "HMIDeviceInfo.h"
#include "KeyBoardLineEdit.h"
#include "KeypadLook_p.h"
#include "KeypadRules_p.h"
#include "NumPanel.h"
#include "PinyinDictionary_p.h"
#include "QtDifferences_p.h"

#include <QGraphicsView>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QSignalMapper>
#include <QToolButton>
#include <QVariant>

namespace {

const int gridColumns = 20;
const int longestPinyin = 11; // letters

const char capsLabel[] = "caps";      // while lower case is shown
const char lowerCaseLabel[] = "CAPS"; // while capitals are shown
const char chineseLabel[] = "CN";
const char englishLabel[] = "EN";
const char symbolsLabel[] = "*#";
const char backLabel[] = "<<"; // from symbols
const char delLabel[] = "Del";
const char escLabel[] = "Esc";
const char enterLabel[] = "Enter";
const char spaceLabel[] = "Space";
const char ampersandLabel[] = "&&"; // which a tool button shows as one ampersand

// clang-format off
const Keypad::KeyCell keyCells[] = {
    { "q",           3,  0, 2, Keypad::InsertLabel    },
    { "w",           3,  2, 2, Keypad::InsertLabel    },
    { "e",           3,  4, 2, Keypad::InsertLabel    },
    { "r",           3,  6, 2, Keypad::InsertLabel    },
    { "t",           3,  8, 2, Keypad::InsertLabel    },
    { "y",           3, 10, 2, Keypad::InsertLabel    },
    { "u",           3, 12, 2, Keypad::InsertLabel    },
    { "i",           3, 14, 2, Keypad::InsertLabel    },
    { "o",           3, 16, 2, Keypad::InsertLabel    },
    { "p",           3, 18, 2, Keypad::InsertLabel    },

    { "a",           4,  1, 2, Keypad::InsertLabel    },
    { "s",           4,  3, 2, Keypad::InsertLabel    },
    { "d",           4,  5, 2, Keypad::InsertLabel    },
    { "f",           4,  7, 2, Keypad::InsertLabel    },
    { "g",           4,  9, 2, Keypad::InsertLabel    },
    { "h",           4, 11, 2, Keypad::InsertLabel    },
    { "j",           4, 13, 2, Keypad::InsertLabel    },
    { "k",           4, 15, 2, Keypad::InsertLabel    },
    { "l",           4, 17, 2, Keypad::InsertLabel    },

    { "z",           5,  3, 2, Keypad::InsertLabel    },
    { "x",           5,  5, 2, Keypad::InsertLabel    },
    { "c",           5,  7, 2, Keypad::InsertLabel    },
    { "v",           5,  9, 2, Keypad::InsertLabel    },
    { "b",           5, 11, 2, Keypad::InsertLabel    },
    { "n",           5, 13, 2, Keypad::InsertLabel    },
    { "m",           5, 15, 2, Keypad::InsertLabel    },

    { capsLabel,     5,  0, 3, Keypad::SwitchCase     },
    { spaceLabel,    6,  4, 4, Keypad::InsertSpace    },
    { enterLabel,    6, 16, 4, Keypad::Confirm        },
    { escLabel,      6, 14, 2, Keypad::Cancel         },
    { delLabel,      5, 17, 3, Keypad::Backspace      },
    { chineseLabel,  6, 10, 4, Keypad::SwitchLanguage },
    { symbolsLabel,  6,  0, 2, Keypad::SwitchSymbols  },
    { ",",           6,  2, 2, Keypad::InsertLabel    },
    { ".",           6,  8, 2, Keypad::InsertLabel    }
};

const char *const symbolKeys[] = {
    "+", "-", "*", "/", "(", ")", "[", "]", "=", "%",
    "!", "@", "#", "$", "?", ";", ":", "'", "\"",
    "<", ">", "|", ampersandLabel, "\\", "{", "}"
};
// clang-format on

const int letterCount = int(sizeof(symbolKeys) / sizeof(symbolKeys[0]));

// The lower-case letters of the letter keys, which have the first cells.
QString letters()
{
    QString all;
    for (int i = 0; i < letterCount; ++i)
        all += QLatin1String(keyCells[i].label);
    return all;
}

// The hidden one goes first, so that the layout never has to find room for both.
void showPanel(QWidget *shown, QWidget *hidden)
{
    hidden->hide();
    shown->show();
}

// What the edit line will take of a text. It copies that part of a longer one again for each
// character in it: a candidate of a megabyte would hold a slow panel up for seconds.
QString fittingPart(const QLineEdit *line, const QString &text)
{
    const int kept = int(line->text().size() - line->selectedText().size());
    return line->inputMask().isEmpty() ? text.left(line->maxLength() - kept) : text;
}

} // namespace

CharacterKeypad *CharacterKeypad::m_instance = nullptr;

CharacterKeypad *CharacterKeypad::instance()
{
    if (!m_instance)
        m_instance = new CharacterKeypad(HMIDeviceInfo::graphicsView(), Qt::WindowFlags());
    return m_instance;
}

CharacterKeypad::CharacterKeypad(QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags | Qt::FramelessWindowHint)
    , m_dictionary(nullptr)
    , m_mode(EnglishMode)
    , m_lastMode(EnglishMode)
{
    static_assert(letterCount == LetterCount, "a symbol for each letter key");
    drawWindow();
    m_signalMapper = new QSignalMapper(this);
    connect(m_signalMapper, HMI_MAPPED_STRING_SIGNAL, this, SLOT(sendContent(QString)));
    setUpEnglish();
    setUpConnect();
    openDb();
    Keypad::setUpFonts(this, Keypad::manyKeysPoints);
}

CharacterKeypad::~CharacterKeypad()
{
    PinyinDictionary::close(m_dictionary);
}

void CharacterKeypad::setObject(QObject *object)
{
    Keypad::bindTarget(object, &m_object, this, m_lineEdit, Keypad::KeepKeys);
}

void CharacterKeypad::setMaxLength(int length)
{
    m_lineEdit->setMaxLength(length);
}

void CharacterKeypad::setValidator(const QValidator *validator)
{
    m_lineEdit->setValidator(validator);
}

void CharacterKeypad::setPasswordEchoMode(bool on)
{
    Keypad::setPasswordEcho(m_lineEdit, on);
}

void CharacterKeypad::setText(const QString &text)
{
    Keypad::showText(m_lineEdit, text);
}

void CharacterKeypad::keyPressEvent(QKeyEvent *event)
{
    if (Keypad::isConfirmKey(event->key()))
        sendContent(QLatin1String(enterLabel));
    else if (Keypad::closeForApplication(this, event->key()))
        Q_EMIT signal_kTypeKeyPressed(event->key());
    else
        QDialog::keyPressEvent(event);
}

void CharacterKeypad::showEvent(QShowEvent *event)
{
    Keypad::comeToFront(this);
    if (Keypad::coverView(this))
        QDialog::showEvent(event);
}

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

// The face

void CharacterKeypad::drawWindow()
{
    Keypad::colourDialog(this);
    QGridLayout *grid = new QGridLayout(this);
    Keypad::setUpLayout(grid, Keypad::keySpacing);
    m_lineEdit = Keypad::createEditLine(this);
    m_lineEdit->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_chnPanel = new ChnPanel(this);
    m_numPanel = new NumPanel(this);
    grid->addWidget(m_lineEdit, 0, 0, 1, gridColumns);
    grid->addWidget(m_chnPanel, 1, 0, 1, gridColumns);
    grid->addWidget(m_numPanel, 2, 0, 1, gridColumns);
    Keypad::addKeys(this, grid, keyCells, keyMembers());
}

void CharacterKeypad::setUpMapper()
{
    const QList<QWidget *> keys = mappedKeys();
    for (QWidget *key : keys)
        Keypad::mapKey(m_signalMapper, key, key->property("text").toString());
}

void CharacterKeypad::setUpConnect()
{
    const QList<QWidget *> keys = mappedKeys();
    for (QWidget *key : keys)
        connect(key, SIGNAL(clicked()), m_signalMapper, SLOT(map()));
}

QVector<QToolButton **> CharacterKeypad::keyMembers()
{
    QVector<QToolButton **> members;
    for (QToolButton *&letter : m_letterKeys)
        members << &letter;
    return members << &m_modeKey << &m_spaceKey << &m_enterKey << &m_escKey << &m_delKey
                   << &m_languageKey << &m_symbolKey << &m_commaKey << &m_periodKey;
}

QList<QWidget *> CharacterKeypad::mappedKeys()
{
    QList<QWidget *> keys;
    for (short i = 0; QToolButton *digit = m_numPanel->getToolButton(i); ++i)
        keys << digit;
    for (short i = 0; ClickLabel *candidate = m_chnPanel->getClickLabel(i); ++i)
        keys << candidate;
    for (short i = 0; QToolButton *paging = m_chnPanel->getToolButton(i); ++i)
        keys << paging;
    for (QToolButton *letter : m_letterKeys)
        keys << letter;
    keys << m_modeKey << m_delKey << m_symbolKey << m_commaKey << m_spaceKey << m_periodKey
         << m_languageKey << m_escKey << m_enterKey;
    return keys;
}

// The four key sets

void CharacterKeypad::setUpEnglish()
{
    labelLetters(letters(), capsLabel, chineseLabel);
    showPanel(m_numPanel, m_chnPanel);
    setUpMapper();
}

void CharacterKeypad::setUpEnglishCaps()
{
    labelLetters(letters().toUpper(), lowerCaseLabel, chineseLabel);
    showPanel(m_numPanel, m_chnPanel);
    setUpMapper();
}

void CharacterKeypad::setUpSpecialSymbols()
{
    for (int i = 0; i < LetterCount; ++i)
        m_letterKeys[i]->setText(QLatin1String(symbolKeys[i]));
    m_modeKey->setText(QLatin1String("~"));
    m_modeKey->setEnabled(true);
    m_languageKey->setText(QLatin1String(backLabel));
    m_symbolKey->setText(QLatin1String("_"));
    showPanel(m_numPanel, m_chnPanel);
    setUpMapper();
}

void CharacterKeypad::setUpChanese()
{
    labelLetters(letters(), "", englishLabel);
    showPanel(m_chnPanel, m_numPanel);
    setUpMapper();
}

void CharacterKeypad::labelLetters(const QString &letters, const char *modeLabel,
                                   const char *languageLabel)
{
    for (int i = 0; i < LetterCount; ++i)
        m_letterKeys[i]->setText(letters.mid(i, 1));
    m_modeKey->setText(QLatin1String(modeLabel));
    m_modeKey->setEnabled(*modeLabel != '\0');
    m_languageKey->setText(QLatin1String(languageLabel));
    m_symbolKey->setText(QLatin1String(symbolsLabel));
    m_symbolKey->setEnabled(true);
}

void CharacterKeypad::setModes(Mode last, Mode current)
{
    m_lastMode = last;
    m_mode = current;
}

// What the keys do

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
    } else if (text == QLatin1String(">")) {
        m_chnPanel->nextPage(m_candidates, m_signalMapper);
    } else if (text == QLatin1String("<")) {
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

void CharacterKeypad::openDb()
{
    m_dictionary = PinyinDictionary::open(this);
}

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
