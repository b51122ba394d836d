# SPDX-License-Identifier: MIT
#
# The installed library: shared object, headers, CMake package, pkg-config file, licence.

include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/HMIDevice)

install(TARGETS HMIDevice EXPORT HMIDeviceTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(FILES ${public_headers} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/HMIDevice)
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})

install(EXPORT HMIDeviceTargets NAMESPACE HMIDevice:: DESTINATION ${package_dir})
configure_package_config_file(cmake/HMIDeviceConfig.cmake.in HMIDeviceConfig.cmake
    INSTALL_DESTINATION ${package_dir}
    NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(HMIDeviceConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
        ${PROJECT_BINARY_DIR}/HMIDeviceConfig.cmake
        ${PROJECT_BINARY_DIR}/HMIDeviceConfigVersion.cmake
    DESTINATION ${package_dir})

# Written at install time, when the prefix is final: `cmake --install` may name another one. A path
# relative to the file itself would follow too, but some pkg-config put the sysroot before it twice.
set(pc_values "")
foreach(name IN ITEMS PROJECT_VERSION PROJECT_DESCRIPTION CMAKE_INSTALL_LIBDIR
        CMAKE_INSTALL_INCLUDEDIR HMI_QT_PC_REQUIRES HMI_QT_PC_PRIVATE HMI_QT_PC_CFLAGS)
    string(APPEND pc_values "set(${name} [==[${${name}}]==])\n")
endforeach()
set(pc_file ${PROJECT_BINARY_DIR}/HMIDevice.pc)
install(CODE "${pc_values}
    configure_file([==[${PROJECT_SOURCE_DIR}/cmake/HMIDevice.pc.in]==] [==[${pc_file}]==] @ONLY)")
install(FILES ${pc_file} DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
