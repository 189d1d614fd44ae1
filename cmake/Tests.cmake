# How test programs are built and registered; tests/CMakeLists.txt says how to use this.

include(GoogleTest)

function(ov_add_rule_tests NAME)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
  add_executable(${NAME} ${ARG_SOURCES})
  target_include_directories(${NAME} PRIVATE ${PROJECT_SOURCE_DIR}/tests/support)
  target_link_libraries(${NAME} PRIVATE OvRules ${ARG_LINK} GTest::gmock GTest::gtest_main ov_warnings)
  gtest_discover_tests(${NAME} TEST_PREFIX ${NAME}: DISCOVERY_TIMEOUT 30
    PROPERTIES LABELS rules TIMEOUT 60)
endfunction()

# As OvLiveTest itself, which the precompiled header is taken from.
function(ov_compile_live_tests NAME)
  target_compile_options(${NAME} PRIVATE -fPIC)
  target_precompile_headers(${NAME} REUSE_FROM OvLiveTest)
endfunction()

function(ov_add_live_fixture NAME)
  add_library(${NAME} OBJECT ${ARGN})
  target_link_libraries(${NAME} PUBLIC OvLiveTest PRIVATE ov_warnings)
  ov_compile_live_tests(${NAME})
endfunction()

define_property(GLOBAL PROPERTY OV_LIVE_TEST_COUNT
  BRIEF_DOCS "How many live test programs there are"
  FULL_DOCS "How many live test programs there are; they are dealt out to two locks.")
set_property(GLOBAL PROPERTY OV_LIVE_TEST_COUNT 0)

function(ov_add_live_tests NAME)
  cmake_parse_arguments(ARG "ALONE" "TIMEOUT" "SOURCES;LINK" ${ARGN})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 120)
  endif()
  if(OV_SANITIZE)
    math(EXPR ARG_TIMEOUT "${ARG_TIMEOUT} * 4")
  endif()

  add_executable(${NAME} ${ARG_SOURCES})
  target_link_libraries(${NAME} PRIVATE OvLiveTest ${ARG_LINK} ov_warnings)
  ov_compile_live_tests(${NAME})
  # CMake 3.25 has no run paths for Objective-C++, and takes our framework folders for those
  # of another platform.
  set_target_properties(${NAME} PROPERTIES LINKER_LANGUAGE CXX
    BUILD_RPATH "$<TARGET_FILE_DIR:OvAppKit>;$<TARGET_FILE_DIR:OvFoundation>")

  get_property(count GLOBAL PROPERTY OV_LIVE_TEST_COUNT)
  math(EXPR next "${count} + 1")
  set_property(GLOBAL PROPERTY OV_LIVE_TEST_COUNT ${next})
  if(ARG_ALONE)
    set(lock "display0|display1")
  else()
    math(EXPR half "${count} % 2")
    set(lock "display${half}")
  endif()

  # The suites are listed when the program is built; until then there is one failing test.
  set(list ${CMAKE_CURRENT_BINARY_DIR}/${NAME}_suites.cmake)
  set(include ${CMAKE_CURRENT_BINARY_DIR}/${NAME}_include.cmake)
  add_custom_command(TARGET ${NAME} POST_BUILD
    COMMAND ${CMAKE_COMMAND} -DPROGRAM=$<TARGET_FILE:${NAME}> -DNAME=${NAME} -DOUTPUT=${list}
      -DLOCK=${lock} -DTIMEOUT=${ARG_TIMEOUT} -P ${PROJECT_SOURCE_DIR}/cmake/DiscoverSuites.cmake
    BYPRODUCTS ${list} VERBATIM)
  file(WRITE ${include}
    "if(EXISTS \"${list}\")\n  include(\"${list}\")\nelse()\n  add_test(${NAME}_NOT_BUILT ${NAME}_NOT_BUILT)\nendif()\n")
  set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${include})
endfunction()
