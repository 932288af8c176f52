# Tests of the sources themselves: their levels and sizes, their layout, and that every header compiles alone. One look
# at the sources is enough, so the sanitized and the clang builds go without.

if(TARNWELL_SANITIZE OR NOT CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  return()
endif()

find_package(Python3 REQUIRED COMPONENTS Interpreter)
add_test(NAME check_tree COMMAND Python3::Interpreter ${CMAKE_SOURCE_DIR}/scripts/check_tree.py ${CMAKE_SOURCE_DIR})
add_test(NAME check_tree_itself COMMAND Python3::Interpreter ${CMAKE_SOURCE_DIR}/scripts/check_tree_test.py)
set_tests_properties(check_tree check_tree_itself PROPERTIES LABELS unit ENVIRONMENT
                                                             "PYTHONDONTWRITEBYTECODE=1;LC_ALL=C.UTF-8")
add_test(NAME check_format COMMAND ${CMAKE_SOURCE_DIR}/scripts/check-format)
set_tests_properties(check_format PROPERTIES LABELS unit)

# One source a header, that includes it and nothing else (twice, as happens in life). A header that a source includes
# before anything else is compiled alone there; in the tidy build, which precompiles nothing, that is the whole truth.
function(tarnwell_header_check)
  set(folders
      Common
      automation
      values
      data
      host
      toolkit
      forms
      report
      print
      uPrint
      uDjDetail
      uDjOld
      uAddBill
      uMain
      module
      vortaq
      tests)
  list(TRANSFORM folders APPEND "/*.h")
  file(
    GLOB_RECURSE headers
    RELATIVE ${CMAKE_SOURCE_DIR}
    ${folders})
  list(TRANSFORM folders REPLACE "h$" "cpp")
  file(
    GLOB_RECURSE own_sources
    RELATIVE ${CMAKE_SOURCE_DIR}
    ${folders})
  foreach(own_source IN LISTS own_sources)
    file(STRINGS ${CMAKE_SOURCE_DIR}/${own_source} first LIMIT_COUNT 1 REGEX "^#include")
    if(first MATCHES "^#include \"(.*)\"")
      list(REMOVE_ITEM headers ${CMAKE_MATCH_1})
    endif()
  endforeach()

  set(sources)
  foreach(header IN LISTS headers)
    set(source ${CMAKE_BINARY_DIR}/headers/${header}.cpp)
    set(text "#include \"${header}\"\n#include \"${header}\"\n")
    file(CONFIGURE OUTPUT ${source} CONTENT "${text}")
    list(APPEND sources ${source})
  endforeach()
  add_library(tarnwell_headers OBJECT EXCLUDE_FROM_ALL ${sources})
  target_compile_options(tarnwell_headers PRIVATE -O0 -g0)
  target_link_libraries(tarnwell_headers PRIVATE tarnwell_options Qt6::Widgets Qt6::Test SQLite::SQLite3 GTest::gmock)
  foreach(module IN ITEMS Qt6::PrintSupport Qt6::Sql Qt6::Xml)
    if(TARGET ${module})
      target_link_libraries(tarnwell_headers PRIVATE ${module})
    endif()
  endforeach()
  add_test(NAME check_headers COMMAND ${CMAKE_COMMAND} --build ${CMAKE_BINARY_DIR} --target tarnwell_headers)
  set_tests_properties(check_headers PROPERTIES LABELS unit TIMEOUT 1500)
endfunction()
tarnwell_header_check()
