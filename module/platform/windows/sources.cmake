ox_module_layer(platform
  SOURCES
    windows/dib.cpp
    windows/encodings.cpp
    windows/files.cpp
    windows/host_functions.cpp
    windows/pictures.cpp
    windows/pixels.cpp
    windows/resources.cpp
  LINK gdi32 user32)

# The module's own texts and pictures, for the file whose handle `own_module` answers: the plug-in or a
# test program.
set(resources ${CMAKE_SOURCE_DIR}/module/resources)
add_library(ox_resources OBJECT ${resources}/module.rc)
target_include_directories(ox_resources PRIVATE ${CMAKE_SOURCE_DIR}/module)
set_source_files_properties(${resources}/module.rc PROPERTIES
  OBJECT_DEPENDS "${resources}/texts.inc;${resources}/66.bmp")
