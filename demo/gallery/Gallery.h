// SPDX-License-Identifier: MIT
#ifndef GALLERY_H
#define GALLERY_H

#include <QString>

// Draws every keypad in every mode on every size of screen into a folder, which must exist, with a
// page that lays the pictures side by side. Needs no display and shows nothing on one.
//
// Returns the program's exit status: 0 with one line that says how many pictures there are, 1 with
// one line of complaint.
int drawGallery(int argc, char *argv[], const QString &folder);

#endif
