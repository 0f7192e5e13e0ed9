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
  # The program is instrumented, the tests are not: what they look for is in the program, and they are most of what is compiled.
  set(isTest $<BOOL:$<TARGET_PROPERTY:PITCHCRAFT_IS_TEST>>)
  # Calculations run at a fair speed under the sanitizers; a test and a window hardly compute.
  set(isSlow $<OR:${isTest},$<BOOL:$<TARGET_PROPERTY:PITCHCRAFT_IS_WINDOW>>>)
  target_compile_options(pitchcraft_options INTERFACE
    # Functions and lines, which is what a report shows.
    -g1
    "$<$<NOT:${isTest}>:-fsanitize=address,undefined,float-cast-overflow;-fno-sanitize-recover=all>"
    -fno-omit-frame-pointer $<$<NOT:${isSlow}>:-O1>)
  target_link_options(pitchcraft_options INTERFACE -fsanitize=address,undefined)
endif()
if(PITCHCRAFT_FUZZ)
  target_compile_options(pitchcraft_options INTERFACE -fsanitize=fuzzer-no-link,address,undefined
    -fno-sanitize-recover=all)
  target_link_options(pitchcraft_options INTERFACE -fsanitize=address,undefined)
endif()

include(${CMAKE_CURRENT_LIST_DIR}/precompiled.cmake)

# pitchcraft_room(NAME SOURCES ... USES room ... QT module ...): one folder under src/ as a library that sees only the rooms and
# the modules of the toolkit named.
function(pitchcraft_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;USES;QT" ${ARGN})
  add_library(pitchcraft_${name} STATIC ${ROOM_SOURCES})
  target_link_libraries(pitchcraft_${name} PRIVATE pitchcraft_options)
  target_include_directories(pitchcraft_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  foreach(room ${ROOM_USES})
    target_link_libraries(pitchcraft_${name} PUBLIC pitchcraft_${room})
  endforeach()
  foreach(module ${ROOM_QT})
    target_link_libraries(pitchcraft_${name} PUBLIC Qt6::${module})
  endforeach()
  if("Widgets" IN_LIST ROOM_QT)
    pitchcraft_precompile(pitchcraft_${name} WINDOW)
  elseif(NOT ROOM_QT)
    pitchcraft_precompile(pitchcraft_${name})
  endif()
endfunction()
