// SPDX-License-Identifier: MIT
//
// A view that is shown, and a field in it that opens the numeric keypad when it is tapped.

#include <HMIDevice/HMIDeviceInfo.h>
#include <HMIDevice/NumericKeypad.h>

#include <QApplication>
#include <QGraphicsView>
#include <QLineEdit>

namespace {

class SpeedField : public QLineEdit
{
public:
    explicit SpeedField(QWidget *parent)
        : QLineEdit(QLatin1String("1200"), parent)
    {
        setObjectName(QLatin1String("speed"));
        setReadOnly(true); // for the operator's finger; the keypad writes all the same
        setGeometry(40, 40, 200, 48);
    }

protected:
    void mouseReleaseEvent(QMouseEvent *) override
    {
        NumericKeypad *keypad = NumericKeypad::instance();
        keypad->setObject(this);
        keypad->setEditMode(10);
        keypad->setLimitToolTip(QLatin1String("0 ... 6000 rpm"));
        keypad->setText(text());
        if (keypad->exec() == QDialog::Accepted)
            window()->setWindowTitle(text());
    }
};

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    HMIDeviceInfo::setDeviceInfo(8, QSize()); // the panel model

    QGraphicsView view;
    view.setFrameShape(QFrame::NoFrame);
    view.resize(HMIDeviceInfo::screenSize());
    HMIDeviceInfo::setGraphicsView(&view); // keypads cover this view

    SpeedField field(&view);
    view.show();
    return application.exec();
}
