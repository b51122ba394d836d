// SPDX-License-Identifier: MIT
#include "FieldEditor.h"
#include "MachineScreen.h"
#include "Options.h"
#include "Session.h"
#include "Theme.h"

#include <HMIDevice/HMIDeviceInfo.h>

#include <QApplication>
#include <QGraphicsView>
#include <QTranslator>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const Options options = readOptions();

    // The panel model first, then the rotation: both decide the size of the view.
    HMIDeviceInfo::setDeviceInfo(options.type, options.size);
    HMIDeviceInfo::setScreenRotate(options.rotation);
    applyTheme(&application);

    // Keypads take their texts when they are built.
    QTranslator translator;
    if (!options.translation.isEmpty() && translator.load(options.translation))
        application.installTranslator(&translator);

    QGraphicsView view;
    view.setWindowTitle("hmi-demo");
    view.setFrameShape(QFrame::NoFrame); // so that keypads cover exactly what is seen
    view.setFixedSize(HMIDeviceInfo::screenSize());
    HMIDeviceInfo::setGraphicsView(&view);

    MachineScreen screen(view.viewport());
    FieldEditor editor(&screen);
    screen.resize(view.size());
    view.show();

    Session session(&view, &screen, &editor);
    if (!options.pictureFolder.isEmpty())
        session.start(options.pictureFolder);
    return application.exec();
}
