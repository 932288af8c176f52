# How targets of this project are declared, so that warnings, sanitizers and include paths are the same everywhere.

add_library(tarnwell_options INTERFACE)
target_include_directories(tarnwell_options INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_definitions(tarnwell_options INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
                                                      QT_NO_FOREACH)
target_compile_options(
  tarnwell_options
  INTERFACE -Wall -Wextra -Wpedantic -Werror -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wconversion
            -Wno-sign-conversion)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # g++ 12, when it optimises, takes "text" + std::string for an overlapping copy, and out of a precompiled header for one
  # beyond the text.
  target_compile_options(tarnwell_options INTERFACE -Wno-restrict -Wno-array-bounds -Wno-stringop-overflow
                                                    -Wno-stringop-overread)
endif()
if(TARNWELL_SANITIZE)
  target_compile_options(tarnwell_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
                                                    -fno-omit-frame-pointer)
  target_link_options(tarnwell_options INTERFACE -fsanitize=address,undefined)
endif()

# What only tests are compiled with. Under the sanitizers a test's own lines are run once: optimising them costs more than
# it saves.
add_library(tarnwell_test_options INTERFACE)
target_link_libraries(tarnwell_test_options INTERFACE tarnwell_options)
if(TARNWELL_SANITIZE)
  target_compile_options(tarnwell_test_options INTERFACE -O0)
endif()
# More than a hundred programs are linked for the tests.
find_program(TARNWELL_MOLD mold)
if(TARNWELL_TESTS AND TARNWELL_MOLD AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_link_options(tarnwell_options INTERFACE -fuse-ld=mold)
endif()

# Precompiled headers: each is made once and shared by all targets that name it. Reading Qt's headers is most of a
# compiler's work here. A source may not lean on them: it includes what it uses, as headers do by a test of their own.
function(tarnwell_precompiled level)
  set(name tarnwell_precompiled_${level})
  add_library(${name} OBJECT ${CMAKE_SOURCE_DIR}/cmake/precompiled/none.cpp)
  target_link_libraries(${name} PRIVATE tarnwell_options ${ARGN})
  target_precompile_headers(${name} PRIVATE ${CMAKE_SOURCE_DIR}/cmake/precompiled/${level}.h)
endfunction()
tarnwell_precompiled(standard)
tarnwell_precompiled(core Qt6::Core)
tarnwell_precompiled(widgets Qt6::Widgets)
if(TARNWELL_TESTS)
  tarnwell_precompiled(plaintests tarnwell_test_options GTest::gmock)
  tarnwell_precompiled(tests tarnwell_test_options Qt6::Widgets Qt6::Test GTest::gmock)
endif()

# tarnwell_library(NAME SOURCES ... [LINK ...] [PRECOMPILED standard|core|widgets|tests] [MOC]): a static library of one
# folder. MOC where it has classes or layouts for Qt's generators, which take time even where they find nothing.
function(tarnwell_library name)
  cmake_parse_arguments(arg "MOC" "PRECOMPILED" "SOURCES;LINK" ${ARGN})
  add_library(${name} STATIC ${arg_SOURCES})
  target_link_libraries(${name} PUBLIC tarnwell_options ${arg_LINK})
  if(arg_MOC)
    set_target_properties(${name} PROPERTIES AUTOMOC ON AUTOUIC ON)
  endif()
  if(arg_PRECOMPILED)
    target_precompile_headers(${name} REUSE_FROM tarnwell_precompiled_${arg_PRECOMPILED})
  endif()
endfunction()

# tarnwell_test(NAME LABEL unit|integration SOURCES ... [LINK ...] [ENVIRONMENT ...] [SHARDS n] [MOC]): one test executable,
# one CTest entry or as many as shards. Tests run offscreen with one locale and time zone, from a folder of their own.
function(tarnwell_test name)
  cmake_parse_arguments(arg "MOC" "LABEL;SHARDS" "SOURCES;LINK;ENVIRONMENT" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  if(arg_MOC)
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
  endif()
  target_link_libraries(${name} PRIVATE tarnwell_test_options ${arg_LINK} GTest::gtest GTest::gmock)
  # With a window or without: those without bring GoogleTest's own main().
  if(GTest::gtest_main IN_LIST arg_LINK)
    target_precompile_headers(${name} REUSE_FROM tarnwell_precompiled_plaintests)
    target_compile_options(${name} PRIVATE -fPIC) # as libraries are, and so the precompiled header
  else()
    target_precompile_headers(${name} REUSE_FROM tarnwell_precompiled_tests)
  endif()
  set(sanitizer_options "ASAN_OPTIONS=detect_stack_use_after_return=1;UBSAN_OPTIONS=print_stacktrace=1")
  # Scratch databases wait for the disk at every commit; in memory they do not.
  if(EXISTS /dev/shm)
    list(APPEND arg_ENVIRONMENT TMPDIR=/dev/shm)
  endif()
  set(shards 1)
  if(arg_SHARDS)
    set(shards ${arg_SHARDS})
  endif()
  foreach(shard RANGE 1 ${shards})
    set(entry ${name})
    if(arg_SHARDS)
      set(entry ${name}_${shard})
    endif()
    math(EXPR index "${shard} - 1")
    add_test(NAME ${entry} COMMAND ${name} --gtest_brief=1)
    set_tests_properties(
      ${entry}
      PROPERTIES
        LABELS "${arg_LABEL}"
        TIMEOUT 300
        ENVIRONMENT
        "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;TZ=Asia/Shanghai;GTEST_TOTAL_SHARDS=${shards};GTEST_SHARD_INDEX=${index};${sanitizer_options};${arg_ENVIRONMENT}"
    )
  endforeach()
endfunction()

# tarnwell_test_on_screens(NAME): one more CTest entry of a test for each screen and scale that hospitals have.
function(tarnwell_test_on_screens name)
  get_test_property(${name} ENVIRONMENT environment)
  get_test_property(${name} LABELS label)
  foreach(size 1024x768 1366x768 1920x1080)
    string(REPLACE "x" ";" numbers ${size})
    list(GET numbers 0 width)
    list(GET numbers 1 height)
    set(screen ${CMAKE_BINARY_DIR}/screens/${size}.json)
    file(CONFIGURE OUTPUT ${screen} CONTENT
         [[{"screens":[{"name":"@size@","x":0,"y":0,"width":@width@,"height":@height@,"logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]}]]
         @ONLY)
    foreach(scale 1 1.5 2)
      add_test(NAME ${name}_${size}_${scale} COMMAND ${name} --gtest_brief=1)
      set_tests_properties(
        ${name}_${size}_${scale}
        PROPERTIES LABELS "${label}" TIMEOUT 300 ENVIRONMENT
                   "${environment};QT_QPA_PLATFORM=offscreen:configfile=${screen};QT_SCALE_FACTOR=${scale}")
    endforeach()
  endforeach()
endfunction()

if(TARNWELL_TESTS)
  include(TarnwellChecks)
endif()
