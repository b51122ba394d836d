// SPDX-License-Identifier: MIT
#include <QApplication>

// Called before the first input: keypads need an application, and nobody looks at them.
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    new QApplication(*argc, *argv); // needed until the program has ended
    return 0;
}
