// SPDX-License-Identifier: MIT
#include "Panel.h"

#include "FieldEditor.h"
#include "Fonts.h"
#include "MachineScreen.h"
#include "Theme.h"

#include <HMIDevice/HMIDeviceInfo.h>

#include <QApplication>
#include <QEvent>
#include <QFileInfo>

namespace {

const int frameWidth = 4; // pixels; wide enough for the eye to see how keypads are shifted by it

// Panels without a window system.
const char *const barePlatforms[] = { "eglfs", "linuxfb", "vkkhrdisplay", "directfb" };

bool hasWindows()
{
    for (const char *platform : barePlatforms) {
        if (QGuiApplication::platformName() == QLatin1String(platform))
            return false;
    }
    return true;
}

void setUpFrame(QGraphicsView *view, bool frame)
{
    view->setFrameStyle(frame ? int(QFrame::Box) | int(QFrame::Plain) : int(QFrame::NoFrame));
    view->setLineWidth(frame ? frameWidth : 0);
}

} // namespace

QString findTranslation(const QString &language)
{
    const QString path = QString::fromLatin1("%1/translations/HMIDevice_%2.qm")
                             .arg(QCoreApplication::applicationDirPath(), language);
    return QFileInfo(path).isFile() ? path : QString();
}

Panel::Panel(const PanelSetup &setup)
{
    // The panel model first, then the rotation: both decide the size of the view.
    HMIDeviceInfo::setDeviceInfo(setup.type, setup.size);
    HMIDeviceInfo::setScreenRotate(setup.rotation);
    applyTheme(setup.style);
    chooseFonts();

    // Keypads take their texts when they are built.
    if (!setup.language.isEmpty() && m_translator.load(findTranslation(setup.language)))
        QCoreApplication::installTranslator(&m_translator);

    m_view.setWindowTitle(QLatin1String("hmi-demo"));
    setUpFrame(&m_view, setup.frame);
    HMIDeviceInfo::setGraphicsView(&m_view);

    m_screen = new MachineScreen(m_view.viewport());
    m_editor = new FieldEditor(m_screen);
    m_view.viewport()->installEventFilter(this);
}

Panel::~Panel()
{
    m_view.viewport()->removeEventFilter(this);
}

void Panel::show()
{
    if (hasWindows()) {
        m_view.setFixedSize(HMIDeviceInfo::screenSize());
        m_view.show();
    } else {
        m_view.showFullScreen();
    }
}

// The machine screen fills the view, inside its frame.
bool Panel::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        m_screen->resize(m_view.viewport()->size());
    return QObject::eventFilter(object, event);
}
