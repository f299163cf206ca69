# How all of our own code is compiled: language, warnings, sanitizers, compiler cache.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTOUIC ON)
set(CMAKE_AUTORCC ON)
# Without the times of the files, so that the same sources give the same program.
set(CMAKE_AUTORCC_OPTIONS --format-version 1)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
option(CMAKE_COMPILE_WARNING_AS_ERROR "Let no warning pass" ON)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  # What one clone of the tree has compiled serves another one: with GCC wherever it lies, with clang in the same
  # place, since precompiled headers name it there. Those have times and macros that ccache must not look at.
  set(CMAKE_CXX_COMPILER_LAUNCHER
    env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1 CCACHE_SLOPPINESS=pch_defines,time_macros
    ${CCACHE_PROGRAM})
  if(TARNWICK_PRECOMPILE AND CMAKE_CXX_COMPILER_ID STREQUAL Clang)
    add_compile_options(-Xclang -fno-pch-timestamp)
  elseif(TARNWICK_PRECOMPILE)
    add_compile_options(-fpch-preprocess)
  endif()
endif()

add_library(tarnwick_options INTERFACE)
target_compile_options(tarnwick_options INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow
  # Qt's QSKIP is one.
  $<$<CXX_COMPILER_ID:Clang>:-Wno-gnu-zero-variadic-macro-arguments>)
target_compile_definitions(tarnwick_options INTERFACE
  QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_DEPRECATED_WARNINGS)

if(TARNWICK_SANITIZE)
  add_compile_options(-fsanitize=${TARNWICK_SANITIZE} -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${TARNWICK_SANITIZE})
endif()

if(TARNWICK_COVERAGE)
  add_compile_options(-fprofile-instr-generate -fcoverage-mapping)
  add_link_options(-fprofile-instr-generate)
endif()

if(TARNWICK_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# ThreadSanitizer has to be told of Qt, in each program.
if(TARNWICK_SANITIZE MATCHES thread)
  set(tsan_sources ${CMAKE_SOURCE_DIR}/tests/support/tsanqt.cpp)
endif()
