# SPDX-License-Identifier: MIT
#
# Where things are installed, below the prefix. Of their own beside CMake's:
#   HMI_DATA_DIR       what the libraries and programs read
#   HMI_DOC_DIR        manual, examples and licences
#   HMI_PROGRAM_DIR    programs that need files beside them
#   HMI_LIBRARY_RPATH  how one library finds the other, and
#   HMI_PROGRAM_RPATH  how a program in HMI_PROGRAM_DIR finds them: nothing in the system's own prefix,
#                      where the linker looks by itself

# In a prefix of the system each architecture has a folder of its own. GNUInstallDirs says so only
# when the compiler works for this machine. A project that this one is part of decides for itself.
if(HMI_TOP_LEVEL AND CMAKE_CROSSCOMPILING AND CMAKE_LIBRARY_ARCHITECTURE
        AND CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    set(CMAKE_INSTALL_LIBDIR lib/${CMAKE_LIBRARY_ARCHITECTURE} CACHE PATH "Object code libraries")
endif()
include(GNUInstallDirs)

set(HMI_DATA_DIR ${CMAKE_INSTALL_DATADIR}/HMIDevice${HMI_NAME_SUFFIX})
set(HMI_DOC_DIR ${CMAKE_INSTALL_DOCDIR})
if(NOT HMI_TOP_LEVEL)
    set(HMI_DOC_DIR ${CMAKE_INSTALL_DATAROOTDIR}/doc/HMIDevice) # the other one is the whole project's
endif()
set(HMI_PROGRAM_DIR ${CMAKE_INSTALL_LIBEXECDIR}/HMIDevice)

set(CMAKE_INSTALL_RPATH_USE_LINK_PATH ON) # to a Qt outside the system's directories, else nothing
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON) # else the length of this folder's name stays in what is installed
if(CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    set(HMI_LIBRARY_RPATH "")
    set(HMI_PROGRAM_RPATH "")
else()
    file(RELATIVE_PATH from_program ${CMAKE_INSTALL_PREFIX}/${HMI_PROGRAM_DIR}
        ${CMAKE_INSTALL_FULL_LIBDIR})
    set(HMI_LIBRARY_RPATH "$ORIGIN")
    set(HMI_PROGRAM_RPATH "$ORIGIN/${from_program}")
endif()

# hmi_install_link(<what> <link> <component>): installs a link; both paths are below the prefix.
function(hmi_install_link what link component)
    get_filename_component(folder ${link} DIRECTORY)
    file(RELATIVE_PATH target ${CMAKE_INSTALL_PREFIX}/${folder} ${CMAKE_INSTALL_PREFIX}/${what})
    file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/links/${folder})
    file(CREATE_LINK ${target} ${PROJECT_BINARY_DIR}/links/${link} SYMBOLIC)
    install(FILES ${PROJECT_BINARY_DIR}/links/${link} DESTINATION ${folder} COMPONENT ${component})
endfunction()
