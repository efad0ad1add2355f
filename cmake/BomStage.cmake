# bom_stage_tree(<target> SOURCE <dir> DESTINATION <dir>... [FRESH <dir>...]
#                [EXCLUDE <regex>...])
# Copies the files below SOURCE's subfolders into each DESTINATION whenever one
# of them changes, so that programs and tests work on a copy and never write
# into the source tree. Files directly in SOURCE (its CMakeLists.txt, say) and
# files matching an EXCLUDE regex stay behind. A FRESH destination is emptied
# first, so that a file removed from SOURCE does not linger there; the others
# keep what programs wrote into them.
function(bom_stage_tree target)
  cmake_parse_arguments(ARG "" "SOURCE" "DESTINATION;FRESH;EXCLUDE" ${ARGN})
  if(ARG_UNPARSED_ARGUMENTS OR NOT ARG_SOURCE OR NOT ARG_DESTINATION)
    message(FATAL_ERROR "bom_stage_tree: SOURCE and DESTINATION are required")
  endif()
  file(GLOB_RECURSE files CONFIGURE_DEPENDS RELATIVE ${ARG_SOURCE} ${ARG_SOURCE}/*)
  list(FILTER files INCLUDE REGEX "/")
  foreach(regex IN LISTS ARG_EXCLUDE)
    list(FILTER files EXCLUDE REGEX "${regex}")
  endforeach()

  set(copies "")
  foreach(destination IN LISTS ARG_FRESH)
    list(APPEND copies COMMAND ${CMAKE_COMMAND} -E rm -rf ${destination})
  endforeach()
  set(sources "")
  foreach(file IN LISTS files)
    list(APPEND sources ${ARG_SOURCE}/${file})
    foreach(destination IN LISTS ARG_DESTINATION ARG_FRESH)
      list(APPEND copies COMMAND ${CMAKE_COMMAND} -E copy_if_different ${ARG_SOURCE}/${file}
           ${destination}/${file})
    endforeach()
  endforeach()

  set(stamp ${CMAKE_CURRENT_BINARY_DIR}/${target}.stamp)
  add_custom_command(OUTPUT ${stamp} ${copies}
    COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
    DEPENDS ${sources}
    COMMENT "Staging ${ARG_SOURCE} in ${ARG_DESTINATION}"
    VERBATIM)
  add_custom_target(${target} ALL DEPENDS ${stamp})
endfunction()
