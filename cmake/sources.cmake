# SPDX-License-Identifier: MIT
# The C++ files of the project that are kept in its style.
function(kelui_sources root sources headers)
    foreach(folder kelcore Generic gallery tests benchmarks)
        list(APPEND source_patterns ${root}/${folder}/*.cpp)
        list(APPEND header_patterns ${root}/${folder}/*.h)
    endforeach()
    file(GLOB_RECURSE found_sources ${source_patterns})
    file(GLOB_RECURSE found_headers ${header_patterns})
    set(${sources} ${found_sources} PARENT_SCOPE)
    set(${headers} ${found_headers} PARENT_SCOPE)
endfunction()
