# velloro_library(name [WINDOWS] SOURCES ... LINKS ...)
#
# A static library of the project: its sources and the libraries it builds on (public, so that
# whatever links it sees them too). A WINDOWS library needs Qt Widgets and is left out of the
# build of the window-free libraries (VELLORO_CORE_ONLY, as the fuzz harnesses build).
function(velloro_library name)
  cmake_parse_arguments(L "WINDOWS" "" "SOURCES;LINKS" ${ARGN})
  if(L_WINDOWS AND VELLORO_CORE_ONLY)
    return()
  endif()
  add_library(${name} STATIC ${L_SOURCES})
  target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${L_LINKS})
endfunction()
