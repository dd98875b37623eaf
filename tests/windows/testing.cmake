# Tests of the Windows build. Programs are linked with the module's own resources and run where the host's
# modules lie; each runs whole, once in a Western and once in a Cyrillic ANSI code page.
add_subdirectory(googletest)

set(code_page_1252 C.UTF-8)
set(code_page_1251 ru_RU.UTF-8)

# windows_test(NAME COMMAND...): the command in both code pages.
function(windows_test name)
  foreach(page 1252 1251)
    add_test(NAME ${name}_${page} COMMAND ${ARGN} WORKING_DIRECTORY ${CMAKE_BINARY_DIR})
    set_tests_properties(${name}_${page} PROPERTIES
      ENVIRONMENT "LC_ALL=${code_page_${page}};OX_TEST_CODE_PAGE=${page};WINEPREFIX=${CMAKE_BINARY_DIR}/wine"
      FIXTURES_REQUIRED wine TIMEOUT 120)
  endforeach()
endfunction()

function(windows_test_program name)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
  target_link_libraries(${name} PRIVATE ox_resources)
  windows_test(${name} ${name})
endfunction()

# Wine's server lives as long as the tests do.
foreach(step begin end)
  add_test(NAME wine_${step} COMMAND ${CMAKE_SOURCE_DIR}/scripts/wine.sh --${step})
  set_tests_properties(wine_${step} PROPERTIES ENVIRONMENT WINEPREFIX=${CMAKE_BINARY_DIR}/wine TIMEOUT 120)
endforeach()
set_tests_properties(wine_begin PROPERTIES FIXTURES_SETUP wine)
set_tests_properties(wine_end PROPERTIES FIXTURES_CLEANUP wine)
