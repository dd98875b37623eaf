#pragma once
/// The situation in which the bundle is tried: a project, and what files and codes the host knows; and what
/// has become of it.

#include <string>

#include "testing/host_double/host_double.h"

namespace oxcheck::script {

inline constexpr const wchar_t* opened_file = L"/oxcheck/opened.pj4";
inline constexpr const wchar_t* saved_file = L"/oxcheck/saved.prj";
inline constexpr const wchar_t* crs_code = L"4326";

inline constexpr int russian = 0;
inline constexpr int english = 50000;

/// A fresh host that knows nothing.
void clear_stage();

/// A fresh host with three profile scenes (one without projection), a scene that is no profile and one
/// without profile data.
void set_stage(int language = english);

/// Scenes, favourites, files and what was said, as text; two hosts in the same state give the same.
std::string describe_host();

/// The first thing wrong with update brackets: one within another, a change outside its scene's bracket, one
/// left open or closed twice. Empty when all is well.
std::string bracket_fault();

/// What the bundle did, since the process began, that no bundle may do.
std::vector<std::string> complaints();

/// Objects that were made in the host and not given back, brackets aside.
std::string objects_left();

}  // namespace oxcheck::script
