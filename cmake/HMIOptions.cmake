# SPDX-License-Identifier: MIT
#
# What can be chosen. Everything beside the library is built when the project stands on its own,
# nothing of it when the project is part of another one.

set(HMI_QT_MAJOR 5 CACHE STRING "Qt to build with: 4, 5 or 6")
set_property(CACHE HMI_QT_MAJOR PROPERTY STRINGS 4 5 6)
if(NOT HMI_QT_MAJOR MATCHES "^[456]$")
    message(FATAL_ERROR "HMI_QT_MAJOR is \"${HMI_QT_MAJOR}\"; it must be 4, 5 or 6.")
endif()

if(NOT DEFINED BUILD_SHARED_LIBS)
    set(BUILD_SHARED_LIBS ON)
endif()

# Debian packages hold shared libraries, for a Qt that Debian has. CPack runs packaging/*.cmake from
# CMake 3.19 on.
set(HMI_HAS_PACKAGES ${HMI_TOP_LEVEL})
if(NOT BUILD_SHARED_LIBS OR HMI_QT_MAJOR EQUAL 4 OR CMAKE_VERSION VERSION_LESS 3.19)
    set(HMI_HAS_PACKAGES OFF)
endif()
set(HMI_NAME_SUFFIX "" CACHE STRING "Added to the names of the libraries and of their data's folder")

option(HMI_WERROR "Treat warnings as errors" OFF)
set(tests ${HMI_TOP_LEVEL})
if(HMI_TOP_LEVEL AND CMAKE_CROSSCOMPILING AND NOT CMAKE_CROSSCOMPILING_EMULATOR)
    set(tests OFF)
    message(STATUS "HMI_BUILD_TESTS is off by default: nothing runs the tests on this machine")
endif()
option(HMI_BUILD_TESTS "Build the tests" ${tests})
option(HMI_BUILD_DOCS "Make the HTML manual (Doxygen)" OFF)
option(HMI_BUILD_TRANSLATIONS "Compile and install the translations" ${HMI_TOP_LEVEL})

set(needs_qt_5 ${HMI_TOP_LEVEL})
if(HMI_QT_MAJOR EQUAL 4)
    set(needs_qt_5 OFF)
endif()
foreach(part IN ITEMS FIELDS DICTIONARY DEMO EXAMPLES BENCHMARKS)
    string(TOLOWER ${part} directory)
    option(HMI_BUILD_${part} "Build ${directory}/ (Qt 5 or 6)" ${needs_qt_5})
    if(HMI_QT_MAJOR EQUAL 4 AND HMI_BUILD_${part})
        message(WARNING "HMI_BUILD_${part}=ON has no effect: ${directory}/ needs Qt 5 or 6.")
        set(HMI_BUILD_${part} OFF)
    endif()
endforeach()
