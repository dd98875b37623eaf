# Fails unless the plug-in exports its two functions alone and imports from the host's modules and from
# Windows itself alone.
execute_process(COMMAND ${OBJDUMP} -p ${DLL} OUTPUT_VARIABLE dump COMMAND_ERROR_IS_FATAL ANY)

set(exports ox_bundle_interface_to_custom_pointer scary_vcl_bug_crashes_everything_on_unloading)
set(imports
  oxk_basic.dll oxk_msgs.dll oxk_prg.dll oxk_prj.dll oxk_proj4_d2.dll oxk_scn_2d.dll
  gdi32.dll kernel32.dll msvcrt.dll user32.dll)

string(REGEX REPLACE "^.*\\[Ordinal/Name Pointer\\] Table\n" "" names "${dump}")
string(REGEX REPLACE "\n\n.*$" "" names "${names}")
string(REGEX MATCHALL "\\[ *[0-9]+\\] [^\n]+" found_exports "${names}")
list(TRANSFORM found_exports REPLACE "^.*\\] " "")
string(REGEX MATCHALL "DLL Name: [^\n]+" found_imports "${dump}")
list(TRANSFORM found_imports REPLACE "^DLL Name: " "")
list(TRANSFORM found_imports TOLOWER)
list(SORT found_imports)
list(SORT imports)

foreach(kind exports imports)
  if(NOT "${found_${kind}}" STREQUAL "${${kind}}")
    message(SEND_ERROR "${DLL} ${kind}\n  ${found_${kind}}\nand not\n  ${${kind}}")
  endif()
endforeach()
