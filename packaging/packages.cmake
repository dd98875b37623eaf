# CPack: a Debian package of the host, a zip of the module for Windows.
set(CPACK_PACKAGE_VENDOR "The developers of Batch Project Sections")
set(CPACK_PACKAGE_CONTACT "The developers of Batch Project Sections <oxhost@localhost>")
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_STRIP_FILES ON)
if(WIN32)
  set(CPACK_GENERATOR ZIP)
  set(CPACK_PACKAGE_FILE_NAME oxk_scn2d_prf_reproj-${PROJECT_VERSION}-win64)
  set(CPACK_INSTALL_CMAKE_PROJECTS ${CMAKE_BINARY_DIR} module module /)
else()
  set(CPACK_GENERATOR DEB)
  set(CPACK_PACKAGE_NAME oxhost)
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
  set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "reprojects the section lines of profile scenes")
  set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Profile scenes (cross-sections) keep a section line in map coordinates and the
projection it is in. oxhost lists the scenes of a project (a GeoPackage),
reprojects the lines of chosen ones by way of their datums, tells what became
of each, and takes a run back. A command line, a window, and the plug-in module
that both of them work.
.
Перепроецирование линий разрезов: сцены профилей хранят линию разреза в
координатах карты и её проекцию. oxhost показывает сцены проекта (GeoPackage),
перепроецирует линии выбранных сцен с учётом датумов, сообщает, что стало с
каждой, и отменяет выполненное. Командная строка, окно и модуль, с которым они
работают.")
  set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
  set(CPACK_DEBIAN_PACKAGE_SECTION science)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
  # Its own libraries, which the packages' database does not know.
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_BINARY_DIR})
  set(CPACK_DEBIAN_PACKAGE_DEPENDS proj-data)
  if(OX_DESKTOP)
    set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "libqt6svg6, qt6-translations-l10n")
  endif()
  set(CPACK_DEBIAN_PACKAGE_SUGGESTS parallel)
endif()
include(CPack)
