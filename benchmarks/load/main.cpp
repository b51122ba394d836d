// SPDX-License-Identifier: MIT
//
// A program that links libraries and uses none of them. It prints what is allocated on its heap,
// and which memory the loader has given it.

#include <fstream>
#include <iostream>
#include <malloc.h>

int main()
{
    std::cout << "heap " << mallinfo2().uordblks << '\n'
              << std::ifstream("/proc/self/smaps").rdbuf() << std::flush;
    return 0;
}
