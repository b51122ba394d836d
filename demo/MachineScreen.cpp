// SPDX-License-Identifier: MIT
#include "MachineScreen.h"

#include "ElidedLabel.h"
#include "FieldTable.h"
#include "GaugeBar.h"
#include "LampRow.h"
#include "PartCounter.h"
#include "Theme.h"
#include "TouchField.h"

#include <HMIDevice/HMIDeviceInfo.h>

#include <QButtonGroup>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>

namespace {

const char programBelow[] = "N40 G02 X52. Y-0.5 I0 J11.5\n"
                            "N50 G01 Y18.25\n"
                            "N60 G02 X40.5 Y29.75 I-11.5 J0\n"
                            "N70 G01 X-40.5\n"
                            "N80 G40 Y45.\n"
                            "N90 G00 Z50. M09\n"
                            "N100 G28 G91 Z0 M05\n"
                            "N110 G90 X0 Y200.\n"
                            "N120 M30";

const struct
{
    const char *tool, *length, *radius, *wear;
} toolOffsets[] = { { "T01", "120.250", "5.000", "0.012" },
                    { "T02", "98.700", "3.000", "0.000" },
                    { "T03", "-14.035", "8.000", "0.105" },
                    { "T04", "143.918", "0.400", "-0.020" } };

int unitFor(const QSize &size, bool upright)
{
    return upright ? qMin(size.height() / 26, size.width() / 17)
                   : qMin(size.height() / 16, size.width() / 26);
}

QFont fontOf(const QFont &font, int pixels)
{
    QFont sized(font);
    sized.setPixelSize(pixels);
    return sized;
}

QFont boldFont(QFont font)
{
    font.setBold(true);
    return font;
}

QFont programFont(int pixels)
{
    QFont font(QLatin1String("monospace"));
    font.setStyleHint(QFont::Monospace);
    return fontOf(font, pixels);
}

QFont digitFont(int pixels)
{
    return boldFont(programFont(pixels));
}

} // namespace

MachineScreen::MachineScreen(QWidget *parent)
    : QWidget(parent)
{
    const QSize size = HMIDeviceInfo::screenSize();
    m_upright = size.height() > size.width();
    m_unit = unitFor(size, m_upright);
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(screenStyleSheet());

    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(createTopBar());
    layout->addWidget(m_pages = new QStackedWidget(this), 1);
    layout->addWidget(createSoftKeys());
    m_softKeys->button(0)->setChecked(true);
    showPage();
}

TouchField *MachineScreen::field(const QString &name) const
{
    return findChild<TouchField *>(name);
}

QAbstractButton *MachineScreen::softKey(const QString &page) const
{
    return findChild<QPushButton *>(page);
}

QString MachineScreen::page() const
{
    return m_softKeys->checkedButton()->objectName();
}

void MachineScreen::openPage(const QString &page)
{
    if (QAbstractButton *key = softKey(page)) {
        key->setChecked(true);
        showPage();
    }
}

QString MachineScreen::message() const
{
    return m_message->text();
}

void MachineScreen::showMessage(const QString &text)
{
    m_message->setText(text);
}

// The keys F1 to F5 lie below the soft keys on panels that have them.
void MachineScreen::keyPressEvent(QKeyEvent *event)
{
    if (QAbstractButton *key = m_softKeys->button(event->key() - Qt::Key_F1))
        key->click();
    else
        QWidget::keyPressEvent(event);
}

QWidget *MachineScreen::createTopBar()
{
    QWidget *bar = new QWidget(this);
    bar->setObjectName(QLatin1String("bar"));
    bar->setFixedHeight(m_unit * 14 / 10);
    m_title = createLabel("", bar);
    m_title->setObjectName(QLatin1String("pageTitle"));
    m_title->setFont(boldFont(m_title->font()));
    m_message = new ElidedLabel(bar);
    m_message->setObjectName(QLatin1String("message"));
    m_message->setFont(fontOf(font(), m_unit * 6 / 10));
    QLabel *mode = createLabel("自动 AUTO", bar);
    mode->setObjectName(QLatin1String("mode"));
    mode->setFont(boldFont(mode->font()));

    QHBoxLayout *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(m_unit / 3, m_unit / 6, m_unit / 3, m_unit / 6);
    layout->addWidget(m_title);
    layout->addWidget(m_message, 1);
    layout->addWidget(mode);
    return bar;
}

QWidget *MachineScreen::createSoftKeys()
{
    const struct
    {
        const char *name, *label;
        QWidget *(MachineScreen::*create)();
    } pages[] = { { "POS", "位置", &MachineScreen::createPositionPage },
                  { "PROG", "程序", &MachineScreen::createProgramPage },
                  { "OFFSET", "刀补", &MachineScreen::createOffsetPage },
                  { "PARAM", "参数", &MachineScreen::createParameterPage },
                  { "SYSTEM", "系统", &MachineScreen::createSystemPage } };

    QWidget *bar = new QWidget(this);
    bar->setObjectName(QLatin1String("bar"));
    QHBoxLayout *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(m_unit / 4, m_unit / 6, m_unit / 4, m_unit / 6);
    layout->setSpacing(m_unit / 4);
    m_softKeys = new QButtonGroup(this);
    for (const auto &page : pages) {
        const QString name = QLatin1String(page.name);
        QPushButton *key = new QPushButton(
            QString::fromLatin1("%1\n%2").arg(QString::fromUtf8(page.label), name), bar);
        key->setObjectName(name);
        key->setCheckable(true);
        key->setFont(fontOf(font(), m_unit * 13 / 20));
        key->setFixedHeight(m_unit * 18 / 10);
        key->setMinimumWidth(1);
        layout->addWidget(key, 1);
        m_softKeys->addButton(key, m_pages->addWidget((this->*page.create)()));
        connect(key, SIGNAL(clicked()), SLOT(showPage()));
    }
    return bar;
}

void MachineScreen::showPage()
{
    m_pages->setCurrentIndex(m_softKeys->checkedId());
    const QString label = m_softKeys->checkedButton()->text();
    m_title->setText(QString(label).replace(QLatin1Char('\n'), QLatin1Char(' ')));
    showMessage(QString());
    if (!HMIDeviceInfo::isTouchScreen()) // Return has to find a field
        m_pages->currentWidget()->findChild<TouchField *>()->setFocus();
}

// The pages

QWidget *MachineScreen::createPage(QBoxLayout *layout)
{
    QWidget *page = new QWidget(m_pages);
    layout->setContentsMargins(m_unit / 4, m_unit / 4, m_unit / 4, m_unit / 4);
    layout->setSpacing(m_unit / 4);
    page->setLayout(layout);
    return page;
}

QWidget *MachineScreen::createPositionPage()
{
    QVBoxLayout *axes = new QVBoxLayout;
    for (const char *axis : { "X", "Y", "Z" })
        axes->addWidget(createAxis(axis));
    QVBoxLayout *gauges = new QVBoxLayout;
    gauges->addWidget(createGauge("spindle"), 1);
    gauges->addWidget(createGauge("feed"), 1);
    gauges->addWidget(createGauge("axisWord"), 1);

    QBoxLayout *layout =
        new QBoxLayout(m_upright ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    layout->addLayout(axes, 3);
    layout->addLayout(gauges, 2);
    return createPage(layout);
}

QWidget *MachineScreen::createProgramPage()
{
    QVBoxLayout *layout = new QVBoxLayout;
    TouchField *block = createField("block", m_unit, this);
    block->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    block->setFont(digitFont(m_unit * 9 / 10));

    // The blocks that follow lie on the lower part of the field, which takes their taps.
    QLabel *listing = createLabel(programBelow, block);
    listing->setObjectName(QLatin1String("listing"));
    listing->setFont(programFont(m_unit * 8 / 10));
    listing->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    listing->setAttribute(Qt::WA_TransparentForMouseEvents);
    listing->setMargin(m_unit / 4);
    listing->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    QVBoxLayout *onField = new QVBoxLayout(block);
    onField->setContentsMargins(1, m_unit * 3 / 2, 1, 1);
    onField->addWidget(listing);

    layout->addWidget(block);
    return createPage(layout);
}

QWidget *MachineScreen::createOffsetPage()
{
    QWidget *card = createCard();
    QGridLayout *grid = new QGridLayout(card);
    grid->setContentsMargins(m_unit / 2, m_unit / 4, m_unit / 2, m_unit / 2);
    grid->setSpacing(m_unit / 4);
    const char *const columns[] = { "刀号 Tool", "长度 Length", "半径 Radius", "磨损 Wear" };
    for (int column = 0; column < 4; ++column)
        grid->addWidget(createLabel(columns[column], card), 0, column, Qt::AlignCenter);

    int row = 1;
    for (const auto &offset : toolOffsets) {
        QLabel *tool = createLabel(offset.tool, card);
        tool->setFont(digitFont(m_unit * 8 / 10));
        grid->addWidget(tool, row, 0, Qt::AlignCenter);
        int column = 1;
        for (const char *value : { offset.length, offset.radius, offset.wear }) {
            TouchField *field = createField("offset", m_upright ? m_unit * 7 / 10 : m_unit, card);
            field->setObjectName(
                QString::fromLatin1("%1.%2").arg(QLatin1String(offset.tool)).arg(column));
            field->setText(QLatin1String(value));
            grid->addWidget(field, row, column++);
        }
        ++row;
    }
    for (int column = 1; column < 4; ++column)
        grid->setColumnStretch(column, 1);

    QVBoxLayout *layout = new QVBoxLayout;
    layout->addWidget(card);
    return createPage(layout);
}

QWidget *MachineScreen::createParameterPage()
{
    QVBoxLayout *layout = new QVBoxLayout;
    LampRow *lamps = new LampRow(this);
    lamps->setFixedHeight(m_unit);
    layout->addWidget(createRow("parameter"));
    layout->addWidget(createRow("mask", lamps));
    layout->addWidget(createRow("password"));
    const TouchField *mask = field(QLatin1String("mask"));
    connect(mask, SIGNAL(textChanged(QString)), lamps, SLOT(setDigits(QString)));
    lamps->setDigits(mask->text());
    return createPage(layout);
}

QWidget *MachineScreen::createSystemPage()
{
    QVBoxLayout *layout = new QVBoxLayout;
    for (const char *name : { "operator", "comment", "date", "time", "service", "parts" })
        layout->addWidget(createRow(name));
    return createPage(layout);
}

// What the pages are made of

QWidget *MachineScreen::createCard()
{
    QWidget *card = new QFrame(this);
    card->setObjectName(QLatin1String("card"));
    return card;
}

QWidget *MachineScreen::createAxis(const char *name)
{
    QWidget *card = createCard();
    QHBoxLayout *layout = new QHBoxLayout(card);
    layout->setContentsMargins(m_unit / 2, m_unit / 4, m_unit / 2, m_unit / 4);
    QLabel *letter = createLabel(name, card);
    letter->setObjectName(QLatin1String("axisName"));
    letter->setFont(digitFont(m_unit * 2));
    layout->addWidget(letter);
    layout->addWidget(createField(name, m_unit * 17 / 10, card), 1);
    layout->addWidget(createLabel(fieldRule(name).unit, card));
    return card;
}

QWidget *MachineScreen::createGauge(const char *name)
{
    const FieldRule &rule = fieldRule(name);
    QWidget *card = createCard();
    QGridLayout *grid = new QGridLayout(card);
    grid->setContentsMargins(m_unit / 2, m_unit / 4, m_unit / 2, m_unit / 4);
    grid->setSpacing(m_unit / 6);
    TouchField *value = createField(name, m_unit * 12 / 10, card);
    grid->addWidget(createLabel(rule.label, card), 0, 0);
    grid->addWidget(createLabel(rule.unit, card), 0, 1, Qt::AlignRight);
    grid->addWidget(value, 1, 0, 1, 2);
    grid->setRowStretch(1, 1);
    if (!rule.maximum)
        return card;

    GaugeBar *bar = new GaugeBar(QLatin1String(rule.maximum), card);
    bar->setFixedHeight(m_unit / 3);
    connect(value, SIGNAL(textChanged(QString)), bar, SLOT(showNumber(QString)));
    bar->showNumber(value->text());
    grid->addWidget(bar, 2, 0, 1, 2);
    return card;
}

QWidget *MachineScreen::createRow(const char *name, QWidget *belowLabel)
{
    const FieldRule &rule = fieldRule(name);
    QWidget *card = createCard();
    QGridLayout *grid = new QGridLayout(card);
    grid->setContentsMargins(m_unit / 2, m_unit / 5, m_unit / 2, m_unit / 5);
    grid->setSpacing(m_unit / 4);
    QLabel *label = createLabel(rule.label, card);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    grid->addWidget(label, 0, 0, belowLabel || m_upright ? 1 : 2, 1);
    if (belowLabel)
        grid->addWidget(belowLabel, 1, 0);

    const int row = m_upright ? 2 : 0;
    const int column = m_upright ? 0 : 1;
    const int rows = m_upright ? 1 : 2;
    grid->addWidget(createField(name, m_unit * 9 / 10, card), row, column, rows, 1);
    if (rule.unit) {
        QLabel *unit = createLabel(rule.unit, card);
        unit->setFixedWidth(m_unit * 3 / 2);
        grid->addWidget(unit, row, column + 1, rows, 1);
    }
    grid->setColumnStretch(0, 4);
    grid->setColumnStretch(column, 6);
    return card;
}

TouchField *MachineScreen::createField(const char *name, int pixels, QWidget *parent)
{
    const FieldRule &rule = fieldRule(name);
    TouchField *field =
        rule.readOnly ? new PartCounter(rule, parent) : new TouchField(rule, parent);
    field->setFont(digitFont(pixels));
    connect(field, SIGNAL(tapped(TouchField *)), SIGNAL(fieldTapped(TouchField *)));
    return field;
}

QLabel *MachineScreen::createLabel(const char *text, QWidget *parent)
{
    QLabel *label = new QLabel(QString::fromUtf8(text), parent);
    label->setTextFormat(Qt::PlainText);
    label->setFont(fontOf(font(), m_unit * 7 / 10));
    return label;
}
