// SPDX-License-Identifier: MIT
#ifndef HMIDEVICEFIELDSEXPORT_H
#define HMIDEVICEFIELDSEXPORT_H

#include <QtGlobal>

/*!
 * Marks what libHMIDeviceFields exports. The library's own build defines HMIDEVICEFIELDS_BUILD; an
 * application that links the library defines nothing.
 */
#if defined(HMIDEVICEFIELDS_BUILD)
#define HMIDEVICEFIELDS_EXPORT Q_DECL_EXPORT
#else
#define HMIDEVICEFIELDS_EXPORT Q_DECL_IMPORT
#endif

#endif
