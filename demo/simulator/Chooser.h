// SPDX-License-Identifier: MIT
#ifndef CHOOSER_H
#define CHOOSER_H

#include "Models.h"
#include "PanelSetup.h"

#include <QVector>
#include <QWidget>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QSpinBox;
class QTreeWidget;

// Where one chooses which panel it is. The parts have object names: "models", "width", "height",
// "rotation", "language", "style", "frame" and "lockHint".
class Chooser : public QWidget
{
    Q_OBJECT

public:
    Chooser(const QVector<Model> &models, QWidget *parent);

    PanelSetup setup() const;

    // Shows setup as what has been chosen, without chosen().
    void setSetup(const PanelSetup &setup);

    // A locked chooser shows a hint and cannot be used.
    void setLocked(bool locked);

Q_SIGNALS:
    void chosen(); // setup() is another one than before

private Q_SLOTS:
    void takeChoice();

private:
    void addModels(const QVector<Model> &models);
    QWidget *createSize();
    QSpinBox *createSide(const char *name);
    QComboBox *addCombo(QFormLayout *form, const char *label, const char *name);
    void enableParts();
    void connectParts();

    QWidget *m_parts; // all but the hint
    QTreeWidget *m_list;
    QSpinBox *m_width;
    QSpinBox *m_height;
    QComboBox *m_rotation;
    QComboBox *m_language;
    QComboBox *m_style;
    QCheckBox *m_frame;
    QLabel *m_hint;
    bool m_showing; // a setup, which is no choice
};

#endif
