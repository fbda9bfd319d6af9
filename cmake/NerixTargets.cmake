# SPDX-FileCopyrightText: 2026 Ostrand
# SPDX-License-Identifier: MIT
#
# One place for what every target of the project has in common.

include(NerixPrecompiled)

# Warnings, sanitizers and strictness for a target of ours.
function(nerix_configure_target target)
    target_compile_options(${target} PRIVATE
        -pthread -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion
        $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast
            -Wextra-semi -Wnull-dereference -Wsuggest-override>
        $<$<BOOL:${NERIX_WARNINGS_AS_ERRORS}>:-Werror>)
    if(NERIX_DEBUG_INFO STREQUAL lines)
        target_compile_options(${target} PRIVATE $<$<CONFIG:Debug>:-g1>)
    endif()
    if(MOLD_PROGRAM)
        target_link_options(${target} PRIVATE -fuse-ld=mold)
    endif()
    if(NERIX_SANITIZE)
        target_compile_options(${target} PRIVATE
            -fsanitize=${NERIX_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
        target_link_options(${target} PRIVATE -fsanitize=${NERIX_SANITIZE})
    endif()
endfunction()

# What a target that uses Qt defines, and what a part of the product defines: texts are never
# converted from or to bytes by accident. Tests may, since they are full of literals.
function(nerix_define_qt_base target)
    target_compile_definitions(${target} PRIVATE
        QT_NO_KEYWORDS QT_DEPRECATED_WARNINGS QT_DISABLE_DEPRECATED_BEFORE=0x050C00)
endfunction()

function(nerix_define_qt_part target)
    nerix_define_qt_base(${target})
    target_compile_definitions(${target} PRIVATE
        QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING)
endfunction()

# nerix_configure_target() for a target that uses Qt.
function(nerix_configure_qt_base target)
    nerix_configure_target(${target})
    nerix_define_qt_base(${target})
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    nerix_use_precompiled(${target} Tests)
endfunction()

# The same for a part of the product.
function(nerix_configure_qt_target target)
    nerix_configure_target(${target})
    nerix_define_qt_part(${target})
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    nerix_use_precompiled(${target} Parts)
endfunction()

# nerix_lint_qml(OUT_VAR FILE...): checks QML files with qmllint while a target is built that depends
# on the file named in OUT_VAR.
find_program(NERIX_QMLLINT NAMES qmllint-qt5 qmllint HINTS /usr/lib/qt5/bin REQUIRED)
function(nerix_lint_qml out_var)
    set(stamp "${CMAKE_CURRENT_BINARY_DIR}/${out_var}.stamp")
    add_custom_command(OUTPUT "${stamp}"
        COMMAND "${NERIX_QMLLINT}" ${ARGN}
        COMMAND "${CMAKE_COMMAND}" -E touch "${stamp}"
        DEPENDS ${ARGN}
        VERBATIM)
    set(${out_var} "${stamp}" PARENT_SCOPE)
endfunction()

# Whether a program may have a network of its own here. Where it may not, tests that use the network
# share the real loopback and run one after the other.
execute_process(COMMAND unshare --user --map-root-user --net ip link set lo up
    RESULT_VARIABLE NERIX_UNSHARE_RESULT OUTPUT_QUIET ERROR_QUIET)

# nerix_add_test(NAME SOURCES ... LIBRARIES ... [ENVIRONMENT ...] [COMMAND ...]
# [ISOLATED_NETWORK]): a QtTest program as a CTest test. It has no display, keeps to test folders and
# gets a generous limit against hanging. COMMAND: what runs it, if something must.
# ISOLATED_NETWORK: it runs by tools/in-network-namespace.sh.
function(nerix_add_test name)
    cmake_parse_arguments(arg "ISOLATED_NETWORK" "" "SOURCES;LIBRARIES;ENVIRONMENT;COMMAND" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    nerix_configure_qt_base(${name})
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES} Qt5::Test)
    if(NERIX_SANITIZE MATCHES thread)
        target_link_libraries(${name} PRIVATE TsanSupport)
    endif()
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests/bin")
    if(arg_ISOLATED_NETWORK)
        add_test(NAME ${name} COMMAND "${CMAKE_SOURCE_DIR}/tools/in-network-namespace.sh"
            ${arg_COMMAND} $<TARGET_FILE:${name}>)
        if(NOT NERIX_UNSHARE_RESULT EQUAL 0)
            set_tests_properties(${name} PROPERTIES RESOURCE_LOCK loopback)
        endif()
    else()
        add_test(NAME ${name} COMMAND ${arg_COMMAND} $<TARGET_FILE:${name}>)
    endif()
    set_tests_properties(${name} PROPERTIES TIMEOUT 300
        ENVIRONMENT "QT_QPA_PLATFORM=minimal;QT_LOGGING_RULES=;${arg_ENVIRONMENT}")
endfunction()
