// SPDX-License-Identifier: MIT
#ifndef TOUCHFIELD_H
#define TOUCHFIELD_H

#include <QLineEdit>

struct FieldRule;

// A value on the machine screen that cannot be typed into but asks to be edited when it is tapped,
// or when Return is pressed on it. Keypads write into its "text" property.
class TouchField : public QLineEdit
{
    Q_OBJECT

public:
    TouchField(const FieldRule &rule, QWidget *parent);

    const FieldRule &rule() const { return m_rule; }

Q_SIGNALS:
    void tapped(TouchField *field);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private Q_SLOTS:
    void showBeginning();

private:
    const FieldRule &m_rule;
};

#endif
