// SPDX-License-Identifier: MIT
#include "RemotePanel.h"

#include "FieldEditor.h"
#include "MachineScreen.h"
#include "Operator.h"
#include "Panel.h"

#include <QApplication>
#include <QBackingStore>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWindow>

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include <fcntl.h>
#include <unistd.h>

namespace {

const int mostBytes = 65536; // read at a time

// What a window has painted, without painting it again. On the offscreen platform it is an image.
const QImage *paintedImage(const QWidget *window)
{
    const QBackingStore *store = window->backingStore();
    return store ? dynamic_cast<const QImage *>(const_cast<QBackingStore *>(store)->paintDevice())
                 : nullptr;
}

QPoint placeOn(const QWidget *view, const QWidget *window)
{
    return window->mapToGlobal(QPoint(0, 0)) - view->mapToGlobal(QPoint(0, 0));
}

bool isChange(QEvent::Type type)
{
    return type == QEvent::Paint || type == QEvent::Show || type == QEvent::Hide
        || type == QEvent::Move;
}

bool isSameRow(const QImage &one, const QImage &other, int y)
{
    return std::memcmp(one.constScanLine(y), other.constScanLine(y), size_t(one.bytesPerLine()))
        == 0;
}

// The rows in which two pictures differ, from the first to the last; all when the sizes differ.
QRect changedRect(const QImage &before, const QImage &now)
{
    if (before.size() != now.size())
        return now.rect();
    int first = 0;
    while (first < now.height() && isSameRow(before, now, first))
        ++first;
    int last = now.height() - 1;
    while (last > first && isSameRow(before, now, last))
        --last;
    return QRect(0, first, now.width(), last - first + 1) & now.rect();
}

} // namespace

RemotePanel::RemotePanel(int input, int output)
    : m_input(input)
    , m_output(output)
    , m_notifier(input, QSocketNotifier::Read)
    , m_keypadOpen(false)
{
    m_report.setSingleShot(true);
    m_report.setInterval(0);
    connect(&m_notifier, SIGNAL(activated(int)), SLOT(read()));
    connect(&m_report, SIGNAL(timeout()), SLOT(report()));
    qApp->installEventFilter(this);
}

RemotePanel::~RemotePanel()
{
    qApp->removeEventFilter(this); // the panel's end is no change
}

void RemotePanel::read()
{
    QByteArray bytes(mostBytes, Qt::Uninitialized);
    const ssize_t count = ::read(m_input, bytes.data(), size_t(bytes.size()));
    if (count <= 0) {
        m_notifier.setEnabled(false);
        QCoreApplication::exit(0);
        return;
    }
    m_inbox.append(bytes.left(int(count)));
    QByteArray message;
    while (m_inbox.take(&message)) {
        m_messages.enqueue(message);
        QMetaObject::invokeMethod(this, "deliver", Qt::QueuedConnection);
    }
}

// A tap on a field returns when its keypad has closed again; by then the keypad's own event loop
// has delivered what came later.
void RemotePanel::deliver()
{
    const QByteArray message = m_messages.dequeue();
    QDataStream stream(message);
    switch (Protocol::readKind(&stream)) {
    case Protocol::Kind::Begin:
        begin(&stream);
        break;
    case Protocol::Kind::Mouse: {
        Protocol::MouseInput input;
        stream >> input;
        deliverMouse(input);
        break;
    }
    case Protocol::Kind::Key: {
        Protocol::KeyInput input;
        stream >> input;
        deliverKey(input);
        break;
    }
    default: // what the panel process says itself
        break;
    }
}

void RemotePanel::begin(QDataStream *stream)
{
    using Protocol::operator>>;
    PanelSetup setup;
    PanelState state;
    *stream >> setup >> state;
    m_panel.reset(new Panel(setup));
    restoreState(m_panel->screen(), state);
    connect(m_panel->editor(), SIGNAL(told(QString)), SLOT(tell(QString)));
    m_panel->show();
    m_panel->view()->activateWindow();
}

// As Qt does with the mouse of a screen: the window under the point gets the press, and what
// follows until the release. A modal keypad keeps the others' events off by itself. A double click
// without a press before it would have no release.
void RemotePanel::deliverMouse(const Protocol::MouseInput &input)
{
    if (!m_panel)
        return;
    QWidget *window = m_pressed ? m_pressed.data() : windowAt(input.place);
    m_pressed = input.buttons ? window : nullptr;
    if (input.type == QEvent::MouseButtonDblClick)
        sendMouse(QEvent::MouseButtonPress, input, window);
    sendMouse(input.type, input, window);
}

void RemotePanel::sendMouse(QEvent::Type type, const Protocol::MouseInput &input, QWidget *window)
{
    const QPoint onWindow = input.place - placeOn(m_panel->view(), window);
    QMouseEvent event(type, onWindow, window->mapToGlobal(onWindow), Qt::MouseButton(input.button),
                      Qt::MouseButtons(input.buttons), Qt::NoModifier);
    QCoreApplication::sendEvent(window->windowHandle(), &event);
}

void RemotePanel::deliverKey(const Protocol::KeyInput &input)
{
    if (!m_panel)
        return;
    QWidget *keypad = Operator::openKeypad();
    QWidget *window = keypad ? keypad : m_panel->view();
    Operator::isActive(window);
    QKeyEvent event(input.type, input.key, Qt::KeyboardModifiers(input.modifiers), input.text);
    QCoreApplication::sendEvent(window->windowHandle(), &event);
}

QWidget *RemotePanel::windowAt(const QPoint &place) const
{
    QWidget *keypad = Operator::openKeypad();
    if (keypad && QRect(placeOn(m_panel->view(), keypad), keypad->size()).contains(place))
        return keypad;
    return m_panel->view();
}

bool RemotePanel::eventFilter(QObject *object, QEvent *event)
{
    if (isChange(event->type()) && object->isWidgetType())
        m_report.start();
    return QObject::eventFilter(object, event);
}

void RemotePanel::report()
{
    if (!m_panel)
        return;
    reportPicture();
    const PanelState state = readState(*m_panel->screen());
    if (!(state == m_state))
        send(Protocol::message(Protocol::Kind::State, state));
    m_state = state;
    const bool keypadOpen = Operator::openKeypad();
    if (keypadOpen != m_keypadOpen)
        send(Protocol::message(Protocol::Kind::Keypad, keypadOpen));
    m_keypadOpen = keypadOpen;
}

void RemotePanel::reportPicture()
{
    const QImage now = picture();
    const QRect place = changedRect(m_picture, now);
    if (place.isEmpty())
        return;
    send(Protocol::message(Protocol::Kind::Picture,
                           Protocol::PicturePart { now.size(), place, now.copy(place) }));
    m_picture = now;
}

// Null until the view has been painted.
QImage RemotePanel::picture() const
{
    const QWidget *view = m_panel->view();
    const QImage *painted = paintedImage(view);
    if (!painted || painted->isNull())
        return QImage();
    QImage picture(view->size(), QImage::Format_RGB32);
    QPainter painter(&picture);
    painter.drawImage(QPoint(0, 0), *painted);
    const QWidget *keypad = Operator::openKeypad();
    if (const QImage *paintedKeypad = keypad ? paintedImage(keypad) : nullptr)
        painter.drawImage(QRect(placeOn(view, keypad), keypad->size()), *paintedKeypad,
                          keypad->rect());
    return picture;
}

void RemotePanel::tell(const QString &line)
{
    send(Protocol::message(Protocol::Kind::Line, line));
    m_report.start();
}

void RemotePanel::send(const QByteArray &message)
{
    int sent = 0;
    while (sent < message.size()) {
        const ssize_t count =
            ::write(m_output, message.constData() + sent, size_t(message.size() - sent));
        if (count < 0 && errno != EINTR)
            std::_Exit(0); // the simulator has gone
        sent += int(qMax<ssize_t>(count, 0));
    }
}

int runRemotePanel(int argc, char *argv[])
{
    // What others print must not come between the messages.
    const int output = ::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    ::dup2(STDERR_FILENO, STDOUT_FILENO);
    QApplication application(argc, argv);
    RemotePanel panel(STDIN_FILENO, output);
    return application.exec();
}
