// SPDX-License-Identifier: MIT
#include "CharacterDriver.h"

#include <QGridLayout>

// clang-format off
const Face faces[4] = {
    { "English", "", "q w e r t y u i o p a s d f g h j k l z x c v b n m",
      "caps CN *# q digits" },
    { "capitals", "caps", "Q W E R T Y U I O P A S D F G H J K L Z X C V B N M",
      "CAPS CN *# Q digits" },
    { "symbols", "*#", "+ - * / ( ) [ ] = % ! @ # $ ? ; : ' \" < > | && \\ { }",
      "~ << _ + digits" },
    { "Chinese", "CN", "q w e r t y u i o p a s d f g h j k l z x c v b n m",
      "blank EN *# q candidates" }
};
// clang-format on

namespace {

const struct
{
    int row, firstColumn, keys;
} letterRows[] = { { 3, 0, 10 }, { 4, 1, 9 }, { 5, 3, 7 } };

// Whether a part of a keypad can be seen as soon as the keypad itself is shown.
bool isInUse(const QWidget *part)
{
    return part->isVisibleTo(part->window());
}

} // namespace

ChnPanel *candidatePanel(const CharacterKeypad &keypad)
{
    return keypad.findChild<ChnPanel *>();
}

NumPanel *digitPanel(const CharacterKeypad &keypad)
{
    return keypad.findChild<NumPanel *>();
}

QToolButton *keyAt(const CharacterKeypad &keypad, int row, int column)
{
    const QGridLayout *grid = qobject_cast<QGridLayout *>(keypad.layout());
    const QLayoutItem *item = grid ? grid->itemAtPosition(row, column) : nullptr;
    return item ? qobject_cast<QToolButton *>(const_cast<QLayoutItem *>(item)->widget()) : nullptr;
}

QToolButton *modeKey(const CharacterKeypad &keypad)
{
    return keyAt(keypad, 5, 0);
}

QToolButton *languageKey(const CharacterKeypad &keypad)
{
    return keyAt(keypad, 6, 10);
}

QToolButton *symbolKey(const CharacterKeypad &keypad)
{
    return keyAt(keypad, 6, 0);
}

QList<QToolButton *> letterKeys(const CharacterKeypad &keypad)
{
    QList<QToolButton *> keys;
    for (const auto &row : letterRows) {
        for (int i = 0; i < row.keys; ++i)
            keys << keyAt(keypad, row.row, row.firstColumn + 2 * i);
    }
    return keys;
}

QList<QWidget *> clickableWidgets(const CharacterKeypad &keypad)
{
    QList<QWidget *> widgets;
    const QList<QToolButton *> keys = keypad.findChildren<QToolButton *>();
    for (QToolButton *key : keys)
        widgets << key;
    const QList<ClickLabel *> labels = keypad.findChildren<ClickLabel *>();
    for (ClickLabel *label : labels)
        widgets << label;
    return widgets;
}

QString labelOf(const QWidget *clickable)
{
    return clickable->property("text").toString();
}

void addFaceRows()
{
    QTest::addColumn<int>("face");
    for (int i = 0; i < 4; ++i)
        QTest::newRow(faces[i].name) << i;
}

QString shownFace(const CharacterKeypad &keypad)
{
    const QString mode = modeKey(keypad)->text();
    QStringList words;
    words << (mode.isEmpty() ? u("blank") : mode) << languageKey(keypad)->text()
          << symbolKey(keypad)->text() << keyAt(keypad, 3, 0)->text();
    if (isInUse(digitPanel(keypad)))
        words << u("digits");
    if (isInUse(candidatePanel(keypad)))
        words << u("candidates");
    return words.join(u(" "));
}

QToolButton *shownKey(const CharacterKeypad &keypad, const QString &label)
{
    const QList<QToolButton *> keys = keypad.findChildren<QToolButton *>();
    for (QToolButton *key : keys) {
        if (key->text() == label && isInUse(key))
            return key;
    }
    return nullptr;
}

void tapKey(QToolButton *key)
{
    if (key->isVisible())
        QTest::mouseClick(key, Qt::LeftButton);
    else
        key->click();
}

void press(const CharacterKeypad &keypad, const QString &labels)
{
    const QStringList list = labels.split(QLatin1Char(' '));
    for (const QString &label : list) {
        if (label.isEmpty())
            continue;
        QToolButton *key = shownKey(keypad, label);
        QVERIFY2(key, qPrintable(QString::fromLatin1("no key \"%1\"").arg(label)));
        tapKey(key);
    }
}

void press(const CharacterKeypad &keypad, const char *labels)
{
    press(keypad, u(labels));
}

bool sendContent(CharacterKeypad &keypad, const QString &content)
{
    return QMetaObject::invokeMethod(&keypad, "sendContent", Qt::DirectConnection,
                                     Q_ARG(QString, content));
}

QString shownPinyin(const CharacterKeypad &keypad)
{
    return candidatePanel(keypad)->getPinyinLabel()->text();
}

QStringList shownCandidates(const ChnPanel *panel)
{
    QStringList texts;
    for (short i = 0; i < 5; ++i)
        texts << const_cast<ChnPanel *>(panel)->getClickLabel(i)->text();
    return texts;
}

QString candidateLine(const CharacterKeypad &keypad)
{
    QStringList texts = shownCandidates(candidatePanel(keypad));
    texts.removeAll(QString());
    return texts.join(u(" "));
}

void tapCandidate(const CharacterKeypad &keypad, int index)
{
    QTest::mouseClick(candidatePanel(keypad)->getClickLabel(short(index)), Qt::LeftButton);
}
