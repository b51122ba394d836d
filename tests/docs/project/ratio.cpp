// SPDX-License-Identifier: MIT
//
// Prints how many of the screen's pixels make one of Qt's.
#include <QApplication>
#include <QWidget>

#include <cstdio>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    std::printf("%g\n", QWidget().devicePixelRatioF());
    return 0;
}
