# A room is a folder of src/ and one library of its name. It sees the headers of the rooms it LINKS and of no
# other: each room's headers are reached through a folder of its own (build/rooms/ROOM/ROOM -> src/ROOM), so an
# include of a room that is not linked does not compile.

add_library(tarnview_options INTERFACE)
target_compile_options(tarnview_options INTERFACE -Wall -Wextra -Wconversion)
# A cell is the same on every machine: no product and sum in one step where a processor has it, which rounds but once.
# Nobody asks for floating-point traps, and without them more loops are done in steps of several values.
target_compile_options(tarnview_options INTERFACE -ffp-contract=off -fno-trapping-math)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # Optimising, GCC 12 takes "text" + std::string for a copy onto itself, or beyond its end (its bugs 105651, 105329).
  target_compile_options(tarnview_options INTERFACE -Wno-restrict -Wno-array-bounds -Wno-stringop-overflow)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  # A row of a table starts its base's members and its own in one list.
  target_compile_options(tarnview_options INTERFACE -Wno-missing-braces)
endif()
if(TARNVIEW_WERROR)
  target_compile_options(tarnview_options INTERFACE -Werror)
endif()
if(TARNVIEW_SANITIZE)
  target_compile_options(tarnview_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                                    -fno-omit-frame-pointer)
  target_link_options(tarnview_options INTERFACE -fsanitize=address,undefined)
endif()
if(TARNVIEW_FUZZ)
  target_compile_options(tarnview_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

if(WIN32)
  set(other_platform "_posix\\.cpp$")
else()
  set(other_platform "_windows\\.cpp$")
endif()

function(tarnview_room name)
  cmake_parse_arguments(ROOM "" "" "LINKS" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.cpp
                                              ${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.h)
  list(FILTER sources EXCLUDE REGEX "${other_platform}")
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  add_library(${name} STATIC ${sources})
  set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX POSITION_INDEPENDENT_CODE ON)
  set(door ${PROJECT_BINARY_DIR}/rooms/${name})
  file(MAKE_DIRECTORY ${door})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR}/${name} ${door}/${name} SYMBOLIC)
  target_include_directories(${name} PUBLIC ${door})
  target_link_libraries(${name} PUBLIC ${ROOM_LINKS} PRIVATE tarnview_options)
endfunction()
