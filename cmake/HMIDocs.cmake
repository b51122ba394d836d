# SPDX-License-Identifier: MIT
#
# The HTML manual, made of the public headers, README, docs/*.md and the examples, and installed beside
# the pages that it is made of. It needs no Qt.

find_program(HMI_DOXYGEN doxygen)
if(NOT HMI_DOXYGEN)
    message(FATAL_ERROR "HMI_BUILD_DOCS=ON needs Doxygen (scripts/setup docs installs it).")
endif()

add_custom_target(docs ALL
    COMMAND bash ${PROJECT_SOURCE_DIR}/cmake/manual/make-manual
        ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR}/manual
    COMMENT "Making the HTML manual"
    VERBATIM)
install(DIRECTORY ${PROJECT_BINARY_DIR}/manual/html
    DESTINATION ${HMI_DOC_DIR} COMPONENT dev)
