#include "projection/proj4_string.h"

#include "support/text.h"

namespace ox {

void Tox_proj4_string::assign(std::string_view text) {
    initial_ = text;
    current_ = initial_;
    reparse();
}

void Tox_proj4_string::reparse() {
    modified_ = false;
    params.set_text(current_);
    params.parse();
}

const std::string& Tox_proj4_string::result() {
    params.compose();
    return current_ = params.text();
}

bool Tox_proj4_string::complete_lcc() {
    if (!params.proj.present || !equal_no_case(trimmed(params.proj.value()), "lcc")) return false;
    bool filled = false;
    for (auto* parallel : {&params.lat_2, &params.lat_0}) {
        if (parallel->present) continue;
        parallel->set(params.lat_1.value());
        filled = true;
    }
    modified_ = modified_ || filled;
    return filled;
}

bool Tox_proj4_string::drop_lon_wrap() {
    params.set_lon_wrap(false);
    modified_ = true;
    return true;
}

std::string Tox_proj4_string::normalize(std::string_view text) {
    Tox_proj4_string fresh;
    fresh.assign(text);
    fresh.complete_lcc();
    fresh.drop_lon_wrap();
    return fresh.result();
}

}  // namespace ox
