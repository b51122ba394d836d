// SPDX-License-Identifier: MIT
#ifndef LINEMODEL_H
#define LINEMODEL_H

#include <QString>

class QValidator;

// A hard key: the windowing system tells its code, the text that it types and the modifiers held.
struct HardKey
{
    int code;
    QString text;
    int modifiers; // Qt::KeyboardModifier, of which Shift and Ctrl mean something here
};

// What an edit line holds after each thing done to it, worked out apart from any QLineEdit.
class LineModel
{
public:
    LineModel();

    // What an application sets. A negative length does not limit, as in an edit line.
    void setMaxLength(int length);
    void setValidator(const QValidator *validator);
    void setHidden(bool hidden); // as a password
    void setText(const QString &text);
    void clear();
    void selectAll();
    void select(int start, int length); // negative: the cursor comes before the selection
    void setCursor(int position);
    void moveCursor(int position, bool selecting);

    // What keys do.
    void insert(const QString &text);
    void selectWordAt(int position);
    void backspace();
    void erase(); // forward
    void toggleSign();
    bool press(const HardKey &key); // false: the key is none of the line's

    QString text() const { return m_text; }
    int cursor() const { return m_cursor; }
    bool hasSelection() const { return m_selectionEnd > m_selectionStart; }
    QString selectedText() const;
    int maxLength() const { return m_longest; }
    bool isHidden() const { return m_hidden; }
    const QValidator *validator() const { return m_validator; }

private:
    struct Content
    {
        QString text;
        int cursor, selectionStart, selectionEnd;
    };

    Content content() const;
    void become(const QString &text, int cursor);
    void takeBack(const Content &before);
    void checkAgainst(const Content &before, bool inserted);
    void removeSelection();
    bool pressWithControl(const HardKey &key, bool shift);
    int wordBefore(int position) const;
    int wordAfter(int position) const;

    const QValidator *m_validator;
    int m_longest;
    bool m_hidden;
    bool m_isRight; // whether the validator let the text pass when it was last asked
    QString m_text;
    int m_cursor, m_selectionStart, m_selectionEnd;
};

#endif
