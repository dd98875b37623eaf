#pragma once
/// All that the host knows of its own plug-in: ids and captions of the dialogs, as they are documented for
/// their users.

#include <string_view>

#include "base/language.h"

namespace oxhost::run::plug_in_text {

/// The file, beside the program.
inline constexpr auto bundle_file = "oxk_scn2d_prf_reproj.so";
inline constexpr auto utility = "oxk_scn2d_prf_reproj";
inline constexpr auto select_all_tool = "oxk_scn2d_prf_reproj_select_tool";
inline constexpr auto name_column = "oxk_scn2d_prf_reproj_name_column";

inline constexpr auto append_tool = "ox_proj_dialog_favorites_append_tool";

inline constexpr auto projection_dialog = "ox_common_projection_dialog";
inline constexpr auto crs_dialog = "ox_common_projection_crs_dialog";

inline std::string_view load() { return in_language("Загрузить", "Load"); }
inline std::string_view save() { return in_language("Сохранить", "Save"); }

inline std::string_view epsg() { return "EPSG"; }

inline std::string_view type() { return in_language("Тип", "Type"); }
inline std::string_view usual() { return in_language("Общие проекции", "Projected"); }
inline std::string_view zonal() { return in_language("Зональные проекции", "Zonal"); }
inline std::string_view projection() { return in_language("Проекция", "Projection"); }
inline std::string_view zone() { return in_language("Номер зоны", "Zone"); }
inline std::string_view datum() { return in_language("Датум", "Datum"); }
inline std::string_view datum_parameters() { return in_language("Параметры датума", "Datum Parameters"); }
inline std::string_view spheroid() { return in_language("Эллипсоид", "Spheroid"); }

}  // namespace oxhost::run::plug_in_text
