// SPDX-License-Identifier: MIT
#include "OwnView_p.h"

#include <HMIDevice/HMIDeviceInfo.h>

#include <QApplication>
#include <QGraphicsView>

namespace Fields {

namespace {

QGraphicsView *ownView = nullptr;

// Before the application goes, and with it what the keypads need to go.
void deleteOwnView()
{
    if (isOwnViewRegistered())
        HMIDeviceInfo::setGraphicsView(nullptr);
    delete ownView;
    ownView = nullptr;
}

// Its viewport has its size only when it is laid out, and it is laid out only when it is shown.
void createOwnView()
{
    ownView = new QGraphicsView;
    ownView->setFrameShape(QFrame::NoFrame);
    ownView->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    ownView->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    ownView->setAttribute(Qt::WA_DontShowOnScreen);
    ownView->setAttribute(Qt::WA_QuitOnClose, false);
    ownView->setFocusPolicy(Qt::NoFocus);
    ownView->show();
    qAddPostRoutine(deleteOwnView);
}

// Keypads cover the viewport, moved by its place in the view: a style sheet may frame every view.
void cover(const QRect &place)
{
    ownView->setGeometry(place);
    const QRect viewport = ownView->viewport()->geometry();
    ownView->setGeometry(QRect(place.topLeft() - 2 * viewport.topLeft(),
                               place.size() + ownView->size() - viewport.size()));
}

} // namespace

bool isOwnViewRegistered()
{
    return ownView && HMIDeviceInfo::graphicsView() == ownView;
}

void prepareView(const QWidget *window)
{
    if (!HMIDeviceInfo::graphicsView()) {
        if (!ownView)
            createOwnView();
        HMIDeviceInfo::setGraphicsView(ownView);
    }
    if (isOwnViewRegistered())
        cover(QRect(window->mapToGlobal(QPoint(0, 0)), window->size()));
}

} // namespace Fields
