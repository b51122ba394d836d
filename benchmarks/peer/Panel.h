// SPDX-License-Identifier: MIT
#ifndef PANEL_H
#define PANEL_H

#include <QGraphicsView>
#include <QLineEdit>

class QDialog;

// The screen of a panel with one field, on which a tap opens what text is entered with: nothing, a
// keypad of the library, or the on-screen keyboard that Qt brings as an input method. It tells on
// stdout where the field is, in the middle, and then answers what it reads on stdin, a line each:
//   place  the rectangle of a key of the keypad that inserts a character, or of the whole keyboard
//   text   how long the text is that is edited
//   close  takes keypad or keyboard away
class Panel : public QGraphicsView
{
    Q_OBJECT

public:
    enum Input { NoInput, KeypadInput, KeyboardInput };

    Panel(Input input, bool hasDigits, QSize screen);

    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void start();
    void openKeypad();
    void read();

private:
    void answer(const QByteArray &question);
    QRect placeOfInput() const;

    Input m_input;
    bool m_hasDigits;
    QLineEdit m_field;
    QDialog *m_keypad;
};

#endif
