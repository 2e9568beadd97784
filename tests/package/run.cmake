# SPDX-FileCopyrightText: 2026 the VySmil authors
# SPDX-License-Identifier: MIT

# Builds and runs clients in WORK_DIR, with SOURCE_DIR, LIB_DIR, COMPILER and GENERATOR, against nothing but what is
# installed in PREFIX; with BUILD_DIR instead, that build is installed first.
cmake_minimum_required(VERSION 3.22)

function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

file(REMOVE_RECURSE "${WORK_DIR}")
if(NOT PREFIX)
    set(PREFIX "${WORK_DIR}/prefix")
    run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${PREFIX})
endif()
set(libdir "${PREFIX}/${LIB_DIR}")

run(${CMAKE_COMMAND} -G ${GENERATOR} -S ${SOURCE_DIR} -B ${WORK_DIR}/cmake -D CMAKE_PREFIX_PATH=${PREFIX}
    -D CMAKE_CXX_COMPILER=${COMPILER})
run(${CMAKE_COMMAND} --build ${WORK_DIR}/cmake)
run(${WORK_DIR}/cmake/consumer)

find_program(pkg_config pkg-config REQUIRED)
set(ENV{PKG_CONFIG_PATH} "${libdir}/pkgconfig")
execute_process(COMMAND ${pkg_config} --cflags --libs vysmil
    OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${flags}")
run(${COMPILER} -std=c++17 -fPIC ${SOURCE_DIR}/consumer.cpp -o ${WORK_DIR}/pkg-config-consumer ${flags})
run(${CMAKE_COMMAND} -E env "LD_LIBRARY_PATH=${libdir}" ${WORK_DIR}/pkg-config-consumer)
