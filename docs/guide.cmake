# SPDX-FileCopyrightText: 2026 the VySmil authors
# SPDX-License-Identifier: MIT

# The text of the first fenced block of a kind in a page, from an offset on, and the offset behind it.
function(vysmil_take_block page fence offset out_text out_offset)
    file(READ ${page} text)
    string(SUBSTRING "${text}" ${offset} -1 text)
    string(FIND "${text}" "\n```${fence}\n" begin)
    if(begin EQUAL -1)
        message(FATAL_ERROR "${page} has no block ```${fence}")
    endif()
    string(LENGTH "\n```${fence}\n" skipped)
    math(EXPR begin "${begin} + ${skipped}")
    string(SUBSTRING "${text}" ${begin} -1 text)
    string(FIND "${text}" "\n```\n" end)
    math(EXPR length "${end} + 1")
    string(SUBSTRING "${text}" 0 ${length} block)
    set(${out_text} "${block}" PARENT_SCOPE)
    math(EXPR behind "${offset} + ${begin} + ${end}")
    set(${out_offset} ${behind} PARENT_SCOPE)
endfunction()

# Takes the program of a page, its first block of C++, into a file of its own, which is installed; with the tests it is
# built too, and what it prints is compared with the block behind it.
function(vysmil_guide page)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${page})
    get_filename_component(name ${page} NAME_WE)
    string(TOLOWER ${name} name)
    vysmil_take_block(${page} cpp 0 program behind)
    set(source ${CMAKE_CURRENT_BINARY_DIR}/examples/${name}.cpp)
    file(CONFIGURE OUTPUT ${source} CONTENT "${program}" @ONLY)
    if(VYSMIL_BUILD_TESTS)
        vysmil_take_block(${page} text ${behind} printed behind)
        set(expected ${CMAKE_CURRENT_BINARY_DIR}/${name}.expected)
        file(CONFIGURE OUTPUT ${expected} CONTENT "${printed}" @ONLY)
        add_executable(guide_${name} ${source})
        target_link_libraries(guide_${name} PRIVATE VySmil)
        add_test(NAME guide_${name} COMMAND ${CMAKE_COMMAND} -D COMMAND=$<TARGET_FILE:guide_${name}>
            -D EXPECTED=${expected} -P ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/compare.cmake)
    endif()
endfunction()
