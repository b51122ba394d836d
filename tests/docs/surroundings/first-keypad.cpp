// SPDX-License-Identifier: MIT
#include <QGraphicsView>
#include <QLineEdit>

namespace {

void apply(const QString &) {}

} // namespace

void snippet(QGraphicsView &view, QLineEdit *field)
{
    @SNIPPET@
}
