// SPDX-License-Identifier: MIT
//
// A program that ends while all five keypads are open, each opened by the one before. Its argument
// says what becomes of the view. It ends with 0 and without a word when all went well.

#include "support/QtDifferences.h"

#include <HMIDevice/CharacterKeypad.h>
#include <HMIDevice/DateTimeKeypad.h>
#include <HMIDevice/GCodeKeypad.h>
#include <HMIDevice/HMIDeviceInfo.h>
#include <HMIDevice/NumericKeypad.h>
#include <HMIDevice/vondKeypad.h>

#include <QApplication>
#include <QDialog>
#include <QGraphicsView>
#include <QLineEdit>
#include <QScopedPointer>
#include <QTimerEvent>

#include <cstdio>
#include <cstring>

namespace {

// What Qt's platform without a display says of windows that have a smallest size.
const char messageOfThePlatform[] = "This plugin does not support propagateSizeHints()";

HMI_MESSAGE_HANDLER(printOthers, text)
{
    const QString message = QtDifferences::messageText(text);
    if (message != QLatin1String(messageOfThePlatform))
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

template <class Keypad>
QDialog *bound(QObject *target)
{
    Keypad *keypad = Keypad::instance();
    keypad->setObject(target);
    keypad->setText(QLatin1String("1"));
    return keypad;
}

QDialog *(*const keypads[])(QObject *target) = { bound<NumericKeypad>, bound<GCodeKeypad>,
                                                 bound<vondKeypad>, bound<DateTimeKeypad>,
                                                 bound<CharacterKeypad> };
const int keypadCount = int(sizeof(keypads) / sizeof(keypads[0]));

// Opens one keypad after the other, then quits.
class Operator : public QObject
{
public:
    Operator()
        : m_opened(0)
        , m_rejected(0)
        , m_timer(startTimer(0))
    {
    }

    bool isContent() const { return m_rejected == keypadCount && m_target.text().isEmpty(); }

protected:
    void timerEvent(QTimerEvent *) override
    {
        killTimer(m_timer); // one does not fire again before it is done
        if (m_opened == keypadCount) {
            QCoreApplication::quit();
            return;
        }
        m_timer = startTimer(0);
        QDialog *keypad = keypads[m_opened++](&m_target);
        if (keypad->exec() == QDialog::Rejected)
            ++m_rejected;
    }

private:
    QLineEdit m_target;
    int m_opened;
    int m_rejected;
    int m_timer;
};

} // namespace

int main(int argc, char *argv[])
{
    QtDifferences::installMessageHandler(printOthers);
    QApplication application(argc, argv);
    const char *const fate = argc == 2 ? argv[1] : "";
    QScopedPointer<QGraphicsView> ownView;
    if (std::strcmp(fate, "no-view") != 0) {
        QGraphicsView *const view = new QGraphicsView;
        if (std::strcmp(fate, "left-view") != 0) // to the application, which destroys what it finds
            ownView.reset(view);
        view->show();
        HMIDeviceInfo::setGraphicsView(view);
    }
    Operator user;
    application.exec();
    return user.isContent() ? 0 : 1;
}
