# SPDX-License-Identifier: MIT
# cmake -P check.cmake COMMAND ARGUMENT…: runs a command, and shows what it says only when it fails.
set(command)
math(EXPR last "${CMAKE_ARGC} - 1")
foreach(index RANGE 3 ${last})
    list(APPEND command "${CMAKE_ARGV${index}}")
endforeach()
execute_process(COMMAND ${command} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT result EQUAL 0)
    string(REGEX REPLACE "[0-9]+ warnings? generated[^\n]*\n" "" output "${output}")
    message("${output}")
    message(FATAL_ERROR "${CMAKE_ARGV3} is not content")
endif()
