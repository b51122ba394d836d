# SPDX-License-Identifier: MIT
#
# The installed library: shared object or archive, headers, CMake package, pkg-config file, manual,
# licence. The programs of other rooms install themselves.

include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/HMIDevice)

install(TARGETS HMIDevice EXPORT HMIDeviceTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT lib NAMELINK_COMPONENT dev
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT dev)
install(FILES LICENSE DESTINATION ${HMI_DOC_DIR} COMPONENT licences)
install(FILES README.md CHANGELOG.md DESTINATION ${HMI_DOC_DIR} COMPONENT dev)
install(DIRECTORY docs DESTINATION ${HMI_DOC_DIR} COMPONENT dev)

set(HMI_DICTIONARY ${HMI_DATA_DIR}/data.db)
set(HMI_TRANSLATIONS_DIR ${HMI_DATA_DIR}/translations)

install(EXPORT HMIDeviceTargets NAMESPACE HMIDevice:: DESTINATION ${package_dir} COMPONENT dev)
configure_package_config_file(cmake/HMIDeviceConfig.cmake.in HMIDeviceConfig.cmake
    INSTALL_DESTINATION ${package_dir}
    PATH_VARS HMI_DICTIONARY HMI_TRANSLATIONS_DIR
    NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(HMIDeviceConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
        ${PROJECT_BINARY_DIR}/HMIDeviceConfig.cmake
        ${PROJECT_BINARY_DIR}/HMIDeviceConfigVersion.cmake
        cmake/HMIDeviceDictionary.cmake
    DESTINATION ${package_dir}
    COMPONENT dev)

# The file names its prefix relative to itself, so that a prefix can be moved.
file(RELATIVE_PATH HMI_PC_PREFIX ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
file(RELATIVE_PATH HMI_PC_LIBDIR ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_LIBDIR})
file(RELATIVE_PATH HMI_PC_INCLUDEDIR ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_INCLUDEDIR})
configure_file(cmake/HMIDevice.pc.in HMIDevice.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/HMIDevice.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT dev)
