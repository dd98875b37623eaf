#pragma once
/// A proj4 text kept together with its parameters.

#include <string>
#include <string_view>

#include "projection/proj4_params.h"

namespace ox {

class Tox_proj4_string {
public:
    Tox_proj4_params params;

    /// Takes over a text and parses it; nothing is modified then.
    void assign(std::string_view text);
    /// Parses the current text again, dropping changes of the parameters.
    void reparse();
    /// Composes the parameters; the composed text becomes the current one.
    const std::string& result();

    const std::string& initial_text() const { return initial_; }
    const std::string& current_text() const { return current_; }
    bool modified() const { return modified_; }

    /// Lambert conic texts with one parallel: absent lat_2, then lat_0, take the stored value of lat_1,
    /// present or not. True when something was filled.
    bool complete_lcc();
    /// Composed texts carry no "+lon_wrap" from here on.
    bool drop_lon_wrap();

    /// The text as composed with its Lambert parallels completed and without "+lon_wrap".
    static std::string normalize(std::string_view text);

private:
    std::string initial_;
    std::string current_;
    bool modified_ = false;
};

}  // namespace ox
