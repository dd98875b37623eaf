# The host's strings and pictures stand in a folder beside the library that serves them (on Windows they
# are resources of that library).
file(GLOB_RECURSE files CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/host/resources/*)
set(folder ${CMAKE_BINARY_DIR}/oxk_basic.res)
add_custom_command(
  OUTPUT ${folder}/.copied
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${folder}
  COMMAND ${CMAKE_COMMAND} -E copy_directory ${CMAKE_SOURCE_DIR}/host/resources ${folder}
  COMMAND ${CMAKE_COMMAND} -E touch ${folder}/.copied
  DEPENDS ${files} VERBATIM)
add_custom_target(oxk_basic_resources ALL DEPENDS ${folder}/.copied)
