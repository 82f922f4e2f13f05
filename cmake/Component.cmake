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

# folionet_form_component(NAME ...): the same, for a folder that has forms drawn in .ui files.
function(folionet_form_component name)
  set(CMAKE_AUTOMOC ON)
  folionet_component(${name} ${ARGN})
  # By rules of their own: the headers that AUTOUIC makes are not seen as changed until the build after the next one.
  file(GLOB forms CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.ui)
  qt_wrap_ui(form_headers ${forms})
  target_sources(folionet_${name} PRIVATE ${form_headers})
  target_include_directories(folionet_${name} SYSTEM PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
endfunction()
