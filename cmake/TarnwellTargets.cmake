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
  # g++ 12, when it optimises, takes "text" + std::string for an overlapping copy.
  target_compile_options(tarnwell_options INTERFACE -Wno-restrict)
endif()
if(TARNWELL_SANITIZE)
  target_compile_options(tarnwell_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
                                                    -fno-omit-frame-pointer)
  target_link_options(tarnwell_options INTERFACE -fsanitize=address,undefined)
endif()

# tarnwell_library(NAME SOURCES ... [LINK ...]): a static library of one folder.
function(tarnwell_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
  add_library(${name} STATIC ${arg_SOURCES})
  target_link_libraries(${name} PUBLIC tarnwell_options ${arg_LINK})
endfunction()

# tarnwell_test(NAME LABEL unit|integration SOURCES ... [LINK ...] [ENVIRONMENT ...] [SHARDS n]): one test executable, one CTest
# entry a test case. Tests run offscreen with one locale and time zone, from a folder of their own.
function(tarnwell_test name)
  cmake_parse_arguments(arg "" "LABEL;SHARDS" "SOURCES;LINK;ENVIRONMENT" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE tarnwell_options ${arg_LINK} GTest::gtest GTest::gmock)
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

if(TARNWELL_TESTS)
  include(TarnwellChecks)
endif()
