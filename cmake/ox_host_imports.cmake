# ox_host_imports: import libraries of the host's modules, made from the declarations in border/host_api,
# so that the plug-in can be linked for Windows without the host at hand. oxk_entity is left out: what a
# host may lack must not stand in the import table.
set(imports ${CMAKE_BINARY_DIR}/host_imports)
add_library(ox_host_imports INTERFACE)
set(libraries)
foreach(module oxk_basic oxk_prj oxk_scn_2d oxk_prg oxk_proj4_d2 oxk_msgs)
  set(header ${CMAKE_SOURCE_DIR}/border/host_api/${module}.h)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${header})
  file(READ ${header} declarations)
  string(REGEX MATCHALL "OX_HOST_API [^(]+" heads "${declarations}")
  list(TRANSFORM heads REPLACE "^.*[ *](ox_[a-z0-9_]+)$" "  \\1\n")
  string(CONCAT definition "LIBRARY ${module}.dll\nEXPORTS\n" ${heads})
  file(CONFIGURE OUTPUT ${imports}/${module}.def CONTENT "${definition}" @ONLY)

  set(library ${imports}/${CMAKE_IMPORT_LIBRARY_PREFIX}${module}${CMAKE_IMPORT_LIBRARY_SUFFIX})
  if(MSVC)
    set(make_library ${CMAKE_AR} /nologo /machine:x64 /def:${module}.def /out:${library})
  else()
    set(make_library ${CMAKE_DLLTOOL} --input-def ${module}.def --output-lib ${library})
  endif()
  add_custom_command(OUTPUT ${library} COMMAND ${make_library} DEPENDS ${imports}/${module}.def
    WORKING_DIRECTORY ${imports} VERBATIM)
  list(APPEND libraries ${library})
endforeach()
add_custom_target(ox_host_import_libraries DEPENDS ${libraries})
add_dependencies(ox_host_imports ox_host_import_libraries)
target_link_libraries(ox_host_imports INTERFACE ${libraries})
