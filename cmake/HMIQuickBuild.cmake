# SPDX-License-Identifier: MIT
#
# Most of what there is to compile, and for moc to read, are headers of Qt and of C++. A quick build
# compiles those of Qt once for demo, examples and tests, and keeps moc from reading those of C++. It
# does not show that each file includes what it uses, which Qt 4.8 asks for, nor a slot that depends on
# a macro of C++: the preset qt5 does without, and so does whatever is given away. A target whose flags
# or macros do not fit the precompiled header is a warning, which HMI_WERROR makes an error.

option(HMI_QUICK_BUILD "Compile Qt's headers once for demo, examples and tests" OFF)
if(NOT HMI_QUICK_BUILD)
    return()
endif()
if(CMAKE_VERSION VERSION_LESS 3.18)
    message(FATAL_ERROR "HMI_QUICK_BUILD needs CMake 3.18.")
endif()

# A target may have more macros than the header was compiled with, if no header in it asks for them.
# So it knows of Qt no other module than QtCore, as hmi-dictionary's tests do, and has no QtTest.
file(GENERATE OUTPUT ${PROJECT_BINARY_DIR}/quick/precompiled.cpp CONTENT "")
add_library(hmi_precompiled_qt OBJECT ${PROJECT_BINARY_DIR}/quick/precompiled.cpp)
set_target_properties(hmi_precompiled_qt PROPERTIES AUTOMOC OFF)
target_link_libraries(hmi_precompiled_qt PRIVATE ${HMI_QT}::Core)
foreach(module IN ITEMS ${HMI_QT_WIDGETS} ${HMI_QT_SQL})
    target_include_directories(hmi_precompiled_qt SYSTEM PRIVATE
        $<TARGET_PROPERTY:${module},INTERFACE_INCLUDE_DIRECTORIES>)
endforeach()
target_precompile_headers(hmi_precompiled_qt PRIVATE <QtCore>
    <QApplication> <QComboBox> <QDateTimeEdit> <QDialog> <QDoubleSpinBox> <QGraphicsView>
    <QGridLayout> <QImage> <QIntValidator> <QKeyEvent> <QLabel> <QLineEdit> <QPainter> <QSpinBox>
    <QToolButton> <QVBoxLayout> <QSqlDatabase> <QSqlQuery> <functional>)

get_target_property(moc ${HMI_QT}::moc LOCATION)
list(TRANSFORM CMAKE_CXX_IMPLICIT_INCLUDE_DIRECTORIES REPLACE "(.+)" "'-I\\1'"
    OUTPUT_VARIABLE cxx_headers)
list(JOIN cxx_headers " | " cxx_headers)
configure_file(cmake/moc.in quick/moc @ONLY)

function(hmi_build_quickly folder)
    get_property(targets DIRECTORY ${folder} PROPERTY BUILDSYSTEM_TARGETS)
    foreach(target IN LISTS targets)
        get_target_property(type ${target} TYPE)
        if(NOT type MATCHES "^(EXECUTABLE|STATIC_LIBRARY)$")
            continue()
        endif()
        target_precompile_headers(${target} REUSE_FROM hmi_precompiled_qt)
        set_target_properties(${target} PROPERTIES AUTOMOC_EXECUTABLE ${PROJECT_BINARY_DIR}/quick/moc)
        # What moc makes of a program's headers is mostly nothing.
        get_target_property(binary_dir ${target} BINARY_DIR)
        if(type STREQUAL "EXECUTABLE")
            set_source_files_properties(${binary_dir}/${target}_autogen/mocs_compilation.cpp
                TARGET_DIRECTORY ${target} PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
        endif()
    endforeach()
    get_property(folders DIRECTORY ${folder} PROPERTY SUBDIRECTORIES)
    foreach(below IN LISTS folders)
        hmi_build_quickly(${below})
    endforeach()
endfunction()

get_property(folders DIRECTORY PROPERTY SUBDIRECTORIES)
foreach(folder IN LISTS folders)
    if(folder MATCHES "/(demo|examples|tests)$")
        hmi_build_quickly(${folder})
    endif()
endforeach()
