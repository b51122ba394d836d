// SPDX-License-Identifier: MIT
#ifndef SCREENVIEW_H
#define SCREENVIEW_H

#include <QWidget>

class PanelRunner;

// The panel's screen, pixel by pixel. Mouse and keys go to the panel; a touch does, as the mouse
// that Qt makes of it.
class ScreenView : public QWidget
{
    Q_OBJECT

public:
    ScreenView(PanelRunner *panel, QWidget *parent);

    QSize sizeHint() const override;

protected:
    bool event(QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;

private Q_SLOTS:
    void takeSize();
    void updatePart(const QRect &place);

private:
    void send(const QMouseEvent &event);
    void send(const QKeyEvent &event);

    PanelRunner *m_panel;
};

#endif
