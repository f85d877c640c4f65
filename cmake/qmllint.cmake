# SPDX-License-Identifier: MIT
# cmake -D QMLLINT=… -D IMPORTS=… -D MODULE=… -P qmllint.cmake
# Lints all QML of the project, with every category that this qmllint knows as a warning.
get_filename_component(root ${CMAKE_CURRENT_LIST_DIR}/.. ABSOLUTE)
# The module's files where the build has put them, together with their qmldir: seen from qml/ in the sources, which
# has no qmldir, singletons would look like mistakes.
file(GLOB_RECURSE module ${MODULE}/*.qml)
file(GLOB_RECURSE others ${root}/gallery/*.qml ${root}/tests/*.qml ${root}/benchmarks/*.qml ${root}/docs/*.qml)

execute_process(COMMAND ${QMLLINT} --help OUTPUT_VARIABLE help COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "--[A-Za-z.-]+ <level>" categories "${help}")
list(TRANSFORM categories REPLACE " <level>" "")
list(JOIN categories ";warning;" levels)

execute_process(
    COMMAND ${QMLLINT} --ignore-settings --max-warnings 0 ${levels} warning -I ${IMPORTS} ${module} ${others}
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
string(REPLACE "${MODULE}/" "${root}/Generic/" output "${output}")
if(NOT output STREQUAL "" OR NOT result EQUAL 0)
    message("${output}")
    message(FATAL_ERROR "qmllint is not content")
endif()
