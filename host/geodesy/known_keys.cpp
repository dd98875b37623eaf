#include "geodesy/proj4_text.h"

#include <proj.h>

#include <algorithm>
#include <cctype>
#include <set>
#include <string>

namespace oxhost {
namespace {

/// What PROJ reads for every projection, and the parameters that its list of projections leaves out.
constexpr std::string_view general[] = {
    "proj",  "init",   "type",    "title",    "no_defs",   "wktext",     "datum",     "towgs84", "nadgrids",
    "ellps", "a",      "b",       "rf",       "f",         "es",         "e",         "R",       "R_A",
    "R_V",   "R_a",    "R_g",     "R_h",      "R_lat_a",   "R_lat_g",    "R_C",       "lon_0",   "lat_0",
    "x_0",   "y_0",    "z_0",     "k",        "k_0",       "lon_wrap",   "over",      "geoc",    "axis",
    "pm",    "units",  "vunits",  "to_meter", "vto_meter", "geoidgrids", "geoid_crs", "approx",  "algo",
    "czech", "lat_b",  "t_epoch", "h_0",      "rot_xy",    "no_off",     "no_rot",    "no_uoff", "hyperbolic",
    "guam",  "no_cut", "sweep",   "mode",     "orient",    "azi",        "tilt",      "path",    "lsat"};

/// PROJ describes each projection by name, class, and its parameters as "lat_1= lat_2=, [no_rot]".
std::set<std::string, std::less<>> read_keys() {
    std::set<std::string, std::less<>> keys(std::begin(general), std::end(general));
    for (const PJ_OPERATIONS* operation = proj_list_operations(); operation->id; ++operation) {
        const std::string_view text = *operation->descr;
        std::string word;
        for (const char letter : text.substr(std::min(text.find('\n'), text.size()))) {
            if (std::isalnum(static_cast<unsigned char>(letter)) || letter == '_') {
                word += letter;
                continue;
            }
            if (letter == '=') keys.insert(word);
            word.clear();
        }
    }
    for (const char* flag :
         {"south", "zone", "n", "m", "M", "W", "lon_1", "lon_2", "lonc", "alpha", "gamma", "h"}) {
        keys.emplace(flag);
    }
    return keys;
}

}  // namespace

bool is_known_key(std::string_view key) {
    static const auto keys = read_keys();
    return keys.contains(key) || key.starts_with("o_");  // ob_tran hands these on to the inner projection
}

}  // namespace oxhost
