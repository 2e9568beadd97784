# SPDX-FileCopyrightText: 2026 the VySmil authors
# SPDX-License-Identifier: MIT

# Fails unless README holds the text of each file SHOWN, but for the comment lines at its top.
file(READ ${README} readme)
foreach(file IN LISTS SHOWN)
    file(READ ${file} text)
    string(REGEX REPLACE "^// SPDX[^\n]*\n// SPDX[^\n]*\n\n" "" text "${text}")
    string(FIND "${readme}" "${text}" at)
    if(at EQUAL -1)
        message(FATAL_ERROR "${README} does not show ${file}")
    endif()
endforeach()
