# What every target of this project shares: language level, warnings, visibility, sanitizers.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release)
endif()

if(MSVC)
  add_compile_options(/W4 /WX /utf-8)
else()
  add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  add_compile_options(-Wno-restrict)  # false alarms on std::string::replace when optimising (GCC bug 105651)
endif()
if(OX_SANITIZE)
  add_compile_options(-fsanitize=${OX_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${OX_SANITIZE})
endif()

if(WIN32)
  include(ox_host_imports)
endif()

# A layer is one folder: its headers are included as "folder/header.h", and a target sees the folders that it
# links and no others, so that an include that points upward does not compile. Each folder's include root is a
# folder of the build that holds one link.
function(ox_include_root target scope folder)
  get_filename_component(name ${folder} NAME)
  set(root ${CMAKE_BINARY_DIR}/include/${name})
  file(MAKE_DIRECTORY ${root})
  file(CREATE_LINK ${folder} ${root}/${name} SYMBOLIC)
  target_include_directories(${target} ${scope} ${root})
endfunction()

# A layer of headers only.
function(ox_header_layer name)
  cmake_parse_arguments(arg "" "" "LINK" ${ARGN})
  add_library(ox_${name} INTERFACE)
  ox_include_root(ox_${name} INTERFACE ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(ox_${name} INTERFACE ${arg_LINK})
endfunction()

# One layer of the plug-in module: objects for the shared library, a link target for unit tests.
function(ox_module_layer name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
  add_library(ox_${name} STATIC ${arg_SOURCES})
  ox_include_root(ox_${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(ox_${name} PUBLIC ${arg_LINK} $<$<BOOL:${WIN32}>:ox_host_imports>)
endfunction()

# One layer of the host, with the link target oxhost_NAME. Layers of the CORE hold the state that the host's
# modules share: their objects, which need the foreign LIBRARIES, are parts of the one shared library
# oxhost_core, and it comes along with the link target. Other layers are static libraries.
function(ox_host_layer name)
  cmake_parse_arguments(arg "CORE" "" "SOURCES;LINK;LIBRARIES" ${ARGN})
  set(layer oxhost_${name})
  if(NOT arg_CORE)
    add_library(${layer} STATIC ${arg_SOURCES})
    ox_include_root(${layer} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(${layer} PUBLIC ${arg_LINK} PRIVATE ${arg_LIBRARIES})
    return()
  endif()
  add_library(${layer} INTERFACE)
  ox_include_root(${layer} INTERFACE ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${layer} INTERFACE oxhost_core ${arg_LINK})
  add_library(${layer}_objects OBJECT ${arg_SOURCES})
  set_target_properties(${layer}_objects PROPERTIES CXX_VISIBILITY_PRESET default VISIBILITY_INLINES_HIDDEN OFF)
  target_include_directories(${layer}_objects PRIVATE $<TARGET_PROPERTY:${layer},INTERFACE_INCLUDE_DIRECTORIES>)
  target_link_libraries(${layer}_objects PRIVATE ${arg_LIBRARIES})
  target_link_libraries(oxhost_core PRIVATE ${layer}_objects)
endfunction()

# A host module: shared library lib<name>.so that exports the C functions of its header and nothing else.
function(ox_host_module name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
  add_library(${name} SHARED ${arg_SOURCES})
  ox_include_root(${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
  target_compile_definitions(${name} PRIVATE OX_HOST_IMPLEMENTS)
  target_link_libraries(${name} PRIVATE ${arg_LINK} ox_border)
  ox_export_only(${name} ${CMAKE_SOURCE_DIR}/cmake/host_module.map)
endfunction()

# Shared library whose dynamic symbol table holds the functions that `script` names and nothing
# else; template instances of the standard library would leak out otherwise. On Windows only what is
# declared dllexport leaves a library.
function(ox_export_only target script)
  if(NOT WIN32)
    target_link_options(${target} PRIVATE -Wl,--version-script=${script})
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${script})
  endif()
endfunction()
