// SPDX-License-Identifier: MIT
#ifndef LABELMAPPING_P_H
#define LABELMAPPING_P_H

class QObject;
class QSignalMapper;
class QString;

/*
 * Maps \a key to \a label in \a mapper, in place of what it was mapped to. A mapper watches a
 * sender's destruction once more with every mapping; on a panel that runs for months these
 * connections would add up, so the former one is dropped.
 */
void mapKey(QSignalMapper *mapper, QObject *key, const QString &label);

#endif
