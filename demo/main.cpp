// SPDX-License-Identifier: MIT
#include "Gallery.h"
#include "Options.h"
#include "Panel.h"
#include "Session.h"
#include "simulator/RemotePanel.h"
#include "simulator/Simulator.h"

#include <QApplication>

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

int runSimulator(const PanelSetup &setup)
{
    applySimulatorTheme();
    const Simulator simulator(setup);
    return QCoreApplication::exec();
}

int runPanel(const Options &options)
{
    Panel panel(options.panel);
    panel.show();
    Session session(panel.view(), panel.screen(), panel.editor());
    if (!options.pictureFolder.isEmpty())
        session.start(options.pictureFolder);
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    qtHandler = qInstallMessageHandler(handleMessage);
    if (argc == 2 && qstrcmp(argv[1], Protocol::panelArgument) == 0)
        return runRemotePanel(argc, argv);
    const Options options = readOptions(argc, argv);
    if (!options.galleryFolder.isEmpty())
        return drawGallery(argc, argv, options.galleryFolder);
    QApplication application(argc, argv);
    if (options.screenAlone || !options.pictureFolder.isEmpty())
        return runPanel(options);
    return runSimulator(options.panel);
}
