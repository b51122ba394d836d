// SPDX-License-Identifier: MIT
#ifndef OWNVIEW_P_H
#define OWNVIEW_P_H

class QWidget;

namespace Fields {

// Makes sure that keypads have a view to cover. Where the program has registered none, one of this
// library's own is registered for the rest of the process, as keypads are its children. It lies
// over \a window, without being seen.
void prepareView(const QWidget *window);

// Whether the registered view is this library's own.
bool isOwnViewRegistered();

} // namespace Fields

#endif
