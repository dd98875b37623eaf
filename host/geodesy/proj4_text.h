#pragma once
/// A proj4 text taken apart: `+key=value` tokens, blanks between them, the "+" optional.

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace oxhost {

/// Seven parameters of a datum shift to WGS 84, Position Vector convention:
/// dX dY dZ in metres, rX rY rZ in arc-seconds, scale difference in parts per million.
using towgs84 = std::vector<double>;

/// Does PROJ read the key: one of general use, or a parameter of any of its projections?
bool is_known_key(std::string_view key);

class proj4_text {
public:
    struct token {
        std::string key;
        std::optional<std::string> value;  ///< nothing for a bare flag
    };

    proj4_text() = default;
    explicit proj4_text(std::string_view text);

    bool empty() const { return tokens_.empty(); }
    const std::vector<token>& tokens() const { return tokens_; }
    /// The first token of the key counts, as in PROJ.
    bool has(std::string_view key) const { return find(key) != nullptr; }
    std::optional<std::string> value(std::string_view key) const;
    std::optional<double> number(std::string_view key) const;
    /// The text's own shift, filled up to seven values; nothing without the key or with a broken value.
    std::optional<towgs84> shift() const;

    void remove(std::string_view key);
    /// In place of the key's first token, else at `before` (if that key is there), else at the end.
    void set(std::string_view key, std::string_view value, std::string_view before = {});
    /// Shortest decimal digits that read back as the same numbers.
    void set_shift(const towgs84& shift);

    /// Tokens with "+" in front, one blank between.
    std::string str() const;

    /// What the coordinate system is made of, spelled in one way: numbers as numbers, `k` as `k_0`,
    /// a named datum as its ellipsoid and shift; without `no_defs`, `wktext`, `type`, `lon_wrap`.
    std::map<std::string, std::string> canonical() const;

private:
    const token* find(std::string_view key) const;

    std::vector<token> tokens_;
};

}  // namespace oxhost
