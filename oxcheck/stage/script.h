#pragma once
/// The situation in which the bundle is tried: a project, and what files and codes the host knows.

#include <string>

#include "testing/host_double/host_double.h"

namespace oxcheck::script {

inline constexpr const wchar_t* opened_file = L"/oxcheck/opened.pj4";
inline constexpr const wchar_t* saved_file = L"/oxcheck/saved.prj";
inline constexpr const wchar_t* crs_code = L"4326";

inline constexpr int russian = 0;
inline constexpr int english = 50000;

/// A fresh host with three profile scenes (one without projection), a scene that is no profile and one
/// without profile data.
void set_stage(int language = english);

/// Scenes, favourites, files and what was said, as text; two hosts in the same state give the same.
std::string describe_host();

}  // namespace oxcheck::script
