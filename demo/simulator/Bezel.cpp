// SPDX-License-Identifier: MIT
#include "Bezel.h"

#include "BezelColours.h"
#include "HardKey.h"
#include "HardKeys.h"
#include "PanelRunner.h"
#include "ScreenView.h"

#include <QGridLayout>
#include <QLabel>
#include <QLinearGradient>
#include <QPainter>

namespace {

const int margin = 16; // pixels
const int spacing = 10;
const int keySpacing = 3;
const int functionKeyHeight = 30;
const int radius = 14;
const int recess = 3; // around the screen

QLabel *createLabel(QRgb colour, QWidget *parent)
{
    QLabel *label = new QLabel(parent);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, QColor(colour));
    label->setPalette(palette);
    QFont font = label->font();
    font.setPixelSize(12);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 0.5);
    label->setFont(font);
    return label;
}

QGridLayout *createGrid()
{
    QGridLayout *grid = new QGridLayout;
    grid->setSpacing(keySpacing);
    return grid;
}

} // namespace

Bezel::Bezel(PanelRunner *panel, const QVector<Model> &models, QWidget *parent)
    : QWidget(parent)
    , m_panel(panel)
    , m_models(models)
    , m_screen(new ScreenView(panel, this))
    , m_keyboard(createGrid())
    , m_functionKeys(createGrid())
    , m_plate(createLabel(BezelColours::lettering, this))
    , m_legend(createLabel(BezelColours::legend, this))
{
    QGridLayout *layout = new QGridLayout(this);
    layout->setContentsMargins(margin, margin / 2, margin, margin);
    layout->setSpacing(spacing);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(m_plate, 0, 0);
    layout->addWidget(m_legend, 0, 1);
    layout->addWidget(m_screen, 1, 0);
    layout->addLayout(m_keyboard, 1, 1);
    layout->addLayout(m_functionKeys, 2, 0);
    m_legend->setText(QString::fromUtf8("● the application’s keys"));
    m_legend->hide();
    connect(panel, SIGNAL(changed()), SLOT(takeModel()));
}

void Bezel::takeModel()
{
    const Model &model = m_models.at(m_panel->setup().type - 1);
    const QSize size = m_panel->picture().size();
    m_plate->setText(QString::fromUtf8("TYPE %1   ·   %2 × %3   ·   %4")
                         .arg(model.type)
                         .arg(size.width())
                         .arg(size.height())
                         .arg(inputMeans(model)));
    m_legend->setVisible(model.type == handingOnType);
    qDeleteAll(m_keys);
    m_keys.clear();
    if (model.hasHardKeys)
        buildKeys(model);
    updateGeometry();
}

void Bezel::buildKeys(const Model &model)
{
    addKeys(HardKeys::addKeyboard(m_keyboard, model.type, this));
    const QVector<HardKey *> functionKeys =
        HardKeys::addFunctionKeys(m_functionKeys, model.type, m_screen->width(), this);
    for (HardKey *key : functionKeys)
        key->setFixedHeight(functionKeyHeight);
    addKeys(functionKeys);
}

void Bezel::addKeys(const QVector<HardKey *> &keys)
{
    for (HardKey *key : keys) {
        connect(key, SIGNAL(pressed()), SLOT(pressKey()));
        connect(key, SIGNAL(released()), SLOT(releaseKey()));
        key->show();
    }
    m_keys += keys;
}

void Bezel::pressKey()
{
    send(*qobject_cast<HardKey *>(sender()), true);
}

void Bezel::releaseKey()
{
    send(*qobject_cast<HardKey *>(sender()), false);
}

void Bezel::send(const HardKey &key, bool down)
{
    m_panel->send(Protocol::KeyInput { down ? QEvent::KeyPress : QEvent::KeyRelease, key.key(),
                                       int(Qt::NoModifier), key.keyText() });
}

void Bezel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF housing = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    QLinearGradient face(housing.topLeft(), housing.bottomLeft());
    face.setColorAt(0, QColor(BezelColours::housingTop));
    face.setColorAt(1, QColor(BezelColours::housingBottom));
    painter.setPen(QPen(QColor(BezelColours::housingEdge), 1));
    painter.setBrush(face);
    painter.drawRoundedRect(housing, radius, radius);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(BezelColours::light), 1));
    painter.drawRoundedRect(housing.adjusted(1, 1, -1, -1), radius - 1, radius - 1);

    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(BezelColours::shadow));
    painter.drawRoundedRect(QRect(m_screen->geometry()).adjusted(-recess, -recess, recess, recess),
                            recess, recess);
}
