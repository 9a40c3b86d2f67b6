# Writes the tests of a test program that has been built, for ctest: one for each suite that it names.
#     PROGRAM  the test program
#     PREFIX   of the names of the tests
#     LIST     its argument that makes it name its suites, one a line: "Suite." or "Suite@SCALE."
#     RUN      its argument that makes it run the suite %
#     PICTURES the folder for the pictures of suites with a scale
#     OUTPUT   the file to write
# A suite with a scale runs on a screen with that many device pixels to the pixel.
cmake_minimum_required(VERSION 3.25)
execute_process(COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen ${PROGRAM} ${LIST}
    OUTPUT_VARIABLE listed COMMAND_ERROR_IS_FATAL ANY)
# Tests are indented below their suites, and a remark may follow.
string(REGEX MATCHALL "(^|\n)[^ \n]+[.]" suites "${listed}")
if(NOT suites)
    message(FATAL_ERROR "${PROGRAM} names no suite")
endif()
set(tests "")
foreach(suite IN LISTS suites)
    string(REGEX REPLACE "^\n?(.*)[.]$" "\\1" suite "${suite}")
    string(REGEX REPLACE "@.*" "" class "${suite}")
    string(REPLACE "%" "${class}" run "${RUN}")
    string(APPEND tests "add_test([==[${PREFIX}.${suite}]==] [==[${PROGRAM}]==] [==[${run}]==])\n")
    if(suite MATCHES "@(.*)")
        string(APPEND tests "set_tests_properties([==[${PREFIX}.${suite}]==] PROPERTIES ENVIRONMENT "
            "\"QT_QPA_PLATFORM=offscreen;QT_SCALE_FACTOR=${CMAKE_MATCH_1};KORVET_PICTURES=${PICTURES}/at-${CMAKE_MATCH_1}\")\n")
    endif()
endforeach()
file(WRITE ${OUTPUT} "${tests}")
