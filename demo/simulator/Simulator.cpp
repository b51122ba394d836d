// SPDX-License-Identifier: MIT
#include "Simulator.h"

#include "Bezel.h"
#include "Chooser.h"
#include "EventLog.h"
#include "Models.h"
#include "ScreenView.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>

namespace {

const int sideWidth = 280; // pixels, where the display has them
const int leastSideWidth = 200;
const int margin = 8;

// What a window manager may put around a window.
const QSize frame(16, 48);

const int leastHeight = 840; // of the window, for the chooser and the log

const struct
{
    QPalette::ColorRole role;
    QRgb colour;
} colours[] = { { QPalette::Window, 0xffd5dade },         { QPalette::WindowText, 0xff1c242b },
                { QPalette::Base, 0xfff7f9fa },           { QPalette::AlternateBase, 0xffeaeef1 },
                { QPalette::Text, 0xff1c242b },           { QPalette::Button, 0xffe6eaed },
                { QPalette::ButtonText, 0xff1c242b },     { QPalette::Highlight, 0xff2f7fb8 },
                { QPalette::HighlightedText, 0xffffffff } };

const QRgb dimmed = 0xff8d979f;

} // namespace

void applySimulatorTheme()
{
    QApplication::setStyle(QLatin1String("Fusion"));
    QPalette palette;
    for (const auto &entry : colours)
        palette.setColor(entry.role, QColor(entry.colour));
    for (QPalette::ColorRole role : { QPalette::WindowText, QPalette::Text, QPalette::ButtonText })
        palette.setColor(QPalette::Disabled, role, QColor(dimmed));
    QApplication::setPalette(palette);
}

Simulator::Simulator(const PanelSetup &setup)
    : m_panel(this)
    , m_chooser(new Chooser(readModels(), this))
    , m_log(new EventLog(this))
    , m_bezel(new Bezel(&m_panel, readModels(), this))
    , m_scroll(new QScrollArea(this))
    , m_splitter(new QSplitter(this))
{
    setWindowTitle(QLatin1String("HMIDevice panel simulator"));
    m_scroll->setWidget(m_bezel);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setAlignment(Qt::AlignCenter);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_splitter->addWidget(m_scroll);
    m_splitter->addWidget(createSide());
    m_splitter->setStretchFactor(0, 1);
    QHBoxLayout *layout = new QHBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(m_splitter);

    connect(&m_panel, SIGNAL(told(QString)), m_log, SLOT(add(QString)));
    connect(&m_panel, SIGNAL(told(QString)), SLOT(show()));
    connect(&m_panel, SIGNAL(changed()), SLOT(takePanel()));
    connect(&m_panel, SIGNAL(kept()), SLOT(showPanelAsChosen()));
    connect(&m_panel, SIGNAL(keypadChanged()), SLOT(lockChooser()));
    connect(m_chooser, SIGNAL(chosen()), SLOT(changePanel()));
    // A window has no button for that where there is no window manager.
    new QShortcut(QKeySequence(QLatin1String("Ctrl+Q")), this, SLOT(close()));
    m_chooser->setObjectName(QLatin1String("chooser"));
    m_chooser->setSetup(setup);
    m_bezel->screen()->setFocus();
    m_panel.start(setup);
}

QWidget *Simulator::createSide()
{
    QWidget *side = new QWidget(this);
    side->setMinimumWidth(leastSideWidth);
    QVBoxLayout *layout = new QVBoxLayout(side);
    layout->setContentsMargins(margin / 2, 0, 0, 0);
    layout->addWidget(m_chooser, 5);
    layout->addWidget(m_log, 3);
    return side;
}

void Simulator::changePanel()
{
    m_panel.start(m_chooser->setup());
}

void Simulator::showPanelAsChosen()
{
    m_chooser->setSetup(m_panel.setup());
}

// A panel of the same size leaves the window as the user has made it.
void Simulator::takePanel()
{
    m_bezel->adjustSize();
    if (!isVisible() || m_bezel->size() != m_fitted)
        fitToScreen();
}

void Simulator::lockChooser()
{
    m_chooser->setLocked(m_panel.isKeypadOpen());
}

// As large as the panel needs, if the display is. The side gives way on a small one.
void Simulator::fitToScreen()
{
    m_fitted = m_bezel->size();
    const int handle = m_splitter->handleWidth();
    const QSize room = QApplication::primaryScreen()->availableSize() - frame;
    QSize panel = m_bezel->size() + QSize(handle + 2 * margin, 2 * margin);
    if (panel.height() > room.height())
        panel.rwidth() += m_scroll->verticalScrollBar()->sizeHint().width();
    const QSize wanted(panel.width() + sideWidth, qMax(panel.height(), leastHeight));
    if (!isMaximized() && !isFullScreen())
        resize(wanted.boundedTo(room));
    const int side = qBound(leastSideWidth, width() - panel.width(), sideWidth);
    m_splitter->setSizes({ width() - 2 * margin - handle - side, side });
}
