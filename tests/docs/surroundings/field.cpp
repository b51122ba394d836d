// SPDX-License-Identifier: MIT
#include <QIntValidator>
#include <QLineEdit>

class Screen : public QWidget
{
public:
    void snippet(QLineEdit *field);

private:
    void applySpeed(const QString &text);

    QIntValidator spindleLimits;
};

void Screen::snippet(QLineEdit *field)
{
    @SNIPPET@
}

void Screen::applySpeed(const QString &)
{
}
