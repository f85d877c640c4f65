# SPDX-License-Identifier: MIT
# cmake [-D FLOOR=…] -D STATISTICS=… -D MODULE=… -P aot_share.cmake
# Prints how much of the module's QML is compiled ahead of time, and fails when that is less than FLOOR percent.
if(NOT EXISTS "${STATISTICS}")
    message("Skipped: this Qt makes no statistics of its QML compilation")
    return()
endif()
file(STRINGS "${STATISTICS}" line REGEX "^Module ${MODULE}\\(.*bindings or functions")
if(NOT line MATCHES "([0-9]+) of ([0-9]+) \\(([0-9.]+)%\\)")
    message(FATAL_ERROR "No line about ${MODULE} in ${STATISTICS}")
endif()
message("${MODULE}: ${CMAKE_MATCH_1} of ${CMAKE_MATCH_2} bindings and functions compiled, ${CMAKE_MATCH_3} %")
if(DEFINED FLOOR AND CMAKE_MATCH_3 LESS FLOOR)
    file(STRINGS "${STATISTICS}" reasons REGEX "result: Error")
    list(JOIN reasons "\n" reasons)
    message(FATAL_ERROR "Less than ${FLOOR} %. What was not compiled:\n${reasons}")
endif()
