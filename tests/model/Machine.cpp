// SPDX-License-Identifier: MIT
#include "Machine.h"

#include "CharacterModel.h"
#include "DateTimeModel.h"
#include "FixedFaceModel.h"
#include "character/CharacterDriver.h"

#include <HMIDevice/DateTimeKeypad.h>
#include <HMIDevice/GCodeKeypad.h>
#include <HMIDevice/NumericKeypad.h>
#include <HMIDevice/vondKeypad.h>

#include <QLineEdit>
#include <QSpinBox>

namespace {

const char *const classNames[KeypadCount] = { "NumericKeypad", "GCodeKeypad", "vondKeypad",
                                              "DateTimeKeypad", "CharacterKeypad" };

template <class Keypad>
class Common : public Machine
{
public:
    explicit Common(QWidget *parent)
        : m_keypad(parent, Qt::WindowFlags())
    {
    }

    QDialog *dialog() override { return &m_keypad; }
    void setObject(QObject *object) override { m_keypad.setObject(object); }
    void setText(const QString &text) override { m_keypad.setText(text); }
    void setMaxLength(int length) override { m_keypad.setMaxLength(length); }
    void setValidator(const QValidator *v) override { m_keypad.setValidator(v); }
    void setPasswordEchoMode(bool on) override { m_keypad.setPasswordEchoMode(on); }

protected:
    Keypad m_keypad;
};

template <class Keypad>
class FixedFace : public Common<Keypad>
{
public:
    explicit FixedFace(QWidget *parent)
        : Common<Keypad>(parent)
    {
    }

    void setEditMode(int mode) override { this->m_keypad.setEditMode(mode); }
    void setDecimalPointEnabled(bool on) override { this->m_keypad.setDecimalPointEnabled(on); }
    void setLimitToolTip(const QString &text) override { this->m_keypad.setLimitToolTip(text); }
    QString tip() const override { return tipLabel(&this->m_keypad)->text(); }
    bool isTipShown() const override
    {
        return tipLabel(&this->m_keypad)->isVisibleTo(&this->m_keypad);
    }
};

class DateTimeMachine : public Common<DateTimeKeypad>
{
public:
    explicit DateTimeMachine(QWidget *parent)
        : Common<DateTimeKeypad>(parent)
        , m_fields(m_keypad.findChildren<QSpinBox *>())
    {
    }

    QList<QWidget *> fields() override
    {
        QList<QWidget *> list;
        const QList<QSpinBox *> fields = m_fields;
        for (QSpinBox *field : fields)
            list << field;
        return list;
    }

    QStringList parts() override
    {
        QStringList list;
        const QList<QSpinBox *> fields = m_fields;
        for (const QSpinBox *field : fields)
            list << described(field);
        return list;
    }

private:
    static QString described(const QSpinBox *field)
    {
        const QLineEdit *line = field->findChild<QLineEdit *>();
        const QColor base = field->palette().color(QPalette::Active, QPalette::Base);
        return QString::fromLatin1("%1-%2 %3 \"%4\" at %5, selected \"%6\"%7%8")
            .arg(field->minimum())
            .arg(field->maximum())
            .arg(field->value())
            .arg(line->text())
            .arg(line->cursorPosition())
            .arg(line->selectedText(), u(field->isEnabled() ? "" : " disabled"),
                 u(base == QColor(255, 153, 51) ? " orange" : ""));
    }

    QList<QSpinBox *> m_fields;
};

class CharacterMachine : public Common<CharacterKeypad>
{
public:
    explicit CharacterMachine(QWidget *parent)
        : Common<CharacterKeypad>(parent)
    {
        ChnPanel *candidates = candidatePanel(m_keypad);
        for (short i = 0; i < 10; ++i)
            m_keys << digitPanel(m_keypad)->getToolButton(i);
        const QList<QToolButton *> letters = letterKeys(m_keypad);
        for (QToolButton *letter : letters)
            m_keys << letter;
        static const int cells[][2] = { { 5, 0 }, { 5, 17 }, { 6, 0 },  { 6, 2 }, { 6, 4 },
                                        { 6, 8 }, { 6, 10 }, { 6, 14 }, { 6, 16 } };
        for (const auto &cell : cells)
            m_keys << keyAt(m_keypad, cell[0], cell[1]);
        for (short i = 0; i < 2; ++i)
            m_keys << candidates->getToolButton(i);
        for (short i = 0; i < 5; ++i)
            m_keys << candidates->getClickLabel(i);
    }

    QList<QWidget *> keys() override { return m_keys; }

    QStringList parts() override
    {
        QStringList list(shownPinyin(m_keypad));
        if (candidatePanel(m_keypad)->isVisibleTo(&m_keypad))
            list << u("candidates");
        if (digitPanel(m_keypad)->isVisibleTo(&m_keypad))
            list << u("digits");
        return list;
    }

private:
    QList<QWidget *> m_keys;
};

} // namespace

const char *className(KeypadName name)
{
    return classNames[name];
}

QList<QWidget *> Machine::keys()
{
    QList<QWidget *> list;
    const QList<QToolButton *> buttons = dialog()->findChildren<QToolButton *>();
    for (QToolButton *button : buttons)
        list << button;
    return list;
}

QList<QWidget *> Machine::fields()
{
    QList<QWidget *> list;
    return list << line();
}

KeyBoardLineEdit *Machine::line()
{
    return editLine(dialog());
}

Machine *newMachine(KeypadName name, QWidget *parent)
{
    switch (name) {
    case Numeric:
        return new FixedFace<NumericKeypad>(parent);
    case GCode:
        return new FixedFace<GCodeKeypad>(parent);
    case Axis:
        return new FixedFace<vondKeypad>(parent);
    case DateTime:
        return new DateTimeMachine(parent);
    default:
        return new CharacterMachine(parent);
    }
}

KeypadModel *newModel(KeypadName name, World *world)
{
    switch (name) {
    case Numeric:
        return new NumericModel(world);
    case GCode:
        return new GCodeModel(world);
    case Axis:
        return new AxisModel(world);
    case DateTime:
        return new DateTimeModel(world);
    default:
        return new CharacterModel(world);
    }
}
