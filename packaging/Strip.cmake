# Takes what strip leaves and nobody needs out of the programs of a package that is about to be made.
file(GLOB programs ${CPACK_TEMPORARY_DIRECTORY}/*/usr/bin/* ${CPACK_TEMPORARY_DIRECTORY}/usr/bin/*)
foreach(program IN LISTS programs)
  execute_process(COMMAND strip --strip-all --remove-section=.comment --remove-section=.note ${program}
    COMMAND_ERROR_IS_FATAL ANY)
endforeach()
