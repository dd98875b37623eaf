#pragma once

#include <limits>

#include "border/interfaces/controls.h"
#include "toolkit/callback.h"
#include "toolkit/view.h"

namespace ox::toolkit {

template <class Number, class Impl>
class numeric_input;

/// A floating-point number with limits. `on_change` sees the proposed value as the current one and
/// answers whether it may stay.
template <>
class numeric_input<double, floating_input_impl> : public with_enabled<floating_input_impl> {
public:
    static constexpr double lowest = std::numeric_limits<double>::lowest();
    static constexpr double highest = std::numeric_limits<double>::max();

    explicit numeric_input(double decimals = 4, double value = 0) : value_(value), decimals_(decimals) {}

    double value() override { return value_; }
    double minimum() override { return minimum_; }
    double maximum() override { return maximum_; }
    double decimals() override { return decimals_; }
    void visit_caption(custom_pointer string_visitor) override { visit_text_of(caption_, string_visitor); }
    bool read_only() override { return read_only_; }
    bool set_value(double proposed) override {
        proposal asked(*this, proposed);
        asked.accepted = !on_change || on_change(proposed);
        return asked.accepted;
    }

    /// Shows a value of the program's own; `on_change` is not asked.
    void show(double value) { update(value_, value); }
    void show(double value, double minimum, double maximum) {
        const in_one_step step(*this);
        show(value);
        set_limits(minimum, maximum);
    }
    void set_limits(double minimum, double maximum) {
        const in_one_step step(*this);
        update(minimum_, minimum);
        update(maximum_, maximum);
    }
    void set_decimals(double decimals) { update(decimals_, decimals); }
    void set_caption(std::int32_t caption) { update(caption_, caption); }
    void set_read_only(bool read_only) { update(read_only_, read_only); }

    callback<bool(double proposed)> on_change;

private:
    /// A value while it is asked about. It goes again unless it is accepted; the view hears of the answer,
    /// together with what else was changed meanwhile.
    struct proposal {
        proposal(numeric_input& asking, double proposed)
            : number(asking), old(std::exchange(asking.value_, proposed)), step(asking) {}
        ~proposal() {
            if (!step) return;
            const double stays = accepted ? number.value_ : old;
            number.value_ = old;
            number.show(stays);
        }
        numeric_input& number;
        double old;
        in_one_step step;
        bool accepted = false;
    };

    double value_;
    double minimum_ = lowest;
    double maximum_ = highest;
    double decimals_;
    std::int32_t caption_ = 0;
    bool read_only_ = false;
};

using floating_input = numeric_input<double, floating_input_impl>;

}  // namespace ox::toolkit
