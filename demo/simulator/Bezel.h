// SPDX-License-Identifier: MIT
#ifndef BEZEL_H
#define BEZEL_H

#include "Models.h"

#include <QVector>
#include <QWidget>

class HardKey;
class PanelRunner;
class QGridLayout;
class QLabel;
class ScreenView;

// The panel as one sees it in a machine: its housing, the screen and the hard keys of the model.
class Bezel : public QWidget
{
    Q_OBJECT

public:
    Bezel(PanelRunner *panel, const QVector<Model> &models, QWidget *parent);

    ScreenView *screen() const { return m_screen; }

protected:
    void paintEvent(QPaintEvent *event) override;

private Q_SLOTS:
    void takeModel();
    void pressKey();
    void releaseKey();

private:
    void buildKeys(const Model &model);
    void addKeys(const QVector<HardKey *> &keys);
    void send(const HardKey &key, bool down);

    PanelRunner *m_panel;
    const QVector<Model> m_models;
    ScreenView *m_screen;
    QGridLayout *m_keyboard;
    QGridLayout *m_functionKeys;
    QVector<HardKey *> m_keys;
    QLabel *m_plate; // type and size
    QLabel *m_legend;
};

#endif
