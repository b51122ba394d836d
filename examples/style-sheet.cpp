// SPDX-License-Identifier: MIT
//
// Keypads in the application's colours. Every part of a keypad has an object name, the same in
// every keypad; a sheet that names no font leaves the sizes as they are.

#include <HMIDevice/HMIDeviceInfo.h>
#include <HMIDevice/vondKeypad.h>

#include <QApplication>
#include <QGraphicsView>
#include <QPushButton>

namespace {

const char styleSheet[] = "vondKeypad { background: #202830 }"
                          "QToolButton { background: #39434d; color: white; border-radius: 4px }"
                          "QToolButton:pressed { background: #5c6b7a }"
                          "#enterKey { background: #1d6b34 }"
                          "#escKey { background: #7a2020 }"
                          "#editLine { background: black; color: #ffd75f }";

class Screen : public QGraphicsView
{
    Q_OBJECT

public:
    Screen()
        : m_axis(QLatin1String("X12.5"), this)
    {
        m_axis.setObjectName(QLatin1String("axis"));
        HMIDeviceInfo::setGraphicsView(this);
        connect(&m_axis, SIGNAL(clicked()), this, SLOT(editAxis()));
    }

private Q_SLOTS:
    void editAxis()
    {
        vondKeypad::instance()->setObject(&m_axis);
        vondKeypad::instance()->setText(m_axis.text());
        vondKeypad::instance()->exec();
    }

private:
    QPushButton m_axis;
};

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    application.setStyleSheet(QLatin1String(styleSheet));
    HMIDeviceInfo::setDeviceInfo(8, QSize());
    Screen screen;
    screen.show();
    return application.exec();
}

#include "style-sheet.moc"
