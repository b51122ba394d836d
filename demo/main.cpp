// SPDX-License-Identifier: MIT
#include "FieldEditor.h"
#include "Gallery.h"
#include "MachineScreen.h"
#include "Options.h"
#include "Session.h"
#include "Theme.h"

#include <HMIDevice/HMIDeviceInfo.h>

#include <QApplication>
#include <QGraphicsView>
#include <QTranslator>

namespace {

// Options are answered where there is no display, too.
Options readOptions(int argc, char *argv[])
{
    return readOptions(QCoreApplication(argc, argv).arguments());
}

QtMessageHandler qtHandler = nullptr;

// Qt's offscreen platform complains whenever a visible window gets a fixed size, as the G-code
// keypad does at every show. Nothing is amiss, so this one line is left out.
void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (message != QLatin1String("This plugin does not support propagateSizeHints()"))
        qtHandler(type, context, message);
}

} // namespace

int main(int argc, char *argv[])
{
    qtHandler = qInstallMessageHandler(handleMessage);
    const Options options = readOptions(argc, argv);
    if (!options.galleryFolder.isEmpty())
        return drawGallery(argc, argv, options.galleryFolder);
    QApplication application(argc, argv);

    // The panel model first, then the rotation: both decide the size of the view.
    HMIDeviceInfo::setDeviceInfo(options.type, options.size);
    HMIDeviceInfo::setScreenRotate(options.rotation);
    applyTheme(&application);

    // Keypads take their texts when they are built.
    QTranslator translator;
    if (!options.translation.isEmpty() && translator.load(options.translation))
        application.installTranslator(&translator);

    QGraphicsView view;
    view.setWindowTitle(QLatin1String("hmi-demo"));
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
