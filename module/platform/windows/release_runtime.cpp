// A C++ runtime that is linked into a DLL keeps its reserve for exceptions when the DLL is unloaded.
#include <exception>

#if defined(__GLIBCXX__)
namespace __gnu_cxx {
void __freeres();
}

namespace {
struct at_unload {
    ~at_unload() { __gnu_cxx::__freeres(); }
} release_reserve;
}  // namespace
#endif
