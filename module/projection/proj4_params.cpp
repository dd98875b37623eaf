#include "projection/proj4_params.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <vector>

#include "support/text.h"

namespace ox {
namespace {

struct token {
    std::string_view key, value;
};

std::vector<token> split(std::string_view text) {
    std::vector<token> tokens;
    tokens.reserve(32);
    while (!text.empty()) {
        const auto piece = text.substr(0, text.find('+'));
        text.remove_prefix(std::min(piece.size() + 1, text.size()));
        const auto sign = piece.find('=');
        const auto value = sign == std::string_view::npos ? std::string_view() : piece.substr(sign + 1);
        tokens.push_back({trimmed(piece.substr(0, sign)), trimmed(value)});
    }
    return tokens;
}

const token* find(const std::vector<token>& tokens, std::string_view key) {
    for (const auto& token : tokens) {
        if (equal_no_case(token.key, key)) return &token;
    }
    return nullptr;
}

const token* find(const std::vector<token>& tokens, const Tox_proj4_param& param) {
    const auto* found = find(tokens, param.name());
    for (auto alias = param.aliases().begin(); !found && alias != param.aliases().end(); ++alias) {
        found = find(tokens, *alias);
    }
    return found;
}

}  // namespace

std::array<Tox_proj4_param*, 21> Tox_proj4_params::in_order() {
    return {&proj, &zone,  &lon_0, &lonc,    &lat_0, &x_0, &y_0, &lat_1, &lat_ts, &lat_2,   &south,
            &k_0,  &alpha, &datum, &towgs84, &a,     &b,   &rf,  &ellps, &units,  &nadgrids};
}

void Tox_proj4_params::parse() {
    const auto tokens = split(text_);
    for (auto* param : in_order()) {
        if (const auto* token = find(tokens, *param)) {
            param->parse_value(token->value);
        } else {
            param->present = false;
        }
    }
}

void Tox_proj4_params::compose() {
    text_.clear();
    const bool sphere = is_sphere();
    for (auto* param : in_order()) {
        if (param == &towgs84 && sphere) continue;
        text_ += param->format_text();
    }
    if (text_.empty()) return;
    if (lon_wrap_) text_ += "+lon_wrap=45 ";
    text_ += "+no_defs";
}

void Tox_proj4_params::clear() {
    for (auto* param : in_order()) param->present = false;
}

bool Tox_proj4_params::is_sphere() const {
    if (ellps.present && equal_no_case(ellps.value(), "sphere")) return true;
    if (!a.present) return false;
    return (b.present && std::abs(b.value() - a.value()) < 1e-6) ||
           (rf.present && std::abs(rf.value()) < 1e-6);
}

bool Tox_proj4_params::is_latlong() const {
    return proj.present && (equal_no_case(proj.value(), "longlat") || equal_no_case(proj.value(), "latlong"));
}

void Tox_proj4_params::set_latlong() {
    proj.set("longlat");
    for (Tox_proj4_param* param :
         std::initializer_list<Tox_proj4_param*>{&zone, &lon_0, &lonc, &lat_0, &x_0, &y_0, &lat_1, &lat_ts,
                                                 &lat_2, &south, &k_0, &alpha, &units}) {
        param->present = false;
    }
}

bool Tox_proj4_params::equals(const Tox_proj4_params& other) const {
    const auto same = [&](auto... members) { return ((this->*members).equals(other.*members) && ...); };
    using p = Tox_proj4_params;
    return same(&p::proj, &p::datum, &p::ellps, &p::units, &p::lon_0, &p::lonc, &p::lat_0, &p::x_0, &p::y_0,
                &p::lat_1, &p::lat_ts, &p::lat_2, &p::k_0, &p::alpha, &p::a, &p::b, &p::rf, &p::south,
                &p::towgs84, &p::zone);
}

}  // namespace ox
