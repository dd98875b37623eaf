ox_module_layer(platform
  SOURCES
    windows/dib.cpp
    windows/encodings.cpp
    windows/files.cpp
    windows/host_functions.cpp
    windows/pictures.cpp
    windows/pixels.cpp
    windows/resources.cpp
  LINK ox_border gdi32 user32)
