// SPDX-License-Identifier: MIT
//
// Prints the family that stands for that of the first argument here; with a second one, after the
// application has chosen.
#include <QApplication>
#include <QFont>
#include <QFontInfo>

#include <cstdio>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    if (argc > 2) {
        @SNIPPET@
    }
    const QFont font(QString::fromLocal8Bit(argv[1]));
    std::printf("%s\n", qPrintable(QFontInfo(font).family()));
    return 0;
}
