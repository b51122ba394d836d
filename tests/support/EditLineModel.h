// SPDX-License-Identifier: MIT
#ifndef EDITLINEMODEL_H
#define EDITLINEMODEL_H

#include <QString>

#include <functional>

class QLineEdit;

// What a keypad's edit line has to hold after each key, worked out apart from any QLineEdit.
class EditLineModel
{
public:
    EditLineModel();

    // Limits the length; as in an edit line, the text is set anew then.
    void setMaxLength(int length);

    // Refuses what would make a right text wrong; a wrong one may be worked on. Like a validator.
    void setRule(const std::function<bool(const QString &)> &isRight);

    void show(const QString &text); // all selected
    void select(int start, int length);

    void insert(const QString &text);
    void erase();
    void moveLeft();
    void moveRight();
    void toggleSign();

    QString text() const { return m_text; }
    int cursor() const { return m_cursor; }
    QString selectedText() const { return m_text.mid(m_selectionStart, m_selectionLength); }

private:
    void become(const QString &text, int cursor);

    std::function<bool(const QString &)> m_isRight;
    int m_longest;
    QString m_text;
    int m_cursor;
    int m_selectionStart;
    int m_selectionLength;
};

// Text, cursor and selected text, to be compared and read.
QString described(const EditLineModel &model);
QString described(const QLineEdit *line);

#endif
