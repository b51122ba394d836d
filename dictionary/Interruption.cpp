// SPDX-License-Identifier: MIT
#include "Interruption.h"

#include "Failure.h"

#include <signal.h>

static volatile sig_atomic_t interrupted = 0;

extern "C" {
static void remember(int)
{
    interrupted = 1;
}
}

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
        throw Failure { QStringLiteral("interrupted") };
}
