#pragma once
/// Projections kept in files of their own: ".pj4" (one proj4 text) and ".prj" (ESRI). The host reads
/// and writes the contents; here the file is chosen, and the format by the extension it really has. [ui]

#include <string>

namespace ox {

/// Full path, empty when the user cancels or no dialog host is attached.
std::wstring ask_open_projection_file();
std::wstring ask_save_projection_file();

/// The proj4 text; empty when nothing could be read or the extension is neither.
std::wstring load_projection_file(const std::wstring& path);
/// Writes nothing under another extension.
void save_projection_file(const std::wstring& path, const std::wstring& pj4);

}  // namespace ox
