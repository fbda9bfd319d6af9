# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
#
# What a person who builds the project may choose, and the names of the folders that a build fills.

# What CMake, its lists and globs, the compiler's options and the search path of libraries take for
# something else. Blanks, quotes ('), ampersands and letters of any language are fine.
if("${CMAKE_SOURCE_DIR}${CMAKE_BINARY_DIR}" MATCHES "[][\"\\\\;$:*?#]")
    message(FATAL_ERROR "There is a sign ${CMAKE_MATCH_0} in the path ${CMAKE_SOURCE_DIR} or "
        "${CMAKE_BINARY_DIR}: move the project to a folder without any of [ ] \" \\ ; $ : * ? #")
endif()

option(BUILD_TESTING "Build the tests" ON)
option(NERIX_BUILD_BENCHMARKS "Build the benchmark programs" ON)
option(NERIX_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" OFF)
set(NERIX_SANITIZE "" CACHE STRING "Sanitizers to build with, as in -fsanitize=: 'address,undefined' or 'thread'")
set(NERIX_DEBUG_INFO lines CACHE STRING
    "Of a debug build: 'lines' is enough for a stack trace and takes a fifth of the time less; 'full' shows a debugger the variables too")
set_property(CACHE NERIX_DEBUG_INFO PROPERTY STRINGS lines full)

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 11)
set(CMAKE_C_STANDARD_REQUIRED ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# The build tree and the installed tree have the same shape, so that what is found from the one
# (plug-ins beside the libraries, tools beside the viewer) is found from the other.
set(NERIX_PLUGIN_DIR "lib/nerix/plugins")
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_INSTALL_LIBDIR "lib")

# More than a hundred test programs are linked: this linker takes a tenth of the time.
find_program(MOLD_PROGRAM mold)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    # It serves any folder that the project is checked out in, and files with precompiled headers.
    set(ccache_command env "CCACHE_BASEDIR=${CMAKE_SOURCE_DIR}"
        CCACHE_NOHASHDIR=1 CCACHE_SLOPPINESS=pch_defines,time_macros "${CCACHE_PROGRAM}")
    set(CMAKE_C_COMPILER_LAUNCHER ${ccache_command})
    set(CMAKE_CXX_COMPILER_LAUNCHER ${ccache_command})
endif()
