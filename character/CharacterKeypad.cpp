// SPDX-License-Identifier: MIT
#include "CharacterKeypad.h"

#include "CharacterKeys_p.h"
#include "ChnPanel.h"
#include "ClickLabel.h"
#include "HMIDeviceInfo.h"
#include "KeyBoardLineEdit.h"
#include "KeypadFont_p.h"
#include "KeypadLook_p.h"
#include "KeypadRules_p.h"
#include "NumPanel.h"
#include "PinyinDictionary_p.h"
#include "QtDifferences_p.h"

#include <QGraphicsView>
#include <QGridLayout>
#include <QKeyEvent>
#include <QSignalMapper>
#include <QToolButton>
#include <QVariant>

using namespace CharacterKeys;

namespace {

const int gridColumns = 20;

// clang-format off
constexpr Keypad::KeyCell keyCells[] = {
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

constexpr Keypad::KeyLabel symbolKeys[] = {
    "+", "-", "*", "/", "(", ")", "[", "]", "=", "%",
    "!", "@", "#", "$", "?", ";", ":", "'", "\"",
    "<", ">", "|", ampersandLabel, "\\", "{", "}"
};
// clang-format on

const int letterCount = int(sizeof(symbolKeys) / sizeof(symbolKeys[0]));

// The hidden one goes first, so that the layout never has to find room for both.
void showPanel(QWidget *shown, QWidget *hidden)
{
    hidden->hide();
    shown->show();
}

} // namespace

QString CharacterKeys::letters()
{
    QString all;
    for (int i = 0; i < letterCount; ++i)
        all += QLatin1String(keyCells[i].label);
    return all;
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
    , m_signalMapper(nullptr)
    , m_dictionary(nullptr)
    , m_mode(EnglishMode)
    , m_lastMode(EnglishMode)
{
    static_assert(letterCount == LetterCount, "a symbol for each letter key");
    const QFont font = Keypad::setDialogFont(this, Keypad::manyKeysPoints);
    drawWindow();
    Keypad::setPartFonts(this, font); // before a panel is shown, and takes a style
    m_signalMapper = new QSignalMapper(this);
    connect(m_signalMapper, HMI_MAPPED_STRING_SIGNAL, this, SLOT(sendContent(QString)));
    setUpEnglish();
    setUpConnect();
    openDb();
}

CharacterKeypad::~CharacterKeypad()
{
    PinyinDictionary::close(m_dictionary);
    // A mapper looks at itself once more after it has sent. It outlives a keypad that is destroyed
    // by what its key did, such as a field that closes its screen.
    if (m_signalMapper && sender() == m_signalMapper) {
        m_signalMapper->setParent(nullptr);
        m_signalMapper->deleteLater();
    }
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
    else if (Keypad::belongsToApplication(event->key()))
        Keypad::closeFor(this, &CharacterKeypad::signal_kTypeKeyPressed, event->key());
    else
        QDialog::keyPressEvent(event);
}

void CharacterKeypad::showEvent(QShowEvent *event)
{
    if (Keypad::coverView(this))
        QDialog::showEvent(event);
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
    m_chnPanel->setObjectName(QLatin1String("candidatePanel"));
    m_numPanel->setObjectName(QLatin1String("digitPanel"));
    grid->addWidget(m_lineEdit, 0, 0, 1, gridColumns);
    grid->addWidget(m_chnPanel, 1, 0, 1, gridColumns);
    grid->addWidget(m_numPanel, 2, 0, 1, gridColumns);
    Keypad::addKeys(this, grid, Keypad::KeyTable(keyCells, m_keys));
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

// Each panel answers null beyond its last key.
QList<QWidget *> CharacterKeypad::mappedKeys()
{
    QList<QWidget *> keys;
    for (short i = 0; QToolButton *digit = m_numPanel->getToolButton(i); ++i)
        keys << digit;
    for (short i = 0; ClickLabel *candidate = m_chnPanel->getClickLabel(i); ++i)
        keys << candidate;
    for (short i = 0; QToolButton *paging = m_chnPanel->getToolButton(i); ++i)
        keys << paging;
    for (QToolButton *key : m_keys)
        keys << key;
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
        m_keys[i]->setText(QLatin1String(symbolKeys[i]));
    m_keys[ModeKey]->setText(QLatin1String("~"));
    m_keys[ModeKey]->setEnabled(true);
    m_keys[LanguageKey]->setText(QLatin1String(backLabel));
    m_keys[SymbolKey]->setText(QLatin1String("_"));
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
        m_keys[i]->setText(letters.mid(i, 1));
    m_keys[ModeKey]->setText(QLatin1String(modeLabel));
    m_keys[ModeKey]->setEnabled(*modeLabel != '\0');
    m_keys[LanguageKey]->setText(QLatin1String(languageLabel));
    m_keys[SymbolKey]->setText(QLatin1String(symbolsLabel));
    m_keys[SymbolKey]->setEnabled(true);
}

// The dictionary

void CharacterKeypad::openDb()
{
    m_dictionary = PinyinDictionary::open(this);
}
