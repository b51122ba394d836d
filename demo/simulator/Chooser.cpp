// SPDX-License-Identifier: MIT
#include "Chooser.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QSpinBox>
#include <QTreeWidget>

namespace {

const int leastSide = 240; // pixels
const int mostSide = 3999;
const int fewestRows = 6; // of the list

const int rotations[] = { 0, 90, 180, 270 }; // degrees

const struct
{
    const char *name, *label; // UTF-8
} languages[] = { { "", "English" }, { "zh_CN", "简体中文 zh_CN" } };

const struct
{
    Style style;
    const char *label;
} styles[] = { { Style::Dark, "dark" }, { Style::Light, "light" } };

QString sizeText(const QSize &size)
{
    if (size.isEmpty())
        return QLatin1String("free");
    return QString::fromUtf8("%1 × %2").arg(size.width()).arg(size.height());
}

} // namespace

Chooser::Chooser(const QVector<Model> &models, QWidget *parent)
    : QWidget(parent)
    , m_parts(new QWidget(this))
    , m_list(new QTreeWidget(m_parts))
    , m_frame(new QCheckBox(QLatin1String("around the view"), m_parts))
    , m_hint(new QLabel(QLatin1String("Locked while a keypad is open"), this))
    , m_showing(false)
{
    addModels(models);
    QFormLayout *form = new QFormLayout;
    form->setContentsMargins(0, 0, 0, 0);
    form->addRow(QLatin1String("Free size"), createSize());
    m_rotation = addCombo(form, "Rotation", "rotation");
    for (int rotation : rotations)
        m_rotation->addItem(QString::fromUtf8("%1°").arg(rotation), rotation);
    m_language = addCombo(form, "Language", "language");
    for (const auto &language : languages) {
        const QString name = QLatin1String(language.name);
        if (name.isEmpty() || !findTranslation(name).isEmpty())
            m_language->addItem(QString::fromUtf8(language.label), name);
    }
    m_style = addCombo(form, "Style", "style");
    for (const auto &style : styles)
        m_style->addItem(QLatin1String(style.label), int(style.style));
    m_frame->setObjectName(QLatin1String("frame"));
    form->addRow(QLatin1String("Frame"), m_frame);

    QVBoxLayout *parts = new QVBoxLayout(m_parts);
    parts->setContentsMargins(0, 0, 0, 0);
    parts->addWidget(m_list, 1);
    parts->addLayout(form);
    m_hint->setObjectName(QLatin1String("lockHint"));
    QSizePolicy policy = m_hint->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_hint->setSizePolicy(policy);
    m_hint->hide();
    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_parts, 1);
    layout->addWidget(m_hint);
    connectParts();
}

void Chooser::connectParts()
{
    connect(m_list, SIGNAL(currentItemChanged(QTreeWidgetItem *, QTreeWidgetItem *)),
            SLOT(takeChoice()));
    for (QSpinBox *side : { m_width, m_height })
        connect(side, SIGNAL(valueChanged(int)), SLOT(takeChoice()));
    for (QComboBox *combo : { m_rotation, m_language, m_style })
        connect(combo, SIGNAL(currentIndexChanged(int)), SLOT(takeChoice()));
    connect(m_frame, SIGNAL(toggled(bool)), SLOT(takeChoice()));
}

void Chooser::addModels(const QVector<Model> &models)
{
    m_list->setObjectName(QLatin1String("models"));
    m_list->setHeaderLabels(
        { QLatin1String("Type"), QLatin1String("Screen"), QLatin1String("Input") });
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    for (const Model &model : models) {
        QTreeWidgetItem *item = new QTreeWidgetItem(
            m_list, { QString::number(model.type), sizeText(model.size), inputMeans(model) });
        item->setData(0, Qt::UserRole, model.type);
    }
    for (int column = 0; column < m_list->columnCount(); ++column)
        m_list->resizeColumnToContents(column);
    const int row = m_list->visualItemRect(m_list->topLevelItem(0)).height();
    m_list->setMinimumHeight(m_list->header()->sizeHint().height() + fewestRows * row);
}

QWidget *Chooser::createSize()
{
    QWidget *size = new QWidget(m_parts);
    QHBoxLayout *layout = new QHBoxLayout(size);
    layout->setContentsMargins(0, 0, 0, 0);
    m_width = createSide("width");
    m_height = createSide("height");
    layout->addWidget(m_width, 1);
    layout->addWidget(new QLabel(QString::fromUtf8("×"), size));
    layout->addWidget(m_height, 1);
    return size;
}

QSpinBox *Chooser::createSide(const char *name)
{
    QSpinBox *side = new QSpinBox(m_parts);
    side->setObjectName(QLatin1String(name));
    side->setRange(leastSide, mostSide);
    side->setButtonSymbols(QAbstractSpinBox::NoButtons);
    side->setKeyboardTracking(false); // a number that is half typed is no choice
    return side;
}

QComboBox *Chooser::addCombo(QFormLayout *form, const char *label, const char *name)
{
    QComboBox *combo = new QComboBox(m_parts);
    combo->setObjectName(QLatin1String(name));
    form->addRow(QLatin1String(label), combo);
    return combo;
}

PanelSetup Chooser::setup() const
{
    PanelSetup setup;
    setup.type = m_list->currentItem()->data(0, Qt::UserRole).toInt();
    setup.size = QSize(m_width->value(), m_height->value());
    setup.rotation = m_rotation->currentData().toInt();
    setup.language = m_language->currentData().toString();
    setup.style = Style(m_style->currentData().toInt());
    setup.frame = m_frame->isChecked();
    return setup;
}

void Chooser::setSetup(const PanelSetup &setup)
{
    m_showing = true;
    m_list->setCurrentItem(m_list->topLevelItem(setup.type - 1));
    m_width->setValue(setup.size.width());
    m_height->setValue(setup.size.height());
    m_rotation->setCurrentIndex(m_rotation->findData(setup.rotation));
    m_language->setCurrentIndex(m_language->findData(setup.language));
    m_style->setCurrentIndex(m_style->findData(int(setup.style)));
    m_frame->setChecked(setup.frame);
    m_showing = false;
    enableParts();
}

void Chooser::setLocked(bool locked)
{
    m_parts->setEnabled(!locked);
    m_hint->setVisible(locked);
}

void Chooser::takeChoice()
{
    if (m_showing)
        return;
    enableParts();
    Q_EMIT chosen();
}

// A panel of type 13 has one scheme of colours.
void Chooser::enableParts()
{
    const int type = setup().type;
    m_width->setEnabled(type == freeSizeType);
    m_height->setEnabled(type == freeSizeType);
    m_style->setEnabled(type != handingOnType);
}
