// SPDX-License-Identifier: MIT
#ifndef HARDKEY_H
#define HARDKEY_H

#include <QAbstractButton>

// A key of the bezel. It leaves the focus where it is: it is the machine's, not the screen's.
class HardKey : public QAbstractButton
{
    Q_OBJECT

public:
    // What key types: a Qt::Key and its text, which may be empty. A marked one is told apart by its
    // colour.
    HardKey(const QString &label, int key, const QString &text, bool marked, QWidget *parent);

    int key() const { return m_key; }
    QString keyText() const { return m_text; }
    bool isMarked() const { return m_marked; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const int m_key;
    const QString m_text;
    const bool m_marked;
};

#endif
