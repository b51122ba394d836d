// SPDX-License-Identifier: MIT
#ifndef FAILINGCALLS_H
#define FAILINGCALLS_H

// Lets system calls fail that concern the dictionary or the files that SQLite keeps beside it. A
// library in front of the C library does so for every call that SQLite makes with them.
namespace FailingCalls {

enum Way { Once, FromThenOn };

// In the place of an error: the call reads half of what it should.
const int shortRead = 0;

// Counts calls from 1 on, and lets that of \a number fail with \a error, and with the second way
// all that follow it, but for locks: they are not on the disk that has gone.
void arrange(int number, int error, Way way);

// Lets every call succeed from now on; what has been counted stays.
void end();
bool isOver();

int callsSeen();

// Whether the number of the call to fail was come to, and whether that call, or with the second way
// one after it, did fail: only reads can be short. The name is that of the first.
bool isReached();
bool hasFailed();
const char *failedCall();

// Files of the dictionary that are open, and whether the last one opened was opened to be read
// only, which SQLite does with a file that it cannot open to be written.
int openFiles();
bool mayOnlyRead();

} // namespace FailingCalls

#endif
