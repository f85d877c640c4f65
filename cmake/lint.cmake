# SPDX-License-Identifier: MIT
# The target lint: silent when there is nothing to find, failing otherwise.
include(${CMAKE_CURRENT_LIST_DIR}/sources.cmake)
kelui_sources(${PROJECT_SOURCE_DIR} lint_sources lint_headers)

find_program(CLANG_FORMAT clang-format)
find_program(CLANG_TIDY clang-tidy)
find_program(CLAZY clazy-standalone)
if(NOT (CLANG_FORMAT AND CLANG_TIDY AND CLAZY AND TARGET Qt6::qmllint AND TARGET kelui-gallery))
    message(STATUS "No target lint: it needs clang-format, clang-tidy, clazy, qmllint and the gallery")
    return()
endif()

add_custom_target(lint-format
    COMMAND ${CLANG_FORMAT} --dry-run --Werror ${lint_sources} ${lint_headers}
    VERBATIM)

set(stamps)
foreach(source IN LISTS lint_sources)
    file(RELATIVE_PATH name ${PROJECT_SOURCE_DIR} ${source})
    string(REPLACE "/" "-" name ${name})
    set(stamp ${PROJECT_BINARY_DIR}/lint/${name}.stamp)
    # A file is checked again when it or any header of the project has changed.
    add_custom_command(OUTPUT ${stamp}
        COMMAND ${CMAKE_COMMAND} -P ${PROJECT_SOURCE_DIR}/cmake/check.cmake
            ${CLANG_TIDY} --quiet -p ${PROJECT_BINARY_DIR} ${source}
        COMMAND ${CMAKE_COMMAND} -P ${PROJECT_SOURCE_DIR}/cmake/check.cmake
            ${CLAZY} -p ${PROJECT_BINARY_DIR} --checks=level0,level1,no-non-pod-global-static
            --header-filter=${PROJECT_SOURCE_DIR}/.* --extra-arg=-Werror --extra-arg=-Wno-unknown-warning-option ${source}
        COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
        DEPENDS ${source} ${lint_headers} ${PROJECT_SOURCE_DIR}/.clang-tidy ${CMAKE_CURRENT_LIST_FILE}
        VERBATIM)
    list(APPEND stamps ${stamp})
endforeach()
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/lint)
add_custom_target(lint-code DEPENDS ${stamps})

get_target_property(module_dir ${KELUI_MODULE} QT_QML_MODULE_OUTPUT_DIRECTORY)
add_custom_target(lint-qml
    COMMAND ${CMAKE_COMMAND} -D QMLLINT=$<TARGET_FILE:Qt6::qmllint> -D IMPORTS=${KELUI_QML_DIR}
        -D MODULE=${module_dir} -P ${PROJECT_SOURCE_DIR}/cmake/qmllint.cmake
    VERBATIM)
add_dependencies(lint-qml ${KELUI_MODULE} kelui-gallery)

add_custom_target(lint)
add_dependencies(lint lint-format lint-code lint-qml)
