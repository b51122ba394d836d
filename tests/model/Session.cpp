// SPDX-License-Identifier: MIT
#include "Session.h"

#include "support/QtDifferences.h"
#include "support/Text.h"

#include <HMIDevice/KeyBoardLineEdit.h>

#include <QApplication>
#include <QCryptographicHash>
#include <QFocusEvent>
#include <QTimerEvent>

namespace {

// As a windowing system does, and after it Qt: it is for the focused field as if Tab led to it.
// Whether windows are told of in time differs from one windowing system to the other, and with it
// whether something stays selected; here nothing does.
void giveKeyboardTo(QDialog *dialog)
{
    QApplication::processEvents();
    QApplication::setActiveWindow(dialog);
    QApplication::processEvents(); // which an edit line heeds a turn later
    const QList<QLineEdit *> lines = dialog->findChildren<QLineEdit *>();
    for (QLineEdit *line : lines)
        line->deselect();
    QFocusEvent focusIn(QEvent::FocusIn, Qt::TabFocusReason);
    QApplication::sendEvent(dialog->focusWidget(), &focusIn);
}

QStringList differences(const Seen &keypad, const Seen &model)
{
    QStringList list;
    const QStringList ofKeypad = keypad.lines();
    const QStringList ofModel = model.lines();
    for (int i = 0; i < ofKeypad.size(); ++i) {
        if (ofKeypad.at(i) != ofModel.at(i))
            list << u("keypad ") + ofKeypad.at(i) << u("model  ") + ofModel.at(i);
    }
    return list;
}

quint64 hashOf(const QStringList &lines)
{
    const QByteArray hash =
        QCryptographicHash::hash(lines.join(u("\n")).toUtf8(), QCryptographicHash::Md5);
    return hash.left(8).toHex().toULongLong(nullptr, 16);
}

} // namespace

Session::Session(KeypadName name)
    : m_name(name)
    , m_lastWords(name)
    , m_model(newModel(name, m_surroundings.world()))
    , m_machine(newMachine(name, m_surroundings.home()))
    , m_fields(m_machine->fields())
    , m_keys(m_machine->keys())
    , m_story(nullptr)
    , m_next(0)
    , m_felt(0)
    , m_timer(0)
    , m_same(true)
{
    m_recorder.attachTo(m_machine->dialog());
    compare();
}

Session::~Session()
{
}

bool Session::run(const QList<Action> &actions, QStringList *story)
{
    m_story = story;
    m_actions = actions;
    m_next = m_felt = 0;
    m_lastWords.begin(encoded(actions));
    while (m_same && m_next < m_actions.size()) {
        if (m_actions.at(m_next).isOperators())
            openAndGoOn();
        else
            doNext();
    }
    return m_same;
}

// What an operator would do is the opening where the keypad is closed.
void Session::openAndGoOn()
{
    tell(u("open"));
    m_lastWords.goOn(m_next);
    ++m_felt;
    m_model->open(m_surroundings.viewPlace(), m_surroundings.targetPlace(m_model->target()));
    m_timer = startTimer(0);
    const int result = m_machine->dialog()->exec();
    if (!m_same)
        return;
    QApplication::setActiveWindow(nullptr);
    m_model->lostTheKeyboard();
    compare();
    if (m_same && result != m_model->seen().result) {
        m_same = false;
        m_divergence.differences << u("exec() returns ") + QString::number(result);
    }
}

// While the keypad is shown. At the end it is closed, or exec() would not return.
void Session::timerEvent(QTimerEvent *)
{
    QDialog *dialog = m_machine->dialog();
    if (!dialog->isVisible())
        return;
    killTimer(m_timer);
    giveKeyboardTo(dialog);
    compare();
    ++m_next;
    while (m_same && m_next < m_actions.size() && dialog->isVisible()) {
        perform(m_actions.at(m_next));
        if (dialog->isVisible())
            compare();
        ++m_next;
    }
    if (!m_same)
        dialog->hide();
    else if (dialog->isVisible())
        close(0);
}

void Session::doNext()
{
    perform(m_actions.at(m_next));
    compare();
    ++m_next;
}

void Session::tell(const QString &what)
{
    if (m_story)
        *m_story << what;
}

// Whether the keypad, or what it looks at, is done anything to.
bool Session::reaches(const Action &action) const
{
    const bool hasFixedFace = m_name == Numeric || m_name == GCode || m_name == Axis;
    switch (action.kind) {
    case Tap:
        return m_keys.at(action.a % int(m_keys.size()))->isVisible();
    case LikelyTap:
        return m_keys.at(m_model->likelyKey(action.a))->isVisible();
    case Press:
        return !isLeftOut(hardKeyOf(action));
    case SetEditMode:
    case SetDecimalPoint:
    case SetLimits:
        return hasFixedFace;
    case Close:
    case LetPass:
        return m_model->isOpen();
    default:
        return true;
    }
}

void Session::perform(const Action &action)
{
    m_lastWords.goOn(m_next);
    if (reaches(action))
        ++m_felt;
    if (action.kind != Tap && action.kind != LikelyTap)
        tell(described(action));
    switch (action.kind) {
    case Tap:
        return tap(action.a % int(m_keys.size()), isBeside(action));
    case LikelyTap:
        return tap(m_model->likelyKey(action.a), isBeside(action));
    case Press:
    case Type:
        return press(hardKeyOf(action), keyMannerOf(action));
    case PointAt:
        return pointAt(action);
    case TouchField:
        return touchField(action);
    case Close:
        return close(action.a);
    case LetPass:
        if (m_model->isOpen())
            QApplication::processEvents();
        return;
    default:
        return adjust(action);
    }
}

void Session::adjust(const Action &action)
{
    switch (action.kind) {
    case SetObject:
        return setObject(action);
    case DestroyTarget: {
        const int index = targetOf(action);
        if (m_model->target() == index)
            m_recorder.setTarget(nullptr);
        m_model->targetIsGone(index);
        return m_surroundings.renewTarget(index);
    }
    case SetText:
        m_machine->setText(textOf(action));
        return m_model->setText(textOf(action));
    case SetMaxLength:
        m_machine->setMaxLength(maxLengthOf(action));
        return m_model->setMaxLength(maxLengthOf(action));
    case SetValidator:
        return setValidator(action);
    case SetPasswordEcho:
        m_machine->setPasswordEchoMode(isOn(action));
        return m_model->setPasswordEchoMode(isOn(action));
    case SetEditMode:
        m_machine->setEditMode(editModeOf(action));
        return m_model->setEditMode(editModeOf(action));
    case SetDecimalPoint:
        m_machine->setDecimalPointEnabled(isOn(action));
        return m_model->setDecimalPointEnabled(isOn(action));
    case SetLimits:
        m_machine->setLimitToolTip(limitsOf(action));
        return m_model->setLimitToolTip(limitsOf(action));
    case SetDeviceType:
        return m_surroundings.setDeviceType(deviceTypeOf(action));
    case RegisterView:
        return m_surroundings.registerView(action.a % 4);
    case ChangeView:
        return m_surroundings.changeView(action.a, action.b, action.c);
    case MoveTarget:
        return m_surroundings.moveTarget(targetOf(action), action.b, action.c);
    default:
        break;
    }
}

// Now and then the application has blocked the target's signals, or it does not take every text.
void Session::setObject(const Action &action)
{
    const int index = targetOf(action);
    if (index == NoTarget) {
        m_machine->setObject(nullptr);
        return m_model->setObject(KeypadModel::noTarget);
    }
    if (action.b % 8 == 0)
        m_surroundings.block(index);
    if (isChoosy(action))
        m_surroundings.setWhenWritten(index, WhenWritten(action.c % 3));
    m_recorder.setTarget(m_surroundings.target(index));
    m_machine->setObject(m_surroundings.target(index));
    m_model->setObject(index);
}

// One that is destroyed while it is set is none any more.
void Session::setValidator(const Action &action)
{
    const QValidator *validator = Surroundings::validator(validatorOf(action));
    if (isDestroyed(action)) {
        const QScopedPointer<QValidator> mortal(Surroundings::newValidator());
        m_machine->setValidator(mortal.data());
        validator = nullptr;
    } else {
        m_machine->setValidator(validator);
    }
    m_model->setValidator(validator);
}

void Session::close(int way)
{
    if (!m_model->isOpen())
        return;
    switch (way % 4) {
    case 0:
        m_machine->dialog()->reject();
        return m_model->closeWith(QDialog::Rejected);
    case 1:
        m_machine->dialog()->close();
        return m_model->closeWith(QDialog::Rejected);
    case 2:
        m_machine->dialog()->accept();
        return m_model->closeWith(QDialog::Accepted);
    default:
        m_machine->dialog()->done(7);
        return m_model->closeWith(7);
    }
}

void Session::compare()
{
    const Seen ofKeypad = seen();
    Seen ofModel = m_model->seen();
    const QStringList lines = ofModel.lines();
    m_states.insert(hashOf(lines));
    if (lines == ofKeypad.lines())
        return;
    m_same = false;
    m_divergence.action = m_next;
    m_divergence.differences = differences(ofKeypad, ofModel);
}

Seen Session::seen()
{
    const QDialog *dialog = m_machine->dialog();
    const KeyBoardLineEdit *line = m_machine->line();
    Seen seen;
    seen.text = line->text();
    seen.selectedText = line->selectedText();
    seen.cursor = line->cursorPosition();
    seen.maxLength = line->maxLength();
    seen.hidden = line->echoMode() != QLineEdit::Normal;
    const QList<QWidget *> keys = m_keys;
    for (const QWidget *key : keys) {
        const QString label = key->property("text").toString();
        seen.keys << seenKey(label, key->isEnabled(), key->isVisibleTo(dialog));
    }
    seen.tip = m_machine->tip() + u(m_machine->isTipShown() ? " shown" : " hidden");
    seen.parts = m_machine->parts();
    seen.targets = m_surroundings.seenTargets();
    seen.open = dialog->isVisible();
    seen.result = dialog->result();
    seen.focus = dialog->isVisible() ? int((m_fields + m_keys).indexOf(dialog->focusWidget())) : -1;
    seen.place = m_model->place().isNull() ? QRect() : dialog->geometry();
    seen.resizable = dialog->maximumSize() != dialog->size();
    seen.happenings = m_recorder.takeHappenings();
    return seen;
}
