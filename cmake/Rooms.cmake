# What every part of the house is built with, and how a room is declared.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

add_library(pta_flags INTERFACE)
target_include_directories(pta_flags INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(
  pta_flags
  INTERFACE
    "$<$<COMPILE_LANGUAGE:C,CXX>:-Wall;-Wextra;-Wpedantic;-Wconversion;-Wshadow;-Werror>"
    "$<$<COMPILE_LANGUAGE:CXX>:-Wsuggest-override>")
if(WIN32)
  target_compile_definitions(pta_flags INTERFACE UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX
                                                 _WIN32_WINNT=0x0A00)
endif()
if(WIN32 OR PTA_BENCH)  # the benchmarks measure what is delivered
  target_compile_options(
    pta_flags
    INTERFACE "$<$<COMPILE_LANGUAGE:C,CXX>:-ffunction-sections;-fdata-sections;-fstack-protector-strong>")
  # GCC 12 for Windows, optimising for size, takes a call through hostlib::Library& whose final
  # type it knows for one that never returns, and drops what follows: constructors end half-way.
  target_compile_options(pta_flags INTERFACE "$<$<COMPILE_LANGUAGE:CXX>:-fno-devirtualize>")
  # Without these every file keeps copies of its own of the wide strings' functions, made to measure.
  target_compile_options(pta_flags INTERFACE "$<$<COMPILE_LANGUAGE:CXX>:-fno-ipa-cp;-fno-ipa-sra>")
  target_link_options(pta_flags INTERFACE -fstack-protector-strong)
endif()
if(PTA_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
                      -fno-omit-frame-pointer -g1)
  add_link_options(-fsanitize=address,undefined)
endif()
if(PTA_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link -O1)
endif()
if(PTA_COVERAGE)
  add_link_options(--coverage)
  # The rooms' own copies of what their headers define come first: those are counted, and not the
  # ones that the tests were compiled with. A room that is named twice is taken once.
  set(CMAKE_CXX_LINK_EXECUTABLE
      "<CMAKE_CXX_COMPILER> <FLAGS> <CMAKE_CXX_LINK_FLAGS> <LINK_FLAGS> -Wl,--allow-multiple-definition -Wl,--whole-archive <LINK_LIBRARIES> -Wl,--no-whole-archive <OBJECTS> -o <TARGET>")
endif()

# pta_room(FOLDER [USES FOLDER...]): the sources of one folder, without its subfolders, as a library
# that may use those of the folders named.
function(pta_room folder)
  cmake_parse_arguments(ROOM "" "" "USES" ${ARGN})
  string(REPLACE "/" "_" target "pta_${folder}")
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${folder}/*.cpp)
  if(sources)
    add_library(${target} STATIC ${sources})
    set(scope PUBLIC)
  else()
    add_library(${target} INTERFACE)
    set(scope INTERFACE)
  endif()
  target_link_libraries(${target} ${scope} pta_flags)
  if(sources AND NOT folder MATCHES "^practice/")
    # The program's own rooms for time, as far as its size allows: with GCC's own limits the strings'
    # functions stand in every caller, and the program is a third larger and no faster for it.
    set(for_time "$<$<CONFIG:MinSizeRel>:-O2;$<$<CXX_COMPILER_ID:GNU>:-finline-limit=20>>")
    target_compile_options(${target} PRIVATE ${for_time})
  endif()
  if(PTA_COVERAGE AND sources)
    # Only the rooms are counted, and as they are written: a sanitizer would add branches of its own.
    target_compile_options(${target} PRIVATE --coverage -fno-sanitize=all)
  endif()
  foreach(used IN LISTS ROOM_USES)
    string(REPLACE "/" "_" name "pta_${used}")
    target_link_libraries(${target} ${scope} ${name})
  endforeach()
endfunction()
