#pragma once
/// Files that hold one projection. Paths are UTF-8.
///
/// `.pj4`: UTF-8, the proj4 text, in one line or several; "#" begins a comment.
/// `.prj`: ESRI's WKT, which has no place for `towgs84`. A text with one, or any whose WKT alone would
/// not give back the same coordinate system, is also kept in a file beside it, `NAME.prj.pj4`. That
/// companion counts only as long as the `.prj` is the one it was written with, so a `.prj` that other
/// software replaced is read for what it says.

#include <string>
#include <string_view>

namespace oxhost {

// All throw file_error.

/// The proj4 text of a file; a file that is missing, unreadable or holds something else is an error.
std::string load_pj4(const std::string& path);
/// Also reads WKT of other makers (GDAL's, WKT2) and proj4 texts under this extension.
std::string load_prj(const std::string& path);

/// A save that fails leaves an old file as it was. The `.pj4` holds the text as given; an empty text makes an
/// empty file.
void save_pj4(const std::string& path, std::string_view proj4);
/// Refuses a text that has no ESRI form.
void save_prj(const std::string& path, std::string_view proj4);

}  // namespace oxhost
