// SPDX-License-Identifier: MIT
#ifndef LIMITLINE_P_H
#define LIMITLINE_P_H

#include <QPointer>

class QDialog;
class QLabel;
class QString;

namespace Fields {

// A line with limits above the face of a keypad that has none of its own. There while it lives.
class LimitLine
{
public:
    // Nothing without a \a keypad or a \a text.
    LimitLine(QDialog *keypad, const QString &text);
    ~LimitLine();

private:
    Q_DISABLE_COPY(LimitLine)

    QPointer<QDialog> m_keypad;
    QPointer<QLabel> m_label;
};

} // namespace Fields

#endif
