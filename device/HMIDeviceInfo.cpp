// SPDX-License-Identifier: MIT
#include "HMIDeviceInfo.h"

namespace {

struct PanelModel
{
    int screenWidth, screenHeight; // pixels, unrotated
    int series;
    bool formatFont;
};

const DeviceType freeSizeType = 10;
const DeviceType touchAndKeysType = 14;

// clang-format off
// Indexed by type; row 0 stands for every unknown model.
const PanelModel panelModels[] = {
    { 640, 480, 0, false },
    { 800, 600, 1, false }, //  1
    { 640, 480, 1, false }, //  2
    { 640, 480, 1, true  }, //  3
    { 640, 480, 2, true  }, //  4
    { 640, 480, 3, true  }, //  5
    { 800, 480, 2, true  }, //  6
    { 800, 600, 2, false }, //  7
    { 800, 480, 3, true  }, //  8
    { 480, 272, 2, true  }, //  9
    {   0,   0, 4, false }, // 10, sized by the application
    { 640, 480, 0, false }, // 11
    { 640, 480, 0, false }, // 12
    { 800, 480, 3, true  }, // 13
    { 800, 600, 2, false }, // 14
    { 800, 480, 3, true  }, // 15
    { 640, 480, 0, false }, // 16
    { 640, 480, 0, false }, // 17
    { 640, 480, 0, false }, // 18
    { 800, 480, 2, false }, // 19
    { 800, 600, 2, false }, // 20
    { 800, 480, 3, true  }  // 21
};
// clang-format on

const PanelModel &panelModel(DeviceType type)
{
    const int count = int(sizeof(panelModels) / sizeof(panelModels[0]));
    return panelModels[type > 0 && type < count ? type : 0];
}

} // namespace

DeviceType HMIDeviceInfo::m_deviceType = 1;
int HMIDeviceInfo::m_deviceSeries = 1;
bool HMIDeviceInfo::m_hasKeyboard = true;
// Not the size of type 1: applications that never call setDeviceInfo() rely on 640x480.
int HMIDeviceInfo::m_screenWidth = 640;
int HMIDeviceInfo::m_screenHeight = 480;
bool HMIDeviceInfo::m_isTouchScreen = false;
bool HMIDeviceInfo::m_needToFormatFont = false;
QGraphicsView *HMIDeviceInfo::m_graphicsView = nullptr;
int HMIDeviceInfo::m_screenRotate = 0;

void HMIDeviceInfo::setDeviceInfo(DeviceType type, const QSize &size)
{
    m_deviceType = type;
    setScreenSize(size);
    setDeviceSeries();
    m_isTouchScreen = m_deviceSeries >= 2 && m_deviceSeries <= 4;
    m_hasKeyboard = m_deviceSeries == 1 || m_deviceSeries == 3 || type == touchAndKeysType;
    m_needToFormatFont = panelModel(type).formatFont;
}

void HMIDeviceInfo::setScreenSize(const QSize &size)
{
    const PanelModel &model = panelModel(m_deviceType);
    const bool freeSize = m_deviceType == freeSizeType;
    m_screenWidth = freeSize ? size.width() : model.screenWidth;
    m_screenHeight = freeSize ? size.height() : model.screenHeight;
}

void HMIDeviceInfo::setDeviceSeries()
{
    m_deviceSeries = panelModel(m_deviceType).series;
}

DeviceType HMIDeviceInfo::deviceType()
{
    return m_deviceType;
}

int HMIDeviceInfo::deviceSeries()
{
    return m_deviceSeries;
}

bool HMIDeviceInfo::isTouchScreen()
{
    return m_isTouchScreen;
}

bool HMIDeviceInfo::hasKeyboard()
{
    return m_hasKeyboard;
}

bool HMIDeviceInfo::needToFormatFont()
{
    return m_needToFormatFont;
}

QSize HMIDeviceInfo::screenSize()
{
    QSize size(m_screenWidth, m_screenHeight);
    if (m_screenRotate == 90 || m_screenRotate == 270)
        size.transpose();
    return size;
}

void HMIDeviceInfo::setGraphicsView(QGraphicsView *view)
{
    m_graphicsView = view;
}

QGraphicsView *HMIDeviceInfo::graphicsView()
{
    return m_graphicsView;
}

void HMIDeviceInfo::setScreenRotate(int degrees)
{
    m_screenRotate = degrees;
}

int HMIDeviceInfo::screenRotate()
{
    return m_screenRotate;
}
