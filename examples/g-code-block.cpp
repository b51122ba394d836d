// SPDX-License-Identifier: MIT
//
// A line of a program is too low for the keys of the G-code keypad. A stand-in lets the keypad
// cover the lower half of the screen instead, while the operator sees the program above it.

#include "GCodeStandIn.h"

#include <HMIDevice/GCodeKeypad.h>
#include <HMIDevice/HMIDeviceInfo.h>

#include <QApplication>
#include <QGraphicsView>
#include <QPushButton>

namespace {

class Screen : public QGraphicsView
{
    Q_OBJECT

public:
    Screen()
        : m_block(QLatin1String("N10 G01 X5."), this)
    {
        m_block.setObjectName(QLatin1String("block"));
        m_block.setGeometry(8, 8, 300, 32);
        setFrameShape(QFrame::NoFrame);
        HMIDeviceInfo::setGraphicsView(this);
        connect(&m_block, SIGNAL(clicked()), this, SLOT(editBlock()));
    }

private Q_SLOTS:
    void editBlock()
    {
        const QRect screen = viewport()->rect();
        GCodeStandIn standIn(&m_block, screen.adjusted(0, screen.height() / 2, 0, 0));
        GCodeKeypad *keypad = GCodeKeypad::instance();
        keypad->setObject(&standIn);
        keypad->setText(m_block.text());
        keypad->exec(); // writes the stand-in's "text", and so the block's
    }

private:
    QPushButton m_block;
};

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    HMIDeviceInfo::setDeviceInfo(8, QSize());
    Screen screen;
    screen.resize(HMIDeviceInfo::screenSize());
    screen.show();
    return application.exec();
}

#include "g-code-block.moc"
