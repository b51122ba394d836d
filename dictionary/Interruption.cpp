// SPDX-License-Identifier: MIT
#include "Interruption.h"

#include "Failure.h"

#include <signal.h>

namespace {

volatile sig_atomic_t interrupted = 0;

void remember(int)
{
    interrupted = 1;
}

} // namespace

void noticeInterruptions()
{
    signal(SIGINT, remember);
    signal(SIGTERM, remember);
    signal(SIGHUP, remember);
    signal(SIGXFSZ, SIG_IGN); // the write that goes too far then fails like any other
    signal(SIGPIPE, SIG_IGN);
}

void stopIfInterrupted()
{
    if (interrupted)
        throw Failure { QLatin1String("interrupted") };
}
