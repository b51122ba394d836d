// SPDX-License-Identifier: MIT
#include "GCodeStandIn.h"

#include <QGraphicsView>
#include <QPushButton>

class Screen : public QGraphicsView
{
public:
    void snippet();

private:
    QPushButton m_block;
};

void Screen::snippet()
{
    @SNIPPET@
}
