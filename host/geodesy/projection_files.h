#pragma once
/// Files that hold one projection. Paths are UTF-8.
///
/// `.pj4`: one line of UTF-8, the proj4 text.
/// `.prj`: ESRI's WKT, which has no place for `towgs84`. A text with one, or any whose WKT alone would
/// not give back the same coordinate system, is also kept in a file beside it, `NAME.prj.pj4`. That
/// companion counts only as long as the `.prj` is the one it was written with, so a `.prj` that other
/// software replaced is read for what it says.

#include <optional>
#include <string>
#include <string_view>

namespace oxhost {

/// The proj4 text, or nothing, with the reason in `projection_file_error`, for a file that is missing,
/// unreadable or holds something else.
std::optional<std::string> load_pj4(const std::string& path);
/// Also reads WKT of other makers (GDAL's, WKT2) and proj4 texts under this extension.
std::optional<std::string> load_prj(const std::string& path);

/// Both throw std::runtime_error, naming the file, and leave an old file as it was.
/// The `.pj4` holds the text as given; an empty text makes an empty file.
void save_pj4(const std::string& path, std::string_view proj4);
/// Refuses a text that has no ESRI form.
void save_prj(const std::string& path, std::string_view proj4);

/// What went wrong in the last load, or in the last save through the C functions, which cannot answer it:
/// one line, or empty when all went well.
std::string& projection_file_error();

}  // namespace oxhost
