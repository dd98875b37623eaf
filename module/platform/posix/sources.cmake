# The module's own pictures, compiled in: `<id>.bmp` becomes the byte array of a picture list.
set(picture ${CMAKE_SOURCE_DIR}/module/resources/66.bmp)
set(embedded ${CMAKE_CURRENT_BINARY_DIR}/own_pictures.inc)
add_custom_command(
  OUTPUT ${embedded}
  COMMAND ${CMAKE_COMMAND} -DINPUT=${picture} -DOUTPUT=${embedded} -P ${CMAKE_CURRENT_LIST_DIR}/embed.cmake
  DEPENDS ${picture} ${CMAKE_CURRENT_LIST_DIR}/embed.cmake VERBATIM)

ox_module_layer(platform
  SOURCES
    posix/basic_resources.cpp
    posix/bitmap_file.cpp
    posix/dib.cpp
    posix/encodings.cpp
    posix/files.cpp
    posix/host_functions.cpp
    posix/icon_file.cpp
    posix/own_resources.cpp
    posix/pixels.cpp
    posix/resources.cpp
    ${embedded}
  LINK ox_border ox_texts ${CMAKE_DL_LIBS})
target_include_directories(ox_platform PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
