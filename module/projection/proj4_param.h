#pragma once
/// One parameter of a projection, as it stands in a proj4 text: "+name=value".
///
/// A parameter keeps its value while it is absent. Numbers read and write the same under every locale.

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ox {

class Tox_proj4_param {
public:
    bool present = false;  ///< the parameter takes part in the text

    /// "+name=value " when present, else empty; the text lives in the parameter until the next call.
    virtual const std::string& format_text() = 0;
    /// Takes the trimmed value part of a token.
    virtual void parse_value(std::string_view value) = 0;

    /// The proj4 key, and the other keys that are read when no token carries the first.
    std::string_view name() const { return name_; }
    const std::vector<std::string_view>& aliases() const { return aliases_; }

protected:
    explicit Tox_proj4_param(std::string_view name, std::initializer_list<std::string_view> aliases = {})
        : name_(name), aliases_(aliases) {}
    Tox_proj4_param(const Tox_proj4_param&) = default;
    Tox_proj4_param& operator=(const Tox_proj4_param&) = default;
    ~Tox_proj4_param() = default;

    /// Empties the text; begins it with "+name" and answers true when the parameter is present.
    bool begin_text();

    std::string text_;

private:
    std::string_view name_;  // keys are literals
    std::vector<std::string_view> aliases_;
};

/// A parameter with one value.
template <class T>
class Tox_proj4_param_of : public Tox_proj4_param {
public:
    using value_type = T;

    explicit Tox_proj4_param_of(std::string_view name, std::initializer_list<std::string_view> aliases = {})
        : Tox_proj4_param(name, aliases) {}

    const T& value() const { return value_; }
    /// Sets the value alone; `present` stays.
    void set_value(const T& value) { value_ = value; }

    /// The value when present.
    std::optional<T> get() const { return present ? std::optional<T>(value_) : std::nullopt; }
    /// Makes the parameter present with the value, or absent (its value stays).
    void set(const std::optional<T>& value) {
        present = value.has_value();
        if (value) value_ = *value;
    }
    /// Takes over the value and `present`; name and aliases stay.
    void copy_from(const Tox_proj4_param_of& other) {
        present = other.present;
        value_ = other.value_;
    }

    const std::string& format_text() final;
    void parse_value(std::string_view value) final;

    /// Both absent, or both present with equal values: texts trimmed and without regard to case,
    /// doubles within 1e-6 of each other, integers and flags exactly.
    bool equals(const Tox_proj4_param_of& other) const;

protected:
    T value_{};
};

using Tox_proj4_param_str = Tox_proj4_param_of<std::string>;
using Tox_proj4_param_dbl = Tox_proj4_param_of<double>;
using Tox_proj4_param_int = Tox_proj4_param_of<std::int32_t>;
/// A flag is written as "+name " whenever present, even when false; any token with its key sets it true.
using Tox_proj4_param_bool = Tox_proj4_param_of<bool>;

/// Shift to WGS84, Position Vector: three translations (m), three rotations (arc seconds), scale (ppm).
/// Reading fills missing pieces with 0, writing gives all seven.
class Tox_proj4_param_towgs84 final : public Tox_proj4_param_of<std::array<double, 7>> {
public:
    using Tox_proj4_param_of::set_value;
    using Tox_proj4_param_of::Tox_proj4_param_of;
    using Tox_proj4_param_of::value;

    /// `index` 0 to 6, not checked.
    double value(std::size_t index) const { return value_[index]; }
    void set_value(std::size_t index, double x) { value_[index] = x; }
};

}  // namespace ox
