# folionet_component(NAME [PUBLIC dependency...] [PRIVATE dependency...])
#
# One static library for the folder it is called in, made of the folder's own .cpp files, with the folder as its only
# include path. A folder sees the headers of the folders that it names here and of no others: a PRIVATE dependency is
# not handed on, so the include table of ARCHITECTURE.md holds because anything else does not compile.
function(folionet_component name)
  cmake_parse_arguments(ARG "" "" "PUBLIC;PRIVATE" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  add_library(folionet_${name} STATIC ${sources})
  target_include_directories(folionet_${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(folionet_${name} PUBLIC ${ARG_PUBLIC} PRIVATE ${ARG_PRIVATE} folionet_warnings)
endfunction()
