// SPDX-License-Identifier: MIT
#include "PlacementPicture.h"

#include "FacePainter.h"
#include "GCodeStandIn.h"
#include "MachineScreen.h"
#include "TouchField.h"

#include <HMIDevice/GCodeKeypad.h>

#include <QAbstractButton>
#include <QApplication>
#include <QPainter>
#include <QPixmap>

namespace {

const QSize sceneSize(620, 345); // of a part of the desktop with the panel on it
const int gap = 4;
const QSize panelSize(480, 272);
const QPoint panelPlace(60, 40); // off the corner, where the rule shows

// The panel's screen with its program field, in a view of its own.
class Panel
{
public:
    Panel()
        : m_view(makeView())
        , m_screen(m_view->viewport())
    {
        m_screen.resize(panelSize);
        m_view->show();
        m_screen.softKey(QLatin1String("PROG"))->click();
        QApplication::processEvents();
    }

    TouchField *field() const { return m_screen.field(QLatin1String("block")); }

    // With the keypad that target is bound to; frame is red around the field.
    void paint(QPainter *painter, QObject *target);

private:
    static QGraphicsView *makeView();

    const QScopedPointer<QGraphicsView> m_view;
    MachineScreen m_screen;
};

QGraphicsView *Panel::makeView()
{
    QGraphicsView *view = new QGraphicsView;
    view->setFrameShape(QFrame::NoFrame);
    view->setFixedSize(panelSize);
    view->move(panelPlace);
    HMIDeviceInfo::setGraphicsView(view);
    return view;
}

void Panel::paint(QPainter *painter, QObject *target)
{
    GCodeKeypad keypad(m_view.data(), Qt::WindowFlags());
    keypad.setObject(target);
    keypad.setText(field()->text());
    FacePainter::show(&keypad);
    const QPoint origin = m_view->pos() - panelPlace;
    painter->drawPixmap(m_view->pos() - origin, m_view->grab());
    painter->drawPixmap(keypad.pos() - origin, keypad.grab());
    painter->setPen(QPen(QColor(255, 48, 48), 3));
    painter->drawRect(
        QRect(field()->mapToGlobal(QPoint(0, 0)) - origin, field()->size()).adjusted(0, 0, -1, -1));
}

void paintTitle(QPainter *painter, const QString &title)
{
    QFont font = QApplication::font();
    font.setPixelSize(15);
    painter->fillRect(QRect(QPoint(0, 0), sceneSize), QColor(168, 180, 192));
    painter->setFont(font);
    painter->setPen(Qt::black);
    painter->drawText(8, 24, title);
}

QString pointText(const QPoint &point)
{
    return QString::fromLatin1("(%1, %2)").arg(point.x()).arg(point.y());
}

} // namespace

QImage placementPicture()
{
    HMIDeviceInfo::setDeviceInfo(9, QSize()); // the model of that size, which the screen asks for
    QImage picture(sceneSize.width(), 2 * sceneSize.height() + gap, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    Panel panel;
    paintTitle(&painter,
               QString::fromLatin1("Target: the field, at %1 of its page, in a view at %2")
                   .arg(pointText(panel.field()->pos()), pointText(panelPlace)));
    panel.paint(&painter, panel.field());
    painter.translate(0, sceneSize.height() + gap);
    paintTitle(&painter, QLatin1String("Target: a stand-in without a parent"));
    GCodeStandIn standIn(panel.field());
    panel.paint(&painter, &standIn);
    HMIDeviceInfo::setGraphicsView(nullptr);
    return picture;
}
