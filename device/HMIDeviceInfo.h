// SPDX-License-Identifier: MIT
#ifndef HMIDEVICEINFO_H
#define HMIDEVICEINFO_H

#include "HMIDeviceExport.h"

#include <QSize>

class QGraphicsView;

/*!
 * \relates HMIDeviceInfo
 * The number of a panel model. 1 to 10, 13 to 15 and 19 to 21 are known; any other is an unknown
 * model.
 */
typedef int DeviceType;

/*!
 * The panel model that the application runs on, and what follows from it.
 *
 * All data is process-wide; there are no instances. The application fills the profile in at
 * start-up: setDeviceInfo() first, then setGraphicsView() before the first keypad is requested,
 * and setScreenRotate() whenever the rotation changes. Keypads take their colours from the type
 * that is set when they are built, and read the type again at every hard key.
 *
 * Call everything from the GUI thread.
 */
class HMIDEVICE_EXPORT HMIDeviceInfo
{
public:
    /*!
     * Stores the panel model \a type and derives screen size, series and the three flags from it.
     *
     * \a size is the screen size in pixels; it is used for the free-size model 10 only, as it is
     * passed, and ignored for every other model. An unknown type is accepted: 640x480, series 0,
     * neither touch screen nor keyboard, no font formatting. May be called again at any time;
     * keypads that exist keep the colours that they were built with.
     */
    static void setDeviceInfo(DeviceType type, const QSize &size);

    /*!
     * Sets the screen size from the stored type. \a size, in pixels, counts only when that type
     * is 10. setDeviceInfo() does this already.
     */
    static void setScreenSize(const QSize &size);

    /*! Sets the series from the stored type. setDeviceInfo() does this already. */
    static void setDeviceSeries();

    /*! The stored panel model; 1 at first. */
    static DeviceType deviceType();

    /*!
     * How the model is worked: 1 hard keys only, 2 touch screen only (model 14 has hard keys as
     * well), 3 both, 4 the free-size touch panel, 0 an unknown model; 1 at first.
     */
    static int deviceSeries();

    /*! Whether the panel has a touch screen; false at first. */
    static bool isTouchScreen();

    /*! Whether the panel has hard keys; true at first. */
    static bool hasKeyboard();

    /*! Whether the application should re-size its fonts for this panel; false at first. */
    static bool needToFormatFont();

    /*!
     * The screen size in pixels as the operator sees it: width and height are swapped while the
     * rotation is exactly 90 or exactly 270. 640x480 at first, although type 1 has 800x600.
     */
    static QSize screenSize();

    /*!
     * Registers the application's main view. It becomes the parent of every keypad that instance()
     * builds from now on, and is read again at every show: keypads lay themselves over its
     * viewport, or, as the G-code keypad does, over their target by way of it.
     *
     * Not owned and not watched: keep the view alive for as long as keypads are used. Null is
     * accepted: a keypad built then is a top-level window, and one shown then stays where it is.
     */
    static void setGraphicsView(QGraphicsView *view);

    /*! The registered view, or null. */
    static QGraphicsView *graphicsView();

    /*!
     * Stores the screen rotation in \a degrees. Any value is accepted; only 90 and 270 have an
     * effect, and only on screenSize().
     */
    static void setScreenRotate(int degrees);

    /*! The stored rotation in degrees; 0 at first. */
    static int screenRotate();

private:
    static DeviceType m_deviceType;
    static int m_deviceSeries;
    static bool m_hasKeyboard;
    static int m_screenWidth;
    static int m_screenHeight;
    static bool m_isTouchScreen;
    static bool m_needToFormatFont;
    static QGraphicsView *m_graphicsView;
    static int m_screenRotate;
};

#endif
