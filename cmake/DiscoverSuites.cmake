# Run as a script after a live test program is built:
#   cmake -DPROGRAM=… -DNAME=… -DOUTPUT=… -DLOCK=a|b -DTIMEOUT=… -P DiscoverSuites.cmake
# Writes the list that ctest includes: one test per GoogleTest suite.

# The platform frees little at exit.
set(ENV{ASAN_OPTIONS} detect_leaks=0)
execute_process(COMMAND ${PROGRAM} --gtest_list_tests
  OUTPUT_VARIABLE listing TIMEOUT 30 COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE "|" ";" LOCK "${LOCK}")
string(REGEX MATCHALL "(^|\n)[A-Za-z_0-9/]+\\." suites "${listing}")
set(text "")
if(NAME MATCHES "journeys$")
  set(label journey)
else()
  set(label display)
endif()
foreach(suite IN LISTS suites)
  string(REGEX REPLACE "[\n.]" "" suite "${suite}")
  set(test "${NAME}:${suite}")
  string(APPEND text "add_test([==[${test}]==] [==[${PROGRAM}]==] [==[--gtest_filter=${suite}.*]==])\n"
    "set_tests_properties([==[${test}]==] PROPERTIES LABELS ${label} TIMEOUT ${TIMEOUT} RESOURCE_LOCK [==[${LOCK}]==]"
    " ENVIRONMENT [==[ASAN_OPTIONS=detect_leaks=0]==])\n")
endforeach()
file(WRITE ${OUTPUT} "${text}")
