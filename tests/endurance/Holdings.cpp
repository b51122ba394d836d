// SPDX-License-Identifier: MIT
#include "Holdings.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QSqlDatabase>
#include <QStringList>
#include <QWidget>

#include <cstdio>

#include <malloc.h>

// AddressSanitizer has a heap of its own, of which it tells by this.
extern "C" size_t __sanitizer_get_current_allocated_bytes() __attribute__((weak));

namespace {

long long heapInUse()
{
    if (__sanitizer_get_current_allocated_bytes)
        return static_cast<long long>(__sanitizer_get_current_allocated_bytes());
#if defined(__GLIBC__) && __GLIBC_PREREQ(2, 33)
    const struct mallinfo2 heap = mallinfo2();
#else
    const struct mallinfo heap = mallinfo();
#endif
    return static_cast<long long>(heap.uordblks) + static_cast<long long>(heap.hblkhd);
}

int childrenOfKeypads()
{
    int count = 0;
    const QWidgetList widgets = QApplication::allWidgets();
    for (const QWidget *widget : widgets) {
        if (const QDialog *keypad = qobject_cast<const QDialog *>(widget))
            count += keypad->findChildren<QObject *>().size();
    }
    return count;
}

bool tell(const char *what, long long before, long long after, long long allowance)
{
    const bool isWithin = after <= before + allowance;
    std::printf("  %-16s %10lld %10lld %+8lld of %lld%s\n", what, before, after, after - before,
                allowance, isWithin ? "" : "  TOO MUCH");
    return isWithin;
}

} // namespace

Holdings currentHoldings()
{
    Holdings holdings;
    holdings.openFiles = int(QDir(QLatin1String("/proc/self/fd")).entryList().size());
    holdings.sqlConnections = int(QSqlDatabase::connectionNames().size());
    holdings.children = childrenOfKeypads();
    holdings.windows = int(QApplication::topLevelWidgets().size());
    holdings.widgets = int(QApplication::allWidgets().size());
    holdings.heapBytes = heapInUse(); // last: the lists above are gone
    return holdings;
}

bool isWithinAllowance(const Holdings &before, const Holdings &after, long long heapAllowance)
{
    std::printf("  %-16s %10s %10s %8s\n", "", "before", "after", "growth");
    bool isWithin = tell("heap, bytes", before.heapBytes, after.heapBytes, heapAllowance);
    const struct
    {
        const char *what;
        int Holdings::*member;
    } rows[] = { { "open files", &Holdings::openFiles },
                 { "databases", &Holdings::sqlConnections },
                 { "keypads' children", &Holdings::children },
                 { "windows", &Holdings::windows },
                 { "widgets", &Holdings::widgets } };
    for (const auto &row : rows)
        isWithin = tell(row.what, before.*row.member, after.*row.member, 0) && isWithin;
    std::fflush(stdout);
    return isWithin;
}
