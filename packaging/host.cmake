# The programs find module, catalogue, libraries and texts beside their own file: all of that is one folder, and links
# lead there from the folder of programs.
set(folder ${CMAKE_INSTALL_LIBDIR}/oxhost)
set(programs oxhost)
if(OX_DESKTOP)
  list(APPEND programs oxhost-window)
endif()
install(TARGETS
  ${programs} oxhost_core gdal_exchange oxk_basic oxk_entity oxk_msgs oxk_prg oxk_prj oxk_proj4_d2 oxk_scn_2d
  oxk_scn2d_prf_reproj
  RUNTIME DESTINATION ${folder} LIBRARY DESTINATION ${folder})
install(DIRECTORY ${CMAKE_BINARY_DIR}/prj_def DESTINATION ${folder})
install(DIRECTORY ${CMAKE_BINARY_DIR}/oxk_basic.res DESTINATION ${folder} PATTERN .copied EXCLUDE)
install(DIRECTORY ${CMAKE_BINARY_DIR}/manual DESTINATION ${folder} OPTIONAL)

file(RELATIVE_PATH from_programs /${CMAKE_INSTALL_BINDIR} /${folder})
set(links ${CMAKE_CURRENT_BINARY_DIR}/links)
file(MAKE_DIRECTORY ${links})
foreach(program ${programs})
  file(CREATE_LINK ${from_programs}/${program} ${links}/${program} SYMBOLIC)
  install(FILES ${links}/${program} DESTINATION ${CMAKE_INSTALL_BINDIR})
endforeach()

install(FILES ${CMAKE_SOURCE_DIR}/README.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY ${CMAKE_SOURCE_DIR}/docs DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY ${CMAKE_SOURCE_DIR}/samples DESTINATION ${CMAKE_INSTALL_DOCDIR} FILES_MATCHING PATTERN *.geojson
  PATTERN c_* EXCLUDE)

if(OX_DESKTOP)
  install(FILES oxhost.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES oxhost.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
  install(FILES oxhost.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
endif()

# Written by the program itself: its help is the one place where commands and options are described.
set(pages ${CMAKE_CURRENT_BINARY_DIR}/pages)
add_custom_command(OUTPUT ${pages}/en/oxhost.1 ${pages}/ru/oxhost.1 ${pages}/oxhost
  COMMAND ${CMAKE_COMMAND} -E make_directory ${pages}/en ${pages}/ru
  COMMAND oxhost --lang en --manual-page > ${pages}/en/oxhost.1
  COMMAND oxhost --lang ru --manual-page > ${pages}/ru/oxhost.1
  COMMAND oxhost --bash-completion > ${pages}/oxhost
  DEPENDS oxhost VERBATIM)
add_custom_target(manual_pages ALL DEPENDS ${pages}/oxhost)
install(FILES ${pages}/en/oxhost.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${pages}/ru/oxhost.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/ru/man1)
install(FILES ${pages}/oxhost DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
