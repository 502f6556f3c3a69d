# kolm_library(NAME DEPS...): one static library per subsystem folder, its
# sources found by glob so adding a file needs no edit here.
function(kolm_library name)
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS
       ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  cmake_parse_arguments(ARG "" "" "DEPS;EXCLUDE" ${ARGN})
  foreach(ex IN LISTS ARG_EXCLUDE)
    list(FILTER sources EXCLUDE REGEX "${CMAKE_CURRENT_SOURCE_DIR}/${ex}/")
  endforeach()
  if(NOT sources)
    file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/${name}_empty.cpp "")
    set(sources ${CMAKE_CURRENT_BINARY_DIR}/${name}_empty.cpp)
  endif()
  add_library(${name} STATIC ${sources})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${ARG_DEPS})
endfunction()
