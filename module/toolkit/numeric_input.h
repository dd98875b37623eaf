#pragma once

#include <functional>
#include <limits>

#include "border/interfaces/controls.h"
#include "toolkit/view.h"

namespace ox::toolkit {

template <class Number, class Impl>
class numeric_input;

/// A floating-point number with limits. `on_change` sees the proposed value as the current one and
/// answers whether it may stay.
template <>
class numeric_input<double, floating_input_impl> : public with_view<floating_input_impl> {
public:
    static constexpr double lowest = std::numeric_limits<double>::lowest();
    static constexpr double highest = std::numeric_limits<double>::max();

    explicit numeric_input(double decimals = 4, double value = 0) : value_(value), decimals_(decimals) {}

    double value() override { return value_; }
    double minimum() override { return minimum_; }
    double maximum() override { return maximum_; }
    double decimals() override { return decimals_; }
    void visit_caption(custom_pointer string_visitor) override { visit_text_of(caption_, string_visitor); }
    bool enabled() override { return enabled_; }
    bool read_only() override { return read_only_; }
    bool set_value(double proposed) override {
        const double old = value_;
        value_ = proposed;
        if (on_change && !on_change(proposed)) {
            value_ = old;
            return false;
        }
        if (value_ != old) changed();
        return true;
    }

    /// Shows a value of the program's own; `on_change` is not asked.
    void show(double value) { update(value_, value); }
    void set_limits(double minimum, double maximum) {
        update(minimum_, minimum);
        update(maximum_, maximum);
    }
    void set_enabled(bool enabled) { update(enabled_, enabled); }
    void set_decimals(double decimals) { update(decimals_, decimals); }
    void set_read_only(bool read_only) { update(read_only_, read_only); }

    std::function<bool(double proposed)> on_change;

private:
    double value_;
    double minimum_ = lowest;
    double maximum_ = highest;
    double decimals_;
    std::int32_t caption_ = 0;
    bool enabled_ = true;
    bool read_only_ = false;
};

using floating_input = numeric_input<double, floating_input_impl>;

}  // namespace ox::toolkit
