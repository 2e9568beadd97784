# SPDX-FileCopyrightText: 2026 the VySmil authors
# SPDX-License-Identifier: MIT

# Builds and runs the client CLIENT in WORK_DIR by each of the ways of docs/building.md, with COMPILER and GENERATOR where
# the way leaves a choice, against nothing but what is installed in PREFIX with its libraries in LIB_DIR; with BUILD_DIR
# instead, that build is installed first.
cmake_minimum_required(VERSION 3.22)
include(${CMAKE_CURRENT_LIST_DIR}/../../docs/guide.cmake)

function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

file(REMOVE_RECURSE "${WORK_DIR}")
if(NOT PREFIX)
    set(PREFIX "${WORK_DIR}/prefix")
    run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${PREFIX})
endif()
set(ENV{PKG_CONFIG_PATH} "${PREFIX}/${LIB_DIR}/pkgconfig")
set(ENV{LD_LIBRARY_PATH} "${PREFIX}/${LIB_DIR}")

set(page ${CMAKE_CURRENT_LIST_DIR}/../../docs/building.md)
vysmil_take_block(${page} cmake 0 for_cmake behind)
vysmil_take_block(${page} sh ${behind} for_shell behind)
vysmil_take_block(${page} qmake ${behind} for_qmake behind)
foreach(way cmake shell qmake)
    configure_file(${CLIENT} ${WORK_DIR}/${way}/app.cpp COPYONLY)
endforeach()

file(CONFIGURE OUTPUT ${WORK_DIR}/cmake/CMakeLists.txt CONTENT "${for_cmake}" @ONLY)
# The installed headers do without implicit conversions of text, as a client may have them forbidden.
run(${CMAKE_COMMAND} -G ${GENERATOR} -S ${WORK_DIR}/cmake -B ${WORK_DIR}/cmake/build -D CMAKE_PREFIX_PATH=${PREFIX}
    -D CMAKE_CXX_COMPILER=${COMPILER} "-DCMAKE_CXX_FLAGS=-DQT_NO_CAST_FROM_ASCII -DQT_NO_CAST_TO_ASCII \
-DQT_NO_CAST_FROM_BYTEARRAY -DQT_NO_URL_CAST_FROM_STRING")
run(${CMAKE_COMMAND} --build ${WORK_DIR}/cmake/build)
run(${WORK_DIR}/cmake/build/app)

# As typed, but for a folder with a blank, which pkg-config escapes.
run(sh -ec "eval \"${for_shell}\"; ./app" WORKING_DIRECTORY ${WORK_DIR}/shell)

# qmake itself loses its way in a folder with a blank.
if(NOT WORK_DIR MATCHES " ")
    file(CONFIGURE OUTPUT ${WORK_DIR}/qmake/app.pro CONTENT "${for_qmake}" @ONLY)
    run(sh -ec "qmake6 && make && ./app" WORKING_DIRECTORY ${WORK_DIR}/qmake)
endif()
