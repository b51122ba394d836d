// SPDX-License-Identifier: MIT
#include "CharacterKeypad.h"

#include "ChnPanel.h"
#include "ClickLabel.h"
#include "HMIDeviceInfo.h"
#include "KeyBoardLineEdit.h"
#include "KeypadLook_p.h"
#include "KeypadRules_p.h"
#include "LabelMapping_p.h"
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

static const int keypadPoints = 24;
static const int gridColumns = 20;
static const int letterSpan = 2; // columns
static const int longestPinyin = 11;

static const char lowerCaseKeys[] = "qwertyuiopasdfghjklzxcvbnm";
static const char capitalKeys[] = "QWERTYUIOPASDFGHJKLZXCVBNM";

// clang-format off
// A tool button shows "&&" as one ampersand.
static const char *const symbolKeys[] = {
    "+", "-", "*", "/", "(", ")", "[", "]", "=", "%",
    "!", "@", "#", "$", "?", ";", ":", "'", "\"",
    "<", ">", "|", "&&", "\\", "{", "}"
};

static const struct
{
    int row, firstColumn, keys;
} letterRows[] = {
    { 3, 0, 10 },
    { 4, 1,  9 },
    { 5, 3,  7 }
};
// clang-format on

// The hidden one goes first, so that the layout never has to find room for both.
static void showPanel(QWidget *shown, QWidget *hidden)
{
    hidden->hide();
    shown->show();
}

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
    drawWindow();
    m_signalMapper = new QSignalMapper(this);
    connect(m_signalMapper, HMI_MAPPED_STRING_SIGNAL, this, SLOT(sendContent(QString)));
    setUpEnglish();
    setUpConnect();
    openDb();
    setFont(Keypad::font(keypadPoints));
}

CharacterKeypad::~CharacterKeypad()
{
    PinyinDictionary::close(m_dictionary);
}

void CharacterKeypad::setObject(QObject *object)
{
    Keypad::bindTarget(object, &m_object, m_lineEdit, Keypad::KeepKeys);
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
        sendContent(QLatin1String("Enter"));
    else if (Keypad::closeForApplication(this, event->key()))
        Q_EMIT signal_kTypeKeyPressed(event->key());
    else
        QDialog::keyPressEvent(event);
}

void CharacterKeypad::showEvent(QShowEvent *event)
{
    const QGraphicsView *view = HMIDeviceInfo::graphicsView();
    if (!view)
        return;
    setGeometry(Keypad::coveredRect(view));
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
    Keypad::setUpLayout(grid, 1);
    m_lineEdit = Keypad::createEditLine(this);
    m_lineEdit->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_chnPanel = new ChnPanel(this);
    m_numPanel = new NumPanel(this);
    grid->addWidget(m_lineEdit, 0, 0, 1, gridColumns);
    grid->addWidget(m_chnPanel, 1, 0, 1, gridColumns);
    grid->addWidget(m_numPanel, 2, 0, 1, gridColumns);
    drawLetterKeys(grid);
    drawFunctionKeys(grid);
}

void CharacterKeypad::drawLetterKeys(QGridLayout *grid)
{
    QToolButton **key = m_letterKeys;
    for (const auto &row : letterRows) {
        for (int i = 0; i < row.keys; ++i, ++key) {
            *key = Keypad::createKey(this, QString());
            grid->addWidget(*key, row.row, row.firstColumn + letterSpan * i, 1, letterSpan);
        }
    }
}

void CharacterKeypad::drawFunctionKeys(QGridLayout *grid)
{
    // clang-format off
    static const struct
    {
        QToolButton *CharacterKeypad::*key;
        const char *label;
        int row, column, columnSpan;
    } functionKeys[] = {
        { &CharacterKeypad::m_modeKey,     "",      5,  0, 3 },
        { &CharacterKeypad::m_spaceKey,    "Space", 6,  4, 4 },
        { &CharacterKeypad::m_enterKey,    "Enter", 6, 16, 4 },
        { &CharacterKeypad::m_escKey,      "Esc",   6, 14, 2 },
        { &CharacterKeypad::m_delKey,      "Del",   5, 17, 3 },
        { &CharacterKeypad::m_languageKey, "",      6, 10, 4 },
        { &CharacterKeypad::m_symbolKey,   "",      6,  0, 2 },
        { &CharacterKeypad::m_commaKey,    ",",     6,  2, 2 },
        { &CharacterKeypad::m_periodKey,   ".",     6,  8, 2 }
    };
    // clang-format on
    for (const auto &cell : functionKeys) {
        this->*cell.key = Keypad::createKey(this, QLatin1String(cell.label));
        grid->addWidget(this->*cell.key, cell.row, cell.column, 1, cell.columnSpan);
    }
}

void CharacterKeypad::setUpMapper()
{
    const QList<QWidget *> keys = mappedKeys();
    for (int i = 0; i < keys.size(); ++i)
        mapKey(m_signalMapper, keys.at(i), keys.at(i)->property("text").toString());
}

void CharacterKeypad::setUpConnect()
{
    const QList<QWidget *> keys = mappedKeys();
    for (int i = 0; i < keys.size(); ++i)
        connect(keys.at(i), SIGNAL(clicked()), m_signalMapper, SLOT(map()));
}

QList<QWidget *> CharacterKeypad::mappedKeys() const
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
    labelLetters(lowerCaseKeys, "caps", "CN");
    showPanel(m_numPanel, m_chnPanel);
    setUpMapper();
}

void CharacterKeypad::setUpEnglishCaps()
{
    labelLetters(capitalKeys, "CAPS", "CN");
    showPanel(m_numPanel, m_chnPanel);
    setUpMapper();
}

void CharacterKeypad::setUpSpecialSymbols()
{
    for (int i = 0; i < LetterCount; ++i)
        m_letterKeys[i]->setText(QLatin1String(symbolKeys[i]));
    m_modeKey->setText(QLatin1String("~"));
    m_modeKey->setEnabled(true);
    m_languageKey->setText(QLatin1String("<<"));
    m_symbolKey->setText(QLatin1String("_"));
    showPanel(m_numPanel, m_chnPanel);
    setUpMapper();
}

void CharacterKeypad::setUpChanese()
{
    labelLetters(lowerCaseKeys, "", "EN");
    showPanel(m_chnPanel, m_numPanel);
    setUpMapper();
}

void CharacterKeypad::labelLetters(const char *letters, const char *modeLabel,
                                   const char *languageLabel)
{
    for (int i = 0; i < LetterCount; ++i)
        m_letterKeys[i]->setText(QString(QLatin1Char(letters[i])));
    m_modeKey->setText(QLatin1String(modeLabel));
    m_modeKey->setEnabled(*modeLabel != '\0');
    m_languageKey->setText(QLatin1String(languageLabel));
    m_symbolKey->setText(QLatin1String("*#"));
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
    if (text == QLatin1String("CN")) {
        setUpChanese();
        setModes(EnglishMode, ChineseMode);
    } else if (text == QLatin1String("*#")) {
        setUpSpecialSymbols();
        setModes(EnglishMode, SymbolMode);
    } else if (text == QLatin1String("caps")) {
        setUpEnglishCaps();
    } else if (text == QLatin1String("CAPS")) {
        setUpEnglish();
    } else {
        editText(text);
    }
}

void CharacterKeypad::sendSpecialSymbols(const QString &text)
{
    if (text != QLatin1String("<<")) {
        editText(text == QLatin1String("&&") ? QString(QLatin1Char('&')) : text);
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
    if (text == QLatin1String("EN")) {
        clearComposition();
        setUpEnglish();
        setModes(ChineseMode, EnglishMode);
    } else if (text == QLatin1String("*#")) {
        clearComposition();
        setUpSpecialSymbols();
        setModes(ChineseMode, SymbolMode);
    } else if (text == QLatin1String("Del") && !pinyin().isEmpty()) {
        compose(pinyin().left(pinyin().length() - 1));
    } else if (text == QLatin1String("Del") || text == QLatin1String("Space")) {
        editText(text);
    } else if (QString::fromLatin1(lowerCaseKeys).contains(text)) {
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
    if (key == QLatin1String("Del"))
        deleteCharacter();
    else if (key == QLatin1String("Esc"))
        reject();
    else if (key == QLatin1String("Enter"))
        Keypad::confirm(this, m_object, m_lineEdit);
    else if (key == QLatin1String("Space"))
        m_lineEdit->insert(QString(QLatin1Char(' ')));
    else
        m_lineEdit->insert(key);
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
