#pragma once
/// A proj4 text taken apart into the 21 parameters that the dialogs know, and put together again.
///
/// Every other token of a text is dropped and a composed text ends with a tail of its own, so that
/// parsing followed by composing normalises a text. Texts are UTF-8.

#include <array>
#include <string>
#include <string_view>

#include "projection/proj4_param.h"

namespace ox {

class Tox_proj4_params {
public:
    // In the order in which they are read and written.
    Tox_proj4_param_str proj{"proj"};
    Tox_proj4_param_int zone{"zone"};
    Tox_proj4_param_dbl lon_0{"lon_0"};
    Tox_proj4_param_dbl lonc{"lonc"};
    Tox_proj4_param_dbl lat_0{"lat_0"};
    Tox_proj4_param_dbl x_0{"x_0"};
    Tox_proj4_param_dbl y_0{"y_0"};
    Tox_proj4_param_dbl lat_1{"lat_1"};
    Tox_proj4_param_dbl lat_ts{"lat_ts"};
    Tox_proj4_param_dbl lat_2{"lat_2"};
    Tox_proj4_param_bool south{"south"};
    Tox_proj4_param_dbl k_0{"k_0", {"k"}};
    Tox_proj4_param_dbl alpha{"alpha"};
    Tox_proj4_param_str datum{"datum"};
    Tox_proj4_param_towgs84 towgs84{"towgs84"};
    Tox_proj4_param_dbl a{"a", {"R"}};
    Tox_proj4_param_dbl b{"b", {"R"}};
    Tox_proj4_param_dbl rf{"rf"};
    Tox_proj4_param_str ellps{"ellps"};
    Tox_proj4_param_str units{"units"};
    Tox_proj4_param_str nadgrids{"nadgrids"};

    const std::string& text() const { return text_; }
    void set_text(std::string_view text) { text_ = text; }

    /// Fills the parameters from the text. The first token of a key counts; one without becomes absent.
    void parse();
    /// Rebuilds the text: the present parameters, "+lon_wrap=45" while `lon_wrap`, "+no_defs"; empty when
    /// nothing is present. A sphere is written without towgs84.
    void compose();
    /// Makes all parameters absent; values, text and `lon_wrap` stay.
    void clear();

    bool lon_wrap() const { return lon_wrap_; }
    void set_lon_wrap(bool wanted) { lon_wrap_ = wanted; }

    bool is_sphere() const;
    bool is_latlong() const;
    /// Turns the projection into "longlat": drops its parameters, keeps datum and ellipsoid.
    void set_latlong();

    /// Compares everything but nadgrids and `lon_wrap`.
    bool equals(const Tox_proj4_params& other) const;

private:
    std::array<Tox_proj4_param*, 21> in_order();

    std::string text_;
    bool lon_wrap_ = true;
};

}  // namespace ox
