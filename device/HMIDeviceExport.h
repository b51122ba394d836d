// SPDX-License-Identifier: MIT
#ifndef HMIDEVICEEXPORT_H
#define HMIDEVICEEXPORT_H

#include <QtGlobal>

/*!
 * Marks what the library exports. The library's own build defines HMIDEVICE_BUILD; an application
 * that links the library defines nothing.
 */
#if defined(HMIDEVICE_BUILD)
#define HMIDEVICE_EXPORT Q_DECL_EXPORT
#else
#define HMIDEVICE_EXPORT Q_DECL_IMPORT
#endif

#endif
