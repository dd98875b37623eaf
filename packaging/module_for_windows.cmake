# The module with the catalogue that the application's folder has to hold, and how to put them there.
set(OX_CATALOGUE ${CMAKE_SOURCE_DIR}/build/release/prj_def CACHE PATH
  "Folder of catalogue tables, which a build of the host makes, for the zip")
install(TARGETS oxk_scn2d_prf_reproj LIBRARY DESTINATION . COMPONENT module)
install(CODE "
  if(NOT EXISTS \"${OX_CATALOGUE}/pj_ellps.dbf\")
    message(FATAL_ERROR \"no catalogue in ${OX_CATALOGUE}: build the preset release first, or set OX_CATALOGUE\")
  endif()" COMPONENT module)
install(DIRECTORY ${OX_CATALOGUE} DESTINATION . COMPONENT module FILES_MATCHING PATTERN *.dbf)
install(FILES module/README.txt DESTINATION . COMPONENT module)
