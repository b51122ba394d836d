# SPDX-License-Identifier: MIT
#
# Finds the Qt that HMI_QT_MAJOR names, and says of it
#   HMI_QT                                   its name as a CMake package, such as Qt5
#   HMI_QT_WIDGETS, HMI_QT_SQL, HMI_QT_TEST  the targets to link
#   HMI_QT_CXX_STANDARD                      the C++ to compile with
#   HMI_QT_DEPENDENCY                        what users of the installed library must find
#   HMI_QT_PC_REQUIRES, HMI_QT_PC_PRIVATE    the same for pkg-config: the headers' modules, the rest
#   HMI_QT_PC_CFLAGS                         what this Qt asks of its users' compiler
#   HMI_QT_REDUCES_RELOCATIONS               whether its users must be compiled so that a library may
#                                            bind its own functions, as this Qt's libraries do

set(HMI_QT Qt${HMI_QT_MAJOR})

if(HMI_QT_MAJOR EQUAL 4)
    set(modules QtCore QtGui QtSql)
    set(core_module QtCore)
    set(test_module QtTest)
    set(HMI_QT_WIDGETS Qt4::QtGui)
    set(HMI_QT_SQL Qt4::QtSql)
    set(HMI_QT_TEST Qt4::QtTest)
    set(HMI_QT_DEPENDENCY "Qt4 4.8 COMPONENTS QtCore QtGui QtSql")
    set(HMI_QT_PC_REQUIRES "QtGui")
    set(HMI_QT_PC_PRIVATE "QtSql")
    set(HMI_QT_PC_CFLAGS "")
else()
    set(modules Widgets Sql)
    set(core_module Core)
    set(test_module Test)
    set(HMI_QT_WIDGETS ${HMI_QT}::Widgets)
    set(HMI_QT_SQL ${HMI_QT}::Sql)
    set(HMI_QT_TEST ${HMI_QT}::Test)
    set(HMI_QT_DEPENDENCY "${HMI_QT} COMPONENTS Widgets Sql")
    set(HMI_QT_PC_REQUIRES "${HMI_QT}Widgets")
    set(HMI_QT_PC_PRIVATE "${HMI_QT}Sql")
    set(HMI_QT_PC_CFLAGS "-fPIC")
endif()

if(HMI_QT_MAJOR EQUAL 6)
    set(HMI_QT_CXX_STANDARD 17)
else()
    set(HMI_QT_CXX_STANDARD 11)
endif()

if(HMI_BUILD_TESTS)
    list(APPEND modules ${test_module})
endif()

if(HMI_QT_MAJOR EQUAL 4)
    find_package(Qt4 4.8 REQUIRED ${modules})
else()
    find_package(${HMI_QT} REQUIRED COMPONENTS ${modules})
endif()

include(CheckCXXSourceCompiles)
include(CMakePushCheckState)
cmake_push_check_state(RESET)
get_target_property(CMAKE_REQUIRED_INCLUDES ${HMI_QT}::${core_module} INTERFACE_INCLUDE_DIRECTORIES)
set(CMAKE_REQUIRED_FLAGS -fPIC)
check_cxx_source_compiles("
    #include <qconfig.h>
    #ifndef QT_REDUCE_RELOCATIONS
    #error
    #endif
    int main() {}" HMI_QT_REDUCES_RELOCATIONS)
cmake_pop_check_state()

# An archive leaves it to its users to link all that it needs.
if(NOT BUILD_SHARED_LIBS)
    string(APPEND HMI_QT_PC_REQUIRES " ${HMI_QT_PC_PRIVATE}")
    set(HMI_QT_PC_PRIVATE "")
endif()
