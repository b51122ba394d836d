// SPDX-License-Identifier: MIT
#ifndef HMI_DICTIONARY_INTERRUPTION_H
#define HMI_DICTIONARY_INTERRUPTION_H

// Lets the signals that ask a program to end be noticed at the next stopIfInterrupted().
void noticeInterruptions();

// Throws a Failure when one of these signals has come. To be called within every long loop.
void stopIfInterrupted();

#endif
