# What all targets share: warnings as errors, sanitizers, and the two functions that add a target.

add_library(pitchcraft_options INTERFACE)
target_include_directories(pitchcraft_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(pitchcraft_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual -Wcast-qual
  -Wformat=2 -Werror
  # g++ 12 warns of overlapping copies inside its own string concatenation; there are none.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
  # Rounds a product before anything is added to it, so that results are the same on every machine.
  -ffp-contract=off)
if(PITCHCRAFT_SANITIZE)
  target_compile_options(pitchcraft_options INTERFACE
    -fsanitize=address,undefined,float-cast-overflow -fno-sanitize-recover=all -fno-omit-frame-pointer
    # The program should run reasonably fast under the sanitizers; a test runs once and compiles twice as fast
    # unoptimized.
    $<$<NOT:$<BOOL:$<TARGET_PROPERTY:PITCHCRAFT_IS_TEST>>>:-O1>)
  target_link_options(pitchcraft_options INTERFACE -fsanitize=address,undefined)
endif()
if(PITCHCRAFT_FUZZ)
  target_compile_options(pitchcraft_options INTERFACE -fsanitize=fuzzer-no-link,address,undefined
    -fno-sanitize-recover=all)
  target_link_options(pitchcraft_options INTERFACE -fsanitize=address,undefined)
endif()

# pitchcraft_room(NAME SOURCES ... USES room ...): one folder under src/, as a library that sees only the
# rooms given.
function(pitchcraft_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;USES" ${ARGN})
  add_library(pitchcraft_${name} STATIC ${ROOM_SOURCES})
  target_link_libraries(pitchcraft_${name} PRIVATE pitchcraft_options)
  target_include_directories(pitchcraft_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  foreach(room ${ROOM_USES})
    target_link_libraries(pitchcraft_${name} PUBLIC pitchcraft_${room})
  endforeach()
endfunction()

# pitchcraft_test(NAME SOURCES ... USES lib ...): one test program; its tests run in random order, and it
# prints the seed.
function(pitchcraft_test name)
  cmake_parse_arguments(TEST "" "" "SOURCES;USES" ${ARGN})
  add_executable(${name} ${TEST_SOURCES})
  set_target_properties(${name} PROPERTIES PITCHCRAFT_IS_TEST ON)
  target_link_libraries(${name} PRIVATE ${TEST_USES} pitchcraft_options GTest::gtest GTest::gmock GTest::gtest_main)
  target_compile_definitions(${name} PRIVATE PITCHCRAFT_TESTS_DIR="${PROJECT_SOURCE_DIR}/tests"
    PITCHCRAFT_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
  add_test(NAME ${name} COMMAND ${name} --gtest_shuffle)
  set_tests_properties(${name} PROPERTIES TIMEOUT 600)
endfunction()
