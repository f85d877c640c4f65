# SPDX-License-Identifier: MIT
# cmake -P cmake/format.cmake: rewrites the C++ files in the project's style.
include(${CMAKE_CURRENT_LIST_DIR}/sources.cmake)
kelui_sources(${CMAKE_CURRENT_LIST_DIR}/.. sources headers)
execute_process(COMMAND clang-format -i ${sources} ${headers} COMMAND_ERROR_IS_FATAL ANY)
