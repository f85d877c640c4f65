# SPDX-License-Identifier: MIT
# cmake [-D LIMIT=…] -D STATISTICS=… -D MODULE=… -P aot_share.cmake
# Prints how much of the module's QML is compiled ahead of time, and fails when more than LIMIT bindings and functions
# are not.
if(NOT EXISTS "${STATISTICS}")
    message("Skipped: this Qt makes no statistics of its QML compilation")
    return()
endif()
file(STRINGS "${STATISTICS}" line REGEX "^Module ${MODULE}\\(.*bindings or functions")
if(NOT line MATCHES "([0-9]+) of ([0-9]+) \\(([0-9.]+)%\\)")
    message(FATAL_ERROR "No line about ${MODULE} in ${STATISTICS}")
endif()
message("${MODULE}: ${CMAKE_MATCH_1} of ${CMAKE_MATCH_2} bindings and functions compiled, ${CMAKE_MATCH_3} %")
math(EXPR left "${CMAKE_MATCH_2} - ${CMAKE_MATCH_1}")
if(DEFINED LIMIT AND left GREATER LIMIT)
    file(STRINGS "${STATISTICS}" reasons REGEX "result: Error")
    list(JOIN reasons "\n" reasons)
    message(FATAL_ERROR "More than ${LIMIT} are not. What was not compiled:\n${reasons}")
endif()
