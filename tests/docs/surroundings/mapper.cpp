// SPDX-License-Identifier: MIT
#include <QObject>
#include <QSignalMapper>

class Screen : public QObject
{
public:
    void snippet(QSignalMapper *mapper);
};

void Screen::snippet(QSignalMapper *mapper)
{
    @SNIPPET@
}
