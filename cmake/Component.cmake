# folionet_component(NAME [PUBLIC dependency...] [PRIVATE dependency...])
#
# One static library for the folder it is called in, made of the folder's own .cpp files, with the folder as its only
# include path. A folder sees the headers of the folders that it names here, and of those that these hand on as
# PUBLIC; script/check-includes holds the include table of ARCHITECTURE.md, this and every #include together.
function(folionet_component name)
  folionet_library(${name} ${ARGN})
  folionet_precompile(folionet_${name} folionet_shared cmake/StandardHeaders.h)
endfunction()

function(folionet_library name)
  cmake_parse_arguments(ARG "" "" "PUBLIC;PRIVATE" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  add_library(folionet_${name} STATIC ${sources})
  target_include_directories(folionet_${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(folionet_${name} PUBLIC ${ARG_PUBLIC} PRIVATE ${ARG_PRIVATE} folionet_warnings)
endfunction()

# What ccache needs to know to keep what is made with precompiled headers.
if(NOT CMAKE_DISABLE_PRECOMPILE_HEADERS)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # Its collector of garbage goes through all that was precompiled each time: seldom is a seventh quicker for the forms.
    add_compile_options(-fpch-preprocess --param=ggc-min-heapsize=524288)
  else()
    add_compile_options("SHELL:-Xclang -fno-pch-timestamp")
  endif()
endif()

# folionet_precompile(TARGET FIRST HEADER): the target's sources begin with what the header names, headers of the system
# alone, read once for all that share the FIRST target's. script/check-includes holds that each source names what it uses of
# them, as does a build without (debug).
function(folionet_precompile target first header)
  # The engine is what is fuzzed. Options that the headers are read with are those of all that share them.
  if(FOLIONET_SANITIZE AND first STREQUAL "folionet_shared")
    target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
  endif()
  if(target STREQUAL first)
    target_precompile_headers(${target} PRIVATE ${PROJECT_SOURCE_DIR}/${header})
  else()
    target_precompile_headers(${target} REUSE_FROM ${first})
  endif()
endfunction()

# folionet_reads_arguments(SOURCE...): sources that read the parser of arguments. Its templates take a third of the
# time to compile when they are optimised no more than this, and it runs once.
function(folionet_reads_arguments)
  set_source_files_properties(${ARGN} PROPERTIES SKIP_PRECOMPILE_HEADERS ON COMPILE_OPTIONS "$<IF:$<CONFIG:Release>,-O1,-O0>")
endfunction()

# folionet_waits_mostly(TARGET): its time is a person's, a disk's or another library's: optimised less as delivered, it takes
# two thirds of the time to compile.
function(folionet_waits_mostly target)
  target_compile_options(${target} PRIVATE $<$<CONFIG:Release>:-O1>)
endfunction()

# folionet_quick_with_sanitizers(TARGET): what the sanitizers watch of it is not optimised, as a person is waited for
# anyway: half of the time to compile.
function(folionet_quick_with_sanitizers target)
  if(FOLIONET_SANITIZE)
    target_compile_options(${target} PRIVATE -O0)
  endif()
endfunction()

# folionet_form_component(NAME ...): the same, for a folder that has forms drawn in .ui files.
function(folionet_form_component name)
  set(CMAKE_AUTOMOC ON)
  folionet_library(${name} ${ARGN})
  folionet_waits_mostly(folionet_${name})
  folionet_quick_with_sanitizers(folionet_${name})
  folionet_precompile(folionet_${name} folionet_widgets cmake/FormHeaders.h)
  # By rules of their own: the headers that AUTOUIC makes are not seen as changed until the build after the next one.
  file(GLOB forms CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.ui)
  qt_wrap_ui(form_headers ${forms})
  target_sources(folionet_${name} PRIVATE ${form_headers})
  target_include_directories(folionet_${name} SYSTEM PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
endfunction()
