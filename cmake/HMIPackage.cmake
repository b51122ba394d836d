# SPDX-License-Identifier: MIT
#
# Debian packages by CPack: configure with the prefix /usr, build, run cpack in the build folder.
# scripts/package does all of it. Where the libraries lie in several folders, as in a build for another
# machine, what the packages depend on is read off
#   HMI_PACKAGE_LIBRARY_DIRS   folders with that machine's libraries; by default those of the sysroot
#                              or of the roots that CMake looks into
# and what distributors may set is
#   HMI_PACKAGE_MAINTAINER     who answers for the packages, as "Name <address>"

# Debian asks for an address; example.org belongs to nobody.
set(HMI_PACKAGE_MAINTAINER "libHMIDevice authors <libhmidevice@example.org>" CACHE STRING
    "Who answers for the packages, as \"Name <address>\"")

set(packaging ${PROJECT_SOURCE_DIR}/packaging)

# Debian's name for the machine that the compiler works for.
execute_process(COMMAND ${CMAKE_CXX_COMPILER} -dumpmachine
    OUTPUT_VARIABLE machine OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
find_program(HMI_DPKG_ARCHITECTURE dpkg-architecture)
mark_as_advanced(HMI_DPKG_ARCHITECTURE)
if(HMI_DPKG_ARCHITECTURE AND machine)
    execute_process(COMMAND ${HMI_DPKG_ARCHITECTURE} -t ${machine} -q DEB_HOST_ARCH
        OUTPUT_VARIABLE CPACK_DEBIAN_PACKAGE_ARCHITECTURE OUTPUT_STRIP_TRAILING_WHITESPACE
        ERROR_QUIET)
endif()

set(library_dirs "")
if(CMAKE_CROSSCOMPILING)
    foreach(root IN LISTS CMAKE_SYSROOT CMAKE_FIND_ROOT_PATH)
        list(APPEND library_dirs ${root}/usr/lib/${machine} ${root}/lib/${machine})
    endforeach()
endif()
set(HMI_PACKAGE_LIBRARY_DIRS "${library_dirs}" CACHE STRING
    "Folders with the libraries of the machine that the packages are for")

# What is not released yet is older than the release.
set(CPACK_DEBIAN_PACKAGE_VERSION ${PROJECT_VERSION}~unreleased)
file(STRINGS CHANGELOG.md heading REGEX "^## ${PROJECT_VERSION} ")
if(heading MATCHES "\\([0-9]+-[0-9]+-[0-9]+\\)")
    set(CPACK_DEBIAN_PACKAGE_VERSION ${PROJECT_VERSION})
endif()
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS CHANGELOG.md)

set(major ${PROJECT_VERSION_MAJOR})
set(lib_package libhmidevice${major}${HMI_NAME_SUFFIX})
set(fields_package libhmidevicefields${major}${HMI_NAME_SUFFIX})
set(dev_package libhmidevice${HMI_NAME_SUFFIX}-dev)
set(tools_package hmidevice-tools${HMI_NAME_SUFFIX})
set(this_version "(= ${CPACK_DEBIAN_PACKAGE_VERSION})")

if(HMI_QT_MAJOR EQUAL 6)
    set(qt_dev qt6-base-dev)
    set(qt_sqlite libqt6sql6-sqlite)
    set(string_list "QList<QString>")
else()
    set(qt_dev qtbase5-dev)
    set(qt_sqlite libqt5sql5-sqlite)
    set(string_list QStringList)
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME HMIDevice)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # else the first line of every package's description
set(CPACK_PACKAGE_VENDOR "libHMIDevice authors")
set(CPACK_PACKAGE_CONTACT "${HMI_PACKAGE_MAINTAINER}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_OUTPUT_CONFIG_FILE ${PROJECT_BINARY_DIR}/CPackConfig.cmake)
set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_BINARY_DIR}/packaging/settings.cmake)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_BINARY_DIR}/packaging/complete.cmake)
set(CPACK_POST_BUILD_SCRIPTS ${PROJECT_BINARY_DIR}/packaging/finish.cmake)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_OBJCOPY_EXECUTABLE ${CMAKE_OBJCOPY})
set(CPACK_READELF_EXECUTABLE ${CMAKE_READELF})

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_COMPONENTS_ALL lib)
set(dev_depends "${lib_package} ${this_version}")
if(TARGET HMIDeviceFields)
    list(APPEND CPACK_COMPONENTS_ALL fields)
    string(APPEND dev_depends ", ${fields_package} ${this_version}")
endif()
list(APPEND CPACK_COMPONENTS_ALL dev)
if(TARGET hmi-demo AND TARGET hmi-dictionary)
    list(APPEND CPACK_COMPONENTS_ALL tools)
endif()

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE hmidevice)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)

# The SQLite driver is a plugin, which no list of needed libraries shows.
set(CPACK_DEBIAN_LIB_PACKAGE_NAME ${lib_package})
set(CPACK_DEBIAN_LIB_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIB_PACKAGE_DEPENDS ${qt_sqlite})
set(CPACK_DEBIAN_LIB_PACKAGE_RECOMMENDS fonts-wqy-microhei)
set(CPACK_DEBIAN_LIB_DEBUGINFO_PACKAGE ON)
set(CPACK_DEBIAN_LIB_PACKAGE_CONTROL_EXTRA
    ${packaging}/triggers ${PROJECT_BINARY_DIR}/packaging/lib/symbols
    ${PROJECT_BINARY_DIR}/packaging/lib/shlibs)
set(CPACK_DEBIAN_LIB_DESCRIPTION "on-screen keypads for operator panels (Qt ${HMI_QT_MAJOR})
Five modal keypads, for numbers, G-code, axis words, dates and times, and text
with English, symbols and Chinese by pinyin, and the profile of the panel.
.
This package holds the library and its translations.")

set(CPACK_DEBIAN_FIELDS_PACKAGE_NAME ${fields_package})
set(CPACK_DEBIAN_FIELDS_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_FIELDS_DEBUGINFO_PACKAGE ON)
set(CPACK_DEBIAN_FIELDS_PACKAGE_CONTROL_EXTRA
    ${packaging}/triggers ${PROJECT_BINARY_DIR}/packaging/fields/symbols
    ${PROJECT_BINARY_DIR}/packaging/fields/shlibs)
set(CPACK_DEBIAN_FIELDS_DESCRIPTION
    "on-screen keypads for every field of a program (Qt ${HMI_QT_MAJOR})
Gives the line edits, spin boxes, date and time edits, combo boxes and tables
of an existing program the keypads of HMIDevice, by one line in that program.")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME ${dev_package})
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "${dev_depends}, ${qt_dev}")
set(CPACK_DEBIAN_DEV_PACKAGE_RECOMMENDS "${tools_package}")
set(CPACK_DEBIAN_DEV_DESCRIPTION
    "on-screen keypads for operator panels (Qt ${HMI_QT_MAJOR}, development files)
Headers, CMake package, pkg-config files, manual and examples of HMIDevice and
HMIDeviceFields. ${tools_package} holds the pinyin dictionary.")

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME ${tools_package})
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS ${qt_sqlite})
set(CPACK_DEBIAN_TOOLS_PACKAGE_RECOMMENDS rime-data-pinyin-simp)
set(CPACK_DEBIAN_TOOLS_DEBUGINFO_PACKAGE ON)
set(CPACK_DEBIAN_TOOLS_DESCRIPTION
    "on-screen keypads for operator panels (Qt ${HMI_QT_MAJOR}, programs and dictionary)
hmi-demo shows every keypad on a simulated machine-tool panel. hmi-dictionary
makes and checks pinyin dictionaries; one made with it is included.")

# Packages for two Qt versions share the machine as far as programs need it: libraries differ in
# name. Headers, CMake package and commands have one name, whatever the Qt.
if(HMI_NAME_SUFFIX)
    set(CPACK_DEBIAN_DEV_PACKAGE_CONFLICTS libhmidevice-dev)
    set(CPACK_DEBIAN_TOOLS_PACKAGE_PROVIDES hmidevice-tools)
    set(CPACK_DEBIAN_TOOLS_PACKAGE_CONFLICTS hmidevice-tools)
    set(CPACK_DEBIAN_TOOLS_PACKAGE_REPLACES hmidevice-tools)
endif()

foreach(component IN ITEMS lib fields)
    file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/packaging/${component})
    set(package ${${component}_package})
    configure_file(${packaging}/${component}.symbols.in
        ${PROJECT_BINARY_DIR}/packaging/${component}/symbols.in @ONLY)
    configure_file(${packaging}/${component}.shlibs.in
        ${PROJECT_BINARY_DIR}/packaging/${component}/shlibs @ONLY)
endforeach()
foreach(script IN ITEMS settings complete finish)
    configure_file(${packaging}/${script}.cmake.in
        ${PROJECT_BINARY_DIR}/packaging/${script}.cmake @ONLY)
endforeach()
configure_file(${packaging}/shlibdeps.in ${PROJECT_BINARY_DIR}/packaging/shlibdeps @ONLY)
include(CPack)
