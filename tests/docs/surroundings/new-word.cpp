// SPDX-License-Identifier: MIT
#include <QSqlDatabase>
#include <QSqlQuery>

void snippet()
{
    @SNIPPET@
}
