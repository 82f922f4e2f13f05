# folionet_soname(VARIABLE LIBRARY): the name under which the loader knows a shared library, such as "libxml2.so.2".
function(folionet_soname variable library)
  execute_process(COMMAND ${CMAKE_READELF} -d ${library} OUTPUT_VARIABLE dynamic COMMAND_ERROR_IS_FATAL ANY)
  if(NOT dynamic MATCHES "SONAME[^[]*\\[([^]]+)\\]")
    message(FATAL_ERROR "${library} has no SONAME")
  endif()
  set(${variable} ${CMAKE_MATCH_1} PARENT_SCOPE)
endfunction()
