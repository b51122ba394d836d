// SPDX-License-Identifier: MIT
//
// On panel type 13 eighteen hard keys belong to the application: pressed while a keypad is open,
// such a key closes it, writes nothing, and arrives here.

#include <HMIDevice/HMIDeviceInfo.h>
#include <HMIDevice/NumericKeypad.h>

#include <QApplication>
#include <QGraphicsView>
#include <QKeySequence>
#include <QPushButton>

namespace {

class Screen : public QGraphicsView
{
    Q_OBJECT

public:
    Screen()
        : m_feed(QLatin1String("150"), this)
    {
        setObjectName(QLatin1String("screen"));
        m_feed.setObjectName(QLatin1String("feed"));
        HMIDeviceInfo::setGraphicsView(this); // before the first keypad is asked for
        connect(&m_feed, SIGNAL(clicked()), SLOT(editFeed()));
        connect(NumericKeypad::instance(), SIGNAL(signal_kTypeKeyPressed(int)),
                SLOT(hardKeyPressed(int)));
    }

private Q_SLOTS:
    void editFeed()
    {
        NumericKeypad *keypad = NumericKeypad::instance();
        keypad->setObject(&m_feed);
        keypad->setText(m_feed.text());
        keypad->exec();
    }

    void hardKeyPressed(int key) { setWindowTitle(QKeySequence(key).toString()); }

private:
    QPushButton m_feed;
};

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    HMIDeviceInfo::setDeviceInfo(13, QSize());
    Screen screen;
    screen.show();
    return application.exec();
}

#include "hard-keys.moc"
