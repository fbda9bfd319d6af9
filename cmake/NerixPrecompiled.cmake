# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
#
# Headers that are compiled once for all targets of a kind (cmake/precompiled/): reading the headers
# of Qt is most of the time that a file takes. A file still includes what it uses; that it does is
# seen with -DNERIX_PRECOMPILED_HEADERS=OFF.

option(NERIX_PRECOMPILED_HEADERS "Compile the headers that most files include only once" ON)

# nerix_precompiled_kind(NAME LIBRARY...): the headers of precompiled/NAME.h, as targets see them
# that link at least these libraries.
function(nerix_precompiled_kind name)
    set(source "${CMAKE_BINARY_DIR}/precompiled/${name}.cpp")
    file(CONFIGURE OUTPUT "${source}" CONTENT "")
    add_library(NerixPrecompiled${name} OBJECT EXCLUDE_FROM_ALL "${source}")
    nerix_configure_target(NerixPrecompiled${name})
    if(name MATCHES Tests)
        nerix_define_qt_base(NerixPrecompiled${name})
    else()
        nerix_define_qt_part(NerixPrecompiled${name})
    endif()
    target_link_libraries(NerixPrecompiled${name} PRIVATE ${ARGN})
    # By a name without the folder of the project, so that the compiler cache serves any folder.
    target_include_directories(NerixPrecompiled${name} PRIVATE "${CMAKE_SOURCE_DIR}/cmake")
    target_precompile_headers(NerixPrecompiled${name} PRIVATE <precompiled/${name}.h>)
endfunction()

# All libraries that TARGET sees the headers of, by itself or by what it links.
function(nerix_visible_libraries out_var target)
    get_target_property(waiting ${target} LINK_LIBRARIES)
    set(found)
    while(waiting)
        list(POP_FRONT waiting library)
        if(TARGET "${library}" AND NOT library IN_LIST found)
            list(APPEND found ${library})
            get_target_property(more ${library} INTERFACE_LINK_LIBRARIES)
            if(more)
                list(APPEND waiting ${more})
            endif()
        endif()
    endwhile()
    set(${out_var} ${found} PARENT_SCOPE)
endfunction()

# nerix_use_precompiled(TARGET Parts|Tests): lets the target use the headers of its kind, once all
# that it links is known.
function(nerix_use_precompiled target kind)
    if(NERIX_PRECOMPILED_HEADERS)
        cmake_language(EVAL CODE "cmake_language(DEFER DIRECTORY [[${CMAKE_SOURCE_DIR}]]
            CALL nerix_choose_precompiled ${target} ${kind})")
    endif()
endfunction()

function(nerix_choose_precompiled target kind)
    nerix_visible_libraries(libraries ${target})
    if(kind STREQUAL Tests AND NOT Qt5::Test IN_LIST libraries)
        return()
    endif()
    if(kind STREQUAL Parts AND Qt5::Widgets IN_LIST libraries)
        set(kind WidgetParts)
    elseif(kind STREQUAL Tests AND Qt5::Widgets IN_LIST libraries AND Qt5::Network IN_LIST libraries)
        set(kind WidgetTests)
    endif()
    if(NOT TARGET NerixPrecompiled${kind})
        set(libraries_of_Parts Qt5::Core)
        set(libraries_of_WidgetParts Qt5::Widgets)
        set(libraries_of_Tests Qt5::Test)
        set(libraries_of_WidgetTests Qt5::Widgets Qt5::Network Qt5::Test)
        nerix_precompiled_kind(${kind} ${libraries_of_${kind}})
    endif()
    target_precompile_headers(${target} REUSE_FROM NerixPrecompiled${kind})
    # What the metaobject compiler makes of a test is mostly empty.
    if(kind MATCHES Tests)
        get_target_property(binary_dir ${target} BINARY_DIR)
        set_source_files_properties("${binary_dir}/${target}_autogen/mocs_compilation.cpp"
            TARGET_DIRECTORY ${target} PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
    endif()
endfunction()
