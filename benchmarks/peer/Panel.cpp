// SPDX-License-Identifier: MIT
#include "Panel.h"

#include <HMIDevice/CharacterKeypad.h>
#include <HMIDevice/HMIDeviceInfo.h>
#include <HMIDevice/NumericKeypad.h>

#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QInputMethod>
#include <QSocketNotifier>
#include <QTextStream>
#include <QTimer>
#include <QToolButton>

#include <unistd.h>

namespace {

const QRect fieldPlace(10, 4, 200, 32);

QRect onScreen(const QWidget *widget)
{
    return QRect(widget->mapToGlobal(QPoint()), widget->size());
}

const QWidget *key(const QWidget *keypad, QLatin1String label)
{
    const QList<QToolButton *> keys = keypad->findChildren<QToolButton *>();
    for (const QToolButton *button : keys) {
        if (button->text() == label)
            return button;
    }
    qFatal("no key %s", label.data());
    return nullptr;
}

template <class Keypad>
QDialog *prepared(QLineEdit *field)
{
    Keypad *keypad = Keypad::instance();
    keypad->setObject(field);
    keypad->setText(field->text());
    return keypad;
}

} // namespace

Panel::Panel(Input input, bool hasDigits, QSize screen)
    : m_input(input)
    , m_hasDigits(hasDigits)
    , m_field(viewport())
    , m_keypad(nullptr)
{
    setFrameStyle(QFrame::NoFrame);
    setGeometry(QRect(QPoint(), screen));
    m_field.setGeometry(fieldPlace);
    if (hasDigits)
        m_field.setInputMethodHints(Qt::ImhDigitsOnly);
    m_field.installEventFilter(this);
    m_field.setFocus();
    HMIDeviceInfo::setGraphicsView(this);
    connect(new QSocketNotifier(STDIN_FILENO, QSocketNotifier::Read, this), SIGNAL(activated(int)),
            this, SLOT(read()));
    QTimer::singleShot(0, this, SLOT(start()));
}

void Panel::start()
{
    const QPoint centre = onScreen(&m_field).center();
    QTextStream(stdout) << centre.x() << ' ' << centre.y() << '\n';
}

bool Panel::eventFilter(QObject *, QEvent *event)
{
    if (m_input == KeypadInput && event->type() == QEvent::MouseButtonRelease)
        QTimer::singleShot(0, this, SLOT(openKeypad()));
    return false;
}

void Panel::openKeypad()
{
    m_keypad =
        m_hasDigits ? prepared<NumericKeypad>(&m_field) : prepared<CharacterKeypad>(&m_field);
    m_keypad->exec();
}

QRect Panel::placeOfInput() const
{
    if (m_keypad)
        return onScreen(key(m_keypad, QLatin1String(m_hasDigits ? "5" : "h")));
    return QGuiApplication::inputMethod()->keyboardRectangle().toRect();
}

void Panel::read()
{
    char buffer[64];
    const ssize_t length = ::read(STDIN_FILENO, buffer, sizeof buffer);
    if (length <= 0)
        QCoreApplication::quit();
    else
        answer(QByteArray(buffer, int(length)).trimmed());
}

void Panel::answer(const QByteArray &question)
{
    QTextStream out(stdout);
    if (question == "place") {
        const QRect place = placeOfInput();
        out << place.x() << ' ' << place.y() << ' ' << place.width() << ' ' << place.height();
    } else if (question == "text") {
        const QLineEdit *line = m_keypad ? m_keypad->findChild<QLineEdit *>() : &m_field;
        out << line->text().length();
    } else if (question == "close") {
        if (m_keypad)
            m_keypad->reject();
        QGuiApplication::inputMethod()->hide();
        out << "closed";
    }
    out << '\n';
}
