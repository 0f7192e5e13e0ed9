# The ways to add a test.
find_package(GTest REQUIRED)
find_package(Qt6 REQUIRED COMPONENTS Test Widgets)

# Takes the locale of the environment, which the test library's own main does not.
add_library(pitchcraft_test_main STATIC ${PROJECT_SOURCE_DIR}/tests/support/main.cpp)
set_target_properties(pitchcraft_test_main PROPERTIES PITCHCRAFT_IS_TEST ON)
target_link_libraries(pitchcraft_test_main PRIVATE pitchcraft_options PUBLIC GTest::gtest)

# pitchcraft_run(NAME COMMAND ... [LOCALES both] [SECONDS n]): a command as a test, in folders of its own
# (tests/support/run_test.sh). LOCALES both is for what reads or writes text: it runs once more, as NAME_comma, where a number is
# written with a comma. SECONDS is for what takes long and therefore starts first.
function(pitchcraft_run name)
  cmake_parse_arguments(RUN "" "LOCALES;SECONDS" "COMMAND" ${ARGN})
  set(run ${PROJECT_SOURCE_DIR}/tests/support/run_test.sh)
  set(names ${name})
  add_test(NAME ${name} COMMAND ${run} C.UTF-8 ${RUN_COMMAND})
  if(RUN_LOCALES STREQUAL both)
    list(APPEND names ${name}_comma)
    add_test(NAME ${name}_comma COMMAND ${run} de_DE.UTF-8 ${RUN_COMMAND})
    set_tests_properties(${name}_comma PROPERTIES LABELS comma)
  elseif(DEFINED RUN_LOCALES)
    message(FATAL_ERROR "${name}: LOCALES can only be both")
  endif()
  set_tests_properties(${names} PROPERTIES TIMEOUT 600)
  if(RUN_SECONDS)
    set_tests_properties(${names} PROPERTIES COST ${RUN_SECONDS})
  endif()
endfunction()

# The rooms that some libraries come down to, and the modules of the toolkit that are among them.
function(pitchcraft_rooms_below roomsOut modulesOut)
  set(rooms "")
  set(modules "")
  set(open ${ARGN})
  while(open)
    list(POP_FRONT open library)
    if(library MATCHES "Qt6::([A-Za-z]+)")
      list(APPEND modules ${CMAKE_MATCH_1})
    elseif(library MATCHES "^pitchcraft_" AND NOT library IN_LIST rooms)
      list(APPEND rooms ${library})
      get_target_property(below ${library} INTERFACE_LINK_LIBRARIES)
      list(APPEND open ${below})
    endif()
  endwhile()
  set(${roomsOut} ${rooms} PARENT_SCOPE)
  set(${modulesOut} ${modules} PARENT_SCOPE)
endfunction()

# The rooms stand before the tests when a program is linked. An inline function that both of them have compiled is then the
# instrumented one of the room: the linker keeps the first that it meets.
function(pitchcraft_link_rooms_first name)
  if(PITCHCRAFT_SANITIZE AND ARGN)
    list(TRANSFORM ARGN REPLACE "(.+)" "$<TARGET_FILE:\\1>")
    target_link_options(${name} PRIVATE -Wl,--whole-archive ${ARGN} -Wl,--no-whole-archive)
  endif()
endfunction()

# pitchcraft_test(NAME SOURCES ... USES lib ... [LOCALES both] [SECONDS n]): one test program, run in shuffled order with the seed
# printed. LOCALES and SECONDS are those of pitchcraft_run.
function(pitchcraft_test name)
  cmake_parse_arguments(TEST "" "LOCALES;SECONDS" "SOURCES;USES" ${ARGN})
  pitchcraft_rooms_below(rooms modules ${TEST_USES})
  add_executable(${name} ${TEST_SOURCES})
  set_target_properties(${name} PROPERTIES PITCHCRAFT_IS_TEST ON)
  pitchcraft_link_rooms_first(${name} ${rooms})
  target_link_libraries(${name} PRIVATE ${TEST_USES} pitchcraft_options GTest::gmock pitchcraft_test_main)
  target_compile_definitions(${name} PRIVATE PITCHCRAFT_TESTS_DIR="${PROJECT_SOURCE_DIR}/tests"
    PITCHCRAFT_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
  if("Widgets" IN_LIST modules)
    pitchcraft_precompile(${name} WINDOW TEST)
  elseif(NOT modules)
    pitchcraft_precompile(${name} TEST)
  endif()
  foreach(option LOCALES SECONDS)
    if(DEFINED TEST_${option})
      list(APPEND options ${option} ${TEST_${option}})
    endif()
  endforeach()
  pitchcraft_run(${name} COMMAND $<TARGET_FILE:${name}> --gtest_shuffle ${options})
endfunction()
