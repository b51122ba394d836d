// SPDX-License-Identifier: MIT
#ifndef FONTS_H
#define FONTS_H

// Gives the machine screen and the keypads one family: to the application as its font, to the
// keypads as what stands for "simsun", for which they ask. Where "simsun" is installed they have
// it. Call this before the first keypad is built.
void chooseFonts();

#endif
