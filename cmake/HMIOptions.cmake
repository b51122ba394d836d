# SPDX-License-Identifier: MIT
#
# What can be chosen. Everything beside the library is built when the project stands on its own,
# nothing of it when the project is part of another one.

include(CMakeDependentOption)

set(HMI_QT_MAJOR 5 CACHE STRING "Qt to build with: 4, 5 or 6")
set_property(CACHE HMI_QT_MAJOR PROPERTY STRINGS 4 5 6)
if(NOT HMI_QT_MAJOR MATCHES "^[456]$")
    message(FATAL_ERROR "HMI_QT_MAJOR is \"${HMI_QT_MAJOR}\"; it must be 4, 5 or 6.")
endif()

option(HMI_WERROR "Treat warnings as errors" OFF)
option(HMI_BUILD_TESTS "Build the tests" ${HMI_TOP_LEVEL})
option(HMI_BUILD_TRANSLATIONS "Compile and install the translations" ${HMI_TOP_LEVEL})

foreach(part IN ITEMS DICTIONARY DEMO BENCHMARKS)
    string(TOLOWER ${part} directory)
    cmake_dependent_option(HMI_BUILD_${part} "Build ${directory}/ (Qt 5 or 6)" ${HMI_TOP_LEVEL}
        "HMI_QT_MAJOR GREATER 4" OFF)
endforeach()
