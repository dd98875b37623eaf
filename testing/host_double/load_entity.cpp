// A host has all its modules loaded. A program linked with this one has only those whose functions it
// imports, and nothing imports the functions that a host may lack.

#include <windows.h>

namespace {
[[maybe_unused]] const HMODULE entity = LoadLibraryW(L"oxk_entity.dll");
}
