# A fuzz target is one source with LLVMFuzzerTestOneInput and a folder of seeds under fuzz/corpus/. It is
# built twice: with libFuzzer, to look for new faults, and with a plain main as a test that replays the seeds.

set(PITCHCRAFT_FUZZ_DIR ${CMAKE_CURRENT_LIST_DIR})

# pitchcraft_fuzz(NAME SOURCES ... USES lib ...)
function(pitchcraft_fuzz name)
  cmake_parse_arguments(FUZZ "" "" "SOURCES;USES" ${ARGN})
  add_executable(${name} ${FUZZ_SOURCES})
  target_link_libraries(${name} PRIVATE ${FUZZ_USES} pitchcraft_options)
  target_link_options(${name} PRIVATE -fsanitize=fuzzer)
endfunction()

# pitchcraft_corpus_test(NAME CORPUS folder SOURCES ... USES lib ...): the sources are in fuzz/, the folder in
# fuzz/corpus/.
function(pitchcraft_corpus_test name)
  cmake_parse_arguments(FUZZ "" "CORPUS" "SOURCES;USES" ${ARGN})
  list(TRANSFORM FUZZ_SOURCES PREPEND ${PITCHCRAFT_FUZZ_DIR}/)
  pitchcraft_rooms_below(rooms modules ${FUZZ_USES})
  add_executable(${name} ${FUZZ_SOURCES} ${PITCHCRAFT_FUZZ_DIR}/replay_corpus.cpp)
  set_target_properties(${name} PROPERTIES PITCHCRAFT_IS_TEST ON)
  pitchcraft_link_rooms_first(${name} ${rooms})
  target_link_libraries(${name} PRIVATE ${FUZZ_USES} pitchcraft_options)
  pitchcraft_run(${name} COMMAND $<TARGET_FILE:${name}> ${PITCHCRAFT_FUZZ_DIR}/corpus/${FUZZ_CORPUS} LOCALES both)
endfunction()
